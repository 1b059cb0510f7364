// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// Two doubles.
class XSG_API SoSFVec2d : public SoTyped<SoSFVec2d, SoSValue<SbVec2d>>
{
public:
    static constexpr const char* ClassName = "SFVec2d";

    SoSFVec2d() = default;
    SoSFVec2d(SoFieldContainer* owner, const char* name, const SbVec2d& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbVec2d>;
extern template class SoTyped<SoSFVec2d, SoSValue<SbVec2d>>;

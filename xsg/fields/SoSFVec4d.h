// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// Four doubles.
class XSG_API SoSFVec4d : public SoTyped<SoSFVec4d, SoSValue<SbVec4d>>
{
public:
    static constexpr const char* ClassName = "SFVec4d";

    SoSFVec4d() = default;
    SoSFVec4d(SoFieldContainer* owner, const char* name, const SbVec4d& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbVec4d>;
extern template class SoTyped<SoSFVec4d, SoSValue<SbVec4d>>;

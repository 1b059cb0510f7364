// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// Two floats.
class XSG_API SoSFVec2f : public SoTyped<SoSFVec2f, SoSValue<SbVec2f>>
{
public:
    static constexpr const char* ClassName = "SFVec2f";

    SoSFVec2f() = default;
    SoSFVec2f(SoFieldContainer* owner, const char* name, const SbVec2f& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbVec2f>;
extern template class SoTyped<SoSFVec2f, SoSValue<SbVec2f>>;

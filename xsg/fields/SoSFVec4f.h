// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// Four floats.
class XSG_API SoSFVec4f : public SoTyped<SoSFVec4f, SoSValue<SbVec4f>>
{
public:
    static constexpr const char* ClassName = "SFVec4f";

    SoSFVec4f() = default;
    SoSFVec4f(SoFieldContainer* owner, const char* name, const SbVec4f& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbVec4f>;
extern template class SoTyped<SoSFVec4f, SoSValue<SbVec4f>>;

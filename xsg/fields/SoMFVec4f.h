// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each four floats.
class XSG_API SoMFVec4f : public SoTyped<SoMFVec4f, SoMValue<SbVec4f>>
{
public:
    static constexpr const char* ClassName = "MFVec4f";

    SoMFVec4f() = default;
    SoMFVec4f(SoFieldContainer* owner, const char* name, std::initializer_list<SbVec4f> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbVec4f>;
extern template class SoTyped<SoMFVec4f, SoMValue<SbVec4f>>;

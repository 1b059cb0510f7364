// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each two floats.
class XSG_API SoMFVec2f : public SoTyped<SoMFVec2f, SoMValue<SbVec2f>>
{
public:
    static constexpr const char* ClassName = "MFVec2f";

    SoMFVec2f() = default;
    SoMFVec2f(SoFieldContainer* owner, const char* name, std::initializer_list<SbVec2f> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbVec2f>;
extern template class SoTyped<SoMFVec2f, SoMValue<SbVec2f>>;

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each two 32-bit integers.
class XSG_API SoMFVec2i32 : public SoTyped<SoMFVec2i32, SoMValue<SbVec2i32>>
{
public:
    static constexpr const char* ClassName = "MFVec2i32";

    SoMFVec2i32() = default;
    SoMFVec2i32(SoFieldContainer* owner, const char* name, std::initializer_list<SbVec2i32> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbVec2i32>;
extern template class SoTyped<SoMFVec2i32, SoMValue<SbVec2i32>>;

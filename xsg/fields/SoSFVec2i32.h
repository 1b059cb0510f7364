// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// Two 32-bit integers.
class XSG_API SoSFVec2i32 : public SoTyped<SoSFVec2i32, SoSValue<SbVec2i32>>
{
public:
    static constexpr const char* ClassName = "SFVec2i32";

    SoSFVec2i32() = default;
    SoSFVec2i32(SoFieldContainer* owner, const char* name, const SbVec2i32& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbVec2i32>;
extern template class SoTyped<SoSFVec2i32, SoSValue<SbVec2i32>>;

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each two 16-bit integers.
class XSG_API SoMFVec2s : public SoTyped<SoMFVec2s, SoMValue<SbVec2s>>
{
public:
    static constexpr const char* ClassName = "MFVec2s";

    SoMFVec2s() = default;
    SoMFVec2s(SoFieldContainer* owner, const char* name, std::initializer_list<SbVec2s> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbVec2s>;
extern template class SoTyped<SoMFVec2s, SoMValue<SbVec2s>>;

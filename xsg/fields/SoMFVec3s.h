// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each three 16-bit integers.
class XSG_API SoMFVec3s : public SoTyped<SoMFVec3s, SoMValue<SbVec3s>>
{
public:
    static constexpr const char* ClassName = "MFVec3s";

    SoMFVec3s() = default;
    SoMFVec3s(SoFieldContainer* owner, const char* name, std::initializer_list<SbVec3s> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbVec3s>;
extern template class SoTyped<SoMFVec3s, SoMValue<SbVec3s>>;

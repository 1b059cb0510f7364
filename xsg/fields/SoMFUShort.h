// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each a 16-bit unsigned integer.
class XSG_API SoMFUShort : public SoTyped<SoMFUShort, SoMValue<unsigned short>>
{
public:
    static constexpr const char* ClassName = "MFUShort";

    SoMFUShort() = default;
    SoMFUShort(SoFieldContainer* owner, const char* name, std::initializer_list<unsigned short> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<unsigned short>;
extern template class SoTyped<SoMFUShort, SoMValue<unsigned short>>;

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each a 16-bit signed integer.
class XSG_API SoMFShort : public SoTyped<SoMFShort, SoMValue<short>>
{
public:
    static constexpr const char* ClassName = "MFShort";

    SoMFShort() = default;
    SoMFShort(SoFieldContainer* owner, const char* name, std::initializer_list<short> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<short>;
extern template class SoTyped<SoMFShort, SoMValue<short>>;

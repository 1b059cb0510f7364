// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each a double-precision number.
class XSG_API SoMFDouble : public SoTyped<SoMFDouble, SoMValue<double>>
{
public:
    static constexpr const char* ClassName = "MFDouble";

    SoMFDouble() = default;
    SoMFDouble(SoFieldContainer* owner, const char* name, std::initializer_list<double> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<double>;
extern template class SoTyped<SoMFDouble, SoMValue<double>>;

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// A double-precision number.
class XSG_API SoSFDouble : public SoTyped<SoSFDouble, SoSValue<double>>
{
public:
    static constexpr const char* ClassName = "SFDouble";

    SoSFDouble() = default;
    SoSFDouble(SoFieldContainer* owner, const char* name, double value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<double>;
extern template class SoTyped<SoSFDouble, SoSValue<double>>;

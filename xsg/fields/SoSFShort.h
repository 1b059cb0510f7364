// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// A 16-bit signed integer.
class XSG_API SoSFShort : public SoTyped<SoSFShort, SoSValue<short>>
{
public:
    static constexpr const char* ClassName = "SFShort";

    SoSFShort() = default;
    SoSFShort(SoFieldContainer* owner, const char* name, short value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<short>;
extern template class SoTyped<SoSFShort, SoSValue<short>>;

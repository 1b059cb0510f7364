// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// A 16-bit unsigned integer.
class XSG_API SoSFUShort : public SoTyped<SoSFUShort, SoSValue<unsigned short>>
{
public:
    static constexpr const char* ClassName = "SFUShort";

    SoSFUShort() = default;
    SoSFUShort(SoFieldContainer* owner, const char* name, unsigned short value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<unsigned short>;
extern template class SoTyped<SoSFUShort, SoSValue<unsigned short>>;

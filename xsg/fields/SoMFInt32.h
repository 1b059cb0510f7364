// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

#include <cstdint>

/// Any number of values, each a 32-bit signed integer.
class XSG_API SoMFInt32 : public SoTyped<SoMFInt32, SoMValue<std::int32_t>>
{
public:
    static constexpr const char* ClassName = "MFInt32";

    SoMFInt32() = default;
    SoMFInt32(SoFieldContainer* owner, const char* name, std::initializer_list<std::int32_t> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<std::int32_t>;
extern template class SoTyped<SoMFInt32, SoMValue<std::int32_t>>;

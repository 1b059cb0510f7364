// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

#include <cstdint>

/// Any number of values, each a 32-bit unsigned integer.
class XSG_API SoMFUInt32 : public SoTyped<SoMFUInt32, SoMValue<std::uint32_t>>
{
public:
    static constexpr const char* ClassName = "MFUInt32";

    SoMFUInt32() = default;
    SoMFUInt32(SoFieldContainer* owner, const char* name, std::initializer_list<std::uint32_t> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<std::uint32_t>;
extern template class SoTyped<SoMFUInt32, SoMValue<std::uint32_t>>;

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

#include <cstdint>

/// A 32-bit unsigned integer.
class XSG_API SoSFUInt32 : public SoTyped<SoSFUInt32, SoSValue<std::uint32_t>>
{
public:
    static constexpr const char* ClassName = "SFUInt32";

    SoSFUInt32() = default;
    SoSFUInt32(SoFieldContainer* owner, const char* name, std::uint32_t value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<std::uint32_t>;
extern template class SoTyped<SoSFUInt32, SoSValue<std::uint32_t>>;

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

#include <cstdint>

/// A 32-bit signed integer.
class XSG_API SoSFInt32 : public SoTyped<SoSFInt32, SoSValue<std::int32_t>>
{
public:
    static constexpr const char* ClassName = "SFInt32";

    SoSFInt32() = default;
    SoSFInt32(SoFieldContainer* owner, const char* name, std::int32_t value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<std::int32_t>;
extern template class SoTyped<SoSFInt32, SoSValue<std::int32_t>>;

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// A box of 16-bit integers: minimum corner, maximum corner.
class XSG_API SoSFBox3s : public SoTyped<SoSFBox3s, SoSValue<SbBox3s>>
{
public:
    static constexpr const char* ClassName = "SFBox3s";

    SoSFBox3s() = default;
    SoSFBox3s(SoFieldContainer* owner, const char* name, const SbBox3s& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbBox3s>;
extern template class SoTyped<SoSFBox3s, SoSValue<SbBox3s>>;

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// A box of floats: minimum corner, maximum corner.
class XSG_API SoSFBox3f : public SoTyped<SoSFBox3f, SoSValue<SbBox3f>>
{
public:
    static constexpr const char* ClassName = "SFBox3f";

    SoSFBox3f() = default;
    SoSFBox3f(SoFieldContainer* owner, const char* name, const SbBox3f& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbBox3f>;
extern template class SoTyped<SoSFBox3f, SoSValue<SbBox3f>>;

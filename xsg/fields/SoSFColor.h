// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// A colour: red, green, blue.
class XSG_API SoSFColor : public SoTyped<SoSFColor, SoSValue<SbColor>>
{
public:
    static constexpr const char* ClassName = "SFColor";

    SoSFColor() = default;
    SoSFColor(SoFieldContainer* owner, const char* name, const SbColor& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbColor>;
extern template class SoTyped<SoSFColor, SoSValue<SbColor>>;

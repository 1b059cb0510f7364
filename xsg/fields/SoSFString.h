// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// A text.
class XSG_API SoSFString : public SoTyped<SoSFString, SoSValue<SbString>>
{
public:
    static constexpr const char* ClassName = "SFString";

    SoSFString() = default;
    SoSFString(SoFieldContainer* owner, const char* name, const SbString& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbString>;
extern template class SoTyped<SoSFString, SoSValue<SbString>>;

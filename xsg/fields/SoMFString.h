// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each a text.
class XSG_API SoMFString : public SoTyped<SoMFString, SoMValue<SbString>>
{
public:
    static constexpr const char* ClassName = "MFString";

    SoMFString() = default;
    SoMFString(SoFieldContainer* owner, const char* name, std::initializer_list<SbString> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbString>;
extern template class SoTyped<SoMFString, SoMValue<SbString>>;

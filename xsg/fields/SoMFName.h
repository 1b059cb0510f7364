// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each an interned name.
class XSG_API SoMFName : public SoTyped<SoMFName, SoMValue<SbName>>
{
public:
    static constexpr const char* ClassName = "MFName";

    SoMFName() = default;
    SoMFName(SoFieldContainer* owner, const char* name, std::initializer_list<SbName> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbName>;
extern template class SoTyped<SoMFName, SoMValue<SbName>>;

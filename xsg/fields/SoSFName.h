// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// An interned name.
class XSG_API SoSFName : public SoTyped<SoSFName, SoSValue<SbName>>
{
public:
    static constexpr const char* ClassName = "SFName";

    SoSFName() = default;
    SoSFName(SoFieldContainer* owner, const char* name, SbName value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbName>;
extern template class SoTyped<SoSFName, SoSValue<SbName>>;

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// True or false.
class XSG_API SoSFBool : public SoTyped<SoSFBool, SoSValue<bool>>
{
public:
    static constexpr const char* ClassName = "SFBool";

    SoSFBool() = default;
    SoSFBool(SoFieldContainer* owner, const char* name, bool value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<bool>;
extern template class SoTyped<SoSFBool, SoSValue<bool>>;

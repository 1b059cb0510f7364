// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each true or false.
class XSG_API SoMFBool : public SoTyped<SoMFBool, SoMValue<SbBool>>
{
public:
    static constexpr const char* ClassName = "MFBool";

    SoMFBool() = default;
    SoMFBool(SoFieldContainer* owner, const char* name, std::initializer_list<SbBool> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbBool>;
extern template class SoTyped<SoMFBool, SoMValue<SbBool>>;

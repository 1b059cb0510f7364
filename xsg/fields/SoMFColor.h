// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFVec3f.h>

/// Any number of values, each a colour: red, green, blue.
class XSG_API SoMFColor : public SoTyped<SoMFColor, SoMFVec3f>
{
public:
    static constexpr const char* ClassName = "MFColor";

    SoMFColor() = default;
    SoMFColor(SoFieldContainer* owner, const char* name, std::initializer_list<SbVec3f> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoTyped<SoMFColor, SoMFVec3f>;

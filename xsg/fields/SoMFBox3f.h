// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each a box of floats: minimum corner, maximum corner.
class XSG_API SoMFBox3f : public SoTyped<SoMFBox3f, SoMValue<SbBox3f>>
{
public:
    static constexpr const char* ClassName = "MFBox3f";

    SoMFBox3f() = default;
    SoMFBox3f(SoFieldContainer* owner, const char* name, std::initializer_list<SbBox3f> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbBox3f>;
extern template class SoTyped<SoMFBox3f, SoMValue<SbBox3f>>;

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each three floats.
class XSG_API SoMFVec3f : public SoTyped<SoMFVec3f, SoMValue<SbVec3f>>
{
public:
    static constexpr const char* ClassName = "MFVec3f";

    SoMFVec3f() = default;
    SoMFVec3f(SoFieldContainer* owner, const char* name, std::initializer_list<SbVec3f> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbVec3f>;
extern template class SoTyped<SoMFVec3f, SoMValue<SbVec3f>>;

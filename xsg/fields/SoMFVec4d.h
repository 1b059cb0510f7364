// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each four doubles.
class XSG_API SoMFVec4d : public SoTyped<SoMFVec4d, SoMValue<SbVec4d>>
{
public:
    static constexpr const char* ClassName = "MFVec4d";

    SoMFVec4d() = default;
    SoMFVec4d(SoFieldContainer* owner, const char* name, std::initializer_list<SbVec4d> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbVec4d>;
extern template class SoTyped<SoMFVec4d, SoMValue<SbVec4d>>;

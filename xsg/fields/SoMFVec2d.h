// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each two doubles.
class XSG_API SoMFVec2d : public SoTyped<SoMFVec2d, SoMValue<SbVec2d>>
{
public:
    static constexpr const char* ClassName = "MFVec2d";

    SoMFVec2d() = default;
    SoMFVec2d(SoFieldContainer* owner, const char* name, std::initializer_list<SbVec2d> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbVec2d>;
extern template class SoTyped<SoMFVec2d, SoMValue<SbVec2d>>;

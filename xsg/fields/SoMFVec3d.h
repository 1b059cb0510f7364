// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each three doubles.
class XSG_API SoMFVec3d : public SoTyped<SoMFVec3d, SoMValue<SbVec3d>>
{
public:
    static constexpr const char* ClassName = "MFVec3d";

    SoMFVec3d() = default;
    SoMFVec3d(SoFieldContainer* owner, const char* name, std::initializer_list<SbVec3d> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbVec3d>;
extern template class SoTyped<SoMFVec3d, SoMValue<SbVec3d>>;

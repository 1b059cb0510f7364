// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// Three doubles.
class XSG_API SoSFVec3d : public SoTyped<SoSFVec3d, SoSValue<SbVec3d>>
{
public:
    static constexpr const char* ClassName = "SFVec3d";

    SoSFVec3d() = default;
    SoSFVec3d(SoFieldContainer* owner, const char* name, const SbVec3d& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbVec3d>;
extern template class SoTyped<SoSFVec3d, SoSValue<SbVec3d>>;

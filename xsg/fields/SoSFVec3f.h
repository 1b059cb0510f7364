// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// Three floats.
class XSG_API SoSFVec3f : public SoTyped<SoSFVec3f, SoSValue<SbVec3f>>
{
public:
    static constexpr const char* ClassName = "SFVec3f";

    SoSFVec3f() = default;
    SoSFVec3f(SoFieldContainer* owner, const char* name, const SbVec3f& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbVec3f>;
extern template class SoTyped<SoSFVec3f, SoSValue<SbVec3f>>;

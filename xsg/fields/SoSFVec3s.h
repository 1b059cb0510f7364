// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// Three 16-bit integers.
class XSG_API SoSFVec3s : public SoTyped<SoSFVec3s, SoSValue<SbVec3s>>
{
public:
    static constexpr const char* ClassName = "SFVec3s";

    SoSFVec3s() = default;
    SoSFVec3s(SoFieldContainer* owner, const char* name, const SbVec3s& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbVec3s>;
extern template class SoTyped<SoSFVec3s, SoSValue<SbVec3s>>;

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// Two 16-bit integers.
class XSG_API SoSFVec2s : public SoTyped<SoSFVec2s, SoSValue<SbVec2s>>
{
public:
    static constexpr const char* ClassName = "SFVec2s";

    SoSFVec2s() = default;
    SoSFVec2s(SoFieldContainer* owner, const char* name, const SbVec2s& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbVec2s>;
extern template class SoTyped<SoSFVec2s, SoSValue<SbVec2s>>;

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// A time in seconds.
class XSG_API SoSFTime : public SoTyped<SoSFTime, SoSValue<SbTime>>
{
public:
    static constexpr const char* ClassName = "SFTime";

    SoSFTime() = default;
    SoSFTime(SoFieldContainer* owner, const char* name, SbTime value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbTime>;
extern template class SoTyped<SoSFTime, SoSValue<SbTime>>;

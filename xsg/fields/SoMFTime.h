// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each a time in seconds.
class XSG_API SoMFTime : public SoTyped<SoMFTime, SoMValue<SbTime>>
{
public:
    static constexpr const char* ClassName = "MFTime";

    SoMFTime() = default;
    SoMFTime(SoFieldContainer* owner, const char* name, std::initializer_list<SbTime> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbTime>;
extern template class SoTyped<SoMFTime, SoMValue<SbTime>>;

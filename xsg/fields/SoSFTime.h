// A time in seconds.
#pragma once

#include <xsg/fields/SoSValue.h>

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

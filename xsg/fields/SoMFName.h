// Any number of values, each an interned name.
#pragma once

#include <xsg/fields/SoMValue.h>

class XSG_API SoMFName : public SoTyped<SoMFName, SoMValue<SbName>>
{
public:
    static constexpr const char* ClassName = "MFName";

    SoMFName() = default;
    SoMFName(SoFieldContainer* owner, const char* name, std::initializer_list<SbName> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbName>;
extern template class SoTyped<SoMFName, SoMValue<SbName>>;

// A field of one value.
#pragma once

#include <xsg/fields/SoField.h>

class XSG_API SoSField : public SoTyped<SoSField, SoField>
{
public:
    static constexpr const char* ClassName = "SField";
    using SoTyped::SoTyped;
};

extern template class SoTyped<SoSField, SoField>;

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoField.h>

/// A field of one value.
class XSG_API SoSField : public SoTyped<SoSField, SoField>
{
public:
    static constexpr const char* ClassName = "SField";
    using SoTyped::SoTyped;

protected:
    bool isList() const final { return false; }
    int valueCount() const final { return 1; }
    void writePlain(std::string& out, int value) const override;
    bool assignFromText(const std::vector<std::string>& texts) override;
};

extern template class SoTyped<SoSField, SoField>;

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoSField.h>

#include <string>

/// A field of a node of a type that this program does not know: its value is the text that a file has after
/// the field's name. Connected from a field of a known type it keeps that text, since there is no known
/// conversion; what is connected from it takes the text.
class XSG_API SoUnknownField : public SoTyped<SoUnknownField, SoSField>
{
public:
    static constexpr const char* ClassName = "UnknownField";

    /// For a copy of a value.
    SoUnknownField() = default;
    SoUnknownField(SoFieldContainer* owner, SbName name)
        : SoTyped(owner, name.getString())
    {
    }

    /// An empty string in quotes where the file has no value.
    void get(SbString& text) const override;
    bool isSame(const SoField& other) const override;

protected:
    /// Refuses what a file could not have as one value.
    bool parse(std::string_view text) override;
    void assign(const SoField& sameType) override;
    bool isTextual() const override { return true; }
    void writePlain(std::string& out, int value) const override;
    bool assignFromText(const std::vector<std::string>& /*texts*/) override { return false; }

private:
    std::string m_text;
};

extern template class SoTyped<SoUnknownField, SoSField>;

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoSField.h>
#include <xsg/fields/SoEnumTable.h>

/// One of a set of named numbers. Its text is the bare name, or the number where no name has the value.
class XSG_API SoSFEnum : public SoTyped<SoSFEnum, SoSField>
{
public:
    static constexpr const char* ClassName = "SFEnum";

    SoSFEnum() = default;
    SoSFEnum(SoFieldContainer* owner, const char* name, SoEnumTablePtr table, int value);

    int getValue() const
    {
        evaluate();
        return m_value;
    }
    void setValue(int value);   // any number, named or not
    void setValue(SbName name); // an unknown name leaves the value
    /// The value behind a name; false for an unknown one.
    bool findValue(SbName name, int& value) const { return m_table->findValue(name, value); }

    /// The names in order; the pointers are valid until setEnums().
    void getEnums(int& count, const int*& values, const SbName*& names) const;
    void setEnums(int count, const int* values, const SbName* names);
    const SoEnumTable& getTable() const { return *m_table; }

    void get(SbString& text) const override;
    bool isSame(const SoField& other) const override;

protected:
    bool parse(std::string_view text) override;
    void assign(const SoField& sameType) override;
    int numbersPerValue() const override { return 1; }
    double number(int /*value*/, int /*which*/) const override { return m_value; }
    void takeNumbers(const SoField& sameShape) override;
    int rawValue() const { return m_value; }
    void takeRawValue(int value) { m_value = value; }

private:
    SoEnumTablePtr m_table = SoEnumTable::empty();
    int m_value = 0;
};

extern template class SoTyped<SoSFEnum, SoSField>;

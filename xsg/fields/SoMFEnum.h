// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoEnumTable.h>
#include <xsg/fields/SoMValue.h>

/// Any number of values, each one of a set of named numbers.
class XSG_API SoMFEnum : public SoTyped<SoMFEnum, SoMValue<std::int32_t>>
{
public:
    static constexpr const char* ClassName = "MFEnum";

    SoMFEnum() = default;
    SoMFEnum(SoFieldContainer* owner, const char* name, SoEnumTablePtr table,
             std::initializer_list<int> values = {})
        : SoTyped(owner, name, values)
        , m_table(std::move(table))
    {
    }

    /// The names in order; the pointers are valid until setEnums().
    void getEnums(int& count, const int*& values, const SbName*& names) const;
    void setEnums(int count, const int* values, const SbName* names);
    const SoEnumTable& getTable() const { return *m_table; }
    /// Knows the same names.
    std::unique_ptr<SoMField> makeSlice() const override;

protected:
    /// The text of one value in a list.
    virtual void writeListed(std::string& out, int value) const;
    virtual bool readListed(xsg::TextReader& in, int& value) const;
    /// The text of one value that stands alone.
    virtual bool readAlone(std::string_view text, int& value) const;

    void writeValue(std::string& out, int index) const override;
    void writeValues(std::string& out) const override;
    bool parseValue(std::string_view text, int index) override;
    bool parse(std::string_view text) override;
    bool assignFromText(const std::vector<std::string>& texts) override;
    /// The names may differ, so that a list of plain numbers is taken over as numbers.
    bool hasSameValues(const SoField& /*other*/) const override { return false; }

private:
    SoEnumTablePtr m_table = SoEnumTable::empty();
};

extern template class SoTyped<SoMFEnum, SoMValue<std::int32_t>>;

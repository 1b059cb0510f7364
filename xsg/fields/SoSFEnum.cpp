#include <xsg/fields/SoSFEnum.h>

#include <xsg/core/SoTypedImpl.h>
#include <xsg/fields/EnumText.h>
#include <xsg/fields/SoSFBitMask.h>

#include <algorithm>

template class SoTyped<SoSFEnum, SoSField>;
template class SoTyped<SoSFBitMask, SoSFEnum>;

SoEnumTable::SoEnumTable(std::initializer_list<std::pair<const char*, int>> entries)
{
    for (const auto& [name, value] : entries) {
        names.emplace_back(name);
        values.push_back(value);
    }
}

int SoEnumTable::indexOf(SbName name) const
{
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

int SoEnumTable::indexOf(int value) const
{
    const auto found = std::find(values.begin(), values.end(), value);
    return found == values.end() ? -1 : static_cast<int>(found - values.begin());
}

SoEnumTablePtr SoSFEnum::emptyTable()
{
    static const auto& empty = *new SoEnumTablePtr(std::make_shared<SoEnumTable>());
    return empty;
}

SoSFEnum::SoSFEnum(SoFieldContainer* owner, const char* name, SoEnumTablePtr table, int value)
    : SoTyped(owner, name)
    , m_table(std::move(table))
    , m_value(value)
{
}

void SoSFEnum::setValue(int value)
{
    m_value = value;
    valueWritten();
}

void SoSFEnum::setValue(SbName name)
{
    int value = 0;
    if (findValue(name, value))
        setValue(value);
}

bool SoSFEnum::findValue(SbName name, int& value) const
{
    const int index = m_table->indexOf(name);
    if (index < 0)
        return false;
    value = m_table->values[static_cast<std::size_t>(index)];
    return true;
}

void SoSFEnum::getEnums(int& count, const int*& values, const SbName*& names) const
{
    count = static_cast<int>(m_table->values.size());
    values = m_table->values.data();
    names = m_table->names.data();
}

void SoSFEnum::setEnums(int count, const int* values, const SbName* names)
{
    auto table = std::make_shared<SoEnumTable>();
    table->values.assign(values, values + std::max(count, 0));
    table->names.assign(names, names + std::max(count, 0));
    m_table = std::move(table);
}

void SoSFEnum::get(SbString& text) const
{
    evaluate();
    text.edit().clear();
    xsg::writeEnum(text.edit(), *m_table, m_value);
}

bool SoSFEnum::set(const SbString& text)
{
    if (!xsg::readEnum(text.str(), *m_table, m_value))
        return false;
    valueWritten();
    return true;
}

bool SoSFEnum::isSame(const SoField& other) const
{
    return other.getTypeId() == getTypeId() && static_cast<const SoSFEnum&>(other).getValue() == getValue();
}

void SoSFEnum::assign(const SoField& sameType)
{
    m_value = static_cast<const SoSFEnum&>(sameType).m_value;
}

// Enumerations and bit masks follow each other by number.
bool SoSFEnum::converts(const SoField& other) const
{
    return other.isOfType(SoSFEnum::getClassTypeId());
}

void SoSFEnum::assignConverted(const SoField& other)
{
    m_value = static_cast<const SoSFEnum&>(other).m_value;
}

void SoSFBitMask::get(SbString& text) const
{
    evaluate();
    text.edit().clear();
    xsg::writeBitMask(text.edit(), getTable(), rawValue());
}

bool SoSFBitMask::set(const SbString& text)
{
    int value = 0;
    if (!xsg::readBitMask(text.str(), getTable(), value))
        return false;
    setValue(value);
    return true;
}

// SPDX-License-Identifier: MIT
#include <xsg/fields/SoSFEnum.h>

#include <xsg/fields/EnumText.h>
#include <xsg/fields/SoSFBitMask.h>
#include <xsg/types/SoTypedImpl.h>
#include <xsg/values/ValueNumbers.h>

template class SoTyped<SoSFEnum, SoSField>;
template class SoTyped<SoSFBitMask, SoSFEnum>;

SoSFEnum::SoSFEnum(SoFieldContainer* owner, const char* name, SoEnumTablePtr table, int value)
    : SoTyped(owner, name)
    , m_table(std::move(table))
    , m_value(value)
{
}

void SoSFEnum::setValue(int value)
{
    aboutToWrite();
    m_value = value;
    valueWritten();
}

void SoSFEnum::setValue(SbName name)
{
    int value = 0;
    if (findValue(name, value))
        setValue(value);
}

void SoSFEnum::getEnums(int& count, const int*& values, const SbName*& names) const
{
    count = static_cast<int>(m_table->values.size());
    values = m_table->values.data();
    names = m_table->names.data();
}

void SoSFEnum::setEnums(int count, const int* values, const SbName* names)
{
    m_table = SoEnumTable::copyOf(count, values, names);
}

void SoSFEnum::get(SbString& text) const
{
    evaluate();
    text.edit().clear();
    xsg::writeEnum(text.edit(), *m_table, m_value);
}

bool SoSFEnum::parse(std::string_view text)
{
    return xsg::readEnum(text, *m_table, m_value);
}

bool SoSFEnum::isSame(const SoField& other) const
{
    return other.getTypeId() == getTypeId() && static_cast<const SoSFEnum&>(other).getValue() == getValue();
}

void SoSFEnum::assign(const SoField& sameType)
{
    m_value = static_cast<const SoSFEnum&>(sameType).m_value;
}

void SoSFEnum::takeNumbers(const SoField& sameShape)
{
    m_value = xsg::toNumber<int>(numberOf(sameShape, 0, 0));
}

void SoSFBitMask::get(SbString& text) const
{
    evaluate();
    text.edit().clear();
    xsg::writeBitMask(text.edit(), getTable(), rawValue());
}

bool SoSFBitMask::parse(std::string_view text)
{
    int value = 0;
    if (!xsg::readBitMask(text, getTable(), value))
        return false;
    takeRawValue(value);
    return true;
}

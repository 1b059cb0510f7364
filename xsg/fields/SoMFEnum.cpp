// SPDX-License-Identifier: MIT
#include <xsg/fields/SoMFEnum.h>

#include <xsg/fields/EnumText.h>
#include <xsg/fields/SoMFBitMask.h>
#include <xsg/fields/SoMFInt32.h>
#include <xsg/fields/SoValueImpl.h>

template class SoTyped<SoMFEnum, SoMValue<std::int32_t>>;
template class SoTyped<SoMFBitMask, SoMFEnum>;

void SoMFEnum::getEnums(int& count, const int*& values, const SbName*& names) const
{
    count = static_cast<int>(m_table->values.size());
    values = m_table->values.data();
    names = m_table->names.data();
}

void SoMFEnum::setEnums(int count, const int* values, const SbName* names)
{
    m_table = SoEnumTable::copyOf(count, values, names);
}

std::unique_ptr<SoMField> SoMFEnum::makeSlice() const
{
    std::unique_ptr<SoMField> slice = SoMValue::makeSlice();
    if (auto* names = dynamic_cast<SoMFEnum*>(slice.get()))
        names->m_table = m_table;
    return slice;
}

void SoMFEnum::writeListed(std::string& out, int value) const
{
    xsg::writeListedEnum(out, *m_table, value);
}

bool SoMFEnum::readListed(xsg::TextReader& in, int& value) const
{
    return xsg::readListedEnum(in, *m_table, value);
}

bool SoMFEnum::readAlone(std::string_view text, int& value) const
{
    return xsg::readEnum(text, *m_table, value);
}

void SoMFEnum::writeValue(std::string& out, int index) const
{
    writeListed(out, rawValues()[static_cast<std::size_t>(index)]);
}

void SoMFEnum::writeValues(std::string& out) const
{
    xsg::writeValues(out, rawValues(), [this](std::string& text, int value) { writeListed(text, value); });
}

bool SoMFEnum::parseValue(std::string_view text, int index)
{
    int value = 0;
    return readAlone(text, value) && storeAt(index, value);
}

bool SoMFEnum::parse(std::string_view text)
{
    std::vector<int> values;
    const auto readOne = [this](xsg::TextReader& in, int& value) { return readListed(in, value); };
    const auto readLone = [this](std::string_view lone, int& value) { return readAlone(lone, value); };
    if (!xsg::readValues(text, values, readOne, readLone))
        return false;
    takeRawValues(std::move(values));
    return true;
}

bool SoMFEnum::assignFromText(const std::vector<std::string>& texts)
{
    std::vector<int> values(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!readAlone(texts[i], values[i]))
            return false;
    }
    takeRawValues(std::move(values));
    return true;
}

void SoMFBitMask::writeListed(std::string& out, int value) const
{
    xsg::writeBitMask(out, getTable(), value);
}

bool SoMFBitMask::readListed(xsg::TextReader& in, int& value) const
{
    return xsg::readListedBitMask(in, getTable(), value);
}

bool SoMFBitMask::readAlone(std::string_view text, int& value) const
{
    return xsg::readBitMask(text, getTable(), value);
}

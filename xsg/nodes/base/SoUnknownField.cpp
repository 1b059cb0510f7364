// SPDX-License-Identifier: MIT
#include <xsg/nodes/base/SoUnknownField.h>

#include <xsg/types/SoTypedImpl.h>
#include <xsg/values/ValueText.h>

template class SoTyped<SoUnknownField, SoSField>;

void SoUnknownField::get(SbString& text) const
{
    evaluate();
    text.edit() = m_text.empty() ? "\"\"" : m_text;
}

bool SoUnknownField::isSame(const SoField& other) const
{
    return other.getTypeId() == getTypeId() && static_cast<const SoUnknownField&>(other).m_text == m_text;
}

bool SoUnknownField::parse(std::string_view text)
{
    const std::string_view value = xsg::trimmed(text);
    const xsg::ValueExtent extent(value);
    if (value.empty() || !extent.isWhole() || extent.length != value.size())
        return false;
    m_text = value;
    return true;
}

void SoUnknownField::assign(const SoField& sameType)
{
    m_text = static_cast<const SoUnknownField&>(sameType).m_text;
}

void SoUnknownField::writePlain(std::string& out, int /*value*/) const
{
    out += m_text;
}

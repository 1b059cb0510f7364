// SPDX-License-Identifier: MIT
#include "EdUIntSlider.h"

#include <scopix/editing/SpxText.h>

#include <limits>

namespace
{

// The whole unsigned range fits the slider's signed one when the top bit is flipped.
constexpr unsigned int TopBit = 0x80000000U;

} // namespace

EdUIntSlider::EdUIntSlider(SliderType type, SliderParentType parentType, SpxFieldEditors* owner,
                           QWidget* parent, int row, int column)
    : EdIntegerSlider(parentType, owner, parent, row, column)
    , m_wholeType(type == UInt16Slider ? std::numeric_limits<unsigned short>::max()
                                       : std::numeric_limits<unsigned int>::max())
    , m_upperLimit(m_wholeType)
{
    setPosition(positionOf(0));
}

void EdUIntSlider::setValidLimits(unsigned int min, unsigned int max, bool boundFixed)
{
    if (!boundFixed) {
        m_lowerLimit = 0;
        m_upperLimit = m_wholeType;
    }
    min = std::max(min, m_lowerLimit);
    max = std::min(max, m_upperLimit);
    setBoundFixed(boundFixed);
    if (boundFixed) {
        m_lowerLimit = min;
        m_upperLimit = max;
        return;
    }
    setRange(min, max);
}

void EdUIntSlider::setValueFromEdit()
{
    bool ok = false;
    const unsigned int value = toInteger(getValueFromEdit(), radix(), ok);
    if (ok)
        take(std::max(m_lowerLimit, std::min(value, m_upperLimit)));
}

void EdUIntSlider::saveDataFromField()
{
    savedText() = SpxText::toSbString(withPrefix(numberText()));
}

int EdUIntSlider::positionOf(unsigned int value) const
{
    return static_cast<int>(value ^ TopBit);
}

unsigned int EdUIntSlider::numberAt(int position) const
{
    return static_cast<unsigned int>(position) ^ TopBit;
}

// Without a validator, a number beyond the type is refused when the typing ends; a list's cell clamps it.
bool EdUIntSlider::isNumberTyped() const
{
    bool ok = false;
    const unsigned int value = toInteger(getValueFromEdit(), radix(), ok);
    return ok && (isInTable() || value <= m_wholeType);
}

unsigned int EdUIntSlider::toInteger(const QString& text, int radix, bool& ok) const
{
    return text.toUInt(&ok, radix);
}

// SPDX-License-Identifier: MIT
#include "EdIntSlider.h"

#include "EdLineEdit.h"

#include <scopix/editing/SpxText.h>

#include <limits>

namespace
{

template <class Integer>
EdSliderValidator<EdIntValidator>* validatorFor(QObject* parent)
{
    using Limits = std::numeric_limits<Integer>;
    return new EdSliderValidator<EdIntValidator>(parent, int(Limits::min()), int(Limits::max()));
}

} // namespace

EdIntSlider::EdIntSlider(SliderType type, SliderParentType parentType, SpxFieldEditors* owner,
                         QWidget* parent, int row, int column)
    : EdIntegerSlider(parentType, owner, parent, row, column)
    , m_validator(type == Int16Slider ? validatorFor<short>(lineEdit()) : validatorFor<int>(lineEdit()))
{
}

void EdIntSlider::setValidLimits(int min, int max, bool boundFixed)
{
    if (!boundFixed)
        m_validator->limitToWholeType();
    min = std::max(min, m_validator->bottom());
    max = std::min(max, m_validator->top());
    setBoundFixed(boundFixed);
    if (boundFixed)
        m_validator->limitTo(min, max);
    setRange(min, max);
}

void EdIntSlider::setValueFromEdit()
{
    bool ok = false;
    int value = toInteger(getValueFromEdit(), radix(), ok);
    if (ok && radix() != 10)
        value = std::max(m_validator->bottom(), std::min(value, m_validator->top()));
    take(value); // a text that is no number counts as 0 (decisions.md: no-number-is-0)
}

void EdIntSlider::saveDataFromField()
{
    savedText() = SpxText::toSbString(numberText());
}

// Only decimal digits can be checked while they are typed.
void EdIntSlider::radixChosen()
{
    if (radix() == 10)
        lineEdit()->setValidator(m_validator);
}

// SPDX-License-Identifier: MIT
#include "EdRealSlider.h"

#include "EdLineEdit.h"

#include <scopix/editing/SpxText.h>

#include <cmath>
#include <limits>

namespace
{

constexpr double Steps = 100.0;

template <class Real>
EdSliderValidator<EdRealValidator>* validatorFor(QObject* parent, int decimals)
{
    constexpr double Limit = std::numeric_limits<Real>::max();
    return new EdSliderValidator<EdRealValidator>(parent, -Limit, Limit, decimals);
}

// A text that is no number counts as 0, one beyond the largest number as that number: rounding to 15 digits
// can lead there.
double numberOf(const QString& text)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (!ok && std::isinf(value))
        return std::copysign(std::numeric_limits<double>::max(), value);
    return ok ? value : 0.0;
}

} // namespace

EdRealSlider::EdRealSlider(SliderParentType parentType, SpxFieldEditors* owner, QWidget* parent,
                           bool singlePrecision, int row, int column)
    : EdNumberSlider(parentType, owner, parent, row, column)
    , m_singlePrecision(singlePrecision)
    , m_validator(singlePrecision ? validatorFor<float>(lineEdit(), 6) : validatorFor<double>(lineEdit(), 15))
{
    lineEdit()->setValidator(m_validator);
}

void EdRealSlider::setValidLimits(double min, double max, bool boundFixed)
{
    setBoundFixed(boundFixed);
    if (boundFixed)
        m_validator->limitTo(min, max);
    else
        m_validator->limitToWholeType();
    setRange(min, max);
}

void EdRealSlider::limitToFloat()
{
    constexpr double Limit = std::numeric_limits<float>::max();
    m_validator->setWholeRange(-Limit, Limit);
}

bool EdRealSlider::isNumberTyped() const
{
    bool ok = false;
    getValueFromEdit().toDouble(&ok);
    return ok && lineEdit()->hasAcceptableInput();
}

bool EdRealSlider::isTextTaken() const
{
    const QString text = getValueFromEdit();
    return numberOf(text) == getNumber() || text == numberText(getNumber());
}

void EdRealSlider::setRealValue(double value)
{
    showFieldText(numberText(value));
}

int EdRealSlider::sliderToInt(double value) const
{
    if (getTop() == getBottom())
        return 0;
    double share = (value - getBottom()) * Steps / (getTop() - getBottom());
    if (isTooWide() || !std::isfinite(share))
        share = (value / 4 - getBottom() / 4) / (getTop() / 4 - getBottom() / 4) * Steps;
    constexpr double Far = 1e9;
    return std::isfinite(share) ? static_cast<int>(std::max(-Far, std::min(share + 0.5, Far))) : 0;
}

double EdRealSlider::sliderToDouble(int position) const
{
    const double value = position * (getTop() - getBottom()) / Steps + getBottom();
    if (std::isfinite(value))
        return value;
    const double share = position / Steps;
    return getBottom() * (1 - share) + getTop() * share;
}

// A range whose width no double can hold.
bool EdRealSlider::isTooWide() const
{
    return !std::isfinite(getTop() - getBottom());
}

void EdRealSlider::updateEdit()
{
    displayText(numberText(getNumber()));
}

void EdRealSlider::setValueFromEdit()
{
    const double value = numberOf(getValueFromEdit());
    if (std::isfinite(value))
        take(value);
    else
        takeOutside(value);
}

void EdRealSlider::saveDataFromField()
{
    savedText() = SpxText::toSbString(numberText(getNumber()));
}

QString EdRealSlider::numberText(double value) const
{
    return m_singlePrecision ? QString::number(value, 'f', 6) : QString::number(value, 'g', 15);
}

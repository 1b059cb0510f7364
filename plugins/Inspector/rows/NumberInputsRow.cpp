// SPDX-License-Identifier: MIT
#include "rows/NumberInputsRow.h"

#include "fields/NumberAccess.h"

#include <scopix/editing/SpxText.h>
#include <xsg/core/SoField.h>

#include <algorithm>
#include <cmath>

namespace inspector
{

NumberEdit* NumberInputsRow::addNumber(const NumberFormat& format, const QString& part)
{
    const int which = m_numbers.size();
    auto* number = new NumberEdit(editor());
    number->setObjectName(QStringLiteral("number%1").arg(which));
    number->setFormat(format);
    addInput(number, part);
    number->setPresent([=] { return field() ? shownNumber(which) : 0; });
    connect(number, &NumberEdit::dragBegan, this, [=] { dragBegan(which); });
    connect(number, &NumberEdit::dragged, this, [=](double value) { dragged(which, value); });
    connect(number, &NumberEdit::dragEnded, this, &NumberInputsRow::dragEnded);
    connect(number, &NumberEdit::entered, this, [=](double value) {
        edit([&] { writeNumber(which, isOther() ? number->resultFor(shownNumber(which)) : value); });
    });
    connect(number, &NumberEdit::textEntered, this,
            [=](const QString& text, bool* isTaken) { *isTaken = takeText(text); });
    connect(number, &NumberEdit::givenBack, this, [this] { changedHere(); });
    m_numbers += number;
    return number;
}

void NumberInputsRow::finish()
{
    for (NumberEdit* number : qAsConst(m_numbers))
        number->finish();
}

// By what is shown, so that a number is not called mixed where it looks the same.
bool NumberInputsRow::isMixedNumber(int which)
{
    QString shown;
    bool isMixed = false;
    forEachField([&](std::size_t i) {
        if (i == 0)
            shown = shownText(which);
        else
            isMixed = isMixed || shownText(which) != shown;
    });
    return isMixed;
}

void NumberInputsRow::showValue()
{
    const bool isMixed = this->isMixed();
    for (int i = 0; i < m_numbers.size(); ++i) {
        NumberEdit* number = m_numbers[i];
        if (number->hasFocus() && number->isModified())
            continue;
        if (isMixed && isMixedNumber(i))
            number->showMixed(shownNumber(i));
        else
            number->showNumber(shownNumber(i), shownText(i));
    }
}

bool NumberInputsRow::isBusy() const
{
    return std::any_of(m_numbers.begin(), m_numbers.end(),
                       [](const NumberEdit* each) { return each->isBusy(); });
}

void NumberInputsRow::dragBegan(int which)
{
    m_starts.clear();
    forEachField([&](std::size_t i) {
        m_starts.resize(i + 1);
        m_starts[i] = shownNumber(which);
    });
    beginGesture();
}

// The others are shifted by as much.
void NumberInputsRow::dragged(int which, double number)
{
    gesture().write([&] {
        forEachField([&](std::size_t i) {
            const double start = i < m_starts.size() ? m_starts[i] : shownNumber(which);
            const double by = number - m_starts.front();
            if (i == 0)
                writeNumber(which, number);
            else if (std::isfinite(start + by))
                writeNumber(which, m_numbers[which]->within(start + by, start));
        });
    });
    changedHere();
}

void NumberInputsRow::dragEnded(bool keep)
{
    if (keep)
        gesture().keep();
    else
        gesture().giveBack();
    changedHere();
}

NumberFormat formatOf(const SoField& field)
{
    NumberFormat format;
    if (const NumberAccess* access = NumberAccess::of(field)) {
        format.isInteger = access->isInteger;
        if (access->isInteger) {
            format.hardLow = access->lowest;
            format.hardHigh = access->highest;
        }
    }
    if (const SpxFieldDescription* known = SpxFieldDescription::find(field)) {
        format.softLow = known->softLow;
        format.softHigh = known->softHigh;
        format.hardLow = std::max(format.hardLow, known->hardLow);
        format.hardHigh = std::min(format.hardHigh, known->hardHigh);
        format.quantity = known->quantity;
    }
    return format;
}

QString NumberInputsRow::numberText(double number) const
{
    const NumberAccess* access = NumberAccess::of(*field());
    if (access && access->isInteger)
        return QString::number(qint64(number));
    return access && !access->isFloat && m_digits == 0 ? SpxText::ofNumber(number) : floatText(float(number));
}

QString NumberInputsRow::floatText(float number) const
{
    return m_digits > 0 ? QString::number(double(number), 'g', m_digits) : SpxText::ofNumber(number);
}

QString degreesText(double degrees)
{
    return QString::number(degrees, 'g', 6) + QChar(0xB0);
}

} // namespace inspector

// SPDX-License-Identifier: MIT
#include "rows/ColorRow.h"

#include "fields/NumberAccess.h"

#include <xsg/core/SoField.h>

#include <QColorDialog>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>

#include <algorithm>
#include <array>

namespace inspector
{

namespace
{

// As finely as the picker knows them.
std::array<int, 3> channelsOf(const QColor& color)
{
    return {color.red(), color.green(), color.blue()};
}

QPixmap swatch(const QColor& color, const QSize& size, double ratio)
{
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(color);
    return pixmap;
}

} // namespace

ColorRow::ColorRow(SoField* field)
    : NumberInputsRow(field)
{
}

ColorRow::~ColorRow()
{
    delete m_picker;
}

void ColorRow::build()
{
    m_swatch = new QPushButton;
    m_swatch->setObjectName(QStringLiteral("swatch"));
    const int side = fontMetrics().height();
    m_swatch->setFixedWidth(2 * side);
    m_swatch->setIconSize({side + side / 3, side - 2});
    connect(m_swatch, &QPushButton::clicked, this, &ColorRow::openPicker);
    editorLayout()->addWidget(m_swatch);
    addInput(m_swatch, tr("colour picker"));
    NumberFormat format = formatOf(*field());
    format.softHigh = 1;
    const QString names[] = {tr("red"), tr("green"), tr("blue")};
    const QString letters[] = {QStringLiteral("r"), QStringLiteral("g"), QStringLiteral("b")};
    for (int i = 0; i < 3; ++i) {
        format.prefix = letters[i];
        editorLayout()->addWidget(addNumber(format, names[i]), 1);
    }
}

void ColorRow::showValue()
{
    NumberInputsRow::showValue();
    m_swatch->setIcon(swatch(color(), m_swatch->iconSize(), devicePixelRatioF()));
    m_swatch->setToolTip(tr("%1, sRGB; the numbers are the stored ones, from 0 to 1").arg(color().name()));
}

bool ColorRow::isBusy() const
{
    return m_picker || NumberInputsRow::isBusy();
}

double ColorRow::shownNumber(int which) const
{
    return NumberAccess::of(*field())->get(*field(), which);
}

QString ColorRow::shownText(int which) const
{
    return numberText(*field(), shownNumber(which));
}

void ColorRow::writeNumber(int which, double number)
{
    NumberAccess::of(*field())->set(*field(), which, number);
}

// "#1a6090", in any of the inputs.
bool ColorRow::takeText(const QString& text)
{
    const QColor typed(text.trimmed());
    if (!text.trimmed().startsWith(QLatin1Char('#')) || !typed.isValid())
        return false;
    for (NumberEdit* number : numbers())
        number->setModified(false);
    edit([&] { take(typed, QColor()); });
    return true;
}

QColor ColorRow::color() const
{
    std::array<double, 3> parts{};
    for (int i = 0; i < 3; ++i) {
        const double part = shownNumber(i);
        parts[std::size_t(i)] = part > 0 ? std::min(part, 1.0) : 0;
    }
    return QColor::fromRgbF(parts[0], parts[1], parts[2]);
}

void ColorRow::openPicker()
{
    if (m_picker || !field())
        return;
    m_picker = new QColorDialog(color(), window());
    m_picked = m_picker->currentColor();
    m_picker->setAttribute(Qt::WA_DeleteOnClose);
    m_picker->setOption(QColorDialog::DontUseNativeDialog);
    m_picker->setWindowTitle(fieldName());
    gesture().begin(field());
    connect(m_picker, &QColorDialog::currentColorChanged, this, [this](const QColor& picked) {
        gesture().write([&] { take(picked, m_picked); });
        m_picked = picked;
        changedHere();
    });
    connect(m_picker, &QDialog::finished, this, [this](int result) { close(result == QDialog::Accepted); });
    m_picker->open();
}

// A channel that is as it was in the reference keeps the bits that no picker can show.
void ColorRow::take(const QColor& color, const QColor& reference)
{
    const auto wanted = channelsOf(color);
    const auto former = channelsOf(reference);
    const double parts[] = {color.redF(), color.greenF(), color.blueF()};
    for (std::size_t i = 0; i < 3; ++i) {
        if (!reference.isValid() || wanted[i] != former[i])
            writeNumber(int(i), parts[i]);
    }
}

void ColorRow::close(bool keep)
{
    m_picker = nullptr;
    if (keep)
        gesture().keep();
    else
        gesture().giveBack();
    changedHere();
}

} // namespace inspector

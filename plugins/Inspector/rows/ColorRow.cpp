// SPDX-License-Identifier: MIT
#include "rows/ColorRow.h"

#include "fields/NumberAccess.h"
#include "rows/TextEdit.h"

#include <scopix/editing/SpxText.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>
#include <xsg/fields/SoSFFloat.h>

#include <QActionGroup>
#include <QColorDialog>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>
#include <array>

namespace inspector
{

namespace
{

constexpr int FormCount = 4;
constexpr int Space = 3;

struct FormWords {
    QString button;
    QString menu;
    QString meaning;
    std::array<QString, 3> letters;
    std::array<QString, 3> names;
};

FormWords wordsOf(ColorForm form)
{
    const std::array<QString, 3> rgb{ColorRow::tr("red"), ColorRow::tr("green"), ColorRow::tr("blue")};
    const std::array<QString, 3> letters{QStringLiteral("r"), QStringLiteral("g"), QStringLiteral("b")};
    switch (form) {
    case ColorForm::Hsv:
        return {ColorRow::tr("HSV"),
                ColorRow::tr("&HSV, sRGB"),
                ColorRow::tr("Hue in degrees, saturation and value, of sRGB"),
                {QStringLiteral("h"), QStringLiteral("s"), QStringLiteral("v")},
                {ColorRow::tr("hue"), ColorRow::tr("saturation"), ColorRow::tr("value")}};
    case ColorForm::Hex:
        return {ColorRow::tr("hex"), ColorRow::tr("He&x, sRGB"),
                ColorRow::tr("Hexadecimal, sRGB, as in #1a6090"), letters, rgb};
    case ColorForm::Linear:
        return {ColorRow::tr("lin"), ColorRow::tr("&Linear RGB"),
                ColorRow::tr("Linear light, from 0 to 1; sRGB is stored"), letters, rgb};
    case ColorForm::Rgb:
        break;
    }
    return {ColorRow::tr("RGB"), ColorRow::tr("&RGB, sRGB"), ColorRow::tr("sRGB, from 0 to 1, as stored"),
            letters, rgb};
}

// As finely as the picker knows them.
std::array<int, 3> channelsOf(const QColor& color)
{
    return {color.red(), color.green(), color.blue()};
}

// Several colours as stripes.
QPixmap swatch(const std::vector<QColor>& colors, const QSize& size, double ratio)
{
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(colors.front());
    QPainter painter(&pixmap);
    const double width = double(size.width()) / double(colors.size());
    for (std::size_t i = 1; i < colors.size(); ++i)
        painter.fillRect(QRectF(double(i) * width, 0, width, size.height()), colors[i]);
    return pixmap;
}

} // namespace

ColorRow::ColorRow(SoField* field)
    : NumberInputsRow(field)
    , m_form(PanelSettings::colorForm())
{
}

ColorRow::~ColorRow()
{
    delete m_picker;
}

void ColorRow::build()
{
    m_beside = new QWidget(this);
    auto* layout = new QHBoxLayout(m_beside);
    layout->setContentsMargins(0, 0, Space, 0);
    layout->setSpacing(Space);
    makeSwatch();
    makeForms();
    for (int i = 0; i < 3; ++i)
        editorLayout()->addWidget(addNumber({}, {}), 1);
    makeHex();
    showForm();
}

void ColorRow::makeSwatch()
{
    m_swatch = new QPushButton;
    m_swatch->setObjectName(QStringLiteral("swatch"));
    const int side = fontMetrics().height();
    m_swatch->setFixedWidth(2 * side);
    m_swatch->setIconSize({side + side / 3, side - 2});
    connect(m_swatch, &QPushButton::clicked, this, &ColorRow::openPicker);
    m_beside->layout()->addWidget(m_swatch);
    addInput(m_swatch, tr("colour picker"));
}

void ColorRow::makeForms()
{
    m_forms = new QToolButton;
    m_forms->setObjectName(QStringLiteral("form"));
    m_forms->setAutoRaise(true);
    m_forms->setFocusPolicy(Qt::StrongFocus);
    connect(m_forms, &QToolButton::clicked, this, &ColorRow::openForms);
    m_beside->layout()->addWidget(m_forms);
    addInput(m_forms, tr("form"));
}

void ColorRow::makeHex()
{
    m_hex = new TextEdit([this] {
        m_hex->setModified(false);
        changedHere();
    });
    m_hex->setObjectName(QStringLiteral("hex"));
    m_hex->setMinimumWidth(fontMetrics().averageCharWidth() * 7);
    connect(m_hex, &QLineEdit::editingFinished, this, &ColorRow::applyHex);
    editorLayout()->addWidget(m_hex, 3);
    addInput(m_hex, tr("as hexadecimal text"));
}

void ColorRow::openForms()
{
    auto* menu = new QMenu(this); // the row may go while it is open
    menu->setObjectName(QStringLiteral("colorForms"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto* group = new QActionGroup(menu);
    for (int i = 0; i < FormCount; ++i) {
        QAction* action =
            menu->addAction(wordsOf(ColorForm(i)).menu, this, [this, i] { setForm(ColorForm(i)); });
        action->setCheckable(true);
        action->setChecked(i == int(m_form));
        group->addAction(action);
    }
    menu->popup(m_forms->mapToGlobal(m_forms->rect().bottomLeft()));
}

void ColorRow::setForm(ColorForm form)
{
    if (form == m_form || !field())
        return;
    finish();
    m_form = form;
    PanelSettings::setColorForm(form);
    showForm();
    showValue();
}

void ColorRow::showForm()
{
    const FormWords words = wordsOf(m_form);
    m_forms->setText(words.button);
    m_forms->setToolTip(words.meaning);
    m_forms->setAccessibleDescription(words.meaning);
    m_hex->setVisible(m_form == ColorForm::Hex);
    for (int i = 0; i < 3; ++i) {
        const bool isHue = m_form == ColorForm::Hsv && i == 0;
        NumberFormat format = isHue ? NumberFormat() : formatOf(*field());
        format.softHigh = isHue ? 360 : 1;
        if (m_form == ColorForm::Hsv && i == 1) {
            format.hardLow = 0;
            format.hardHigh = 1;
        }
        format.prefix = words.letters[std::size_t(i)];
        NumberEdit* number = numbers()[i];
        number->setFormat(format);
        number->setVisible(m_form != ColorForm::Hex);
        number->setAccessibleName(fieldName() + QLatin1Char(' ') + words.names[std::size_t(i)]);
        number->setAccessibleDescription(words.meaning);
    }
}

void ColorRow::showValue()
{
    updateParts();
    NumberInputsRow::showValue();
    const std::vector<QColor> shown = colors();
    const QString name = shown.size() > 1 ? mixedWord() : shown.front().name();
    if (!m_hex->isModified() || !m_hex->hasFocus())
        m_hex->setText(shown.size() > 1 ? QString() : name);
    m_hex->setPlaceholderText(shown.size() > 1 ? name : QString());
    m_swatch->setIcon(swatch(shown, m_swatch->iconSize(), devicePixelRatioF()));
    m_swatch->setToolTip(tr("%1, sRGB. A click opens the colour picker.").arg(name));
    m_swatch->setAccessibleDescription(tr("%1, sRGB").arg(name));
}

void ColorRow::updateParts()
{
    if (stored() == m_made)
        return;
    m_made = stored();
    m_parts = hsvOf(m_made, m_parts);
}

bool ColorRow::isBusy() const
{
    return m_picker || (m_hex->isModified() && m_hex->hasFocus()) || NumberInputsRow::isBusy();
}

void ColorRow::finish()
{
    applyHex();
    NumberInputsRow::finish();
}

ColorParts ColorRow::stored() const
{
    const auto get = [this](int which) { return NumberAccess::of(*field())->get(*field(), which); };
    return {get(0), get(1), get(2)};
}

void ColorRow::writeStored(int which, double number)
{
    NumberAccess::of(*field())->set(*field(), which, number);
}

double ColorRow::shownNumber(int which) const
{
    if (m_form == ColorForm::Hsv)
        return m_parts[std::size_t(which)];
    const double number = stored()[std::size_t(which)];
    return m_form == ColorForm::Linear ? linearOf(number) : number;
}

QString ColorRow::shownText(int which) const
{
    const double number = shownNumber(which);
    if (m_form == ColorForm::Hsv && which == 0)
        return degreesText(number);
    // What is computed has no more digits than what is stored.
    return m_form == ColorForm::Rgb ? numberText(number) : QString::number(number, 'g', 4);
}

// Channels that come out the same keep their bits.
void ColorRow::writeNumber(int which, double number)
{
    if (m_form == ColorForm::Linear)
        return writeStored(which, srgbOf(number));
    if (m_form != ColorForm::Hsv)
        return writeStored(which, number);
    const ColorParts before = rgbOf(m_parts);
    m_parts[std::size_t(which)] = number;
    const ColorParts after = rgbOf(m_parts);
    for (std::size_t i = 0; i < 3; ++i) {
        if (float(before[i]) != float(after[i]))
            writeStored(int(i), after[i]);
    }
    m_made = stored();
}

// "#1a6090", in any of the inputs.
bool ColorRow::takeText(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^#(?:[0-9a-fA-F]{3}|[0-9a-fA-F]{6})$"));
    const QColor typed(form.match(text.trimmed()).hasMatch() ? QColor(text.trimmed()) : QColor());
    if (!typed.isValid())
        return false;
    for (NumberEdit* number : numbers())
        number->setModified(false);
    edit([&] { take(typed, color()); });
    return true;
}

void ColorRow::applyHex()
{
    if (!m_hex->isModified() || !field())
        return;
    const QString text = m_hex->text();
    m_hex->setModified(false);
    if (!takeText(text.startsWith(QLatin1Char('#')) ? text : QLatin1Char('#') + text) && isVisible())
        QToolTip::showText(m_hex->mapToGlobal(QPoint(0, m_hex->height())),
                           tr("“%1” is no colour: write one as in #1a6090.").arg(text.left(40)), m_hex);
    changedHere();
}

QColor ColorRow::color() const
{
    std::array<double, 3> parts{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double part = stored()[i];
        parts[i] = part > 0 ? std::min(part, 1.0) : 0;
    }
    return QColor::fromRgbF(parts[0], parts[1], parts[2]);
}

// The different ones, as many as stripes can be told apart.
std::vector<QColor> ColorRow::colors()
{
    constexpr std::size_t MostStripes = 6;
    std::vector<QColor> all{color()};
    if (!isMixed())
        return all;
    forEachField([&](std::size_t) {
        const QColor each = color();
        if (all.size() < MostStripes && std::find(all.begin(), all.end(), each) == all.end())
            all.push_back(each);
    });
    return all;
}

// What a material's colour lets through stands beside it.
SoSFFloat* ColorRow::transparency() const
{
    const SoFieldContainer* node = field()->getContainer();
    const bool isMain = field()->getName() == SbName("diffuseColor") && fields().size() == 1;
    return node && isMain ? dynamic_cast<SoSFFloat*>(node->getField("transparency")) : nullptr;
}

void ColorRow::openPicker()
{
    if (m_picker || !field())
        return;
    QColor start = color();
    SoSFFloat* through = transparency();
    if (through)
        start.setAlphaF(1 - std::clamp(double(through->getValue()), 0.0, 1.0));
    m_picker = new QColorDialog(window());
    m_picker->setOption(QColorDialog::ShowAlphaChannel, through);
    m_picker->setOption(QColorDialog::DontUseNativeDialog);
    m_picker->setCurrentColor(start);
    m_picked = m_picker->currentColor();
    m_picker->setAttribute(Qt::WA_DeleteOnClose);
    m_picker->setWindowTitle(tr("%1, sRGB").arg(fieldName()));
    beginGesture();
    if (through)
        m_transparency.begin(through);
    connect(m_picker, &QColorDialog::currentColorChanged, this, &ColorRow::pick);
    connect(m_picker, &QDialog::finished, this, [this](int result) { close(result == QDialog::Accepted); });
    m_picker->open();
}

void ColorRow::pick(const QColor& picked)
{
    gesture().write(
        [&] { forEachField([&](std::size_t) { take(picked, isOther() ? color() : m_picked); }); });
    if (picked.alpha() != m_picked.alpha())
        m_transparency.write([&] {
            static_cast<SoSFFloat*>(m_transparency.getField())->setValue(float(1 - picked.alphaF()));
        });
    m_picked = picked;
    changedHere();
}

// A channel that is as it was in the reference keeps the bits that no picker can show.
void ColorRow::take(const QColor& color, const QColor& reference)
{
    const auto wanted = channelsOf(color);
    const auto former = channelsOf(reference);
    const double parts[] = {color.redF(), color.greenF(), color.blueF()};
    for (std::size_t i = 0; i < 3; ++i) {
        if (wanted[i] != former[i])
            writeStored(int(i), parts[i]);
    }
}

void ColorRow::close(bool keep)
{
    m_picker = nullptr;
    const auto end = [keep](auto& each) {
        if (keep)
            each.keep();
        else
            each.giveBack();
    };
    end(gesture());
    end(m_transparency);
    changedHere();
}

} // namespace inspector

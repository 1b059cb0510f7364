// SPDX-License-Identifier: MIT
#include "rows/NumberEdit.h"

#include <scopix/SpxSentence.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace inspector
{

namespace
{

constexpr double PixelsOfRange = 200;
constexpr double Finer = 0.1;
constexpr int Margin = 3;

// The power of ten of a number's first digit.
double magnitude(double number)
{
    const double size = std::fabs(number);
    return size > 0 && std::isfinite(size) ? std::pow(10.0, std::floor(std::log10(size))) : 1;
}

double roundedTo(double number, double step)
{
    // The nearest decimal number, rather than many steps added up.
    const double inverse = 1 / step;
    return step < 1 ? std::round(number * inverse) / std::round(inverse) : std::round(number / step) * step;
}

bool isSpecial(const QString& text)
{
    const QStringList names{QStringLiteral("nan"), QStringLiteral("inf"), QStringLiteral("-inf"),
                            QStringLiteral("\u221E"), QStringLiteral("-\u221E")};
    return names.contains(text.trimmed().toLower());
}

} // namespace

NumberEdit::NumberEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setFocusPolicy(Qt::TabFocus); // a press may become a drag: a click takes the focus by itself
    setContextMenuPolicy(Qt::NoContextMenu);
    connect(this, &QLineEdit::textEdited, this, [this] { setWrong(false); });
    updateCursor();
}

QSize NumberEdit::minimumSizeHint() const
{
    const int digits = fontMetrics().horizontalAdvance(QStringLiteral("0.0"));
    return {digits + textMargins().left() + 2 * Margin, QLineEdit::minimumSizeHint().height()};
}

void NumberEdit::setFormat(const NumberFormat& format)
{
    m_format = format;
    const int room = format.prefix.isEmpty() ? 0 : fontMetrics().horizontalAdvance(format.prefix) + Margin;
    setTextMargins(room, 0, 0, 0);
    update();
}

void NumberEdit::showNumber(double number, const QString& text)
{
    m_number = number;
    m_shown = text;
    setPlaceholderText(QString());
    setWrong(false);
    if (text == this->text() && !isModified())
        return;
    setText(text); // not modified any more
    if (hasFocus())
        selectAll();
    else
        setCursorPosition(0);
}

void NumberEdit::showMixed(double number)
{
    showNumber(number, QString());
    setPlaceholderText(tr("mixed"));
}

void NumberEdit::finish()
{
    if (isDragging())
        endDrag(true);
    if (isModified() && !apply())
        showNumber(m_number, m_shown);
}

void NumberEdit::beginDrag()
{
    m_drag = Drag::Moves;
    const double start = present();
    m_dragStart = std::isfinite(start) ? start : 0;
    m_dragOffset = 0;
    m_draggedPixels = 0;
    emit dragBegan();
}

void NumberEdit::dragTo(int pixels, Qt::KeyboardModifiers modifiers)
{
    if (!isDragging())
        return;
    m_dragOffset += (pixels - m_draggedPixels) * (modifiers.testFlag(Qt::ShiftModifier) ? Finer : 1);
    m_draggedPixels = pixels;
    const double step = perPixel();
    double wanted = m_dragStart + m_dragOffset * step;
    const bool snaps = modifiers.testFlag(Qt::ControlModifier);
    if (snaps || m_format.isInteger)
        wanted = roundedTo(
            wanted, m_format.isInteger && !snaps ? 1 : magnitude(step * 10) * (m_format.isInteger ? 10 : 1));
    else
        wanted = roundedTo(wanted, magnitude(step) / 10);
    const double number = withinSoft(wanted);
    if (number != m_number)
        emit dragged(number);
}

void NumberEdit::endDrag(bool keep)
{
    const Drag before = m_drag;
    m_drag = Drag::None;
    if (m_isOwnDrag)
        releaseKeyboard();
    m_isOwnDrag = false;
    updateCursor();
    if (before == Drag::Moves)
        emit dragEnded(keep);
}

bool NumberEdit::event(QEvent* event)
{
    // Esc is ours, whatever shortcut it is elsewhere, as long as there is something to give back.
    if (event->type() == QEvent::ShortcutOverride && (isDragging() || isModified()) &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void NumberEdit::mousePressEvent(QMouseEvent* event)
{
    if (hasFocus() || event->button() != Qt::LeftButton || isReadOnly())
        return hasFocus() ? QLineEdit::mousePressEvent(event) : event->ignore();
    m_drag = Drag::Pressed;
    m_pressedAt = event->pos();
}

void NumberEdit::mouseMoveEvent(QMouseEvent* event)
{
    if (m_drag == Drag::None)
        return QLineEdit::mouseMoveEvent(event);
    const int pixels = event->pos().x() - m_pressedAt.x();
    if (m_drag == Drag::Pressed && std::abs(pixels) >= QApplication::startDragDistance()) {
        m_pressedAt = event->pos();
        m_isOwnDrag = true;
        grabKeyboard();
        beginDrag();
    } else {
        dragTo(pixels, event->modifiers());
    }
}

void NumberEdit::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_drag == Drag::None || event->button() != Qt::LeftButton)
        return QLineEdit::mouseReleaseEvent(event);
    const bool isClick = m_drag == Drag::Pressed;
    endDrag(true);
    if (isClick)
        setFocus(Qt::MouseFocusReason);
}

void NumberEdit::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        if (isDragging())
            return endDrag(false);
        if (!isModified())
            return event->ignore();
        showNumber(m_number, m_shown);
        emit givenBack();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (isModified())
            apply();
        else
            selectAll();
        return;
    case Qt::Key_Up:
        return step(1, event->modifiers());
    case Qt::Key_Down:
        return step(-1, event->modifiers());
    case Qt::Key_PageUp:
        return step(10, event->modifiers());
    case Qt::Key_PageDown:
        return step(-10, event->modifiers());
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void NumberEdit::wheelEvent(QWheelEvent* event)
{
    if (!hasFocus() || event->angleDelta().y() == 0)
        return event->ignore();
    step(event->angleDelta().y() > 0 ? 1 : -1, event->modifiers());
    event->accept();
}

void NumberEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::MouseFocusReason)
        selectAll();
    updateCursor();
}

void NumberEdit::focusOutEvent(QFocusEvent* event)
{
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        finish();
        deselect();
    }
    QLineEdit::focusOutEvent(event);
    updateCursor();
}

void NumberEdit::hideEvent(QHideEvent* event)
{
    endDrag(true);
    QLineEdit::hideEvent(event);
}

void NumberEdit::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    paintShare(painter);
    if (m_format.prefix.isEmpty())
        return;
    QColor faint = palette().color(QPalette::Text);
    faint.setAlphaF(0.55);
    painter.setPen(faint);
    painter.drawText(rect().adjusted(2 * Margin - 1, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
                     m_format.prefix);
}

// Where the number stands between the limits of a drag, as a line at the bottom.
void NumberEdit::paintShare(QPainter& painter) const
{
    if (m_format.softLow == m_format.softHigh || hasFocus())
        return;
    const double share =
        std::clamp((m_number - m_format.softLow) / (m_format.softHigh - m_format.softLow), 0.0, 1.0);
    const QRect inside = rect().adjusted(2, 0, -2, 0);
    const int height = 2;
    painter.fillRect(
        QRect(inside.left(), inside.bottom() - height, int(std::lround(inside.width() * share)), height),
        palette().color(QPalette::Highlight));
}

// True when nothing is left that is typed and not applied.
bool NumberEdit::apply()
{
    bool isTaken = false;
    emit textEntered(text(), &isTaken);
    if (isTaken)
        return true;
    const QByteArray typed = text().toUtf8();
    const SpxExpression expression({typed.data(), std::size_t(typed.size())},
                                   {{"x"}, m_format.quantity, m_format.unit});
    if (!expression.isValid()) {
        refuse(SpxSentence::translated(expression.getError().sentence));
        setCursorPosition(QString::fromUtf8(typed.left(int(expression.getError().position))).size());
        return false;
    }
    const double before = present();
    const double number = expression.evaluate(&before);
    if (!std::isfinite(number) && (m_format.isInteger || !isSpecial(text()))) {
        refuse(tr("The result is not a number that this field can hold."));
        return false;
    }
    enter(number, [&](double x) {
        const double result = expression.evaluate(&x);
        return std::isfinite(result) || isSpecial(text()) ? withinHard(result) : x;
    });
    if (hasFocus())
        selectAll();
    return true;
}

void NumberEdit::enter(double number, std::function<double(double)> result)
{
    setModified(false);
    setWrong(false);
    m_result = std::move(result);
    emit entered(withinHard(number));
    m_result = nullptr;
}

void NumberEdit::refuse(const QString& sentence)
{
    setWrong(true);
    if (m_meaning.isNull())
        m_meaning = accessibleDescription();
    setAccessibleDescription(sentence);
    if (isVisible())
        QToolTip::showText(mapToGlobal(QPoint(0, height())), sentence, this);
}

void NumberEdit::setWrong(bool wrong)
{
    if (property("wrong").toBool() == wrong)
        return;
    setProperty("wrong", wrong);
    QPalette colors;
    if (wrong)
        colors.setColor(QPalette::Text, QColor(0xd0, 0x40, 0x30));
    setPalette(colors);
    if (wrong)
        return;
    setAccessibleDescription(m_meaning);
    m_meaning = QString();
    QToolTip::hideText();
}

void NumberEdit::step(double digits, Qt::KeyboardModifiers modifiers)
{
    if (isReadOnly() || (isModified() && !apply()))
        return;
    const double digit = digitAtCursor() * (modifiers.testFlag(Qt::ShiftModifier) ? Finer : 1);
    const double amount = m_format.isInteger ? std::max(1.0, digit) : digit;
    const double start = present();
    const bool isAll = hasSelectedText();
    const int cursorFromEnd = text().size() - cursorPosition();
    const double finiteStart = std::isfinite(start) ? start : 0;
    const double by = digits * amount;
    // Without what adding decimal fractions leaves in the last bits.
    const auto stepped = [](double from, double by) {
        return QString::number(from + by, 'g', 12).toDouble();
    };
    enter(withinSoft(stepped(finiteStart, by)),
          [&](double x) { return std::isfinite(x) ? within(stepped(x, by), x) : x; });
    if (isAll)
        return selectAll();
    deselect();
    setCursorPosition(std::max(0, text().size() - cursorFromEnd));
}

// The value of the digit before the cursor; where all is selected, a fine step for the whole number.
double NumberEdit::digitAtCursor() const
{
    const QString shown = text();
    const int cursor = cursorPosition();
    if (hasSelectedText() || cursor == 0 || shown.contains(QLatin1Char('e')))
        return wholeStep();
    int point = shown.indexOf(QLatin1Char('.'));
    if (point < 0) {
        const auto isDigit = [](QChar c) { return c.isDigit(); };
        point = int(std::find_if(shown.rbegin(), shown.rend(), isDigit).base() - shown.begin());
    }
    return std::pow(10.0, cursor <= point ? point - cursor : std::min(0, point + 1 - cursor));
}

double NumberEdit::wholeStep() const
{
    if (m_format.isInteger)
        return 1;
    return m_format.softLow == m_format.softHigh ? magnitude(m_number) / 10
                                                 : magnitude(m_format.softHigh - m_format.softLow) / 100;
}

double NumberEdit::perPixel() const
{
    if (m_format.softLow != m_format.softHigh)
        return std::max((m_format.softHigh - m_format.softLow) / PixelsOfRange,
                        m_format.isInteger ? 0.25 : 0.0);
    return m_format.isInteger ? 0.25 : magnitude(m_dragStart) / 50;
}

double NumberEdit::withinSoft(double number) const
{
    return within(number, isDragging() ? m_dragStart : m_number);
}

// A number that is beyond already may stay there, but goes no further.
double NumberEdit::within(double number, double start) const
{
    if (m_format.softLow == m_format.softHigh)
        return withinHard(number);
    return std::clamp(number, std::min(m_format.softLow, start), std::max(m_format.softHigh, start));
}

double NumberEdit::withinHard(double number) const
{
    return std::isnan(number) ? number : std::clamp(number, m_format.hardLow, m_format.hardHigh);
}

void NumberEdit::updateCursor()
{
    setCursor(hasFocus() ? Qt::IBeamCursor : Qt::SizeHorCursor);
}

} // namespace inspector

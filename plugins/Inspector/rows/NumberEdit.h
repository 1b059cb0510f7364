// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/expression/SpxExpression.h>

#include <QLineEdit>

#include <functional>
#include <limits>

namespace inspector
{

/// What a number may be, and how it is typed and dragged.
struct NumberFormat {
    double softLow = 0; // a drag stays in between; equal: no limits
    double softHigh = 0;
    double hardLow = -std::numeric_limits<double>::infinity();
    double hardHigh = std::numeric_limits<double>::infinity();
    bool isInteger = false;
    SpxQuantity quantity = SpxQuantity::Number;
    double unit = 1; // of what is shown, as in SpxExpressionSettings
    QString prefix;  // drawn in front, as in "x"
};

/// An input for one number: a drag changes it (Shift finer, Ctrl snaps, Esc gives back), a click types, with
/// formulas and units; the arrow and page keys change the digit at the cursor, the wheel does where it has
/// the focus. All numbers are as shown, in the format's unit. Knows no field. GUI thread only.
class NumberEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit NumberEdit(QWidget* parent = nullptr);

    void setFormat(const NumberFormat& format);
    const NumberFormat& format() const { return m_format; }
    /// Shows a number that nobody typed here; drops what is typed.
    void showNumber(double number, const QString& text);
    double number() const { return m_number; }
    /// Shows that there are several numbers; this is the one that a drag starts from.
    void showMixed(double number);
    /// While entered() is emitted: what the same typing or key makes of another present value.
    double resultFor(double present) const { return m_result ? m_result(present) : present; }
    /// Within the limits of a drag that started from `start`.
    double within(double number, double start) const;
    /// Asked for the number that a formula, a key or a drag starts from, which may be newer than what is
    /// shown.
    void setPresent(std::function<double()> present) { m_present = std::move(present); }

    /// The text does not fit: the tool tip then is the text.
    bool isCut() const;
    bool isDragging() const { return m_drag == Drag::Moves; }
    /// Typed into, or dragged: what is shown is the user's.
    bool isBusy() const { return isDragging() || (isModified() && hasFocus()); }
    /// Applies what is typed; what is no number is dropped.
    void finish();

    /// A drag that began elsewhere, as on a caption.
    void beginDrag();
    void dragTo(int pixels, Qt::KeyboardModifiers modifiers);
    void endDrag(bool keep);

signals:
    void dragBegan();
    void dragged(double number);
    void dragEnded(bool keep);
    /// Typed, or changed by a key or the wheel.
    void entered(double number);
    /// Text that is typed and is no number may be something else; who knows it sets `isTaken`.
    void textEntered(const QString& text, bool* isTaken);
    /// The user drops what is typed.
    void givenBack();

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    enum class Drag { None, Pressed, Moves };

    double present() const { return m_present ? m_present() : m_number; }
    bool apply();
    void enter(double number, std::function<double(double)> result);
    void refuse(const QString& sentence);
    void setWrong(bool wrong);
    void step(double digits, Qt::KeyboardModifiers modifiers);
    double digitAtCursor() const;
    double wholeStep() const;
    double perPixel() const;
    double withinSoft(double number) const;
    double withinHard(double number) const;
    void paintShare(QPainter& painter) const;
    void updateCursor();

    NumberFormat m_format;
    double m_number = 0;
    std::function<double(double)> m_result;
    std::function<double()> m_present;
    QString m_shown;   // for m_number
    QString m_meaning; // what the accessible description was before it said what is wrong; null: it is that
    Drag m_drag = Drag::None;
    bool m_isOwnDrag = false;
    QPoint m_pressedAt;
    double m_dragStart = 0;
    double m_dragOffset = 0; // moved so far, in pixels of full speed
    int m_draggedPixels = 0;
};

} // namespace inspector

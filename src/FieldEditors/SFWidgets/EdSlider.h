// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbString.h>

#include <QFrame>

class EdLineEdit;
class QCheckBox;
class QHBoxLayout;
class QSlider;
class SpxFieldEditors;

/// The kind of integer that an integer slider holds.
enum SliderType { Int32Slider = 1, UInt32Slider = 2, Int16Slider = 3, UInt16Slider = 4 };
enum SliderParentType { SingleValueParent = 0, MultiValueParent = 1 };

/// One number as a check box (apply while dragging), a slider and a line edit. What the user enters reaches
/// the owner editor: through applyChanges() of a single-value editor, through set1Value() of a multi-value
/// one. What the program shows or moves never does. The variants carry the number; GUI thread only.
class EdSlider : public QFrame
{
    Q_OBJECT

public:
    /// `owner` must outlive the slider. row, column: the element and component of a multi-value owner.
    EdSlider(SliderParentType parentType, SpxFieldEditors* owner, QWidget* parent, int row, int column);
    ~EdSlider() override;

    /// Shows a value that comes from the field, as text.
    virtual void setValue(QString text);
    virtual void updateEdit();
    virtual void setValueFromEdit();
    virtual void setValueFromSlider(int position);
    /// Keeps the value as it is before a drag.
    virtual void saveDataFromField();

    /// With the prefix "0" in radix 8 and "0x" in radix 16.
    QString getText() const;
    /// The slider's position.
    int getValue() const;
    QString getValueFromEdit() const;
    void setText(const QString& text);
    /// True when the input holds something that has not been applied.
    bool isEdited() const;
    bool isChecked() const;
    void setChecked(bool checked);
    /// Moves the slider to the position of the value, silently.
    void updateSlider();

    /// The text that saveDataFromField() kept; the command of the next edit consumes it.
    SbString& savedText() { return m_savedText; }
    /// Reads what was typed and not applied. False where that is no number or what the field shows already:
    /// the line then shows the field's value again.
    bool takeTyping();
    /// While the user holds the handle, nothing from the field moves the slider.
    bool isHeld() const;
    /// Another field comes: nothing typed or saved is for it.
    void forget();
    /// Shows the field's value in place of what was typed.
    void dropTyping();

public slots:
    void changeValueFromEdit();

protected slots:
    void eventNotify(bool state);
    void beginCallback();
    void finishCallback();
    void valueChangeSlot(int newValue);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

    /// Whether the line holds a complete number.
    virtual bool isNumberTyped() const { return true; }
    /// Whether the line says the number that was taken from it: it may lie outside of a fixed range.
    virtual bool isTextTaken() const { return true; }

    bool isInTable() const { return m_parentType != SingleValueParent; }
    EdLineEdit* lineEdit() const { return m_lineEdit; }
    int radix() const { return m_radix; }
    /// The text of a number as a field of the slider's radix has it.
    QString withPrefix(const QString& text) const;
    void setRadix(int radix) { m_radix = radix; }
    void setPosition(int position) { m_position = position; }
    /// Limits the slider and puts it back to its position, silently.
    void setSliderRange(int minimum, int maximum);
    /// Shows a text of the field and takes its value over; while the handle is held, afterwards.
    void showFieldText(const QString& text);
    /// The text of the value for display only: what the field last gave stays what Escape returns to.
    void displayText(const QString& text);

private:
    void build(SliderParentType parentType);
    void orderInputs();
    void connectInputs();
    void changeValueFromSlider(int position);
    void changeValueAfterFinish(int position);
    /// Whether the slider shows a number that the field does not have.
    bool isUnapplied() const;
    void showHeldBack();
    void takeTypingBack();
    void apply();
    bool isKeptFromTable(const QKeyEvent* event) const;

    EdLineEdit* m_lineEdit;
    SbString m_savedText;
    QHBoxLayout* m_layout;
    int m_position = 0;
    QSlider* m_slider;
    QCheckBox* m_checkBox;
    bool m_liveUpdate = true;
    bool m_sliding = false;
    bool m_notify = false;
    SliderParentType m_parentType;
    int m_radix = 10;
    SpxFieldEditors* m_owner;
    int m_row;
    int m_column;
    bool m_moved = false;    // since the handle was pressed
    bool m_heldBack = false; // the field changed while the handle was held
};

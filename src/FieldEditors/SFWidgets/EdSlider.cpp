// SPDX-License-Identifier: MIT
#include "EdSlider.h"

#include "EdFontFitting.h"
#include "EdFullRangeSliderStyle.h"
#include "EdLineEdit.h"
#include "EdWheelFocusFilter.h"
#include "SpxFieldEditors.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QSlider>

#include <limits>

EdSlider::EdSlider(SliderParentType parentType, SpxFieldEditors* owner, QWidget* parent, int row, int column)
    : QFrame(parent)
    , m_lineEdit(new EdLineEdit(this))
    , m_layout(new QHBoxLayout(this))
    , m_slider(new QSlider(Qt::Horizontal, this))
    , m_checkBox(new QCheckBox(this))
    , m_parentType(parentType)
    , m_owner(owner)
    , m_row(row)
    , m_column(column)
{
    setObjectName(QStringLiteral("EdSliderFrame"));
    build(parentType);
    connectInputs();
    m_notify = true;
}

EdSlider::~EdSlider()
{
    // A child that loses the focus while it is destroyed must not apply anything.
    for (QWidget* input : {static_cast<QWidget*>(m_lineEdit), static_cast<QWidget*>(m_slider),
                           static_cast<QWidget*>(m_checkBox)})
        input->disconnect(this);
}

void EdSlider::build(SliderParentType parentType)
{
    const bool inTable = parentType != SingleValueParent;
    const int margin = inTable ? 0 : 2;
    m_layout->setObjectName(QStringLiteral("scopixslider"));
    m_layout->setContentsMargins(margin, margin, margin, margin);
    m_layout->setSpacing(inTable ? 3 : 4);

    m_checkBox->setToolTip(tr("Apply while dragging"));
    m_checkBox->setAccessibleName(tr("Apply while dragging"));
    m_slider->setAccessibleName(tr("Value slider"));
    m_lineEdit->setAccessibleName(tr("Value"));

    m_slider->setTracking(true);
    m_slider->setMinimumWidth(inTable ? 30 : 60);
    m_slider->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setRoomFor(m_lineEdit, inTable ? "-0.000000" : "-2147483648");
    m_lineEdit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_lineEdit->setEscapePassed(inTable);
    EdWheelFocusFilter::install(m_slider);

    m_layout->addWidget(m_checkBox);
    m_layout->addWidget(m_slider, 3);
    m_layout->addWidget(m_lineEdit, 2);
    orderInputs();
    setFocusProxy(m_lineEdit);
}

// The frame counts as a stop for its proxy, the line, so it stands just before the line: Tab from a widget
// before the editor then comes to the check box first. Qt orders only widgets with a focus policy.
void EdSlider::orderInputs()
{
    setFocusPolicy(Qt::TabFocus);
    setTabOrder(this, m_checkBox);
    setTabOrder(m_checkBox, m_slider);
    setTabOrder(m_slider, this);
    setFocusPolicy(Qt::NoFocus);
}

void EdSlider::connectInputs()
{
    connect(m_slider, &QSlider::sliderPressed, this, &EdSlider::beginCallback);
    connect(m_slider, &QSlider::valueChanged, this, &EdSlider::valueChangeSlot);
    connect(m_slider, &QSlider::sliderReleased, this, &EdSlider::finishCallback);
    m_checkBox->setChecked(true);
    connect(m_lineEdit, &QLineEdit::returnPressed, this, &EdSlider::changeValueFromEdit);
    connect(m_lineEdit, &QLineEdit::editingFinished, this, &EdSlider::changeValueFromEdit);
    connect(m_lineEdit, &EdLineEdit::typingTakenBack, this, &EdSlider::takeTypingBack);
    connect(m_checkBox, &QCheckBox::toggled, this, &EdSlider::eventNotify);
}

void EdSlider::setValue(QString) {}

void EdSlider::updateEdit() {}

void EdSlider::setValueFromEdit() {}

void EdSlider::setValueFromSlider(int) {}

void EdSlider::saveDataFromField() {}

QString EdSlider::getText() const
{
    return withPrefix(m_lineEdit->text());
}

QString EdSlider::withPrefix(const QString& text) const
{
    if (m_radix == 8)
        return QLatin1Char('0') + text;
    return m_radix == 16 ? QLatin1String("0x") + text : text;
}

int EdSlider::getValue() const
{
    return m_slider->value();
}

QString EdSlider::getValueFromEdit() const
{
    return m_lineEdit->text();
}

void EdSlider::setText(const QString& text)
{
    m_lineEdit->forget();
    m_lineEdit->showText(text);
}

bool EdSlider::isEdited() const
{
    return m_lineEdit->isModified();
}

bool EdSlider::isChecked() const
{
    return m_checkBox->isChecked();
}

void EdSlider::setChecked(bool checked)
{
    m_checkBox->setChecked(checked);
}

void EdSlider::updateSlider()
{
    const QScopedValueRollback<bool> quiet(m_notify, false);
    m_slider->setValue(m_position);
}

void EdSlider::setSliderRange(int minimum, int maximum)
{
    if (qint64(maximum) - minimum > std::numeric_limits<int>::max())
        EdFullRangeSliderStyle::install(m_slider);
    const QScopedValueRollback<bool> quiet(m_notify, false);
    m_slider->setRange(minimum, maximum);
    m_slider->setValue(m_position);
}

void EdSlider::showFieldText(const QString& text)
{
    m_heldBack = isHeld();
    if (m_heldBack)
        return;
    m_lineEdit->showText(text);
    if (isEdited())
        return;
    setValueFromEdit();
    updateSlider();
}

void EdSlider::displayText(const QString& text)
{
    m_lineEdit->putText(text);
}

bool EdSlider::takeTyping()
{
    if (!isEdited())
        return true;
    if (!m_lineEdit->isChanged() || !isNumberTyped()) {
        dropTyping();
        return false;
    }
    setValueFromEdit();
    updateSlider();
    m_lineEdit->setModified(false);
    return true;
}

// What was moved without live update, unlike what was typed, is the slider's number already.
bool EdSlider::isUnapplied() const
{
    return isEdited() && m_lineEdit->isChanged() && isTextTaken();
}

bool EdSlider::isHeld() const
{
    return m_slider->isSliderDown();
}

void EdSlider::forget()
{
    m_savedText.makeNull();
    m_lineEdit->forget();
    m_moved = false;
    m_heldBack = false;
}

void EdSlider::dropTyping()
{
    m_lineEdit->dropTyping();
}

void EdSlider::changeValueFromEdit()
{
    if (!isEdited() || !takeTyping())
        return;
    // A list takes the line's text, not the number.
    if (isInTable() && !isTextTaken())
        updateEdit();
    apply();
}

void EdSlider::eventNotify(bool state)
{
    m_liveUpdate = state;
}

void EdSlider::beginCallback()
{
    m_sliding = true;
    m_moved = false;
    if (!isUnapplied())
        saveDataFromField();
}

void EdSlider::finishCallback()
{
    m_sliding = false;
    if (m_moved || isUnapplied())
        changeValueAfterFinish(m_slider->value());
    else
        showHeldBack();
    m_savedText.makeNull();
}

// The handle was let go where it was taken: there is nothing to apply, but the field may have changed
// meanwhile.
void EdSlider::showHeldBack()
{
    if (m_heldBack)
        m_owner->refresh();
}

void EdSlider::valueChangeSlot(int newValue)
{
    if (!m_notify)
        return;
    m_moved = true;
    m_sliding = true;
    changeValueFromSlider(newValue);
    m_sliding = false;
}

void EdSlider::changeValueFromSlider(int position)
{
    setValueFromSlider(position);
    updateEdit();
    if (m_sliding && m_liveUpdate) {
        apply();
        return;
    }
    m_lineEdit->setModified(true);
}

void EdSlider::changeValueAfterFinish(int position)
{
    setValueFromSlider(position);
    apply();
}

void EdSlider::takeTypingBack()
{
    setValueFromEdit();
    updateSlider();
}

void EdSlider::apply()
{
    m_lineEdit->setModified(false);
    if (!isInTable()) {
        m_owner->applyChanges();
        return;
    }
    m_owner->setRefresh(false);
    m_owner->set1Value(m_row, m_column, getText());
    m_owner->setRefresh(true);
}

// In a table, a key that an input has no use for would otherwise insert, delete or select rows.
bool EdSlider::isKeptFromTable(const QKeyEvent* event) const
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return false;
    default:
        return isInTable();
    }
}

void EdSlider::keyPressEvent(QKeyEvent* event)
{
    if (!isKeptFromTable(event))
        QFrame::keyPressEvent(event);
}

void EdSlider::keyReleaseEvent(QKeyEvent* event)
{
    if (!isKeptFromTable(event))
        QFrame::keyReleaseEvent(event);
}

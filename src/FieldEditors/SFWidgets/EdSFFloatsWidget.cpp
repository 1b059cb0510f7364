// SPDX-License-Identifier: MIT
#include "EdSFFloatsWidget.h"

#include "EdFieldEdits.h"
#include "EdFontFitting.h"
#include "EdValidators.h"

#include <scopix/editing/SpxText.h>

#include <QFrame>

void EdSFFloatsWidget::load()
{
    m_inputs.clear();
    EdSFColumnsWidget::load();
    for (EdLineEdit* input : m_inputs.all())
        setRoomFor(input, "-0.123457");
}

QWidget* EdSFFloatsWidget::buildInput()
{
    auto* input = new EdLineEdit(editionFrame());
    input->setValidator(EdRealValidator::forFloat(input));
    connect(input, &QLineEdit::editingFinished, this, &EdSFFloatsWidget::setFocusLeaveEvent);
    connect(input, &QLineEdit::returnPressed, this, &EdSFFloatsWidget::setCommandValue);
    m_inputs.add(input);
    return input;
}

void EdSFFloatsWidget::refresh()
{
    const Floats numbers = read();
    if (numbers.empty())
        return;
    QStringList texts;
    for (float number : numbers)
        texts << QString::number(double(number));
    m_inputs.show(texts);
    EdSFColumnsWidget::refresh();
}

void EdSFFloatsWidget::applyChanges()
{
    Floats numbers = read();
    if (numbers.empty() || !m_inputs.takeTyping())
        return;
    m_inputs.read(numbers, SpxText::toFloatOr0);
    EdFieldEdits::write(getSField(), [&] { write(numbers); });
}

bool EdSFFloatsWidget::edited()
{
    return m_inputs.isEdited();
}

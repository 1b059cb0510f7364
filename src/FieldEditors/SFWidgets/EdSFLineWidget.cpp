// SPDX-License-Identifier: MIT
#include "EdSFLineWidget.h"

#include "EdFieldEdits.h"
#include "EdLineEdit.h"

#include <scopix/editing/SpxText.h>
#include <xsg/core/SoSField.h>

#include <QBoxLayout>
#include <QFrame>

EdSFLineWidget::EdSFLineWidget(const char* name)
    : EdSFieldWidget(name)
{
    setFieldType(SoSField::getClassTypeId(), name);
}

void EdSFLineWidget::load()
{
    EdSFieldWidget::load();
    m_lineEdit = new EdLineEdit(editionFrame());
    m_lineEdit->setObjectName(QStringLiteral("lineEdit"));
    m_lineEdit->setAccessibleName(tr("Value"));
    editLayout()->addWidget(m_lineEdit);
    using Line = EdSFLineWidget;
    connect(m_lineEdit, &QLineEdit::editingFinished, this, &Line::setFocusLeaveEvent);
    connect(m_lineEdit, &QLineEdit::returnPressed, this, qOverload<>(&Line::applyChanges));
    // Both: each keystroke is applied twice (decisions.md: line-applied-twice).
    connect(m_lineEdit, &QLineEdit::textChanged, this, qOverload<const QString&>(&Line::applyChanges));
    connect(m_lineEdit, &QLineEdit::textEdited, this, qOverload<const QString&>(&Line::applyChanges));
    connect(m_lineEdit, &QLineEdit::cursorPositionChanged, this, &Line::setCursorPosition);
    connect(m_lineEdit, &EdLineEdit::typingTakenBack, this, &Line::showFieldText);
}

void EdSFLineWidget::setField(SoField* field)
{
    m_writtenText.makeNull();
    m_cursorPosition = 0;
    EdSFieldWidget::setField(field);
}

void EdSFLineWidget::setCursorPosition(int /*oldPos*/, int newPos)
{
    m_cursorPosition = newPos;
}

void EdSFLineWidget::applyChanges(const QString& /*text*/)
{
    SoSField* field = getSField();
    if (!field)
        return;
    m_cursorPosition = m_lineEdit->cursorPosition();
    EdFieldEdits::write(field, [&] {
        const bool isTaken = field->set(SpxText::toSbString(m_lineEdit->text()));
        field->get(m_writtenText);
        m_lineEdit->setCursorPosition(m_cursorPosition);
        m_lineEdit->setModified(!isTaken);
        return isTaken;
    });
}

void EdSFLineWidget::refresh()
{
    const SoSField* field = getSField();
    if (!field)
        return;
    SbString text;
    field->get(text);
    // While the field gives what was written from here, what was typed stays, also what it refused.
    if (m_writtenText.isNull() || text != m_writtenText)
        showFieldText();
    EdSFieldWidget::refresh();
}

void EdSFLineWidget::showFieldText()
{
    const SoSField* field = getSField();
    if (!field)
        return;
    SbString text;
    field->get(text);
    m_writtenText.makeNull();
    const int cursor = m_cursorPosition;
    m_lineEdit->setModified(false);
    m_lineEdit->showText(SpxText::toQString(text));
    if (m_lineEdit->cursorPosition() != cursor)
        m_lineEdit->setCursorPosition(cursor);
}

bool EdSFLineWidget::edited()
{
    return m_lineEdit->isModified();
}

// SPDX-License-Identifier: MIT
#include "EdTablePopupLineEdit.h"

#include "EdTablePopupWidget.h"

#include <QSignalBlocker>

EdTablePopupLineEdit::EdTablePopupLineEdit(int index, EdTablePopupWidget* owner, QWidget* parent,
                                           const char* name)
    : QLineEdit(parent)
    , m_index(index)
    , m_owner(owner)
{
    setObjectName(QString::fromLatin1(name));
    setAlignment(Qt::AlignLeft);
}

void EdTablePopupLineEdit::showText(const QString& text)
{
    m_shown = text;
    setText(text);
}

bool EdTablePopupLineEdit::isNumber() const
{
    bool ok = false;
    text().toFloat(&ok);
    return ok;
}

void EdTablePopupLineEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (isNumber())
        return;
    const QSignalBlocker quiet(this);
    showText(m_owner->getPopupValue(m_owner->rowToEdit(), m_index));
}

void EdTablePopupLineEdit::setCurrentValue(QString /*text*/)
{
    m_owner->set1Value(m_owner->rowToEdit(), -1, QString());
    // Written now, it stands for the number that the element has, whichever element the grid shows next.
    m_shown = this->text();
}

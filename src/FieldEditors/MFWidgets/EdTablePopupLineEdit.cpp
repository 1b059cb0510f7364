// SPDX-License-Identifier: MIT
#include "EdTablePopupLineEdit.h"

#include "EdTablePopupWidget.h"

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

void EdTablePopupLineEdit::setCurrentValue(QString /*text*/)
{
    m_owner->set1Value(m_owner->rowToEdit(), -1, QString());
    // Written now, it stands for the number that the element has, whichever element the grid shows next.
    m_shown = this->text();
}

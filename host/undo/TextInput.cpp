// SPDX-License-Identifier: MIT
#include "undo/TextInput.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextDocument>
#include <QTextEdit>

namespace scopix
{

namespace
{

// The line edit that takes the typing, for the widgets that have one inside.
const QLineEdit* lineEditOf(const QWidget* widget)
{
    if (const auto* combo = qobject_cast<const QComboBox*>(widget))
        return combo->lineEdit();
    if (qobject_cast<const QAbstractSpinBox*>(widget))
        return widget->findChild<const QLineEdit*>();
    return qobject_cast<const QLineEdit*>(widget);
}

template <class TextEdit>
const QTextDocument* writableDocument(const QWidget* widget)
{
    const auto* edit = qobject_cast<const TextEdit*>(widget);
    return edit && !edit->isReadOnly() ? edit->document() : nullptr;
}

const QTextDocument* documentOf(const QWidget* widget)
{
    const QTextDocument* document = writableDocument<QTextEdit>(widget);
    return document ? document : writableDocument<QPlainTextEdit>(widget);
}

} // namespace

bool TextInput::isTextInput(const QWidget* widget)
{
    if (const QLineEdit* line = lineEditOf(widget))
        return !line->isReadOnly();
    return documentOf(widget) != nullptr;
}

bool TextInput::isSingleLine(const QWidget* widget)
{
    return lineEditOf(widget) != nullptr;
}

bool TextInput::hasPendingEdit(const QWidget* widget)
{
    if (const QLineEdit* line = lineEditOf(widget))
        return !line->isReadOnly() && line->isModified();
    const QTextDocument* document = documentOf(widget);
    return document && document->isModified();
}

void TextInput::applyPendingEdit()
{
    QWidget* input = QApplication::focusWidget();
    if (!input || !hasPendingEdit(input))
        return;
    const QPointer<QWidget> survivor = input;
    input->clearFocus();
    if (survivor)
        survivor->setFocus();
}

} // namespace scopix

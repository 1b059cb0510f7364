// SPDX-License-Identifier: MIT
#include "EdLineEdit.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <limits>

EdLineEdit::EdLineEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setMaxLength(std::numeric_limits<int>::max());
}

void EdLineEdit::showText(const QString& text)
{
    const bool waits = isModified() && text == m_shownText;
    m_shownText = text;
    if (!waits && this->text() != text)
        putText(text);
}

void EdLineEdit::putText(const QString& text)
{
    const QSignalBlocker quiet(this);
    if (this->text() != text) {
        setText(text);
        setCursorPosition(0);
    }
    setModified(false);
}

void EdLineEdit::forget()
{
    m_shownText.clear();
    setModified(false);
}

void EdLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape || !(isModified() || isChanged())) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    dropTyping();
    event->setAccepted(!m_escapePassed);
}

void EdLineEdit::dropTyping()
{
    putText(m_shownText);
    emit typingTakenBack();
}

void EdLineEdit::focusOutEvent(QFocusEvent* event)
{
    if (isKeptByUser(event) && !isModified()) {
        const QSignalBlocker quiet(this);
        QLineEdit::focusOutEvent(event);
        return;
    }
    bool finished = false;
    const auto watch = connect(this, &QLineEdit::editingFinished, this, [&finished] { finished = true; });
    QLineEdit::focusOutEvent(event);
    disconnect(watch);
    if (m_finishingAlways && !finished && !isKeptByUser(event) && hasAcceptableInput())
        emit editingFinished();
    if (!isKeptByUser(event) && isModified() && !hasAcceptableInput())
        dropTyping();
}

// Another window or a popup takes the focus for a while; it will come back.
bool EdLineEdit::isKeptByUser(const QFocusEvent* event) const
{
    return event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
}

// SPDX-License-Identifier: MIT
#include "AccessButtonPrivate.h"

#include <QKeyEvent>
#include <QSignalBlocker>

AccessButtonPrivate::AccessButtonPrivate(QWidget* parent, const char* name)
    : QSpinBox(parent)
{
    setObjectName(QString::fromLatin1(name));
}

AccessButtonPrivate::AccessButtonPrivate(int minimum, int maximum, int step, QWidget* parent,
                                         const char* name)
    : AccessButtonPrivate(parent, name)
{
    setRange(minimum, maximum);
    setSingleStep(step);
}

void AccessButtonPrivate::setSilentRange(int minimum, int maximum)
{
    const QSignalBlocker quiet(this);
    setRange(minimum, maximum);
    fitSize();
}

void AccessButtonPrivate::setLeastMaximumSize(int width, int height)
{
    m_leastMaximum = QSize(width, height);
    fitSize();
}

void AccessButtonPrivate::fitSize()
{
    constexpr int FrameHeight = 4;
    const QSize needed(minimumSizeHint().width(), fontMetrics().height() + FrameHeight);
    setMaximumSize(m_leastMaximum.expandedTo(needed));
}

void AccessButtonPrivate::changeEvent(QEvent* event)
{
    QSpinBox::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitSize();
}

void AccessButtonPrivate::setNewValue(int row)
{
    const QSignalBlocker quiet(this);
    setValue(row + 1);
}

void AccessButtonPrivate::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        interpretText();
        emit valueChanged(value());
        return;
    }
    QSpinBox::keyPressEvent(event);
}

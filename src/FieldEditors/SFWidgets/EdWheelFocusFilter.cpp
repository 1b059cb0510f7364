// SPDX-License-Identifier: MIT
#include "EdWheelFocusFilter.h"

#include <QEvent>
#include <QWidget>

void EdWheelFocusFilter::install(QWidget* input)
{
    input->setFocusPolicy(Qt::StrongFocus);
    input->installEventFilter(new EdWheelFocusFilter(input));
}

bool EdWheelFocusFilter::eventFilter(QObject* watched, QEvent* event)
{
    const auto* input = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::Wheel || !input || input->hasFocus())
        return false;
    event->ignore();
    return true;
}

#include "EdWheelGuard.h"

#include <QEvent>
#include <QWidget>

void EdWheelGuard::install(QWidget* input)
{
    input->setFocusPolicy(Qt::StrongFocus);
    input->installEventFilter(new EdWheelGuard(input));
}

bool EdWheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    const auto* input = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::Wheel || !input || input->hasFocus())
        return false;
    event->ignore();
    return true;
}

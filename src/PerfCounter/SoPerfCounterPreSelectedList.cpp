// SPDX-License-Identifier: MIT
#include "SoPerfCounterPreSelectedList.h"

#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>

QString SoPerfCounterPreSelectedList::dragText() const
{
    QString text;
    for (const QListWidgetItem* item : selectedItems())
        text += item->text() + QStringLiteral("##");
    return text;
}

void SoPerfCounterPreSelectedList::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton) || selectedItems().isEmpty())
        return;
    auto* data = new QMimeData;
    data->setText(dragText());
    auto* drag = new QDrag(this); // Qt's, until the drag has ended
    drag->setMimeData(data);
    drag->exec();
}

// SPDX-License-Identifier: MIT
#include "undo/HistoryView.h"

#include "undo/UndoHistory.h"

#include <QHelpEvent>
#include <QToolTip>

namespace scopix
{

HistoryView::HistoryView(UndoHistory& history, QWidget* parent)
    : QUndoView(&history.stack(), parent)
    , m_history(history)
{
    setObjectName(QStringLiteral("history"));
    setFrameShape(QFrame::NoFrame);
    setUniformItemSizes(true);
    connect(&history, &UndoHistory::droppedOldSteps, this, &HistoryView::showStart);
    showStart();
}

void HistoryView::showStart()
{
    const auto limit = static_cast<qulonglong>(m_history.memoryLimit() >> 20);
    setEmptyLabel(m_history.hasDroppedOldSteps()
                      ? tr("Older steps were dropped to keep within %1 MiB").arg(limit)
                      : tr("Unchanged"));
}

bool HistoryView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QUndoView::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    const bool isCut = index.isValid() && sizeHintForIndex(index).width() > viewport()->width();
    QToolTip::showText(help->globalPos(), isCut ? index.data().toString() : QString(), viewport());
    return true;
}

} // namespace scopix

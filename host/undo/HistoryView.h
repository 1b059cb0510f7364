// SPDX-License-Identifier: MIT
#pragma once

#include <QUndoView>

namespace scopix
{

class UndoHistory;

/// The steps of an undo history as a list. What an edit costs does not grow with the steps before it: rows
/// have one height, and one too long for the view is shown whole in its tool tip. The history must outlive
/// it. GUI thread only.
class HistoryView : public QUndoView
{
    Q_OBJECT

public:
    explicit HistoryView(UndoHistory& history, QWidget* parent = nullptr);

    /// Names the row before the first step.
    void showStart();

protected:
    bool viewportEvent(QEvent* event) override;

private:
    UndoHistory& m_history;
};

} // namespace scopix

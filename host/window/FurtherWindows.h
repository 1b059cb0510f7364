// SPDX-License-Identifier: MIT
#pragma once

#include "window/FurtherWindow.h"

#include <QList>
#include <QObject>

class QAction;
class SpxTreeColumnProvider;

namespace scopix
{

/// The windows beside the main one, and the act that opens them. Closes them with the main window. GUI thread
/// only.
class FurtherWindows : public QObject
{
    Q_OBJECT

public:
    /// As of FurtherWindow; all must outlive it. Adds its act to the view menu.
    explicit FurtherWindows(const FurtherWindow::Parts& parts);
    ~FurtherWindows() override;

    QAction* getAction() const { return m_action; }
    FurtherWindow& open();
    void closeAll();
    const QList<FurtherWindow*>& getAll() const { return m_windows; }
    /// The one that the user works in; null for the main window.
    FurtherWindow* getActive() const;

    /// As of the main window's view and tree, now and in windows to come.
    void marksChanged();
    void setTreeColumns(const QList<SpxTreeColumnProvider*>& providers);
    void updateTreeColumns();

private:
    int freeNumber() const;
    void forget(FurtherWindow* window);

    FurtherWindow::Parts m_parts;
    QAction* m_action;
    QList<FurtherWindow*> m_windows;
    QList<SpxTreeColumnProvider*> m_columns;
};

} // namespace scopix

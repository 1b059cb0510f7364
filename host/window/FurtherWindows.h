// SPDX-License-Identifier: MIT
#pragma once

#include "window/FurtherWindow.h"

#include <QList>
#include <QObject>
#include <QPointer>

class QAction;
class SpxTreeColumnProvider;

namespace scopix
{

/// The windows beside the main one, and the act that opens them. They close with the main window and open
/// again with it, in this session or the next, but for those that the user has closed. GUI thread only.
class FurtherWindows : public QObject
{
    Q_OBJECT

public:
    /// As of FurtherWindow; all must outlive it. Adds its act to the view menu.
    explicit FurtherWindows(const FurtherWindow::Parts& parts);
    ~FurtherWindows() override;

    QAction* getAction() const { return m_action; }
    FurtherWindow& open();
    /// Those that were open when the main window closed, which stays the active one.
    void openAgain();
    void closeAll();
    const QList<FurtherWindow*>& getAll() const { return m_windows; }
    /// The one that the user works in; null for the main window.
    FurtherWindow* getActive() const;

    /// As of the main window's view and tree, now and in windows to come.
    void marksChanged();
    void setTreeColumns(const QList<SpxTreeColumnProvider*>& providers);
    void updateTreeColumns();

private:
    bool has(int number) const;
    int freeNumber() const;
    FurtherWindow& make(int number);
    void forget(FurtherWindow* window);
    void keepNumbers();

    FurtherWindow::Parts m_parts;
    QAction* m_action;
    QList<FurtherWindow*> m_windows;
    QList<QPointer<FurtherWindow>> m_closed; // as long as they are there
    QList<SpxTreeColumnProvider*> m_columns;
    bool m_isClosingAll = false;
};

} // namespace scopix

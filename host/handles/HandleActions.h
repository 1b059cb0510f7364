// SPDX-License-Identifier: MIT
#pragma once

#include "handles/HandleTool.h"

#include <QList>
#include <QObject>
#include <QPointer>

class QAction;
class QWidget;

namespace scopix
{

/// What chooses the handles of the view: select, move, turn, scale, and along which axes. Their keys act
/// while the view or one of the other widgets has the focus, and so do the keys of a drag.
class HandleActions : public QObject
{
    Q_OBJECT

public:
    /// Icons in the colours of `owner`, which owns this. The widgets are where the keys act.
    HandleActions(HandleTool& tool, QWidget& owner, const QList<QWidget*>& widgets);

    /// Select, move, turn, scale.
    const QList<QAction*>& getModes() const { return m_modes; }
    QAction* getOwnAxes() const { return m_ownAxes; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addMode(int mode, const QString& text, const QString& icon, Qt::Key key);
    void showState();

    QPointer<HandleTool> m_tool;
    QWidget& m_owner;
    QList<QAction*> m_modes;
    QAction* m_ownAxes;
};

} // namespace scopix

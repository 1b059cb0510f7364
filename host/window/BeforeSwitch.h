// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

class QAction;
class QLabel;
class QMainWindow;
class QWidget;

namespace scopix
{

class HostServices;

/// The user's switch between the values before the edits and the present ones: an entry for menus, with the
/// key B in certain widgets, and a note in the status bar while the former ones show. Meanwhile it refuses
/// clicks, keys and drops in the docks of extensions. Owned by the window. GUI thread only.
class BeforeSwitch : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive it.
    BeforeSwitch(QMainWindow& window, HostServices& services);

    QAction* action() const { return m_action; }
    /// B switches while it has the focus.
    void takeKeyIn(QWidget& widget);
    /// Its contents edit nothing by themselves, so that nothing is refused there.
    void leaveAlone(QWidget* dock) { m_leftAlone.append(dock); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void switchTo(bool former);
    void shown(bool former);
    void say(const QString& sentence);
    bool isGuarded(const QWidget* widget) const;

    QMainWindow& m_window;
    HostServices& m_services;
    QAction* m_action;
    QLabel* m_note;
    QList<QWidget*> m_leftAlone;
};

} // namespace scopix

// SPDX-License-Identifier: MIT
#pragma once

#include "theme/Theme.h"

#include <support/Session.h>
#include <support/Waiting.h>

#include <QTemporaryDir>

/// A running host with the default plug-in and, after it, the Inspector; and ways to act in the panel as a
/// user does.
class InspectorSession : public Session
{
public:
    explicit InspectorSession(int width = 340)
        : InspectorSession([](HostServices&, UserNotifier&) { return std::make_unique<BareWindow>(); }, width)
    {
    }
    explicit InspectorSession(const HostSession::MakeWindow& makeWindow, int width = 340)
        : Session(makeWindow)
        , m_width(width)
    {
        qputenv("XDG_CONFIG_HOME", m_settings.path().toLocal8Bit());
        EXPECT_TRUE(host.plugins().loadPlugin(QStringLiteral(INSPECTOR_FILE)));
        for (auto* other : host.window().findChildren<QDockWidget*>()) {
            if (host.window().dockWidgetArea(other) == Qt::RightDockWidgetArea &&
                !other->windowTitle().endsWith(QLatin1String("Editor")))
                other->hide();
        }
    }

    ~InspectorSession() { qunsetenv("XDG_CONFIG_HOME"); }

    void selectNode(SoFieldContainer* node)
    {
        host.services().select(node);
        settle();
        QDockWidget* panelDock = dock(QStringLiteral("Node Editor"));
        if (panelDock && panelDock->isVisible()) {
            panelDock->raise();
            host.window().resizeDocks({panelDock}, {m_width}, Qt::Horizontal);
        }
        settle();
    }
    /// The panel's widget where it is docked, or null.
    QWidget* panel()
    {
        QDockWidget* panelDock = dock(QStringLiteral("Node Editor"));
        return panelDock && panelDock->isVisible() ? panelDock->widget() : nullptr;
    }
    /// The row of the field of this name, or null where it is not in view.
    QWidget* row(const char* field)
    {
        for (auto* row : panel()->findChildren<QWidget*>(QStringLiteral("row"))) {
            if (row->isVisible() && row->accessibleName().startsWith(QLatin1String(field) + QLatin1Char(',')))
                return row;
        }
        return nullptr;
    }
    template <class Widget>
    Widget* in(const char* field, const char* name)
    {
        return row(field) ? row(field)->findChild<Widget*>(QLatin1String(name)) : nullptr;
    }
    QLineEdit* number(const char* field, int which = 0)
    {
        return in<QLineEdit>(field, qPrintable(QStringLiteral("number%1").arg(which)));
    }
    void type(QLineEdit* input, const QString& text)
    {
        click(input);
        EXPECT_TRUE(input->hasFocus());
        input->selectAll();
        QTest::keyClicks(input, text);
        settle();
    }
    void enter(QLineEdit* input, const QString& text)
    {
        type(input, text);
        QTest::keyClick(input, Qt::Key_Return);
        settle();
    }
    /// Presses, moves in steps of one pixel, and calls `during` before the release.
    template <class During>
    void dragOver(QWidget* widget, int pixels, Qt::KeyboardModifiers modifiers, During during)
    {
        QPoint at = widget->rect().center();
        QTest::mousePress(widget, Qt::LeftButton, modifiers, at);
        const int whole = pixels + (pixels > 0 ? 1 : -1) * QApplication::startDragDistance();
        for (int i = 0; i != whole; i += whole > 0 ? 1 : -1) {
            at.rx() += whole > 0 ? 1 : -1;
            move(widget, at, modifiers);
        }
        during();
        QTest::mouseRelease(widget, Qt::LeftButton, modifiers, at);
        settle();
    }
    void dragOver(QWidget* widget, int pixels, Qt::KeyboardModifiers modifiers = {})
    {
        dragOver(widget, pixels, modifiers, [] {});
    }
    static void move(QWidget* widget, QPoint at, Qt::KeyboardModifiers modifiers)
    {
        QMouseEvent event(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                          modifiers);
        QApplication::sendEvent(widget, &event);
        settle();
    }
    /// The panel shows changes from elsewhere a little later.
    template <class Condition>
    static bool comesTrue(Condition condition)
    {
        return waitFor(condition);
    }
    /// Opens the row's menu and chooses the entry that begins so.
    void chooseInMenu(QWidget* row, const QString& entry)
    {
        bool isChosen = false;
        QTimer::singleShot(0, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_TRUE(menu);
            for (QAction* action : menu->actions()) {
                if (QString(action->text()).remove('&').startsWith(entry) && action->isEnabled()) {
                    menu->setActiveAction(action);
                    isChosen = true;
                    QTest::keyClick(menu, Qt::Key_Return);
                    return;
                }
            }
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, row->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(row, &event);
        settle();
        EXPECT_TRUE(isChosen) << qPrintable(entry);
    }
    void undo()
    {
        stack().undo();
        settle();
    }

private:
    QTemporaryDir m_settings; // what the user chose for all panels
    int m_width;
};

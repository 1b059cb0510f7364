// SPDX-License-Identifier: MIT
#pragma once

#include "support/QtWarnings.h"
#include "support/SoFieldGallery.h"
#include "support/TestHost.h"
#include "table/ListTable.h"
#include "table/TableEditors.h"
#include "table/TableFieldEditor.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QtTest>

/// A list shown as a table, in a window of its own, by the editor that the plug-in registers for its type.
template <class Field>
class ListFixture : public ::testing::Test
{
protected:
    using Value = typename Field::Value;

    void open(std::initializer_list<Value> values)
    {
        field.setValues(0, int(values.size()), values.begin());
        open();
    }
    void open()
    {
        host.edit(editor, &field);
        editor.getWidget()->resize(420, 420);
        editor.getWidget()->activateWindow();
        TestHost::pump();
        view().setFocus();
        TestHost::pump();
    }
    void TearDown() override { host.release(editor); }

    inspector::ListTable& table() { return *editor.table(); }
    inspector::ListTableView& view() { return table().view(); }
    QString message() { return table().template findChild<QLabel*>("message")->text(); }
    std::vector<Value> values() const { return {field.getValues(0), field.getValues(0) + field.getNum()}; }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget* focused = QApplication::focusWidget();
        QTest::keyClick(focused ? focused : &view(), key, modifiers);
        TestHost::pump();
    }
    void type(const QString& text)
    {
        for (const QChar c : text)
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, c, Qt::NoModifier,
                                0);
        TestHost::pump();
    }
    void goTo(int row, int column) { view().goTo({row, column}); }
    void select(int top, int left, int bottom, int right)
    {
        inspector::TableSelection selection;
        selection.selectRange({top, left, bottom, right}, {top, left});
        view().setSelection(selection);
    }
    void runLine(inspector::ListTable::Line kind, const QString& text)
    {
        table().askFor(kind);
        auto* line = table().template findChild<QLineEdit*>("line");
        line->clear();
        line->setFocus();
        QTest::keyClicks(line, text);
        QTest::keyClick(line, Qt::Key_Return);
        TestHost::pump();
    }
    void trigger(const QString& text)
    {
        for (QAction* action : table().menu().actions()) {
            if (action->text().remove('&') == text)
                return action->trigger();
        }
        FAIL() << "no action " << text.toStdString();
    }
    // QTest's moves have no button pressed.
    void move(QPoint to, Qt::MouseButtons buttons = Qt::LeftButton)
    {
        QMouseEvent event(QEvent::MouseMove, to, view().viewport()->mapToGlobal(to), Qt::NoButton, buttons,
                          Qt::NoModifier);
        QApplication::sendEvent(view().viewport(), &event);
    }
    // Cancels the progress dialogs that come.
    void cancelSoon()
    {
        auto* timer = new QTimer(&this->view());
        QObject::connect(timer, &QTimer::timeout, [] {
            if (auto* dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget()))
                dialog->cancel();
        });
        timer->start(0);
    }
    QPoint at(int row, int column) { return view().geometry().cell({row, column}).center(); }
    QPoint numberAt(int row) { return view().geometry().number(row).center(); }

    TestHost host;
    Field field;
    inspector::TableFieldEditor editor{Field::getClassTypeId()};
};

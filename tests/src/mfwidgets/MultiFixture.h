// SPDX-License-Identifier: MIT
#pragma once

#include "AccessButtonPrivate.h"
#include "EdMFieldTable.h"
#include "EdMFieldWidget.h"
#include "support/TestHost.h"

#include <scopix/editing/SpxText.h>
#include <xsg/core/SoMField.h>

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

/// An editor of a list, loaded in the test host, shown in a window of its own, and its parts at hand.
template <class Editor, class Field>
struct MultiFixture {
    MultiFixture() = default;
    explicit MultiFixture(const char* text) { field.set(SbString(text)); }
    ~MultiFixture() { host.release(editor); }

    void open()
    {
        host.edit(editor, &field);
        editor.getWidgetContainer()->activateWindow();
        table().setFocus();
        TestHost::pump();
        host.takeLog();
    }
    EdMFieldTable& table() { return *editor.table(); }
    AccessButtonPrivate& box() { return *editor.accessBox(); }
    QPushButton& button(const char* name)
    {
        return *editor.getWidgetContainer()->template findChild<QPushButton*>(QLatin1String(name));
    }
    void click(const char* name)
    {
        QTest::mouseClick(&button(name), Qt::LeftButton);
        TestHost::pump();
    }
    void key(Qt::Key which)
    {
        QTest::keyClick(&table(), which);
        TestHost::pump();
    }
    void press(char which)
    {
        QTest::keyClick(&table(), which);
        TestHost::pump();
    }
    /// Half of a key click: Shift is to stay down while other keys are used.
    void sendKey(QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        QKeyEvent event(type, key, modifiers);
        QApplication::sendEvent(&table(), &event);
    }
    QString count()
    {
        return editor.getWidgetContainer()->template findChild<QLabel*>("m_labelNumElement")->text();
    }
    std::string text() const
    {
        SbString text;
        field.get(text);
        return text.getString();
    }
    /// Opens the editor of a cell the way a user does: a click, then a double click.
    QWidget* openCell(int row, int column)
    {
        table().setCurrentCell(row, column);
        table().scrollTo(table().model()->index(row, column));
        const QPoint at = table().visualRect(table().model()->index(row, column)).center();
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, at);
        QCoreApplication::processEvents();
        return table().indexWidget(table().model()->index(row, column));
    }
    QLineEdit* openLine(int row, int column) { return qobject_cast<QLineEdit*>(openCell(row, column)); }
    void type(QLineEdit* line, const char* text)
    {
        line->selectAll();
        QTest::keyClicks(line, QLatin1String(text));
        QTest::keyClick(line, Qt::Key_Return);
        TestHost::pump();
    }

    TestHost host;
    Editor editor;
    Field field;
};

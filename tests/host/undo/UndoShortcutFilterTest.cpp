// SPDX-License-Identifier: MIT
#include "undo/UndoShortcutFilter.h"
#include "HostParts.h"

#include <support/Waiting.h>

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

using namespace scopix;

namespace
{

class UndoKeys : public ::testing::Test
{
protected:
    UndoKeys()
    {
        auto* centre = new QWidget(&m_window);
        auto* layout = new QVBoxLayout(centre);
        layout->addWidget(&m_line);
        layout->addWidget(&m_spin);
        layout->addWidget(&m_table);
        m_window.setCentralWidget(centre);
        m_dock.setWidget(&m_dockLine);
        m_window.addDockWidget(Qt::RightDockWidgetArea, &m_dock);
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(waitForActive(&m_window));
        m_services.executeCommand(new LoggingCommand(m_log, "edit"));
        m_log.clear();
    }
    ~UndoKeys() override
    {
        m_dock.setWidget(nullptr);
        for (QWidget* widget :
             std::initializer_list<QWidget*>{&m_dockLine, &m_dock, &m_line, &m_spin, &m_table})
            widget->setParent(nullptr);
    }
    void undoAndRedoIn(QWidget& widget)
    {
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(&widget, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    }

    HostServices m_services;
    QMainWindow m_window;
    QLineEdit m_line;
    QSpinBox m_spin;
    QTableWidget m_table{2, 2};
    QDockWidget m_dock;
    QLineEdit m_dockLine;
    UndoShortcutFilter m_keys{m_services.undoStack(), m_window};
    Log m_log;
};

const Log UndoneAndRedone{"undo edit", "redo edit"};

TEST_F(UndoKeys, BelongToTheHostInALineEditThatHoldsNoTyping)
{
    m_line.setText("shown");
    undoAndRedoIn(m_line);
    EXPECT_EQ(m_log, UndoneAndRedone);
    EXPECT_EQ(m_line.text(), "shown");
}

TEST_F(UndoKeys, BelongToTheHostInATableASpinBoxAndAFloatingDock)
{
    undoAndRedoIn(m_table);
    EXPECT_EQ(m_log, UndoneAndRedone);
    m_log.clear();
    undoAndRedoIn(m_spin);
    EXPECT_EQ(m_log, UndoneAndRedone);
    m_log.clear();
    m_dock.setFloating(true);
    undoAndRedoIn(m_dockLine);
    EXPECT_EQ(m_log, UndoneAndRedone);
}

// The console is such a text: it changes all the time, and nobody types into it.
TEST_F(UndoKeys, BelongToTheHostInATextThatCannotBeTypedInto)
{
    auto* text = new QTextEdit;
    text->setReadOnly(true);
    m_dock.setWidget(text);
    text->document()->setModified(true);
    undoAndRedoIn(*text);
    EXPECT_EQ(m_log, UndoneAndRedone);
    m_dock.setWidget(&m_dockLine);
    delete text;
}

TEST_F(UndoKeys, BelongToTheInputWhileItHoldsTypingThatIsNotApplied)
{
    m_line.setFocus();
    QTest::keyClicks(&m_line, "12");
    QTest::keyClick(&m_line, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(m_line.text(), "");
    EXPECT_TRUE(m_log.empty());
    QTest::keyClicks(&m_line, "34");
    m_line.setModified(false); // as applying does
    QTest::keyClick(&m_line, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(m_line.text(), "34");
    EXPECT_EQ(m_log, (Log{"undo edit"}));
}

TEST_F(UndoKeys, BelongToTheHostAlsoWhenThereIsNothingToUndo)
{
    m_services.history().clear();
    m_line.setFocus();
    QTest::keyClicks(&m_line, "12");
    m_line.setModified(false);
    QTest::keyClick(&m_line, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(m_line.text(), "12");
}

TEST_F(UndoKeys, AReadOnlyInputHasNoTypingToTakeBack)
{
    m_line.setModified(true);
    m_line.setReadOnly(true);
    undoAndRedoIn(m_line);
    EXPECT_EQ(m_log, UndoneAndRedone);
}

TEST_F(UndoKeys, AreLeftAloneInAnotherWindowAndInAModalDialog)
{
    QLineEdit elsewhere;
    elsewhere.show();
    QTest::keyClick(&elsewhere, Qt::Key_Z, Qt::ControlModifier);
    QDialog dialog(&m_window);
    QLineEdit inside(&dialog);
    dialog.open();
    QTest::keyClick(&inside, Qt::Key_Z, Qt::ControlModifier);
    dialog.reject();
    EXPECT_TRUE(m_log.empty());
}

TEST_F(UndoKeys, UndoOnceThoughTheMenuHasTheSameShortcut)
{
    QAction* undo = m_services.undoStack().createUndoAction(&m_window);
    undo->setShortcut(Qt::CTRL | Qt::Key_Z);
    m_window.addAction(undo);
    m_services.executeCommand(new LoggingCommand(m_log, "second"));
    m_log.clear();
    QTest::keyClick(&m_line, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(m_log, (Log{"undo second"}));
}

} // namespace

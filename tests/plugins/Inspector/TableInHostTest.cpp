// SPDX-License-Identifier: MIT
// Lists as tables in the real host: one gesture is one step, and the host's undo reaches the table.
#include "InspectorSession.h"

#include <xsg/nodes/properties/SoPoints.h>

#include <QAbstractScrollArea>

namespace
{

class TableInHost : public ::testing::Test
{
protected:
    TableInHost()
    {
        for (int i = 0; i < 6; ++i)
            m_points->points.set1Value(i, SbVec3f(float(i), 0, 0));
        m_session.host.window().resize(1000, 900);
        m_session.select(&m_points->points);
        view()->setFocus();
        m_session.settle();
    }
    ~TableInHost() override { m_session.selectNothing(); }

    QWidget* view() { return m_session.inEditor<QWidget>("listTable"); }
    QLineEdit* line() { return m_session.inEditor<QLineEdit>("line"); }
    void key(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QWidget* focused = QApplication::focusWidget();
        ASSERT_TRUE(focused);
        QTest::keyClick(focused, Qt::Key(key), modifiers);
        m_session.settle();
    }
    float x(int row) { return m_points->points[row][0]; }
    int steps() { return m_session.stack().count(); }

    InspectorSession m_session;
    SoRef<SoPoints> m_points{new SoPoints};
};

} // namespace

TEST_F(TableInHost, WinsInTheFieldEditorDockAndShowingIsNoStep)
{
    ASSERT_TRUE(view());
    EXPECT_TRUE(view()->isVisible());
    EXPECT_EQ(steps(), 0);
}

TEST_F(TableInHost, ATypedCellIsOneStepThatTheUndoKeysTakeBack)
{
    key(Qt::Key_7);
    key(Qt::Key_5);
    EXPECT_EQ(x(0), 0);
    key(Qt::Key_Return);
    EXPECT_EQ(x(0), 75);
    EXPECT_EQ(steps(), 1);
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(x(0), 0);
    EXPECT_EQ(m_session.stack().index(), 0);
    key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(x(0), 75);
}

TEST_F(TableInHost, EachKeyOnRowsIsAStepOfItsOwn)
{
    key(Qt::Key_D, Qt::ControlModifier);
    key(Qt::Key_Insert);
    key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(steps(), 3);
    EXPECT_EQ(m_points->points.getNum(), 7);
    m_session.undo();
    m_session.undo();
    m_session.undo();
    EXPECT_EQ(m_points->points.getNum(), 6);
}

TEST_F(TableInHost, AFormulaOverManyCellsIsOneStep)
{
    key(Qt::Key_Space, Qt::ControlModifier);
    key(Qt::Key_E, Qt::ControlModifier);
    ASSERT_TRUE(line()->hasFocus());
    QTest::keyClicks(line(), "x+10");
    key(Qt::Key_Return);
    EXPECT_EQ(x(0), 10);
    EXPECT_EQ(x(5), 15);
    EXPECT_EQ(steps(), 1);
    m_session.undo();
    EXPECT_EQ(x(5), 5);
}

TEST_F(TableInHost, LookingAroundLeavesNoStep)
{
    key(Qt::Key_F2);
    key(Qt::Key_Return);
    key(Qt::Key_F2);
    key(Qt::Key_Escape);
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_C, Qt::ControlModifier);
    key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(steps(), 0);
    EXPECT_TRUE(m_session.stack().isClean());
}

TEST_F(TableInHost, SelectingAnotherFieldWritesWhatIsTyped)
{
    key(Qt::Key_9);
    m_session.select(&m_session.material->shininess);
    EXPECT_EQ(x(0), 9);
    EXPECT_EQ(steps(), 1);
}

TEST_F(TableInHost, ANodeThatGoesTakesTableAndStepsAlong)
{
    key(Qt::Key_9);
    key(Qt::Key_Return);
    key(Qt::Key_F2);
    m_points = SoRef<SoPoints>(new SoPoints);
    m_session.settle();
    EXPECT_EQ(steps(), 0);
    EXPECT_FALSE(m_session.editorShown());
}

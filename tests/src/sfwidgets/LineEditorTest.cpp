// SPDX-License-Identifier: MIT
#include "EdPopupFrame.h"
#include "EdSFBox3sWidget.h"
#include "EdSFLineWidget.h"
#include "EdSFMatrixWidget.h"
#include "EditedField.h"

#include <xsg/fields/SoSFBox3s.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFMatrix.h>
#include <xsg/fields/SoSFVec3d.h>

#include <QApplication>
#include <QGridLayout>
#include <QGuiApplication>
#include <QScreen>
#include <QTest>

namespace
{

// Writes down every text that it is given.
class NotingField : public SoSFFloat
{
public:
    bool set(const SbString& text) override
    {
        m_sets.push_back(text.str());
        return SoSFFloat::set(text);
    }
    std::vector<std::string> m_sets;
};

using EditedLine = EditedField<EdSFLineWidget, SoSFFloat>;
using EditedBox = EditedField<EdSFBox3sWidget, SoSFBox3s>;
using EditedMatrix = EditedField<EdSFMatrixWidget, SoSFMatrix>;

template <class Edited>
QFrame* popupOf(Edited& edited)
{
    const auto* grid = edited.editor.getWidget()->template findChild<QGridLayout*>("m_popupFrameLayout");
    return qobject_cast<QFrame*>(grid->parentWidget());
}

template <class Edited>
QLineEdit* cell(Edited& edited, int row, int column)
{
    const auto* grid = qobject_cast<QGridLayout*>(popupOf(edited)->layout());
    return qobject_cast<QLineEdit*>(grid->itemAtPosition(row, column)->widget());
}

template <class Edited>
void open(Edited& edited)
{
    QTest::mouseClick(edited.template find<QPushButton>("m_editButton"), Qt::LeftButton);
}

template <class Edited>
QLineEdit* line(Edited& edited)
{
    return edited.template find<QLineEdit>("lineEdit");
}

constexpr const char* Matrix = "1 2 3 4  5 6 7 8  9 10 11 12  13 14 15 16.0000019";

} // namespace

TEST(LineEditor, EveryKeystrokeIsAppliedTwice)
{
    TestHost host;
    NotingField field;
    EdSFLineWidget editor(nullptr);
    host.edit(editor, &field);
    auto* edit = editor.getWidget()->findChild<QLineEdit*>("lineEdit");
    person::focus(edit);
    edit->selectAll();
    host.takeLog();
    for (const char key : {'1', '.', '5'}) {
        QTest::keyClick(edit, key);
        TestHost::pump();
    }
    EXPECT_EQ(edit->text(), "1.5");
    EXPECT_EQ(field.getValue(), 1.5F);
    EXPECT_EQ(field.m_sets, (std::vector<std::string>{"1", "1", "1.", "1.", "1.5", "1.5"}));
    EXPECT_EQ(host.log(), TestHost::Log(6, "executeCommand SpxSFSetValueCommand"));
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(host.log().size(), 6U);
    host.release(editor);
}

TEST(LineEditor, IsTheEditorOfEveryFieldWithoutOne)
{
    EditedField<EdSFLineWidget, SoSFVec3d> edited("1 2 3");
    EXPECT_EQ(edited.editor.getName().str(), "SField");
    EXPECT_EQ(edited.shown(), "1 2 3");
    person::type(edited.edit(), "4 5 6");
    EXPECT_EQ(edited.text(), "4 5 6");
    while (edited.host.undo()) {
    }
    TestHost::pump();
    EXPECT_EQ(edited.text(), "1 2 3");
    EXPECT_EQ(edited.shown(), "1 2 3");
}

TEST(LineEditor, RefusedTextStaysForMending)
{
    EditedLine edited("2.5");
    person::focus(edited.edit());
    QTest::keyClick(edited.edit(), Qt::Key_End);
    QTest::keyClicks(edited.edit(), "abc");
    edited.field.touch();
    TestHost::pump();
    EXPECT_EQ(edited.shown(), "2.5abc");
    EXPECT_EQ(edited.text(), "2.5");
    EXPECT_EQ(edited.commands(), 0);
    QTest::keyClick(edited.edit(), Qt::Key_Escape);
    EXPECT_EQ(edited.shown(), "2.5");
    EXPECT_EQ(edited.commands(), 0);
}

TEST(LineEditor, CursorStaysWhereTheUserTypes)
{
    EditedLine edited("125");
    person::focus(edited.edit());
    edited.edit()->setCursorPosition(1);
    QTest::keyClick(edited.edit(), '9');
    TestHost::pump();
    EXPECT_EQ(edited.shown(), "1925");
    EXPECT_EQ(edited.edit()->cursorPosition(), 2);
}

TEST(LineEditor, ChangeFromElsewhereReplacesTyping)
{
    EditedLine edited("1");
    person::type(edited.edit(), "x");
    edited.change("7");
    EXPECT_EQ(edited.shown(), "7");
}

TEST(LineEditor, UndoReplacesWhatWasTyped)
{
    EditedLine edited("1");
    person::type(edited.edit(), "7");
    edited.undo();
    edited.undo();
    EXPECT_EQ(edited.shown(), "1");
    EXPECT_EQ(edited.commands(), 2);
}

TEST(PopupEditor, EveryNumberOfAMatrixIsReadWhole)
{
    EditedMatrix edited("1 0 0 0 0 1 0 0 0 0 1 0 0 0 -2.34567e-08 1");
    open(edited);
    EXPECT_GE(popupOf(edited)->width(), 260);
    EXPECT_GE(popupOf(edited)->height(), 100);
    constexpr int Frame = 4;
    for (int i = 0; i < 16; ++i) {
        const QLineEdit& input = *cell(edited, i / 4, i % 4);
        EXPECT_EQ(input.fontInfo().pixelSize(), QFontInfo(QApplication::font()).pixelSize());
        EXPECT_GE(input.width(), input.fontMetrics().horizontalAdvance("-2.34567e-08") + 2 * Frame);
        EXPECT_GE(input.height(), input.fontMetrics().height() + Frame);
    }
}

TEST(PopupEditor, SecondClickHidesTheGrid)
{
    EditedBox edited("1 2 3 4 5 6");
    QFrame* popup = popupOf(edited);
    EXPECT_TRUE(popup->isHidden());
    open(edited);
    EXPECT_TRUE(popup->isVisible());
    EXPECT_EQ(popup->size(), QSize(260, 100));
    open(edited);
    EXPECT_FALSE(popup->isVisible());
    EXPECT_EQ(edited.commands(), 0);
}

TEST(PopupEditor, OpensBesideTheButtonAndStaysOnTheDesktop)
{
    EditedBox edited("1 2 3 4 5 6");
    QFrame* popup = popupOf(edited);
    auto* button = edited.find<QPushButton>("m_editButton");
    const QSize desktop = QGuiApplication::primaryScreen()->virtualSize();
    QWidget* window = edited.editor.getWidget();
    const auto openAt = [&](QPoint at) {
        window->move(at);
        TestHost::pump();
        popup->hide();
        open(edited);
        return popup->pos() - button->mapToGlobal(button->rect().bottomRight());
    };
    constexpr int Tolerance = 2; // a platform may count a popup's frame
    EXPECT_LE(openAt({10, 10}).manhattanLength(), 2 * Tolerance);
    const QPoint moved = openAt({desktop.width() - 430, desktop.height() - 60});
    EXPECT_NEAR(moved.x(), -(popup->width() + button->width()), Tolerance);
    EXPECT_NEAR(moved.y(), -(popup->height() + button->height()), Tolerance);
}

TEST(PopupEditor, OpensOnTheScreenOfItsButton)
{
    const QRect second(1920, -200, 1280, 1024);
    const QSize popup(260, 100);
    const auto at = [&](int x, int y) {
        return EdPopupFrame::placeBeside(QRect(x, y, 20, 20), popup, second);
    };
    EXPECT_EQ(at(2000, 0), QPoint(2019, 19));
    EXPECT_EQ(at(3100, 700), QPoint(3119 - 280, 719 - 120));
    EXPECT_EQ(at(1920, -200), QPoint(1939, -181));
    EXPECT_EQ(at(3190, 820), QPoint(3209 - 280, 839 - 120)) << "its button is half outside";
    const QRect tiny(0, 0, 200, 80);
    EXPECT_EQ(EdPopupFrame::placeBeside(QRect(100, 40, 20, 20), popup, tiny), QPoint(0, 0))
        << "its beginning is seen where there is no room for all of it";
}

TEST(PopupEditor, BoxShowsItsCornersInRows)
{
    EditedBox edited("1 2 3 4 5 6");
    open(edited);
    EXPECT_EQ(cell(edited, 0, 0)->text(), "1");
    EXPECT_EQ(cell(edited, 0, 2)->text(), "3");
    EXPECT_EQ(cell(edited, 1, 0)->text(), "4");
    EXPECT_EQ(line(edited)->text(), "1 2 3 4 5 6");
}

TEST(PopupEditor, EnterInACellAppliesOnce)
{
    EditedBox edited("1 2 3 4 5 6");
    open(edited);
    person::typeAndEnter(cell(edited, 1, 1), "-7");
    TestHost::pump();
    EXPECT_EQ(edited.text(), "1 2 3 4 -7 6");
    EXPECT_EQ(line(edited)->text(), "1 2 3 4 -7 6");
    EXPECT_EQ(edited.commands(), 1);
    person::tab(cell(edited, 1, 1));
    QTest::keyClick(cell(edited, 0, 0), Qt::Key_Return);
    EXPECT_EQ(edited.commands(), 1);
    edited.undo();
    EXPECT_EQ(cell(edited, 1, 1)->text(), "5");
}

TEST(PopupEditor, SixteenBitsStopTyping)
{
    EditedBox edited("1 2 3 4 5 6");
    open(edited);
    person::type(cell(edited, 0, 0), "40000");
    EXPECT_EQ(cell(edited, 0, 0)->text(), "4000");
}

TEST(PopupEditor, EmptyCellStandsForTheNumberThatTheFieldHas)
{
    EditedBox edited("1 2 3 4 5 6");
    open(edited);
    person::type(cell(edited, 0, 0), "");
    person::typeAndEnter(cell(edited, 0, 1), "9");
    EXPECT_EQ(edited.text(), "1 9 3 4 5 6");
}

TEST(PopupEditor, OwnLineTakesTypingLikeTheGeneralOne)
{
    EditedBox edited("1 2 3 4 5 6");
    person::type(line(edited), "9 2 3 4 5 6");
    TestHost::pump();
    EXPECT_EQ(edited.text(), "9 2 3 4 5 6");
    open(edited);
    EXPECT_EQ(cell(edited, 0, 0)->text(), "9");
    const int commands = edited.commands();
    QTest::keyClick(line(edited), Qt::Key_Return);
    EXPECT_EQ(edited.commands(), commands);
}

TEST(PopupEditor, MatrixIsShownTransposed)
{
    EditedMatrix edited(Matrix);
    open(edited);
    EXPECT_EQ(cell(edited, 0, 3)->text(), "13");
    EXPECT_EQ(cell(edited, 3, 0)->text(), "4");
    person::typeAndEnter(cell(edited, 0, 3), "1.5");
    TestHost::pump();
    const SbMatrix& matrix = edited.field.getValue();
    EXPECT_EQ(matrix[3][0], 1.5F);
    EXPECT_EQ(matrix[0][3], 4);
    EXPECT_EQ(matrix[3][3], 16.0000019F) << "an untouched element keeps every bit";
    EXPECT_EQ(edited.commands(), 1);
}

TEST(PopupEditor, GridClosesWithTheEditor)
{
    EditedMatrix edited(Matrix);
    open(edited);
    person::type(cell(edited, 0, 0), "77");
    edited.host.release(edited.editor);
    EXPECT_FALSE(popupOf(edited)->isVisible());
    EXPECT_EQ(edited.field.getValue()[0][0], 77);
    EXPECT_EQ(edited.commands(), 1);
}

TEST(PopupEditor, TabMovesThroughTheCellsInReadingOrder)
{
    EditedBox edited("1 2 3 4 5 6");
    open(edited);
    person::focus(cell(edited, 0, 0));
    for (int i = 1; i < 6; ++i) {
        person::tab(QApplication::focusWidget());
        EXPECT_EQ(QApplication::focusWidget(), cell(edited, i / 3, i % 3));
    }
    EXPECT_FALSE(cell(edited, 1, 2)->accessibleName().isEmpty());
}

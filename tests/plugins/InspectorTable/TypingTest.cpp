// SPDX-License-Identifier: MIT
// Typing into cells.
#include "TableFixture.h"

using namespace inspector;

namespace
{

class FloatTable : public ListFixture<SoMFFloat>
{
};
class VectorTyping : public ListFixture<SoMFVec3f>
{
};
class ShortTable : public ListFixture<SoMFShort>
{
};
class TextTable : public ListFixture<SoMFString>
{
};
class BoolTable : public ListFixture<SoMFBool>
{
};

} // namespace

TEST_F(FloatTable, WhatIsTypedIsWrittenByEnterAsOneStep)
{
    open({1, 2, 3});
    goTo(1, 0);
    type("2.75");
    EXPECT_EQ(field[1], 2) << "not before Enter";
    key(Qt::Key_Return);
    EXPECT_EQ(values(), (std::vector<float>{1, 2.75F, 3}));
    EXPECT_EQ(host.undoCount(), 1);
    EXPECT_EQ(view().selection().current(), (TableCell{2, 0})) << "Enter goes down";
    EXPECT_TRUE(view().hasFocus());
    host.undo();
    EXPECT_EQ(values(), (std::vector<float>{1, 2, 3}));
}

TEST_F(FloatTable, ACellOpensWithEveryDigit)
{
    open({0.1F, 16777216.F, 3.4028235e38F});
    key(Qt::Key_F2);
    ASSERT_NE(view().cellEditor(), nullptr);
    EXPECT_EQ(view().cellEditor()->text(), "0.1");
    key(Qt::Key_Return);
    key(Qt::Key_F2);
    EXPECT_EQ(view().cellEditor()->text(), "16777216");
    key(Qt::Key_Return);
    EXPECT_EQ(host.undoCount(), 0) << "untouched stays untouched";
}

TEST_F(FloatTable, EscapeGivesUpWhatWasTyped)
{
    open({1, 2});
    type("77");
    key(Qt::Key_Escape);
    EXPECT_EQ(values(), (std::vector<float>{1, 2}));
    EXPECT_EQ(host.undoCount(), 0);
    EXPECT_EQ(view().cellEditor(), nullptr);
    EXPECT_TRUE(view().hasFocus());
}

TEST_F(FloatTable, HalfTypedTextIsNoValue)
{
    open({1, 2});
    type("1e");
    key(Qt::Key_Return);
    ASSERT_NE(view().cellEditor(), nullptr) << "the cell stays open";
    EXPECT_TRUE(message().contains("1e")) << message().toStdString();
    table().findChild<QLineEdit*>("line")->setFocus();
    TestHost::pump();
    EXPECT_EQ(view().cellEditor(), nullptr) << "and shows its value when it is left";
    EXPECT_EQ(values(), (std::vector<float>{1, 2}));
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(FloatTable, LosingTheFocusWrites)
{
    open({1, 2});
    type("5");
    table().findChild<QLineEdit*>("line")->setFocus();
    TestHost::pump();
    EXPECT_EQ(values(), (std::vector<float>{5, 2}));
    EXPECT_EQ(host.undoCount(), 1);
}

TEST_F(FloatTable, ReleasingTheEditorWritesWhatIsTyped)
{
    open({1, 2});
    type("5");
    host.release(editor);
    EXPECT_EQ(values(), (std::vector<float>{5, 2}));
}

TEST_F(FloatTable, AFormulaIsCalculatedFromThePresentValue)
{
    open({4, 2});
    type("x*2+1");
    key(Qt::Key_Return);
    EXPECT_EQ(field[0], 9);
}

TEST_F(FloatTable, ControlEnterWritesToAllSelectedCells)
{
    open({1, 2, 3, 4});
    select(1, 0, 3, 0);
    type("9");
    key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(values(), (std::vector<float>{1, 9, 9, 9}));
    EXPECT_EQ(host.undoCount(), 1);
    host.undo();
    EXPECT_EQ(values(), (std::vector<float>{1, 2, 3, 4}));
}

TEST_F(FloatTable, AChangeFromElsewhereDoesNotDisturbTyping)
{
    open({1, 2, 3});
    goTo(1, 0);
    type("7.");
    field.set1Value(1, 5);
    field.set1Value(0, 8);
    TestHost::pump();
    ASSERT_NE(view().cellEditor(), nullptr);
    EXPECT_EQ(view().cellEditor()->text(), "7.");
    EXPECT_TRUE(view().cellEditor()->toolTip().contains("5")) << "it is marked";
    key(Qt::Key_Return);
    EXPECT_EQ(values(), (std::vector<float>{8, 7, 3})) << "the user's value wins";
}

TEST_F(FloatTable, ACellThatWasOnlyLookedAtKeepsTheChangeFromElsewhere)
{
    open({1, 2});
    key(Qt::Key_F2);
    field.set1Value(0, 5);
    TestHost::pump();
    key(Qt::Key_Return);
    EXPECT_EQ(values(), (std::vector<float>{5, 2}));
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(FloatTable, TypingInARowThatIsRemovedEndsWithASentence)
{
    open({1, 2, 3});
    goTo(2, 0);
    type("7");
    field.setNum(1);
    TestHost::pump();
    EXPECT_EQ(view().cellEditor(), nullptr);
    EXPECT_FALSE(message().isEmpty());
    EXPECT_EQ(values(), (std::vector<float>{1}));
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(FloatTable, TheTwoZerosAreTwoValues)
{
    open({-0.0F});
    type("0");
    key(Qt::Key_Return);
    EXPECT_FALSE(std::signbit(field[0]));
    host.undo();
    EXPECT_TRUE(std::signbit(field[0]));
}

TEST_F(VectorTyping, TabWritesAndGoesRightAndLeavesTheOtherNumbersAlone)
{
    const float odd = 0.1F + 1e-8F;
    open({SbVec3f(1, odd, 3)});
    type("5");
    key(Qt::Key_Tab);
    EXPECT_EQ(field[0], SbVec3f(5, odd, 3));
    EXPECT_EQ(view().selection().current(), (TableCell{0, 1}));
}

TEST_F(ShortTable, WhatTheTypeCannotHoldIsRefusedInASentence)
{
    open({1});
    type("40000");
    key(Qt::Key_Return);
    EXPECT_EQ(field[0], 1);
    EXPECT_TRUE(message().contains("40000"));
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(TextTable, TextsAreTypedAsTheyAre)
{
    open({"one", "two"});
    type("say \"hi\", x*2");
    key(Qt::Key_Return);
    EXPECT_EQ(field[0], SbString("say \"hi\", x*2"));
}

TEST_F(TextTable, ALongTextIsPaintedByItsBeginningAndTypedWhole)
{
    const std::string text(3'000'000, 'x');
    open({SbString(text)});
    EXPECT_LT(view().rows().shortText(0, 0, 0).size(), 3000);
    key(Qt::Key_F2);
    EXPECT_EQ(view().cellEditor()->text().size(), 3'000'000);
    key(Qt::Key_Escape);
}

TEST_F(BoolTable, ADoubleClickOrSpaceTurnsTheTruth)
{
    open({0, 1, 0});
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, at(0, 0));
    EXPECT_EQ(field[0], 1);
    select(0, 0, 2, 0);
    key(Qt::Key_Space);
    EXPECT_EQ(values(), (std::vector<SbBool>{0, 0, 0})) << "all become the opposite of the current one";
    EXPECT_EQ(host.undoCount(), 2);
}

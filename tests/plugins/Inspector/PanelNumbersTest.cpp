// SPDX-License-Identifier: MIT
// Numbers in the panel: typed, dragged, and changed by keys and the wheel.
#include "PanelFixture.h"

#include <support/Waiting.h>

namespace
{

constexpr float Exact = 0.1F + 0.0123456F;

} // namespace

TEST_F(Panel, ATypedFormulaIsOneStepAndUndoBringsEveryBitBack)
{
    material.shininess.setValue(Exact);
    session.enter(session.number("shininess"), "x*2 + 1/4");
    EXPECT_FLOAT_EQ(material.shininess.getValue(), Exact * 2 + 0.25F);
    EXPECT_EQ(steps(), 1);
    EXPECT_TRUE(undoText().startsWith("Material.shininess: 0.112")) << qPrintable(undoText());
    EXPECT_TRUE(undoText().contains(" → 0.474")) << qPrintable(undoText());
    session.undo();
    EXPECT_EQ(material.shininess.getValue(), Exact);
    EXPECT_TRUE(session.comesTrue([&] { return session.number("shininess")->text() == "0.1123456"; }));
}

TEST_F(Panel, AChangeOfThePresentValueAndACommaAreUnderstood)
{
    session.enter(session.number("shininess"), "+= 10 %");
    EXPECT_FLOAT_EQ(material.shininess.getValue(), 0.22F);
    session.enter(session.number("shininess"), "0,5");
    EXPECT_EQ(material.shininess.getValue(), 0.5F);
}

TEST_F(Panel, WhatIsNoNumberIsRefusedAndThenDropped)
{
    QLineEdit* input = session.number("shininess");
    for (const char* text : {"1,234.5", "two", "1/0", "(1"}) {
        session.enter(input, text);
        EXPECT_EQ(input->text(), text);
        EXPECT_TRUE(input->accessibleDescription().endsWith('.')) << text;
        QTest::keyClick(input, Qt::Key_Escape);
        EXPECT_EQ(input->text(), "0.2");
    }
    session.type(input, "nonsense");
    session.click(session.number("transparency"));
    EXPECT_EQ(input->text(), "0.2");
    EXPECT_EQ(steps(), 0);
    EXPECT_TRUE(material.shininess.isDefault());
}

TEST_F(Panel, TypingKeepsWithinTheHardRange)
{
    session.enter(session.number("shininess"), "7");
    EXPECT_EQ(material.shininess.getValue(), 1.F);
    EXPECT_EQ(session.number("shininess")->text(), "1");
}

TEST_F(Panel, LeavingAnInputAppliesWhatIsTyped)
{
    session.type(session.number("shininess"), "0.75");
    session.click(session.number("transparency"));
    EXPECT_EQ(material.shininess.getValue(), 0.75F);
    EXPECT_EQ(steps(), 1);
}

TEST_F(Panel, SelectingAnotherNodeAppliesWhatIsTypedToThisOne)
{
    const SoRef<SoMaterial> other(new SoMaterial);
    session.type(session.number("shininess"), "0.75");
    session.selectNode(other.get());
    EXPECT_EQ(material.shininess.getValue(), 0.75F);
    EXPECT_TRUE(other->shininess.isDefault());
}

TEST_F(Panel, ADragIsSeenAtOnceAndIsOneStep)
{
    QLineEdit* input = session.number("shininess");
    session.dragOver(input, 60, {}, [&] { EXPECT_NEAR(material.shininess.getValue(), 0.5F, 1e-5); });
    EXPECT_EQ(steps(), 1);
    EXPECT_FALSE(input->hasFocus());
    session.undo();
    EXPECT_EQ(material.shininess.getValue(), 0.2F);
    EXPECT_TRUE(material.shininess.isDefault());
}

TEST_F(Panel, ShiftDragsFinerAndCtrlSnaps)
{
    session.dragOver(session.number("shininess"), 60, Qt::ShiftModifier);
    EXPECT_NEAR(material.shininess.getValue(), 0.23F, 1e-5);
    session.undo();
    session.dragOver(session.number("shininess"), 63, Qt::ControlModifier);
    EXPECT_NEAR(material.shininess.getValue(), 0.52F, 0.011);
    EXPECT_NEAR(material.shininess.getValue() * 100, std::round(material.shininess.getValue() * 100), 1e-4);
}

TEST_F(Panel, ADragStaysInItsRange)
{
    session.dragOver(session.number("shininess"), 400);
    EXPECT_EQ(material.shininess.getValue(), 1.F);
    session.dragOver(session.number("shininess"), -400);
    EXPECT_EQ(material.shininess.getValue(), 0.F);
}

TEST_F(Panel, EscGivesTheDragBackWithoutAStep)
{
    material.shininess.setValue(Exact);
    session.settle();
    QLineEdit* input = session.number("shininess");
    session.dragOver(input, 60, {}, [&] {
        QTest::keyClick(input, Qt::Key_Escape);
        EXPECT_EQ(material.shininess.getValue(), Exact);
    });
    EXPECT_EQ(material.shininess.getValue(), Exact);
    EXPECT_EQ(steps(), 0);
}

TEST_F(Panel, TheCaptionDragsToo)
{
    auto* caption = session.row("shininess")->findChild<QWidget*>("caption");
    ASSERT_TRUE(caption);
    session.dragOver(caption, 20);
    EXPECT_NEAR(material.shininess.getValue(), 0.3F, 1e-5);
    EXPECT_EQ(steps(), 1);
}

TEST_F(Panel, KeysChangeTheDigitAtTheCursorInOneStepARun)
{
    QLineEdit* input = session.number("shininess");
    session.enter(input, "0.25");
    session.stack().clear();
    input->deselect();
    input->setCursorPosition(3); // behind the 2
    QTest::keyClick(input, Qt::Key_Up);
    QTest::keyClick(input, Qt::Key_Up);
    EXPECT_FLOAT_EQ(material.shininess.getValue(), 0.45F);
    input->deselect();
    input->setCursorPosition(4);
    QTest::keyClick(input, Qt::Key_Down);
    EXPECT_FLOAT_EQ(material.shininess.getValue(), 0.44F);
    QTest::keyClick(input, Qt::Key_PageUp);
    EXPECT_FLOAT_EQ(material.shininess.getValue(), 0.54F);
}

TEST_F(Panel, TheWheelNeedsTheFocus)
{
    QLineEdit* input = session.number("shininess");
    const auto turn = [&] {
        QWheelEvent event(input->rect().center(), input->mapToGlobal(input->rect().center()), {}, {0, 120},
                          Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(input, &event);
        session.settle();
    };
    turn();
    EXPECT_EQ(material.shininess.getValue(), 0.2F);
    session.click(input);
    turn();
    EXPECT_FLOAT_EQ(material.shininess.getValue(), 0.21F);
}

TEST_F(Panel, WhatIsTypedStaysWhenTheValueChangesElsewhere)
{
    QLineEdit* input = session.number("shininess");
    session.type(input, "0.7");
    material.shininess.setValue(0.9F);
    session.settle();
    EXPECT_EQ(input->text(), "0.7");
    auto* mark = session.in<QWidget>("shininess", "mark");
    EXPECT_TRUE(waitFor([&] { return mark->toolTip().startsWith("Changed elsewhere"); }));
    QTest::keyClick(input, Qt::Key_Return);
    EXPECT_EQ(material.shininess.getValue(), 0.7F);
    EXPECT_FALSE(mark->toolTip().startsWith("Changed elsewhere"));
    session.undo();
    EXPECT_EQ(material.shininess.getValue(), 0.9F);
}

TEST_F(Panel, EscTakesTheirsWhenTheValueChangedElsewhere)
{
    QLineEdit* input = session.number("shininess");
    session.type(input, "0.7");
    material.shininess.setValue(0.9F);
    session.settle();
    QTest::keyClick(input, Qt::Key_Escape);
    EXPECT_EQ(input->text(), "0.9");
    EXPECT_EQ(steps(), 0);
}

// SPDX-License-Identifier: MIT
// What a user does with a slider: dragging, stepping, typing, leaving, and the same in the cell of a table.
#include "SliderFixture.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTest>

TEST_F(Slider, IsBuiltOfACheckBoxASliderAndALineEdit)
{
    EdIntSlider* slider = intSlider();
    EXPECT_EQ(slider->objectName(), "EdSliderFrame");
    EXPECT_EQ(slider->layout()->objectName(), "scopixslider");
    EXPECT_EQ(slider->layout()->contentsMargins(), QMargins(2, 2, 2, 2));
    EXPECT_EQ(slider->layout()->spacing(), 4);
    EXPECT_EQ(slider->layout()->itemAt(0)->widget(), m_live);
    EXPECT_EQ(slider->layout()->itemAt(1)->widget(), m_handle);
    EXPECT_EQ(slider->layout()->itemAt(2)->widget(), m_edit);
    EXPECT_TRUE(slider->isChecked());
    EXPECT_TRUE(m_handle->hasTracking());
    EXPECT_EQ(m_handle->orientation(), Qt::Horizontal);
}

TEST_F(Slider, IsTighterInATable)
{
    const EdIntSlider* slider = intSlider(Int32Slider, MultiValueParent);
    EXPECT_EQ(slider->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    EXPECT_EQ(slider->layout()->spacing(), 3);
}

TEST_F(Slider, HasAccessibleNames)
{
    intSlider();
    for (const QWidget* input :
         {static_cast<QWidget*>(m_live), static_cast<QWidget*>(m_handle), static_cast<QWidget*>(m_edit)})
        EXPECT_FALSE(input->accessibleName().isEmpty());
}

TEST_F(Slider, DragWithoutLiveUpdateAppliesOnceOnRelease)
{
    EdRealSlider* slider = realSlider(0, 10);
    slider->setRealValue(2.5);
    slider->setChecked(false);
    person::pressHandle(m_handle);
    person::moveHandle(m_handle, 50);
    person::moveHandle(m_handle, 70);
    EXPECT_EQ(m_edit->text(), QString::number(slider->sliderToDouble(m_handle->value()), 'f', 6));
    EXPECT_NE(m_edit->text(), "2.500000");
    EXPECT_EQ(m_owner.applied(), 0);
    person::releaseHandle(m_handle);
    EXPECT_EQ(m_owner.applied(), 1);
    EXPECT_DOUBLE_EQ(slider->getNumber(), slider->sliderToDouble(m_handle->value()));
}

TEST_F(Slider, DragWithLiveUpdateAppliesAtEveryStepAndOnRelease)
{
    realSlider(0, 10)->setRealValue(2.5);
    person::drag(m_handle, {50, 70, 90});
    EXPECT_EQ(m_owner.applied(), 4);
}

TEST_F(Slider, SavesTheValueFromBeforeTheDrag)
{
    EdRealSlider* slider = realSlider(0, 10);
    slider->setRealValue(2.5);
    person::pressHandle(m_handle);
    EXPECT_STREQ(slider->savedText().getString(), "2.500000");
    person::releaseHandle(m_handle);
}

TEST_F(Slider, HandlePressedAndReleasedWithoutAMoveAppliesNothing)
{
    EdRealSlider* slider = realSlider(0, 10);
    slider->setRealValue(2.5037);
    person::drag(m_handle, {});
    EXPECT_EQ(m_owner.applied(), 0);
    EXPECT_DOUBLE_EQ(slider->getNumber(), 2.5037);
    EXPECT_TRUE(slider->savedText().isNull()) << "the next edit would be undone to an old value";
}

TEST_F(Slider, HeldHandleIsLeftAloneAndShowsTheFieldAfterwards)
{
    EdRealSlider* slider = realSlider(0, 10);
    slider->setRealValue(2.5);
    person::pressHandle(m_handle);
    slider->setRealValue(9);
    EXPECT_EQ(m_handle->value(), 25);
    EXPECT_EQ(m_edit->text(), "2.500000");
    person::releaseHandle(m_handle);
    EXPECT_EQ(m_owner.m_refreshes, 1);
    EXPECT_EQ(m_owner.applied(), 0);
}

TEST_F(Slider, KeyStepsApplyWithLiveUpdate)
{
    EdIntSlider* slider = intSlider();
    slider->setValidLimits(0, 100, false);
    slider->setValue("7");
    person::focus(m_handle);
    QTest::keyClick(m_handle, Qt::Key_Right);
    EXPECT_EQ(m_edit->text(), "8");
    EXPECT_EQ(m_owner.applied(), 1);
}

TEST_F(Slider, KeyStepsWithoutLiveUpdateWaitForEnterOrForEscape)
{
    EdIntSlider* slider = intSlider();
    slider->setValidLimits(0, 100, false);
    slider->setValue("7");
    slider->setChecked(false);
    person::focus(m_handle);
    QTest::keyClick(m_handle, Qt::Key_Right);
    EXPECT_EQ(m_edit->text(), "8");
    EXPECT_EQ(m_owner.applied(), 0);
    EXPECT_TRUE(slider->isEdited());
    person::focus(m_edit);
    QTest::keyClick(m_edit, Qt::Key_Escape);
    EXPECT_EQ(m_edit->text(), "7");
    EXPECT_EQ(m_handle->value(), 7);
    person::focus(m_handle);
    QTest::keyClick(m_handle, Qt::Key_Right);
    person::focus(m_edit);
    QTest::keyClick(m_edit, Qt::Key_Return);
    EXPECT_EQ(m_owner.applied(), 1);
    EXPECT_EQ(slider->getNumber(), 8);
}

TEST_F(Slider, EnterAppliesOnceAndLeavingAppliesNothingMore)
{
    EdIntSlider* slider = intSlider();
    slider->setValidLimits(0, 100, false);
    slider->setValue("7");
    person::typeAndEnter(m_edit, "42");
    EXPECT_EQ(m_owner.applied(), 1);
    EXPECT_FALSE(slider->isEdited());
    person::focus(m_handle);
    EXPECT_EQ(m_owner.applied(), 1);
    person::type(m_edit, "43");
    person::focus(m_handle);
    EXPECT_EQ(m_owner.applied(), 2);
}

TEST_F(Slider, RefreshLeavesTypingThatWaitsAndWhatIsShownAlready)
{
    EdIntSlider* slider = intSlider();
    slider->setValidLimits(0, 100, false);
    slider->setValue("50");
    person::focus(m_edit);
    m_edit->setSelection(1, 1);
    slider->setValue("50");
    EXPECT_EQ(m_edit->selectedText(), "0");
    person::type(m_edit, "7");
    slider->setValue("50");
    EXPECT_EQ(m_edit->text(), "7");
    EXPECT_TRUE(slider->isEdited());
    slider->setValue("51");
    EXPECT_EQ(m_edit->text(), "51");
    EXPECT_FALSE(slider->isEdited());
}

TEST_F(Slider, EscapeBringsTheShownValueBack)
{
    EdIntSlider* slider = intSlider();
    slider->setValidLimits(0, 100, false);
    slider->setValue("50");
    person::type(m_edit, "7");
    QTest::keyClick(m_edit, Qt::Key_Escape);
    EXPECT_EQ(m_edit->text(), "50");
    person::tab(m_edit);
    EXPECT_EQ(m_owner.applied(), 0);
    EXPECT_EQ(slider->getNumber(), 50);
}

TEST_F(Slider, TabMovesFromTheCheckBoxToTheLineEdit)
{
    intSlider();
    person::focus(m_live);
    person::tab(m_live);
    EXPECT_EQ(QApplication::focusWidget(), m_handle);
    person::tab(m_handle);
    EXPECT_EQ(QApplication::focusWidget(), m_edit);
}

TEST_F(Slider, WheelChangesNothingWithoutTheFocus)
{
    EdIntSlider* slider = intSlider();
    slider->setValidLimits(0, 100, false);
    slider->setValue("50");
    const auto turn = [this] {
        const QPoint at = m_handle->rect().center();
        QWheelEvent wheel(at, m_handle->mapToGlobal(at), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_handle, &wheel);
    };
    person::focus(m_edit);
    turn();
    EXPECT_EQ(slider->getNumber(), 50);
    person::focus(m_handle);
    turn();
    EXPECT_NE(slider->getNumber(), 50);
    EXPECT_EQ(m_owner.applied(), 1);
}

// --- As the cell of a table

TEST_F(Slider, CellHandsItsElementOver)
{
    EdIntSlider* slider = intSlider(Int32Slider, MultiValueParent);
    slider->setValidLimits(0, 100, false);
    slider->setValue("0x1F");
    person::typeAndEnter(m_edit, "2a");
    EXPECT_EQ(m_owner.m_calls, QStringList({"refresh 0", "value 3 2 0x2a", "refresh 1"}));
}

TEST_F(Slider, CellPassesItsFocusOnAndKeepsKeysFromTheTable)
{
    class Table : public QWidget
    {
    public:
        void keyPressEvent(QKeyEvent* event) override { m_keys << event->key(); }
        QList<int> m_keys;
    } table;
    auto* slider = new EdIntSlider(Int32Slider, MultiValueParent, &m_owner, &table, 0, 0);
    slider->setValue("7");
    table.show();
    person::focus(slider);
    QWidget* focused = QApplication::focusWidget();
    EXPECT_EQ(focused, slider->findChild<QLineEdit*>());
    for (int key : {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Delete, Qt::Key_Shift, Qt::Key_A, Qt::Key_Return,
                    Qt::Key_Escape})
        QTest::keyClick(focused, Qt::Key(key));
    EXPECT_EQ(table.m_keys, QList<int>({Qt::Key_Return, Qt::Key_Escape}));
}

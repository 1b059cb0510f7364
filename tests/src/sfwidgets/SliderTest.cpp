#include "EdIntSlider.h"
#include "EdLineEdit.h"
#include "EdRealSlider.h"
#include "EdUIntSlider.h"
#include "EdWideRangeStyle.h"
#include "Person.h"
#include "SpxFieldEditors.h"

#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSlider>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{

constexpr int IntMin = std::numeric_limits<int>::min();
constexpr int IntMax = std::numeric_limits<int>::max();

// Writes down what a slider hands to its owner.
class Owner : public SpxFieldEditors
{
public:
    ~Owner() override { qDeleteAll(getWidgetContainer()->findChildren<EdSlider*>()); }
    void refresh() override { ++m_refreshes; }
    void setRefresh(bool enabled) override { m_calls << QString("refresh %1").arg(enabled); }
    void swapRows(int, int) override {}
    void swapColumns(int, int) override {}
    void set1Value(int row, int column, QString text) override
    {
        m_calls << QString("value %1 %2 %3").arg(row).arg(column).arg(text);
    }
    void setValue(int, const void*) override {}
    void applyChanges() override { m_calls << "apply"; }

    int applied() const { return m_calls.count("apply"); }

    QStringList m_calls;
    int m_refreshes = 0;
};

class SliderTest : public testing::Test
{
protected:
    template <class Slider>
    Slider* show(Slider* slider)
    {
        slider->resize(320, 30);
        slider->show();
        m_edit = slider->template findChild<QLineEdit*>();
        m_handle = slider->template findChild<QSlider*>();
        m_live = slider->template findChild<QCheckBox*>();
        return slider;
    }
    EdIntSlider* intSlider(SliderType type = Int32Slider, SliderParentType parent = SingleValueParent)
    {
        return show(new EdIntSlider(type, parent, &m_owner, m_owner.getWidgetContainer(), 3, 2));
    }
    EdUIntSlider* uintSlider(SliderType type = UInt32Slider)
    {
        return show(new EdUIntSlider(type, SingleValueParent, &m_owner, m_owner.getWidgetContainer(), 0, 1));
    }
    EdRealSlider* realSlider(double min, double max, bool single = true)
    {
        auto* slider =
            new EdRealSlider(SingleValueParent, &m_owner, m_owner.getWidgetContainer(), single, 0, 1);
        slider->setValidLimits(min, max, false);
        return show(slider);
    }

    void SetUp() override
    {
        m_owner.getWidgetContainer()->resize(400, 60);
        m_owner.getWidgetContainer()->show();
    }

    Owner m_owner;
    QLineEdit* m_edit = nullptr;
    QSlider* m_handle = nullptr;
    QCheckBox* m_live = nullptr;
};

} // namespace

TEST_F(SliderTest, IsBuiltOfACheckBoxASliderAndALineEdit)
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

TEST_F(SliderTest, IsTighterInATable)
{
    const EdIntSlider* slider = intSlider(Int32Slider, MultiValueParent);
    EXPECT_EQ(slider->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    EXPECT_EQ(slider->layout()->spacing(), 3);
}

TEST_F(SliderTest, NamesItsInputsForThoseWhoDoNotSeeThem)
{
    intSlider();
    for (const QWidget* input :
         {static_cast<QWidget*>(m_live), static_cast<QWidget*>(m_handle), static_cast<QWidget*>(m_edit)})
        EXPECT_FALSE(input->accessibleName().isEmpty());
}

TEST_F(SliderTest, DragWithoutLiveUpdateAppliesOnceOnRelease)
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

TEST_F(SliderTest, DragWithLiveUpdateAppliesAtEveryStepAndOnRelease)
{
    realSlider(0, 10)->setRealValue(2.5);
    person::drag(m_handle, {50, 70, 90});
    EXPECT_EQ(m_owner.applied(), 4);
}

TEST_F(SliderTest, SavesTheValueFromBeforeTheDrag)
{
    EdRealSlider* slider = realSlider(0, 10);
    slider->setRealValue(2.5);
    person::pressHandle(m_handle);
    EXPECT_STREQ(slider->savedText().getString(), "2.500000");
    person::releaseHandle(m_handle);
}

TEST_F(SliderTest, HandlePressedAndReleasedWithoutAMoveAppliesNothing)
{
    EdRealSlider* slider = realSlider(0, 10);
    slider->setRealValue(2.5037);
    person::drag(m_handle, {});
    EXPECT_EQ(m_owner.applied(), 0);
    EXPECT_DOUBLE_EQ(slider->getNumber(), 2.5037);
    EXPECT_TRUE(slider->savedText().isNull()) << "the next edit would be undone to an old value";
}

TEST_F(SliderTest, HeldHandleIsLeftAloneAndShowsTheFieldAfterwards)
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

TEST_F(SliderTest, KeyStepsApplyWithLiveUpdate)
{
    EdIntSlider* slider = intSlider();
    slider->setValidLimits(0, 100, false);
    slider->setValue("7");
    person::focus(m_handle);
    QTest::keyClick(m_handle, Qt::Key_Right);
    EXPECT_EQ(m_edit->text(), "8");
    EXPECT_EQ(m_owner.applied(), 1);
}

TEST_F(SliderTest, KeyStepsWithoutLiveUpdateWaitForEnterOrForEscape)
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

TEST_F(SliderTest, EnterAppliesOnceAndLeavingAppliesNothingMore)
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

TEST_F(SliderTest, FirstValueOfTwoCharactersWithAZeroIsOctal)
{
    EdIntSlider* slider = intSlider();
    slider->setValue("07");
    EXPECT_EQ(m_edit->text(), "7");
    EXPECT_EQ(slider->getText(), "07");
    slider->setValidLimits(0, 100, false);
    slider->setValue("12"); // a decimal text, since it has no prefix
    EXPECT_EQ(m_edit->text(), "14");
    EXPECT_EQ(slider->getNumber(), 12);
}

TEST_F(SliderTest, FirstValueOfThreeCharactersWithAZeroIsDecimal)
{
    EdIntSlider* slider = intSlider();
    slider->setValue("017");
    EXPECT_EQ(slider->getNumber(), 17);
    EXPECT_EQ(slider->getText(), m_edit->text());
}

TEST_F(SliderTest, FirstValueWithAnXIsHexadecimalAndTheBaseStays)
{
    EdIntSlider* slider = intSlider();
    slider->setValue("0x1F");
    EXPECT_EQ(m_edit->text(), "1F");
    EXPECT_EQ(slider->getNumber(), 31);
    EXPECT_EQ(slider->getText(), "0x1F");
    EXPECT_EQ(m_edit->validator(), nullptr);
    slider->setValue("0x20");
    EXPECT_EQ(slider->getNumber(), 32);
    slider->setValue("255");
    EXPECT_EQ(m_edit->text(), "ff");
    EXPECT_EQ(slider->getNumber(), 255);
}

TEST_F(SliderTest, HexadecimalBeyondTheTypeIsClamped)
{
    EdIntSlider* slider = intSlider(Int16Slider);
    slider->setValue("0x1F");
    person::typeAndEnter(m_edit, "ffff");
    EXPECT_EQ(slider->getNumber(), 32767);
}

TEST_F(SliderTest, TypingBeyondAnOpenRangeWidensIt)
{
    EdIntSlider* slider = intSlider();
    slider->setValidLimits(0, 100, false);
    slider->setValue("7");
    person::typeAndEnter(m_edit, "250");
    EXPECT_EQ(slider->getTop(), 250);
    EXPECT_EQ(m_handle->maximum(), 250);
    EXPECT_EQ(m_handle->value(), 250);
    person::typeAndEnter(m_edit, "-3");
    EXPECT_EQ(slider->getBottom(), -3);
    EXPECT_EQ(m_handle->minimum(), -3);
}

TEST_F(SliderTest, TypingBeyondAFixedRangeIsClamped)
{
    EdIntSlider* slider = intSlider();
    slider->setValidLimits(0, 100, true);
    slider->setValue("7");
    person::typeAndEnter(m_edit, "250");
    EXPECT_EQ(m_edit->text(), "250");
    EXPECT_EQ(slider->getNumber(), 100);
    EXPECT_EQ(m_handle->maximum(), 100);
    EXPECT_EQ(m_owner.applied(), 1);
}

TEST_F(SliderTest, TypingBeyondAFixedRealRangeIsClampedToo)
{
    EdRealSlider* slider = realSlider(0, 1);
    slider->setValidLimits(0, 1, true);
    slider->setRealValue(0.5);
    person::type(m_edit, "2.5");
    person::tab(m_edit);
    EXPECT_DOUBLE_EQ(slider->getNumber(), 1);
    EXPECT_EQ(m_owner.applied(), 1);
}

TEST_F(SliderTest, OpenRangeGivesTheValidatorItsWholeTypeBack)
{
    EdIntSlider* slider = intSlider(Int16Slider);
    slider->setValue("7");
    slider->setValidLimits(0, 10, true);
    const auto* validator = qobject_cast<const QIntValidator*>(m_edit->validator());
    EXPECT_EQ(validator->top(), 10);
    slider->setValidLimits(0, 10, false);
    EXPECT_EQ(validator->bottom(), -32768);
    EXPECT_EQ(validator->top(), 32767);
}

TEST_F(SliderTest, WhatTheTypeCannotHoldIsRefusedWhileTyping)
{
    intSlider(Int16Slider)->setValue("7");
    person::type(m_edit, "40000");
    EXPECT_EQ(m_edit->text(), "4000");
    intSlider()->setValue("7");
    person::type(m_edit, "99999999999");
    EXPECT_EQ(m_edit->text(), "999999999");
    realSlider(0, 1)->setRealValue(0);
    person::type(m_edit, "1e39");
    EXPECT_EQ(m_edit->text(), "1e3");
}

TEST_F(SliderTest, NumbersHaveAPointAndNoGroups)
{
    realSlider(0, 1)->setRealValue(0);
    person::type(m_edit, "1,5");
    EXPECT_EQ(m_edit->text(), "15");
    person::type(m_edit, "1.5");
    EXPECT_TRUE(m_edit->hasAcceptableInput());
}

TEST_F(SliderTest, SignedTextThatIsNoNumberCountsAsZeroAndUnsignedIsIgnored)
{
    EdIntSlider* slider = intSlider();
    slider->setValue("0x1F");
    m_edit->setText("xyz");
    slider->setValueFromEdit();
    EXPECT_EQ(slider->getNumber(), 0);

    EdUIntSlider* natural = uintSlider();
    natural->setValue("17");
    m_edit->setText("-1");
    natural->setValueFromEdit();
    EXPECT_EQ(natural->getNumber(), 17U);
}

TEST_F(SliderTest, UnsignedPositionsHaveTheTopBitFlipped)
{
    EdUIntSlider* slider = uintSlider();
    slider->setValidLimits(0, 4294967295U, false);
    slider->setValue("4294967295");
    EXPECT_EQ(slider->getValue(), IntMax);
    slider->setValue("0");
    EXPECT_EQ(slider->getValue(), IntMin);
    slider->setValueFromSlider(IntMax);
    EXPECT_EQ(slider->getNumber(), 4294967295U);
}

TEST_F(SliderTest, UnsignedSixteenBitsStopAt65535)
{
    EdUIntSlider* slider = uintSlider(UInt16Slider);
    slider->setValidLimits(0, 100, false);
    slider->setValue("7");
    EXPECT_EQ(m_edit->validator(), nullptr);
    person::typeAndEnter(m_edit, "70000");
    EXPECT_EQ(slider->getNumber(), 65535U);
}

TEST_F(SliderTest, FixedUnsignedRangeNarrowsOnlyWhatIsAccepted)
{
    EdUIntSlider* slider = uintSlider();
    slider->setValidLimits(0, 200, false);
    const int minimum = m_handle->minimum();
    const int maximum = m_handle->maximum();
    slider->setValidLimits(10, 100, true);
    EXPECT_EQ(m_handle->minimum(), minimum);
    EXPECT_EQ(m_handle->maximum(), maximum);
    EXPECT_EQ(slider->getTop(), 200U);
    slider->setValue("150");
    EXPECT_EQ(slider->getNumber(), 100U);
    slider->setValue("5");
    EXPECT_EQ(slider->getNumber(), 10U);
}

TEST_F(SliderTest, RealSliderHas101Positions)
{
    EdRealSlider* slider = realSlider(0, 10);
    EXPECT_EQ(m_handle->minimum(), 0);
    EXPECT_EQ(m_handle->maximum(), 100);
    slider->setRealValue(2.5);
    EXPECT_EQ(slider->getValue(), 25);
    EXPECT_EQ(slider->sliderToDouble(37), 3.7);
    EXPECT_EQ(slider->sliderToInt(10), 100);
}

TEST_F(SliderTest, RealTextHasTheDigitsOfItsPrecision)
{
    EdRealSlider* slider = realSlider(0, 10);
    slider->setRealValue(0.1F);
    EXPECT_EQ(m_edit->text(), "0.100000");
    slider = realSlider(0, 10, false);
    slider->setRealValue(0.1);
    EXPECT_EQ(m_edit->text(), "0.1");
    slider->setRealValue(1.0 / 3);
    EXPECT_EQ(m_edit->text(), "0.333333333333333");
    EXPECT_EQ(slider->getNumber(), 0.333333333333333);
}

TEST_F(SliderTest, LongNumbersShowTheirBeginning)
{
    realSlider(0, 10)->setRealValue(123456789);
    EXPECT_EQ(m_edit->cursorPosition(), 0);
}

TEST_F(SliderTest, EmptyRangePutsTheHandleAtZero)
{
    EdRealSlider* slider = realSlider(5, 5);
    EXPECT_EQ(slider->sliderToInt(5), 0);
    EXPECT_EQ(slider->sliderToInt(7), 0);
    EXPECT_EQ(slider->sliderToDouble(0), 5);
    slider->setRealValue(5);
    EXPECT_EQ(m_handle->value(), 0);
    slider->setRealValue(6);
    EXPECT_EQ(m_handle->value(), 100);
}

TEST_F(SliderTest, RangeThatGrowsDownwardsFromNothingStillHas101Positions)
{
    realSlider(-5, 0)->setRealValue(-2.5);
    EXPECT_EQ(m_handle->maximum(), 100);
    EXPECT_EQ(m_handle->value(), 50);
}

TEST_F(SliderTest, WhatIsNotFiniteShowsItsTextAndLeavesTheRange)
{
    EdRealSlider* slider = realSlider(0, 10);
    slider->setRealValue(5);
    slider->setRealValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(m_edit->text(), "nan");
    EXPECT_EQ(m_handle->value(), 0);
    slider->setRealValue(std::numeric_limits<double>::infinity());
    EXPECT_EQ(m_edit->text(), "inf");
    EXPECT_EQ(slider->getTop(), 10);
    EXPECT_EQ(m_handle->value(), 0);
}

TEST_F(SliderTest, WidestRealRangeNeitherOverflowsNorLosesItsEnds)
{
    constexpr double Most = std::numeric_limits<double>::max();
    EdRealSlider* slider = realSlider(-Most, Most, false);
    EXPECT_EQ(slider->sliderToInt(-Most), 0);
    EXPECT_EQ(slider->sliderToInt(0), 50);
    EXPECT_EQ(slider->sliderToInt(Most), 100);
    EXPECT_EQ(slider->sliderToDouble(0), -Most);
    EXPECT_EQ(slider->sliderToDouble(50), 0);
    EXPECT_EQ(slider->sliderToDouble(100), Most);
    slider->setRealValue(Most);
    EXPECT_EQ(m_handle->value(), 100);
}

// Qt's styles divide by zero where the range is exactly 2^31 wide.
TEST_F(SliderTest, RangesWiderThanAnIntArePaintedAndHit)
{
    EdUIntSlider* slider = uintSlider();
    for (unsigned int top : {2147483648U, 2147483649U, 4294967295U}) {
        slider->setValidLimits(0, top, false);
        slider->setValue(QString::number(top));
        EXPECT_FALSE(slider->grab().isNull());
        person::drag(m_handle, {IntMin});
        EXPECT_EQ(slider->getNumber(), 0U) << top;
    }
    EdIntSlider* other = intSlider();
    other->setValidLimits(IntMin, IntMax, false);
    other->setValue("0");
    EXPECT_FALSE(other->grab().isNull());
    EXPECT_EQ(other->findChildren<EdLineEdit*>().size(), 1);
}

TEST_F(SliderTest, MovingTheRangeAppliesNothing)
{
    EdIntSlider* slider = intSlider();
    slider->setValidLimits(0, 100, false);
    slider->setValue("50");
    slider->setTop(10);
    slider->setBottom(5);
    slider->setValidLimits(60, 80, false);
    EdUIntSlider* natural = uintSlider();
    natural->setTop(10);
    natural->setBottom(4);
    EdRealSlider* real = realSlider(0, 10);
    real->setRealValue(5);
    real->setTop(1);
    real->setBottom(0.5);
    EXPECT_TRUE(m_owner.m_calls.isEmpty()) << qPrintable(m_owner.m_calls.join(' '));
}

TEST_F(SliderTest, FixedRangeIgnoresItsEnds)
{
    EdIntSlider* slider = intSlider();
    slider->setValidLimits(0, 100, true);
    slider->setTop(7);
    slider->setBottom(5);
    EXPECT_EQ(slider->getTop(), 100);
    EXPECT_EQ(slider->getBottom(), 0);
}

TEST_F(SliderTest, RefreshLeavesTypingThatWaitsAndWhatIsShownAlready)
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

TEST_F(SliderTest, EscapeBringsTheShownValueBack)
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

TEST_F(SliderTest, TabGoesFromTheCheckBoxToTheLineEdit)
{
    intSlider();
    person::focus(m_live);
    person::tab(m_live);
    EXPECT_EQ(QApplication::focusWidget(), m_handle);
    person::tab(m_handle);
    EXPECT_EQ(QApplication::focusWidget(), m_edit);
}

TEST_F(SliderTest, WheelChangesNothingWithoutTheFocus)
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

TEST_F(SliderTest, CellHandsItsElementOver)
{
    EdIntSlider* slider = intSlider(Int32Slider, MultiValueParent);
    slider->setValidLimits(0, 100, false);
    slider->setValue("0x1F");
    person::typeAndEnter(m_edit, "2a");
    EXPECT_EQ(m_owner.m_calls, QStringList({"refresh 0", "value 3 2 0x2a", "refresh 1"}));
}

TEST_F(SliderTest, CellPassesItsFocusOnAndKeepsKeysFromTheTable)
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

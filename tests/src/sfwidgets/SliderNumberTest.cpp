// SPDX-License-Identifier: MIT
// What a slider makes of numbers: their texts and bases, its range and its positions.
#include "EdLineEdit.h"
#include "SliderFixture.h"

#include <limits>

namespace
{

constexpr int IntMin = std::numeric_limits<int>::min();
constexpr int IntMax = std::numeric_limits<int>::max();

using SliderNumber = Slider;

} // namespace

TEST_F(SliderNumber, FirstValueOfTwoCharactersWithAZeroIsOctal)
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

TEST_F(SliderNumber, FirstValueOfThreeCharactersWithAZeroIsDecimal)
{
    EdIntSlider* slider = intSlider();
    slider->setValue("017");
    EXPECT_EQ(slider->getNumber(), 17);
    EXPECT_EQ(slider->getText(), m_edit->text());
}

TEST_F(SliderNumber, FirstValueWithAnXIsHexadecimalAndTheBaseStays)
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

TEST_F(SliderNumber, HexadecimalBeyondTheTypeIsClamped)
{
    EdIntSlider* slider = intSlider(Int16Slider);
    slider->setValue("0x1F");
    person::typeAndEnter(m_edit, "ffff");
    EXPECT_EQ(slider->getNumber(), 32767);
}

TEST_F(SliderNumber, TypingBeyondAnOpenRangeWidensIt)
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

TEST_F(SliderNumber, TypingBeyondAFixedRangeIsClamped)
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

TEST_F(SliderNumber, TypingBeyondAFixedRealRangeIsClampedToo)
{
    EdRealSlider* slider = realSlider(0, 1);
    slider->setValidLimits(0, 1, true);
    slider->setRealValue(0.5);
    person::type(m_edit, "2.5");
    person::tab(m_edit);
    EXPECT_DOUBLE_EQ(slider->getNumber(), 1);
    EXPECT_EQ(m_owner.applied(), 1);
}

TEST_F(SliderNumber, OpenRangeGivesTheValidatorItsWholeTypeBack)
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

TEST_F(SliderNumber, RefusesNumbersBeyondTheTypeWhileTyping)
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

TEST_F(SliderNumber, NumbersHaveAPointAndNoGroups)
{
    realSlider(0, 1)->setRealValue(0);
    person::type(m_edit, "1,5");
    EXPECT_EQ(m_edit->text(), "15");
    person::type(m_edit, "1.5");
    EXPECT_TRUE(m_edit->hasAcceptableInput());
}

TEST_F(SliderNumber, SignedTextThatIsNoNumberCountsAsZeroAndUnsignedIsIgnored)
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

TEST_F(SliderNumber, SavesItsNumberWhateverTheLineHolds)
{
    EdUIntSlider* natural = uintSlider();
    natural->setValue("7");
    m_edit->setText("abc");
    natural->saveDataFromField();
    EXPECT_STREQ(natural->savedText().getString(), "7");

    natural = uintSlider(UInt16Slider);
    natural->setValue("0x1F");
    m_edit->setText("x");
    natural->saveDataFromField();
    EXPECT_STREQ(natural->savedText().getString(), "0x1f");

    natural = uintSlider();
    natural->setValue("07");
    m_edit->setText("9");
    natural->saveDataFromField();
    EXPECT_STREQ(natural->savedText().getString(), "07");

    EdIntSlider* integer = intSlider();
    integer->setValue("-7");
    m_edit->setText("");
    integer->saveDataFromField();
    EXPECT_STREQ(integer->savedText().getString(), "-7");

    EdRealSlider* real = realSlider(0, 10);
    real->setRealValue(2.5);
    m_edit->setText("1e");
    real->saveDataFromField();
    EXPECT_STREQ(real->savedText().getString(), "2.500000");
}

TEST_F(SliderNumber, UnsignedPositionsHaveTheTopBitFlipped)
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

TEST_F(SliderNumber, UnsignedSixteenBitsStopAt65535)
{
    EdUIntSlider* slider = uintSlider(UInt16Slider);
    slider->setValidLimits(0, 100, false);
    slider->setValue("7");
    EXPECT_EQ(m_edit->validator(), nullptr);
    m_edit->setText("70000");
    slider->setValueFromEdit();
    EXPECT_EQ(slider->getNumber(), 65535U);
    slider->setValue("8");
    person::typeAndEnter(m_edit, "70000");
    EXPECT_EQ(slider->getNumber(), 8U) << "refused where it is typed";
    EXPECT_EQ(m_edit->text(), "8");
    EXPECT_EQ(m_owner.applied(), 0);
}

TEST_F(SliderNumber, FixedUnsignedRangeNarrowsOnlyWhatIsAccepted)
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

TEST_F(SliderNumber, RealSliderHas101Positions)
{
    EdRealSlider* slider = realSlider(0, 10);
    EXPECT_EQ(m_handle->minimum(), 0);
    EXPECT_EQ(m_handle->maximum(), 100);
    slider->setRealValue(2.5);
    EXPECT_EQ(slider->getValue(), 25);
    EXPECT_EQ(slider->sliderToDouble(37), 3.7);
    EXPECT_EQ(slider->sliderToInt(10), 100);
}

TEST_F(SliderNumber, RealTextHasTheDigitsOfItsPrecision)
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

TEST_F(SliderNumber, LongNumbersShowTheirBeginning)
{
    realSlider(0, 10)->setRealValue(123456789);
    EXPECT_EQ(m_edit->cursorPosition(), 0);
}

TEST_F(SliderNumber, EmptyRangePutsTheHandleAtZero)
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

TEST_F(SliderNumber, RangeThatGrowsDownwardsFromNothingStillHas101Positions)
{
    realSlider(-5, 0)->setRealValue(-2.5);
    EXPECT_EQ(m_handle->maximum(), 100);
    EXPECT_EQ(m_handle->value(), 50);
}

TEST_F(SliderNumber, NumbersThatAreNotFiniteAreShownAndKeepTheRange)
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

TEST_F(SliderNumber, WidestRealRangeNeitherOverflowsNorLosesItsEnds)
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
TEST_F(SliderNumber, RangesWiderThanAnIntArePaintedAndHit)
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

TEST_F(SliderNumber, MovingTheRangeAppliesNothing)
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

TEST_F(SliderNumber, FixedRangeIgnoresItsEnds)
{
    EdIntSlider* slider = intSlider();
    slider->setValidLimits(0, 100, true);
    slider->setTop(7);
    slider->setBottom(5);
    EXPECT_EQ(slider->getTop(), 100);
    EXPECT_EQ(slider->getBottom(), 0);
}

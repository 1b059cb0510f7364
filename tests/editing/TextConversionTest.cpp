// SPDX-License-Identifier: MIT
// Texts of values: the C locale's and the shortest ones, whatever the locale of the run.
#include <scopix/editing/SpxText.h>

#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoSFString.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(NumberText, IsTheShortestThatRoundTrips)
{
    EXPECT_EQ(SpxText::ofNumber(0.1F), "0.1");
    EXPECT_EQ(SpxText::ofNumber(0.1), "0.1");
    EXPECT_EQ(SpxText::ofNumber(double(0.1F)), "0.10000000149011612");
    EXPECT_EQ(SpxText::ofNumber(-0.0), "-0");
    for (const double number : {1 / 3.0, 5e-324, -2.2250738585072014e-308, 1.7976931348623157e308})
        EXPECT_EQ(SpxText::toDoubleOr0(SpxText::ofNumber(number)), number);
    for (const float number : {1 / 3.F, 1e-45F, 3.40282347e38F})
        EXPECT_EQ(SpxText::toFloatOr0(SpxText::ofNumber(number)), number);
}

TEST(NumberText, IsReadWithAPointAndWithoutGroups)
{
    EXPECT_EQ(SpxText::toDoubleOr0("2.5"), 2.5);
    for (const char* text : {"2,5", "1,000", "", "two", "1e999"})
        EXPECT_EQ(SpxText::toDoubleOr0(text), 0) << text;
    EXPECT_EQ(SpxText::toFloatOr0("1e39"), 0);
}

TEST(FieldText, IsWhatTheFieldReadsBack)
{
    SoMFFloat field;
    field.setValues({0.1F, -2.F});
    SoMFFloat other;
    ASSERT_TRUE(other.set(SpxText::toSbString(SpxText::ofField(field))));
    EXPECT_TRUE(other.isSame(field));
}

TEST(FieldText, KeepsCharactersBeyondTheBasicPlane)
{
    const QString text = QString::fromUtf8("Grün \xF0\x9F\x8C\xB2");
    SoSFString field;
    field.setValue(SpxText::toSbString(text));
    EXPECT_EQ(SpxText::toQString(field.getValue()), text);
    EXPECT_EQ(SpxText::toQString(SbName("M\xFCller")), QString::fromUtf8("Müller"));
}

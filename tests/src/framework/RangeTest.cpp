// SPDX-License-Identifier: MIT
#include "EdRangeSettings.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Range, StartsAtZeroAndOpen)
{
    const EdRangeComponent range;
    EXPECT_EQ(range, EdRangeComponent(0, 0, false));
    EXPECT_EQ(range, EdRangeComponent(0.F, 0.F, false));
    EXPECT_EQ(range, EdRangeComponent(0.0, 0.0, false));
    EXPECT_FALSE(range.isBoundFixed());
}

TEST(Range, ConstructorsFillOnePair)
{
    const EdRangeComponent ints(1, 2, true);
    EXPECT_EQ(ints.getiMin(), 1);
    EXPECT_EQ(ints.getiMax(), 2);
    EXPECT_EQ(ints.getfMax(), 0.F);
    EXPECT_EQ(ints.getdMax(), 0.F);
    EXPECT_TRUE(ints.isBoundFixed());
    const EdRangeComponent floats(1.5F, 2.5F, false);
    EXPECT_EQ(floats.getfMin(), 1.5F);
    EXPECT_EQ(floats.getfMax(), 2.5F);
    EXPECT_EQ(floats.getdMax(), 0.F);
    EXPECT_EQ(floats.getiMax(), 0);
    const EdRangeComponent doubles(1.5, 2.5, false);
    EXPECT_EQ(doubles.getdMin(), 1.5F);
    EXPECT_EQ(doubles.getdMax(), 2.5F);
    EXPECT_EQ(doubles.getfMax(), 0.F);
}

TEST(Range, SettersLeaveTheOtherPairsAlone)
{
    EdRangeComponent range;
    range.setfRange(1.F, 2.F);
    range.setdRange(3.0, 4.0);
    range.setiRange(5, 6);
    range.setBoundFixed(true);
    EXPECT_EQ(range.getfMin(), 1.F);
    EXPECT_EQ(range.getfMax(), 2.F);
    EXPECT_EQ(range.getdMin(), 3.F);
    EXPECT_EQ(range.getdMax(), 4.F);
    EXPECT_EQ(range.getiMin(), 5);
    EXPECT_EQ(range.getiMax(), 6);
    const EdRangeComponent copy = range;
    EXPECT_EQ(copy, range);
}

// Single precision is what a double range keeps.
TEST(Range, OfDoublesIsNarrowedToFloat)
{
    EdRangeComponent range(0.1, 0.2, false);
    EXPECT_EQ(range.getdMin(), 0.1F);
    range.setdRange(0.3, 0.4);
    EXPECT_EQ(range.getdMax(), 0.4F);
    EXPECT_NE(double(range.getdMax()), 0.4);
}

TEST(Range, ComparesEveryNumberAndTheFlag)
{
    const auto differs = [](auto change) {
        EdRangeComponent range;
        change(range);
        return range != EdRangeComponent();
    };
    EXPECT_TRUE(differs([](auto& r) { r.setiRange(1, 0); }));
    EXPECT_TRUE(differs([](auto& r) { r.setiRange(0, 1); }));
    EXPECT_TRUE(differs([](auto& r) { r.setfRange(1.F, 0.F); }));
    EXPECT_TRUE(differs([](auto& r) { r.setfRange(0.F, 1.F); }));
    EXPECT_TRUE(differs([](auto& r) { r.setdRange(1.0, 0.0); }));
    EXPECT_TRUE(differs([](auto& r) { r.setdRange(0.0, 1.0); }));
    EXPECT_TRUE(differs([](auto& r) { r.setBoundFixed(true); }));
    EdRangeComponent nan;
    nan.setfRange(std::numeric_limits<float>::quiet_NaN(), 0.F);
    EXPECT_FALSE(nan == nan);
}

TEST(RangeSettings, KnowTheFieldsOfWellKnownNodes)
{
    const EdRangeSettings settings;
    EXPECT_TRUE(settings.isBounded("Material", "transparency"));
    const struct {
        const char* node;
        const char* field;
    } unitRanges[] = {{"Complexity", "value"},
                      {"Complexity", "textureQuality"},
                      {"DirectionalLight", "intensity"},
                      {"Material", "transparency"}};
    for (const auto& [node, field] : unitRanges)
        EXPECT_EQ(settings.getFieldRange(node, field), EdRangeComponent(0.F, 1.F, true)) << node << field;
}

TEST(RangeSettings, HoldADefaultForEachKindOfNumber)
{
    const EdRangeSettings settings;
    EXPECT_EQ(settings.getFieldRange("DefaultNode", "floatField"), EdRangeComponent(0.F, 10.F, false));
    EXPECT_EQ(settings.getFieldRange("DefaultNode", "doubleField"), EdRangeComponent(0.0, 10.0, false));
    EXPECT_EQ(settings.getFieldRange("DefaultNode", "intField"), EdRangeComponent(0, 100, false));
}

TEST(RangeSettings, GiveAnEmptyRangeForWhatTheyDoNotKnow)
{
    const EdRangeSettings settings;
    EXPECT_FALSE(settings.isBounded("Material", "shininess"));
    EXPECT_EQ(settings.getFieldRange("Material", "shininess"), EdRangeComponent());
}

// The key is the two names one after the other, without a separator.
TEST(RangeSettings, JoinNodeTypeAndFieldName)
{
    const EdRangeSettings settings;
    EXPECT_TRUE(settings.isBounded("Complex", "ityvalue"));
    EXPECT_EQ(settings.getFieldRange("Complex", "ityvalue"), EdRangeComponent(0.F, 1.F, true));
}

// Only two characters are ever read as octal.
TEST(RangeSettings, ReadTheBaseOfAText)
{
    const struct {
        const char* text;
        int base;
    } cases[] = {{"0x1F", 16}, {"0x1", 16}, {"0x", 8},  {"07", 8}, {"017", 10},
                 {"5", 10},    {"0", 10},   {"42", 10}, {"", 10},  {"123", 10}};
    for (const auto& [text, base] : cases)
        EXPECT_EQ(EdRangeSettings::checkBase(text), base) << text;
}

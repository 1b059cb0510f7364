// SPDX-License-Identifier: MIT
// Values of programs as fields, and back to the last bit.
#include "live/LiveValues.h"

#include <scopix/live/protocol/Contents.h>
#include <scopix/live/values/LivePacking.h>
#include <xsg/fields/SoMFString.h>
#include <xsg/fields/SoSFBitMask.h>
#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFMatrix.h>
#include <xsg/fields/SoSFString.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace scopix;
using live::Value;
using live::ValueKind;

namespace
{

std::unique_ptr<SoField> fieldFor(const Value& value, live::Meaning meaning = live::Meaning::Plain)
{
    live::PropertyInfo info;
    info.name = "value";
    info.kind = value.kind;
    info.list = value.list;
    info.meaning = meaning;
    info.names = {{"ONE", 1}, {"FOUR", 4}};
    return makeLiveField(info, nullptr);
}

std::vector<Value> samples()
{
    const double matrix[16] = {0.1, 0.2, 0.3, 0, 1.0 / 3, 1, 0, 0, 0, 0, 1e-300, 0, 1e300, 2, 3, 1};
    const double four[4] = {0.1, 0.2, 0.3, std::nan("")};
    const double six[6] = {-1.1, -2.2, -3.3, 1.1, 2.2, 3.3};
    const float floats[4] = {0.1F, 0.2F, 0.3F, 0.4F};
    const std::int16_t shorts[3] = {-32768, 7, 32767};
    const std::uint8_t bytes[4] = {0, 1, 128, 255};
    const float points[6] = {1, 2, 3, 4, 5, -0.0F};
    const std::int64_t large = std::numeric_limits<std::int64_t>::min();
    return {live::packed(ValueKind::Bool, std::uint8_t(1)),
            live::packed(ValueKind::Int32, std::int32_t(-5)),
            live::packed(ValueKind::UInt32, std::uint32_t(0xFFFFFFFF)),
            live::packed(ValueKind::Int64, large),
            live::packed(ValueKind::Float, 0.1F),
            live::packed(ValueKind::Double, 0.1),
            live::packed(ValueKind::Vec4f, floats),
            live::packed(ValueKind::Vec4d, four),
            live::packed(ValueKind::Rotation, four),
            live::packed(ValueKind::Matrix, matrix),
            live::packed(ValueKind::Color, floats),
            live::packed(ValueKind::Time, 12.5),
            live::packed(ValueKind::Plane, four),
            live::packed(ValueKind::Box, six),
            live::packed(ValueKind::Vec3s, shorts),
            live::packed(ValueKind::Vec4ub, bytes),
            live::packed(ValueKind::Short, shorts[0]),
            live::packedList(ValueKind::Vec3f, points, 6),
            live::packedList(ValueKind::Matrix, matrix, 16),
            live::packedText("two \"quoted\"\nlines"),
            live::packedTexts({"", "a", "b\"c"}),
            live::packedImage(2, 1, 3, reinterpret_cast<const std::uint8_t*>(floats))};
}

} // namespace

TEST(LiveValues, ComeBackFromTheirFieldsToTheLastBit)
{
    for (const Value& value : samples()) {
        SCOPED_TRACE(static_cast<int>(value.kind));
        const auto field = fieldFor(value);
        ASSERT_TRUE(field);
        ASSERT_TRUE(showLiveValue(value, *field));
        const auto back = liveValueOf(*field, value);
        ASSERT_TRUE(back);
        EXPECT_TRUE(*back == value);
    }
}

TEST(LiveValues, KeepTheBitsOfWhatWasNotEdited)
{
    const Value value = samples()[9];
    const auto field = fieldFor(value);
    ASSERT_TRUE(showLiveValue(value, *field));
    auto& matrix = static_cast<SoSFMatrix&>(*field);
    SbMatrix edited = matrix.getValue();
    edited[0][1] = 7;
    matrix.setValue(edited);
    const auto back = liveValueOf(*field, value);
    ASSERT_TRUE(back);
    const auto was = live::unpackedList<double>(value);
    const auto is = live::unpackedList<double>(*back);
    for (std::size_t i = 0; i < 16; ++i)
        EXPECT_EQ(is[i], i == 1 ? 7.0 : was[i]) << i;
}

TEST(LiveValues, KeepTheOpacityOfAColourWhoseHueIsEdited)
{
    const float rgba[4] = {0.1F, 0.2F, 0.3F, 0.4F};
    const Value value = live::packed(ValueKind::Color, rgba);
    const auto field = fieldFor(value);
    ASSERT_TRUE(showLiveValue(value, *field));
    static_cast<SoSFColor&>(*field).setValue(SbColor(1, 0, 0));
    EXPECT_EQ(live::unpackedList<float>(*liveValueOf(*field, value)), (std::vector<float>{1, 0, 0, 0.4F}));
}

TEST(LiveValues, ShowNumbersByTheirNames)
{
    const Value five = live::packed(ValueKind::Int32, std::int32_t(5));
    const auto mask = fieldFor(five, live::Meaning::Mask);
    ASSERT_TRUE(showLiveValue(five, *mask));
    SbString text;
    mask->get(text);
    EXPECT_STREQ(text.getString(), "ONE | FOUR");
    const Value four = live::packed(ValueKind::UInt32, std::uint32_t(4));
    const auto choice = fieldFor(four, live::Meaning::Enumeration);
    ASSERT_TRUE(showLiveValue(four, *choice));
    choice->get(text);
    EXPECT_STREQ(text.getString(), "FOUR");
    choice->set("ONE");
    EXPECT_TRUE(*liveValueOf(*choice, four) == live::packed(ValueKind::UInt32, std::uint32_t(1)));
}

TEST(LiveValues, AreNotShownWhereTheyAreDamagedOrOfAnotherKind)
{
    for (const Value& value : samples()) {
        SCOPED_TRACE(static_cast<int>(value.kind));
        const auto field = fieldFor(value);
        for (Value other : samples()) {
            if (other.kind != value.kind || other.list != value.list)
                showLiveValue(other, *field); // whatever it does, it ends
        }
        Value shorter = value;
        shorter.bytes.pop_back();
        EXPECT_FALSE(showLiveValue(shorter, *field));
        Value huge = value;
        huge.bytes.assign(huge.bytes.size(), 0xFF);
        showLiveValue(huge, *field);
        EXPECT_TRUE(liveValueOf(*field, value) || value.kind == ValueKind::Int64);
    }
}

TEST(LiveValues, TakeWholeNumbersOnlyWhereTheyAreTooLargeForAnyField)
{
    const Value value = live::packed(ValueKind::Int64, std::int64_t(1) << 62);
    const auto field = fieldFor(value);
    ASSERT_TRUE(showLiveValue(value, *field));
    auto& text = static_cast<SoSFString&>(*field);
    EXPECT_STREQ(text.getValue().getString(), "4611686018427387904");
    text.setValue("-17");
    EXPECT_TRUE(*liveValueOf(*field, value) == live::packed(ValueKind::Int64, std::int64_t(-17)));
    text.setValue("17 apples");
    EXPECT_FALSE(liveValueOf(*field, value));
}

TEST(LiveValues, NameFieldsByOneHarmlessLine)
{
    EXPECT_STREQ(liveName("a\nb\tc").getString(), "a b c");
    EXPECT_STREQ(liveName("\xC3\xA9").getString(), "\xE9");
}

TEST(LiveValues, HaveAFieldForEveryKind)
{
    const auto last = static_cast<int>(live::greatestOf(ValueKind()));
    for (int number = 1; number <= last; ++number) {
        SCOPED_TRACE(number);
        const auto kind = static_cast<ValueKind>(number);
        Value one = live::packed(kind, std::uint8_t(0));
        if (kind == ValueKind::Object)
            continue; // becomes a child
        if (kind == ValueKind::String || kind == ValueKind::Text)
            one = live::packedText("a", kind);
        else if (kind == ValueKind::Image)
            one = live::packedImage(0, 0, 0, nullptr);
        else
            one.bytes.resize(live::elementSize(kind));
        ASSERT_TRUE(isWellFormed(one));
        const auto field = fieldFor(one);
        ASSERT_TRUE(field);
        EXPECT_TRUE(showLiveValue(one, *field));
        EXPECT_TRUE(liveValueOf(*field, one) == one);
        Value list = one;
        list.list = true;
        const auto fields = fieldFor(list);
        EXPECT_EQ(fields != nullptr, kind != ValueKind::Image) << "lists of pictures are not shown";
        EXPECT_TRUE(!fields || (showLiveValue(list, *fields) && liveValueOf(*fields, list) == list));
    }
}

// SPDX-License-Identifier: MIT
// Values that cross from one field type to another.
#include <gtest/gtest.h>

#include <support/SoFieldGallery.h>
#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoMFInt32.h>
#include <xsg/fields/SoMFString.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFInt32.h>
#include <xsg/fields/SoSFString.h>

#include "FieldSamples.h"

namespace
{

struct Row {
    const char* from;
    const char* text;
    const char* to;
    const char* expected; // null: refused, the value stays
};

const Row Rows[] = {
    {"SFFloat", "1.75", "SFInt32", "1"},
    {"SFFloat", "-1.75", "SFInt32", "-1"},
    {"SFDouble", "1e20", "SFInt32", "2147483647"},
    {"SFDouble", "-1e20", "SFInt32", "-2147483648"},
    {"SFDouble", "nan", "SFInt32", "0"},
    {"SFInt32", "-5", "SFUInt32", "0"},
    {"SFInt32", "70000", "SFShort", "32767"},
    {"SFInt32", "70000", "SFUShort", "65535"},
    {"SFUInt32", "4294967295", "SFDouble", "4294967295"},
    {"SFDouble", "1e300", "SFFloat", "3.4028235e+38"},
    {"SFDouble", "-inf", "SFFloat", "-inf"},
    {"SFDouble", "0.1", "SFFloat", "0.1"},
    {"SFBool", "TRUE", "SFInt32", "1"},
    {"SFInt32", "-7", "SFBool", "TRUE"},
    {"SFTime", "2.5", "SFFloat", "2.5"},
    {"SFEnum", "BLUE", "SFInt32", "4"},
    {"SFInt32", "2", "SFEnum", "DARK GREEN"},
    {"SFEnum", "DARK GREEN", "SFString", "\"DARK GREEN\""},
    {"SFString", "\"BLUE\"", "SFEnum", "BLUE"},
    {"SFString", "\"PINK\"", "SFEnum", nullptr},
    {"SFEnum", "BLUE", "SFBitMask", "BLUE"},
    {"SFVec3f", "1 2 3", "SFColor", "1 2 3"},
    {"SFVec3d", "0.5 1e300 nan", "SFVec3s", "0 32767 0"},
    {"SFVec4f", "1 2 3 4", "SFRotation", "1 2 3 4"},
    {"SFVec4f", "1 2 3 4", "SFPlane", "1 2 3 4"},
    {"SFBox3s", "-1 -2 -3 1 2 3", "SFBox3f", "-1 -2 -3 1 2 3"},
    {"SFFloat", "1.5", "MFFloat", "[ 1.5 ]"},
    {"MFFloat", "[ 1.5, 2 ]", "SFFloat", "1.5"},
    {"MFFloat", "[ ]", "SFFloat", nullptr},
    {"MFFloat", "[ 1.5, 2 ]", "SFInt32", "1"},
    {"MFFloat", "[ 1.5, 2, nan ]", "MFInt32", "[ 1, 2, 0 ]"},
    {"MFFloat", "[ ]", "MFInt32", "[ ]"},
    {"MFVec3f", "[ 1 2 3, 4 5 6 ]", "MFColor", "[ 1 2 3, 4 5 6 ]"},
    {"MFInt32", "[ 1, 4 ]", "MFEnum", "[ RED, BLUE ]"},
    {"MFEnum", "[ RED, 17 ]", "MFInt32", "[ 1, 17 ]"},
    {"MFBool", "[ TRUE, FALSE ]", "SFBool", "TRUE"},
    {"SFFloat", "0.1", "SFString", "\"0.1\""},
    {"SFString", "\" 0.25 \"", "SFFloat", "0.25"},
    {"SFString", "\"many\"", "SFFloat", nullptr},
    {"SFString", "\"\"", "SFFloat", nullptr},
    {"MFFloat", "[ 1, 2 ]", "SFString", "\"[ 1, 2 ]\""},
    {"SFString", "\"[ 1, 2 ]\"", "MFFloat", "[ 1, 2 ]"},
    {"MFFloat", "[ 1, 2 ]", "MFString", "[ \"1\", \"2\" ]"},
    {"MFString", "[ \"1\", \"2\" ]", "MFFloat", "[ 1, 2 ]"},
    {"MFString", "[ \"1\", \"2 3\" ]", "MFFloat", nullptr},
    {"MFString", "[ \"1\", \"2\" ]", "SFFloat", "1"},
    {"MFString", "[ ]", "SFFloat", nullptr},
    {"SFString", "\"two words\"", "SFName", "\"two words\""},
    {"SFName", "Table", "SFString", "\"Table\""},
    {"MFName", "[ Leg, Top ]", "MFString", "[ \"Leg\", \"Top\" ]"},
    {"SFFilePathString", "\"a.png\"", "SFString", "\"a.png\""},
    {"SFString", "\"a.png\"", "SFFilePathString", "\"a.png\""},
    {"SFVec3f", "1 2 3", "SFString", "\"1 2 3\""},
    {"SFImage", "1 1 1 0x0a", "SFString", "\"1 1 1 0x0a\""},
    {"SFNode", "NULL", "MFNode", "[ NULL ]"},
};

const char* const Strangers[][2] = {
    {"SFFloat", "SFVec2f"}, {"SFVec3f", "SFVec4f"},  {"SFImage", "SFFloat"},
    {"SFNode", "SFInt32"},  {"SFMatrix", "SFBox3f"}, {"MFNode", "SFImage"},
};

} // namespace

TEST(Conversion, CopiesOrRefuses)
{
    for (const Row& row : Rows) {
        const auto from = sampleOf(row.from).create();
        const auto to = sampleOf(row.to).create();
        ASSERT_TRUE(from->set(row.text));
        ASSERT_TRUE(to->canConvertFrom(*from));
        const std::string before = textOf(*to);
        EXPECT_EQ(to->copyFrom(*from), row.expected != nullptr);
        EXPECT_EQ(textOf(*to), row.expected ? row.expected : before)
            << row.from << " " << row.text << " to " << row.to;
        EXPECT_EQ(to->isDefault(), !row.expected);
    }
}

TEST(Conversion, FollowsThroughAConnection)
{
    for (const Row& row : Rows) {
        const auto from = sampleOf(row.from).create();
        const auto to = sampleOf(row.to).create();
        const std::string before = textOf(*to);
        ASSERT_TRUE(to->connectFrom(from.get()));
        textOf(*to);
        to->set(before);
        ASSERT_TRUE(from->set(row.text));
        EXPECT_EQ(textOf(*to), row.expected ? row.expected : before)
            << row.from << " " << row.text << " to " << row.to;
    }
}

TEST(Conversion, StrangersDoNotConnect)
{
    for (const auto& [from, to] : Strangers) {
        const auto a = sampleOf(from).create();
        const auto b = sampleOf(to).create();
        EXPECT_FALSE(b->canConvertFrom(*a)) << from << " to " << to;
        EXPECT_FALSE(b->connectFrom(a.get()));
        EXPECT_FALSE(b->copyFrom(*a));
        EXPECT_TRUE(b->isDefault());
    }
}

TEST(Conversion, EveryPairEitherConvertsOrSaysThatItDoesNot)
{
    for (const FieldSample& one : fieldSamples()) {
        for (const FieldSample& two : fieldSamples()) {
            const auto from = one.create();
            const auto to = two.create();
            from->set(one.goodTexts().back());
            const std::string before = textOf(*to);
            const bool copied = to->copyFrom(*from);
            if (!to->canConvertFrom(*from)) {
                EXPECT_FALSE(copied);
            }
            if (!copied) {
                EXPECT_EQ(textOf(*to), before) << one.type << " to " << two.type;
            }
            // Whatever came over is a value that the type can write and read.
            const auto again = two.create();
            EXPECT_TRUE(again->set(textOf(*to))) << one.type << " to " << two.type;
            EXPECT_TRUE(again->isSame(*to)) << one.type << " to " << two.type;
        }
    }
}

TEST(Connection, AChainOfAnyLengthIsEvaluatedWithoutTheStack)
{
    constexpr std::size_t Length = 200'000;
    std::vector<std::unique_ptr<SoSFInt32>> chain;
    for (std::size_t i = 0; i < Length; ++i) {
        chain.push_back(std::make_unique<SoSFInt32>());
        if (i > 0) {
            ASSERT_TRUE(chain[i]->connectFrom(chain[i - 1].get()));
        }
    }
    chain.front()->setValue(42);
    EXPECT_EQ(chain.back()->getValue(), 42);
    EXPECT_EQ(chain[Length / 2]->getValue(), 42);
}

TEST(Connection, AContainersFieldPassesItsLastValueBeforeItIsDestroyed)
{
    SoSFFloat follower;
    {
        const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
        follower.connectFrom(&gallery->sfFloat);
        follower.getValue();
        gallery->sfFloat.setValue(12);
    }
    EXPECT_FALSE(follower.isConnected());
    EXPECT_EQ(follower.getValue(), 12);
}

TEST(Connection, AnotherMasterReplacesTheFirst)
{
    SoSFInt32 a;
    SoSFInt32 b;
    SoSFInt32 follower;
    a.setValue(1);
    b.setValue(2);
    follower.connectFrom(&a);
    follower.connectFrom(&b);
    EXPECT_EQ(follower.getValue(), 2);
    a.setValue(3);
    EXPECT_EQ(follower.getValue(), 2);
}

TEST(Connection, FollowersOfOneLeaveInAnyOrderAndTheOthersGoOn)
{
    constexpr int Count = 6;
    SoSFInt32 master;
    SoSFInt32 followers[Count];
    std::vector<int> left;
    const auto expectAllToFollow = [&](int value) {
        master.setValue(value);
        for (int i = 0; i < Count; ++i) {
            const bool hasLeft = std::find(left.begin(), left.end(), i) != left.end();
            EXPECT_EQ(followers[i].getValue() == value, !hasLeft) << i;
        }
    };
    for (SoSFInt32& follower : followers)
        follower.connectFrom(&master);
    expectAllToFollow(1);
    for (const int next : {2, 5, 0, 1, 4, 3}) {
        followers[next].disconnect();
        left.push_back(next);
        expectAllToFollow(10 + next);
    }
    followers[4].connectFrom(&master);
    left.erase(std::find(left.begin(), left.end(), 4));
    expectAllToFollow(100);
}

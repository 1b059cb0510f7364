// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/nodes/base/SoGeometry.h>

namespace
{

SoGeometryKey keyOf(int parts, std::uint64_t last)
{
    SoGeometryKey key;
    for (int i = 1; i < parts; ++i)
        key.add(static_cast<std::uint64_t>(i), 7);
    key.add(last, 7);
    return key;
}

} // namespace

TEST(GeometryKey, EachPartCountsHoweverManyThereAre)
{
    for (const int parts : {1, 5, 6, 20}) {
        EXPECT_EQ(keyOf(parts, 100), keyOf(parts, 100)) << parts;
        EXPECT_EQ(keyOf(parts, 100).hash(), keyOf(parts, 100).hash()) << parts;
        EXPECT_FALSE(keyOf(parts, 100) == keyOf(parts, 101)) << parts;
        EXPECT_NE(keyOf(parts, 100).hash(), keyOf(parts, 101).hash()) << parts;
    }
    EXPECT_FALSE(keyOf(5, 0) == keyOf(6, 0));
}

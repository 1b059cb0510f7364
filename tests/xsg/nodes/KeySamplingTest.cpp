// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/nodes/animation/KeySampling.h>

#include <cmath>
#include <vector>

namespace
{

using Between = xsg::KeyList::Between;

struct Keys {
    std::vector<float> times;
    std::vector<float> values;
    Between between = Between::Linear;
    std::size_t width = 1;
    bool isRotation = false;

    std::vector<float> at(float time) const
    {
        xsg::KeyList list;
        list.times = times.data();
        list.count = times.size();
        list.values = values.data();
        list.width = width;
        list.between = between;
        list.isRotation = isRotation;
        std::vector<float> result(width, -1);
        xsg::sampleKeys(list, time, result.data());
        return result;
    }
};

const float Half = std::sqrt(0.5F);

} // namespace

TEST(KeySampling, HoldsTheFirstAndTheLastValueOutsideOfTheKeys)
{
    const Keys keys{{1, 2}, {10, 20}};
    EXPECT_EQ(keys.at(0), std::vector<float>{10});
    EXPECT_EQ(keys.at(1), std::vector<float>{10});
    EXPECT_EQ(keys.at(2), std::vector<float>{20});
    EXPECT_EQ(keys.at(9), std::vector<float>{20});
}

TEST(KeySampling, KeepsAStepUntilTheNextKey)
{
    const Keys keys{{0, 1, 3}, {5, 6, 7}, Between::Step};
    EXPECT_EQ(keys.at(0.999F), std::vector<float>{5});
    EXPECT_EQ(keys.at(1), std::vector<float>{6});
    EXPECT_EQ(keys.at(2.5F), std::vector<float>{6});
    EXPECT_EQ(keys.at(3), std::vector<float>{7});
}

TEST(KeySampling, GoesStraightFromKeyToKey)
{
    const Keys keys{{0, 2, 3}, {0, 8, 4, 0, 5, 5}, Between::Linear, 2};
    EXPECT_EQ(keys.at(0.5F), (std::vector<float>{1, 6}));
    EXPECT_EQ(keys.at(2.5F), (std::vector<float>{4.5F, 2.5F}));
}

TEST(KeySampling, FollowsTheTangentsOfACubicCurve)
{
    // From 1, leaving at 4 a second, in 2 seconds to 3, arriving at -2 a second. Half-way:
    // (1 + 3) / 2 + 2 * (4 - -2) / 8.
    const Keys keys{{0, 2}, {9, 1, 4, -2, 3, 9}, Between::Cubic};
    EXPECT_FLOAT_EQ(keys.at(1)[0], 3.5F);
    // At a quarter: 0.84375 * 1 + 2 * 0.140625 * 4 + 0.15625 * 3 + 2 * -0.046875 * -2.
    EXPECT_FLOAT_EQ(keys.at(0.5F)[0], 0.84375F + 1.125F + 0.46875F + 0.1875F);
    EXPECT_EQ(keys.at(0)[0], 1);
    EXPECT_EQ(keys.at(5)[0], 3);
}

TEST(KeySampling, TurnsAtASteadyPace)
{
    // By a right angle around z.
    const Keys keys{{0, 3}, {0, 0, 0, 1, 0, 0, Half, Half}, Between::Linear, 4, true};
    const double third = std::acos(-1) / 12; // half of 30 degrees
    const std::vector<float> turned = keys.at(1);
    EXPECT_NEAR(turned[2], std::sin(third), 1e-6);
    EXPECT_NEAR(turned[3], std::cos(third), 1e-6);
}

TEST(KeySampling, TurnsTheShorterWay)
{
    const Keys keys{{0, 1}, {0, 0, 0, 1, 0, 0, -Half, -Half}, Between::Linear, 4, true};
    const std::vector<float> turned = keys.at(0.5F);
    EXPECT_NEAR(std::fabs(turned[2]), std::sin(std::acos(-1) / 8), 1e-6);
    EXPECT_GT(turned[2] * turned[3], 0);
}

TEST(KeySampling, KeepsCubicRotationsOfLengthOne)
{
    const Keys keys{{0, 1},
                    {0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, Half, Half, 0, 0, 0, 0},
                    Between::Cubic,
                    4,
                    true};
    const std::vector<float> turned = keys.at(0.5F);
    EXPECT_NEAR(turned[2], std::sin(std::acos(-1) / 8), 1e-6);
    EXPECT_NEAR(turned[3], std::cos(std::acos(-1) / 8), 1e-6);
}

TEST(KeySampling, LeavesWhatHasNoKeys)
{
    EXPECT_EQ(Keys().at(1), std::vector<float>{-1});
}

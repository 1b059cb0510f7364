// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/frames/SoFrameStatistics.h>

#include <numeric>
#include <random>

TEST(FrameSummary, TellsMeanQuantilesAndSpread)
{
    std::vector<double> numbers(100);
    std::iota(numbers.begin(), numbers.end(), 1.0);
    const SoFrameSummary summary = SoFrameSummary::of(numbers);
    EXPECT_DOUBLE_EQ(summary.mean, 50.5);
    EXPECT_DOUBLE_EQ(summary.median, 50.5);
    EXPECT_DOUBLE_EQ(summary.percent95, 95);
    EXPECT_DOUBLE_EQ(summary.percent99, 99);
    EXPECT_DOUBLE_EQ(summary.longest, 100);
    EXPECT_DOUBLE_EQ(summary.spread, 25);
    EXPECT_DOUBLE_EQ(SoFrameSummary::of({}).longest, 0);
    EXPECT_DOUBLE_EQ(SoFrameSummary::of({3}).percent99, 3);
}

TEST(FrameComparison, AgreesWithAWorkedExample)
{
    const std::vector<double> a{0.8, 0.83, 1.89, 1.04, 1.45, 1.38, 1.91, 1.64, 0.73, 1.46};
    const std::vector<double> b{1.15, 0.88, 0.90, 0.74, 1.21, 0.5, 0.6, 0.65};
    const SoFrameComparison comparison = SoFrameComparison::of(a, b);
    int greater = 0; // pairs, which the test counts
    for (const double one : a)
        for (const double other : b)
            greater += one > other;
    const double z = (std::abs(greater - 40.0) - 0.5) / std::sqrt(10 * 8 * 19 / 12.0);
    EXPECT_NEAR(comparison.chance, std::erfc(z / std::sqrt(2.0)), 1e-12);
    EXPECT_FALSE(comparison.isSignificant());
}

TEST(FrameComparison, TellsSlowerFromChance)
{
    std::mt19937 random(3);
    std::normal_distribution<double> normal(10, 1);
    std::vector<double> some(200);
    std::vector<double> others(200);
    std::vector<double> slower(200);
    for (std::size_t i = 0; i < some.size(); ++i) {
        some[i] = normal(random);
        others[i] = normal(random);
        slower[i] = normal(random) + 0.5;
    }
    others[0] = 1000; // one very slow frame decides nothing
    EXPECT_FALSE(SoFrameComparison::of(some, others).isSignificant());
    EXPECT_TRUE(SoFrameComparison::of(some, slower).isSignificant());
    EXPECT_GT(SoFrameComparison::of(some, slower).getChange(), 0.02);
    EXPECT_EQ(SoFrameComparison::of({1, 2}, {3, 4}).chance, 1);
    EXPECT_EQ(SoFrameComparison::of(std::vector<double>(9, 1), std::vector<double>(9, 1)).chance, 1);
}

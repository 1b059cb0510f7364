// SPDX-License-Identifier: MIT
#include "frames/FrameFormula.h"

#include <xsg/counters/SoPerfCounterManager.h>

#include <gtest/gtest.h>

using profiler::FrameFormula;

namespace
{

// Ten frames, half a second apart.
SoFrameRecording makeFrames()
{
    SoFrameRecording frames;
    frames.columns = {{"Begin", "ns", true, {}},
                      {"Whole", "ns", false, {}},
                      {"Triangles", "", false, {}},
                      {"DrawCalls", "", false, {}},
                      {"Memory", "B", true, {}}};
    for (std::int64_t i = 0; i < 10; ++i) {
        const std::int64_t row[] = {i * 500'000'000, 2'000'000, 100 * i, 4, i == 3 ? SoFrame::Missing : 50};
        for (std::size_t c = 0; c < 5; ++c)
            frames.columns[c].values.push_back(row[c]);
    }
    return frames;
}

std::vector<double> evaluate(const char* text)
{
    FrameFormula formula{QString::fromLatin1(text)};
    std::vector<double> values = formula.evaluate(makeFrames());
    EXPECT_TRUE(formula.getProblem().isEmpty()) << text << ": " << qPrintable(formula.getProblem());
    return values;
}

QString unit(const char* text)
{
    return FrameFormula(QString::fromLatin1(text)).getUnit(makeFrames());
}

} // namespace

TEST(FrameFormula, ComputesFromTheCountersOfEachFrame)
{
    const std::vector<double> values = evaluate("Triangles / DrawCalls");
    ASSERT_EQ(values.size(), 10U);
    EXPECT_DOUBLE_EQ(values[4], 100);
    EXPECT_DOUBLE_EQ(evaluate("Whole")[0], 2); // milliseconds
    EXPECT_DOUBLE_EQ(evaluate("max(DrawCalls, 7)")[0], 7);
}

TEST(FrameFormula, ARateIsPerSecond)
{
    const std::vector<double> values = evaluate("rate(Triangles)");
    EXPECT_TRUE(std::isnan(values[0])); // since when, is not known
    EXPECT_DOUBLE_EQ(values[4], 800);
    EXPECT_DOUBLE_EQ(evaluate("rate(Triangles) / 2 + 1")[4], 401);
}

TEST(FrameFormula, AMeanGoesOverItsTime)
{
    EXPECT_DOUBLE_EQ(evaluate("mean(Triangles, 1s)")[6], 500);     // frames 4 to 6
    EXPECT_DOUBLE_EQ(evaluate("mean(Triangles, 500 ms)")[6], 550); // 5 and 6
    EXPECT_DOUBLE_EQ(evaluate("mean(Triangles, 1s)")[0], 0);
    EXPECT_DOUBLE_EQ(evaluate("mean(rate(Triangles), 1s)")[6], (800 + 1000 + 1200) / 3.0);
    EXPECT_DOUBLE_EQ(evaluate("mean(Triangles, DrawCalls)")[6], 302); // of two values of one frame
}

TEST(FrameFormula, LeavesOutWhatIsNotKnown)
{
    EXPECT_TRUE(std::isnan(evaluate("Memory")[3]));
    EXPECT_DOUBLE_EQ(evaluate("mean(Memory, 1s)")[4], 50);
}

TEST(FrameFormula, KnowsTheUnitOfWhatItShows)
{
    EXPECT_EQ(unit("Whole"), "ms");
    EXPECT_EQ(unit("Memory"), "B");
    EXPECT_EQ(unit("rate(Memory)"), "B/s");
    EXPECT_EQ(unit("mean(Whole, 2s)"), "ms");
    EXPECT_EQ(unit("Triangles / DrawCalls"), "");
}

// Frames come at the end in any numbers, and go at the beginning.
TEST(FrameFormula, FollowsASeriesAsIfItHadComeAtOnce)
{
    const SoFrameRecording all = makeFrames();
    const auto part = [&](std::size_t first, std::size_t end) {
        SoFrameRecording frames = all;
        for (SoFrameColumn& column : frames.columns)
            column.values = {column.values.begin() + std::ptrdiff_t(first),
                             column.values.begin() + std::ptrdiff_t(end)};
        return frames;
    };
    for (const char* text : {"Triangles / DrawCalls", "rate(Triangles)", "mean(Triangles, 1s)",
                             "mean(rate(Triangles) / 3, 1s) - mean(Memory, 600 ms)"}) {
        const std::vector<double> whole = FrameFormula(QString::fromLatin1(text)).evaluate(all);
        FrameFormula formula{QString::fromLatin1(text)};
        for (const auto& [first, end] : {std::pair{0, 1}, {0, 4}, {0, 4}, {2, 7}, {3, 10}}) {
            const std::vector<double>& values =
                formula.follow(part(std::size_t(first), std::size_t(end)), 1, std::uint64_t(first));
            ASSERT_EQ(values.size(), std::size_t(end - first)) << text;
            for (std::size_t i = 0; i < values.size(); ++i) {
                const double wanted = whole[std::size_t(first) + i];
                EXPECT_TRUE(std::abs(values[i] - wanted) < 1e-9 ||
                            (std::isnan(values[i]) && std::isnan(wanted)))
                    << text << " " << first + int(i) << ": " << values[i] << " " << wanted;
            }
        }
        EXPECT_EQ(formula.getNumComputed(), 10U) << text;
        formula.follow(part(3, 10), 2, 3); // another series
        EXPECT_EQ(formula.getNumComputed(), 17U) << text;
        SoFrameRecording more = part(3, 10);
        more.columns[2].values = std::vector<std::int64_t>(7, 8);
        more.columns[2].name = "Others";
        formula.follow(more, 2, 3); // with other columns
        EXPECT_FALSE(formula.getProblem().isEmpty()) << text;
        EXPECT_TRUE(formula.getValues().empty()) << text;
        EXPECT_EQ(formula.follow(part(3, 10), 2, 3).size(), 7U) << text;
        EXPECT_TRUE(formula.getProblem().isEmpty()) << text;
    }
}

TEST(FrameFormula, SaysWhatIsWrong)
{
    for (const char* text : {"NoSuchCounter", "Triangles +", "rate(", "rate(rate(NoSuchCounter))", ""}) {
        FrameFormula formula{QString::fromLatin1(text)};
        EXPECT_TRUE(formula.evaluate(makeFrames()).empty()) << text;
        EXPECT_FALSE(formula.getProblem().isEmpty()) << text;
    }
}

TEST(FrameFormula, ACounterComputedFromOthersStandsForItsFormula)
{
    SoPerfCounterManager& manager = *SoPerfCounterManager::getInstance();
    auto* custom = new SoPerfAccumCounter("Triangles each", "", "", 0, true);
    custom->setFirstParent("Triangles");
    custom->setSecondParent("DrawCalls");
    custom->setOperation("/");
    ASSERT_TRUE(manager.registerCounter(custom));
    EXPECT_DOUBLE_EQ(evaluate("\"Triangles each\" * 2")[4], 200);
    manager.disableCounter("Triangles each");
    manager.removeDisabledCounters();
}

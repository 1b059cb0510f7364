// SPDX-License-Identifier: MIT
#include "frames/ComparisonDialog.h"

#include <QTableWidget>
#include <QtTest>

#include <gtest/gtest.h>

namespace
{

SoFrameRecording makeRecording(std::int64_t whole, std::int64_t triangles)
{
    SoFrameRecording recording;
    recording.columns = {{"Begin", "ns", true, {}}, {"Whole", "ns", false, {}}, {"Triangles", "", false, {}}};
    for (std::int64_t i = 0; i < 20; ++i) {
        recording.columns[0].values.push_back(i * 16'000'000);
        recording.columns[1].values.push_back(whole + i % 5 * 1000);
        recording.columns[2].values.push_back(triangles);
    }
    return recording;
}

} // namespace

TEST(ComparisonDialog, TellsWhatChangedAndWhetherItIsMoreThanChance)
{
    profiler::ComparisonDialog dialog(makeRecording(4'000'000, 100), makeRecording(5'000'000, 100), nullptr);
    auto* table = dialog.findChild<QTableWidget*>("frameComparison");
    ASSERT_EQ(table->rowCount(), 2); // when frames began is nobody's concern
    const auto text = [table](int row, int column) { return table->item(row, column)->text(); };
    EXPECT_EQ(text(0, 0), "Whole");
    EXPECT_EQ(text(0, 1), "4 ms");
    EXPECT_EQ(text(0, 2), "5 ms");
    EXPECT_EQ(text(0, 3), "25.0 %");
    EXPECT_EQ(text(0, 4), "< 0.1 %");
    EXPECT_TRUE(table->item(0, 0)->font().bold());
    EXPECT_EQ(text(1, 3), "0.0 %");
    EXPECT_EQ(text(1, 4), "100.0 %");
    EXPECT_FALSE(table->item(1, 0)->font().bold());
}

// SPDX-License-Identifier: MIT
#include "table/TableSelection.h"

#include <gtest/gtest.h>

#include <random>

using namespace inspector;

TEST(TableSelection, OverlappingRectanglesCountEachCellOnce)
{
    TableSelection selection;
    selection.select({2, 0});
    selection.extendTo({5, 1});
    selection.add({4, 1});
    selection.extendTo({8, 2});
    EXPECT_EQ(selection.cellCount(), 8 + 10 - 2);
    const std::vector<RowBand> bands = selection.bands();
    ASSERT_EQ(bands.size(), 3U);
    EXPECT_EQ(bands[1].first, 4);
    EXPECT_EQ(bands[1].last, 5);
    EXPECT_EQ(bands[1].columns, 0b111U);
}

TEST(TableSelection, BandsHoldExactlyTheSelectedCells)
{
    std::mt19937 random(7);
    const auto pick = [&](int count) { return int(random() % unsigned(count)); };
    for (int round = 0; round < 300; ++round) {
        TableSelection selection;
        for (int i = 0; i < 5; ++i) {
            selection.add({pick(12), pick(6)});
            selection.extendTo({pick(12), pick(6)});
        }
        if (pick(2))
            selection.addRows(pick(12), pick(12), 6);
        selection.clamp(10, 5);
        bool isIn[10][5] = {};
        int last = -1;
        for (const RowBand& band : selection.bands()) {
            ASSERT_GT(band.first, last) << "in order, without overlap";
            last = band.last;
            for (int row = band.first; row <= band.last; ++row) {
                for (int column = 0; column < 5; ++column)
                    isIn[row][column] = band.has(column);
            }
        }
        int count = 0;
        for (int row = 0; row < 10; ++row) {
            for (int column = 0; column < 5; ++column) {
                ASSERT_EQ(isIn[row][column], selection.contains({row, column})) << row << ' ' << column;
                count += isIn[row][column];
            }
        }
        ASSERT_EQ(count, selection.cellCount());
    }
}

TEST(TableSelection, WholeRowsStayWholeWhileTheyGrow)
{
    TableSelection selection;
    selection.selectRows(3, 3, 4, 2);
    selection.extendTo({1, 2});
    EXPECT_TRUE(selection.isOfWholeRows(4));
    EXPECT_EQ(selection.cellCount(), 12);
    EXPECT_EQ(selection.current(), (TableCell{1, 2}));
    selection.add({9, 0});
    EXPECT_FALSE(selection.isOfWholeRows(4));
}

TEST(TableSelection, ClampingDropsWhatIsGone)
{
    TableSelection selection;
    selection.select({8, 2});
    selection.clamp(3, 2);
    EXPECT_EQ(selection.current(), (TableCell{2, 1}));
    EXPECT_EQ(selection.cellCount(), 1);
    selection.clamp(0, 2);
    EXPECT_FALSE(selection.current().isValid());
    EXPECT_TRUE(selection.isEmpty());
}

TEST(TableSelection, ThirtyTwoColumnsAreSelectedToTheLast)
{
    TableSelection selection;
    selection.selectRows(0, 0, 32);
    EXPECT_EQ(selection.cellCount(), 32);
    EXPECT_TRUE(selection.bands().front().has(31));
}

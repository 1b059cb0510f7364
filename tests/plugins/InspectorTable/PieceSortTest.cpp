// SPDX-License-Identifier: MIT
#include "table/PieceSort.h"
#include "table/ColumnFigures.h"

#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoMFVec3f.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

using namespace inspector;

TEST(PieceSort, SortsInPiecesOfAnySizeAndKeepsEqualOnesInOrder)
{
    std::mt19937 random(5);
    for (const std::size_t count : {0U, 1U, 4095U, 4096U, 4097U, 20'000U}) {
        std::vector<int> keys(count);
        for (int& key : keys)
            key = int(random() % 50);
        std::vector<int> indices(count);
        std::iota(indices.begin(), indices.end(), 0);
        const auto less = [&](int a, int b) { return keys[std::size_t(a)] < keys[std::size_t(b)]; };
        std::vector<int> wanted = indices;
        std::stable_sort(wanted.begin(), wanted.end(), less);
        for (const std::size_t piece : {7U, 1000U, 1'000'000U}) {
            PieceSort sort(indices, less);
            while (!sort.step(piece))
                ASSERT_LT(sort.done(), sort.total());
            EXPECT_EQ(sort.take(), wanted) << count << " in pieces of " << piece;
        }
    }
}

TEST(FiguresRun, CountsEachSelectedCellOnceInPiecesOfAnySize)
{
    SoMFVec3f field;
    for (int i = 0; i < 100; ++i)
        field.set1Value(i, SbVec3f(float(i), float(-i), i % 10 ? 1.F : std::nanf("")));
    for (const int piece : {1, 7, 1000}) {
        FiguresRun run(*ListAccess::of(field), {{10, 29, 0b101}, {50, 50, 0b010}});
        while (!run.step(field, piece)) {
        }
        EXPECT_EQ(run.columns()[0].count, 20);
        EXPECT_EQ(run.columns()[0].least, 10);
        EXPECT_EQ(run.columns()[0].greatest, 29);
        EXPECT_EQ(run.columns()[0].mean(), 19.5);
        EXPECT_EQ(run.columns()[1].count, 1);
        EXPECT_EQ(run.columns()[1].least, -50);
        EXPECT_EQ(run.columns()[2].nanCount, 2);
        EXPECT_EQ(run.columns()[2].count, 18);
        EXPECT_EQ(run.all().count, 39);
    }
}

TEST(FiguresRun, EndsWhereTheListBecameShorter)
{
    SoMFFloat field;
    field.setNum(10);
    FiguresRun run(*ListAccess::of(field), {{0, 9, 1}});
    EXPECT_FALSE(run.step(field, 5));
    field.setNum(3);
    EXPECT_TRUE(run.step(field, 5));
}

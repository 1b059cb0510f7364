// SPDX-License-Identifier: MIT
// What undo keeps of a change, against a plain copy of the list.
#include "table/ListChange.h"

#include <xsg/fields/SoMFInt32.h>

#include <gtest/gtest.h>

#include <numeric>
#include <random>

using namespace inspector;

namespace
{

std::vector<int> valuesOf(const SoMFInt32& field)
{
    return {field.getValues(0), field.getValues(0) + field.getNum()};
}

} // namespace

TEST(ListChange, IsAppliedAndRevertedHoweverManyRunsItHas)
{
    std::mt19937 random(9);
    for (int round = 0; round < 300; ++round) {
        SoMFInt32 field;
        const int count = round % 3 ? 40 : 1000;
        std::vector<int> plain(std::size_t(count), 0);
        std::iota(plain.begin(), plain.end(), 0);
        field.setValues(plain);
        ListChange change(field);
        std::vector<int> wanted;
        int read = 0;
        int fresh = -1;
        for (int at = 0; at < count; at += 1 + int(random() % 6)) {
            const RowRun run{at, int(random() % 3), int(random() % 3)};
            if (at < read || at + run.removed > count)
                continue;
            ASSERT_TRUE(change.add(field, run));
            wanted.insert(wanted.end(), plain.begin() + read, plain.begin() + at);
            read = at + run.removed;
            auto& after = static_cast<SoMFInt32&>(change.after());
            for (int i = after.getNum() - run.inserted; i < after.getNum(); ++i) {
                after.set1Value(i, fresh);
                wanted.push_back(fresh--);
            }
        }
        wanted.insert(wanted.end(), plain.begin() + read, plain.end());
        ASSERT_TRUE(change.apply(field));
        ASSERT_EQ(valuesOf(field), wanted) << "round " << round << ", " << change.runs().size() << " runs";
        ASSERT_TRUE(change.revert(field));
        ASSERT_EQ(valuesOf(field), plain) << "round " << round;
    }
}

TEST(ListChange, KeepsWhatChangedAndNotTheList)
{
    SoMFInt32 field;
    field.setNum(100'000);
    ListChange change(field);
    ASSERT_TRUE(change.add(field, {50'000, 1, 1}));
    EXPECT_EQ(change.before().getNum(), 1);
    EXPECT_EQ(change.after().getNum(), 1);
}

TEST(ListChange, TheCommandRestoresTheDefaultFlagAndReportsWhereItActed)
{
    SoMFInt32 field;
    field.setNum(5);
    field.setDefault(true);
    ListChange change(field);
    ASSERT_TRUE(change.add(field, {3, 1, 1}));
    static_cast<SoMFInt32&>(change.after()).set1Value(0, 7);
    ListChangeObserver observer;
    std::vector<int> rows;
    QObject::connect(&observer, &ListChangeObserver::acted, [&](const SoField*, int first, int count) {
        rows = {first, count};
    });
    ListChangeCommand command(field, std::move(change), &observer);
    ASSERT_TRUE(command.write());
    EXPECT_FALSE(field.isDefault());
    EXPECT_EQ(field[3], 7);
    command.undo();
    EXPECT_TRUE(field.isDefault());
    EXPECT_EQ(field[3], 0);
    EXPECT_EQ(rows, (std::vector<int>{3, 1}));
    command.redo();
    EXPECT_EQ(field[3], 7);
}

TEST(ListChange, TheCommandDoesNothingOnceTheListIsGone)
{
    auto field = std::make_unique<SoMFInt32>();
    field->setNum(2);
    ListChange change(*field);
    ASSERT_TRUE(change.add(*field, {0, 1, 0}));
    ListChangeCommand command(*field, std::move(change), nullptr);
    ASSERT_TRUE(command.write());
    field.reset();
    command.undo();
    command.redo();
}

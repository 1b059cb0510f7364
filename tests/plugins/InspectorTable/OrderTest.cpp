// SPDX-License-Identifier: MIT
// Sorting, filtering, finding, and what is said of the numbers.
#include "TableFixture.h"

#include <cmath>
#include <limits>

using namespace inspector;

namespace
{

const float NaN = std::numeric_limits<float>::quiet_NaN();

class FloatOrder : public ListFixture<SoMFFloat>
{
protected:
    std::vector<float> shown()
    {
        std::vector<float> all;
        for (int row = 0; row < view().rows().count(); ++row)
            all.push_back(field[view().rows().elementOf(row)]);
        return all;
    }
    QString figures()
    {
        EXPECT_TRUE(TestHost::waitFor([this] { return !table().figures().isBusy(); }));
        return table().figures().text();
    }
};
class VectorOrder : public ListFixture<SoMFVec3f>
{
};
class TextOrder : public ListFixture<SoMFString>
{
};

} // namespace

TEST_F(FloatOrder, SortingTheRowsLeavesTheListAsItIs)
{
    open({3, 1, 2});
    trigger("Sort Rows Upwards");
    EXPECT_EQ(shown(), (std::vector<float>{1, 2, 3}));
    EXPECT_EQ(values(), (std::vector<float>{3, 1, 2}));
    EXPECT_EQ(host.undoCount(), 0);
    EXPECT_EQ(view().selection().current().row, 2) << "the current element stays current";
    trigger("Sort Rows Downwards");
    EXPECT_EQ(shown(), (std::vector<float>{3, 2, 1}));
    trigger("Show All in the List’s Order");
    EXPECT_EQ(shown(), (std::vector<float>{3, 1, 2}));
}

TEST_F(FloatOrder, AnEditGoesToTheElementThatIsShown)
{
    open({3, 1, 2});
    trigger("Sort Rows Upwards");
    view().setFocus();
    goTo(0, 0);
    type("9");
    key(Qt::Key_Return);
    EXPECT_EQ(values(), (std::vector<float>{3, 9, 2}));
    host.undo();
    TestHost::pump();
    EXPECT_EQ(view().rows().elementOf(view().selection().current().row), 1) << "undo shows where it acted";
}

TEST_F(FloatOrder, SortingTheValuesIsAStep)
{
    open({3, NaN, 1, 2});
    trigger("Sort Values Upwards");
    EXPECT_EQ(field[0], 1);
    EXPECT_EQ(field[2], 3);
    EXPECT_TRUE(std::isnan(field[3])) << "NaN comes last";
    EXPECT_EQ(host.undoCount(), 1);
    host.undo();
    EXPECT_EQ(field[0], 3);
    EXPECT_TRUE(std::isnan(field[1]));
}

TEST_F(FloatOrder, NaNComesLastUpwardsAndDownwards)
{
    open({NaN, 3, NaN, 1, NaN, 2, 0, NaN});
    trigger("Sort Rows Upwards");
    std::vector<float> rows = shown();
    rows.resize(4);
    EXPECT_EQ(rows, (std::vector<float>{0, 1, 2, 3}));
    trigger("Sort Rows Downwards");
    rows = shown();
    rows.resize(4);
    EXPECT_EQ(rows, (std::vector<float>{3, 2, 1, 0}));
}

TEST_F(FloatOrder, SelectedValuesAreSortedAmongThemselves)
{
    open({9, 3, 2, 1, 0});
    select(1, 0, 3, 0);
    trigger("Sort Values Upwards");
    EXPECT_EQ(values(), (std::vector<float>{9, 1, 2, 3, 0}));
    trigger("Sort Values Upwards");
    EXPECT_EQ(host.undoCount(), 1) << "they are sorted";
}

TEST_F(FloatOrder, FiltersByFormulaNanAndDuplicates)
{
    open({1, NaN, 4, 5, 4, std::numeric_limits<float>::infinity()});
    runLine(ListTable::Line::Filter, "x > 3 && x < 100");
    EXPECT_EQ(shown(), (std::vector<float>{4, 5, 4}));
    runLine(ListTable::Line::Filter, "nan");
    ASSERT_EQ(view().rows().count(), 1);
    EXPECT_EQ(view().rows().elementOf(0), 1);
    runLine(ListTable::Line::Filter, "inf");
    EXPECT_EQ(view().rows().elementOf(0), 5);
    runLine(ListTable::Line::Filter, "duplicates");
    EXPECT_EQ(shown(), (std::vector<float>{4, 4}));
    runLine(ListTable::Line::Filter, "row < 2");
    EXPECT_EQ(view().rows().count(), 2);
    runLine(ListTable::Line::Filter, "x >");
    EXPECT_FALSE(message().isEmpty());
    EXPECT_EQ(view().rows().count(), 2) << "what cannot be read filters nothing";
    runLine(ListTable::Line::Filter, "");
    EXPECT_EQ(view().rows().count(), 6);
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(FloatOrder, AFilterFollowsAListThatBecomesShorterOrLonger)
{
    open({1, 4, 5});
    runLine(ListTable::Line::Filter, "x > 3");
    field.setNum(2);
    TestHost::pump();
    EXPECT_EQ(shown(), (std::vector<float>{4}));
    field.set1Value(2, 8);
    TestHost::pump();
    EXPECT_EQ(shown(), (std::vector<float>{4, 8}));
}

TEST_F(FloatOrder, FilteredRowsAreDeletedAndNoOthers)
{
    open({1, 4, 2, 5});
    runLine(ListTable::Line::Filter, "x > 3");
    view().setFocus();
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(values(), (std::vector<float>{1, 2}));
    host.undo();
    TestHost::pump();
    EXPECT_EQ(values(), (std::vector<float>{1, 4, 2, 5}));
    EXPECT_EQ(shown(), (std::vector<float>{4, 5}));
}

TEST_F(FloatOrder, FindsNumbersByTheirValueAndGoesOnAroundTheEnd)
{
    open({0.5F, 1, 0.1F, 0.5F});
    runLine(ListTable::Line::Find, ".50");
    EXPECT_EQ(view().selection().current().row, 3);
    view().setFocus();
    key(Qt::Key_F3);
    EXPECT_EQ(view().selection().current().row, 0);
    runLine(ListTable::Line::Find, "0.1");
    EXPECT_EQ(view().selection().current().row, 2);
    runLine(ListTable::Line::Find, "7");
    EXPECT_EQ(view().selection().current().row, 2);
    EXPECT_TRUE(message().contains("7"));
}

TEST_F(FloatOrder, GoesToARow)
{
    field.setNum(500);
    open();
    runLine(ListTable::Line::GoTo, "321");
    EXPECT_EQ(view().selection().current().row, 321);
    EXPECT_TRUE(view().hasFocus());
    runLine(ListTable::Line::GoTo, "500");
    EXPECT_EQ(view().selection().current().row, 321);
    EXPECT_FALSE(message().isEmpty());
}

TEST_F(FloatOrder, SaysWhatTheSelectedNumbersAmountTo)
{
    open({1, 2, 6, NaN});
    EXPECT_EQ(figures(), "value: 1 to 6, mean 3, 1 NaN") << "of all, while one cell is selected";
    select(0, 0, 1, 0);
    EXPECT_EQ(figures(), "2 cells selected\nvalue: 1 to 2, mean 1.5");
    field.set1Value(1, 4);
    TestHost::pump();
    EXPECT_EQ(figures(), "2 cells selected\nvalue: 1 to 4, mean 2.5");
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(VectorOrder, ColumnsAreNamedInConditionsAndSortedByTheCurrentOne)
{
    open({SbVec3f(1, 9, 0), SbVec3f(2, 8, 0), SbVec3f(3, 7, 0)});
    runLine(ListTable::Line::Filter, "y < 9 && x < 3");
    ASSERT_EQ(view().rows().count(), 1);
    EXPECT_EQ(view().rows().elementOf(0), 1);
    runLine(ListTable::Line::Filter, "");
    goTo(0, 1);
    trigger("Sort Rows Upwards");
    EXPECT_EQ(view().rows().elementOf(0), 2);
}

TEST_F(TextOrder, TextsAreFilteredAndFoundByAPart)
{
    open({"pine", "Apple", "pineapple"});
    runLine(ListTable::Line::Filter, "apple");
    EXPECT_EQ(view().rows().count(), 2);
    runLine(ListTable::Line::Filter, "");
    goTo(0, 0);
    runLine(ListTable::Line::Find, "ple");
    EXPECT_EQ(view().selection().current().row, 1);
    trigger("Sort Rows Upwards");
    EXPECT_EQ(view().rows().elementOf(0), 1);
}

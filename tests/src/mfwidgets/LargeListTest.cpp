// SPDX-License-Identifier: MIT
// A list of a million elements: whatever is done with it asks for the visible rows alone.
#include "EdMFDoubleWidget.h"
#include "EdMFMatrixWidget.h"
#include "EdMFVec3fWidget.h"
#include "MultiFixture.h"

#include <set>

namespace
{

constexpr int Million = 1'000'000;

// Counts the texts that it is asked for.
class CountingEditor : public EdMFVec3fWidget
{
public:
    explicit CountingEditor(const char* name = nullptr)
        : EdMFVec3fWidget(name)
    {
    }
    QString getFieldValue(int row, int column) const override
    {
        ++asked;
        rows.insert(row);
        return EdMFVec3fWidget::getFieldValue(row, column);
    }
    mutable int asked = 0;
    mutable std::set<int> rows;
};

class LargeList : public testing::Test
{
protected:
    LargeList()
    {
        f.field.setNum(Million);
        f.open();
        // Twice what fits, for the cells that are cut and the repaint that follows a click.
        m_fits = 2 * (f.table().viewport()->height() / f.table().rowHeight(0) + 2);
    }
    // The act asks for no more texts than `repaints` repaints of what is visible take.
    template <class Act>
    void expectCheap(const char* what, Act act, int repaints = 1)
    {
        f.editor.asked = 0;
        f.editor.rows.clear();
        act();
        TestHost::pump();
        EXPECT_LE(f.editor.asked, m_fits * 3 * (repaints + 1)) << what;
        EXPECT_LE(int(f.editor.rows.size()), 2 * m_fits) << what;
        EXPECT_EQ(f.table().rowCount(), f.field.getNum()) << what;
        EXPECT_EQ(f.box().maximum(), f.field.getNum()) << what;
    }

    MultiFixture<CountingEditor, SoMFVec3f> f;
    int m_fits = 0;
};

} // namespace

TEST_F(LargeList, OpensAndScrollsToAnyRow)
{
    expectCheap("open", [&] { f.open(); });
    for (int row : {Million - 1, 0, Million / 2, 123'456}) {
        expectCheap("scroll", [&] { f.box().setValue(row); });
        if (row > 0) {
            EXPECT_EQ(f.table().currentRow(), std::min(row, Million - 1));
            EXPECT_TRUE(
                f.table().viewport()->rect().intersects(f.table().visualRect(f.table().currentIndex())));
        }
        f.table().viewport()->repaint();
        EXPECT_GT(f.editor.asked, 0) << "what is visible is drawn";
    }
}

TEST_F(LargeList, AddsDeletesAndMovesInTheMiddle)
{
    f.field.set1Value(Million / 2, SbVec3f(1, 2, 3));
    TestHost::pump();
    f.box().setValue(Million / 2 + 1);
    f.table().setCurrentCell(Million / 2, 0);
    expectCheap("add", [&] { f.press('+'); });
    EXPECT_EQ(f.field.getNum(), Million + 1);
    expectCheap("up", [&] { f.click("m_upButton"); });
    EXPECT_EQ(f.field[Million / 2 - 1], SbVec3f(1, 2, 3));
    expectCheap("down", [&] { f.click("m_downButton"); });
    EXPECT_EQ(f.field[Million / 2], SbVec3f(1, 2, 3));
    expectCheap("delete", [&] { f.press('-'); });
    EXPECT_EQ(f.field.getNum(), Million);
    expectCheap("undo", [&] {
        while (f.host.undo()) {
        }
    });
    EXPECT_EQ(f.field[Million / 2], SbVec3f(1, 2, 3));
    EXPECT_EQ(f.field.getNum(), Million);
}

TEST_F(LargeList, FollowsAFieldThatChangesAllTheTime)
{
    constexpr int Changes = 60;
    expectCheap(
        "follow",
        [&] {
            for (int i = 0; i < Changes; ++i) {
                f.field.set1Value(i % 2 ? 0 : Million - 1, SbVec3f(float(i), 0, 0));
                TestHost::pump();
            }
        },
        Changes);
    EXPECT_GT(f.editor.asked, 0);
}

// The fields count how many of their elements are read as text.
namespace
{

template <class Field>
class CountingField : public Field
{
public:
    mutable int read = 0;

protected:
    void writeValue(std::string& out, int index) const override
    {
        ++read;
        Field::writeValue(out, index);
    }
    void writeValues(std::string& out) const override
    {
        read += this->count();
        Field::writeValues(out);
    }
};

template <class Editor, class Field>
void expectFewReads(int readsOfOneRow, const char* element)
{
    MultiFixture<Editor, CountingField<Field>> f;
    f.field.setNum(Million);
    f.open();
    f.table().setCurrentCell(Million / 2, 0);
    TestHost::pump();
    const int rows = 2 * (f.table().viewport()->height() / f.table().rowHeight(0) + 2);
    const auto reads = [&](auto act, int repaints) {
        f.field.read = 0;
        act();
        TestHost::pump();
        f.table().viewport()->repaint();
        EXPECT_GT(f.field.read, 0);
        EXPECT_LE(f.field.read, readsOfOneRow * rows * (repaints + 2));
    };
    reads([&] { f.open(); }, 1);
    reads([&] { f.box().setValue(Million - 3); }, 1);
    reads([&] { f.click("m_upButton"); }, 2);
    reads([&] { f.click("m_addButton"); }, 1);
    reads([&] { f.click("m_deleteButton"); }, 1);
    reads([&] { f.host.undo(); }, 1);
    const auto follow = [&] {
        for (int i = 0; i < 60; ++i) {
            EXPECT_TRUE(f.field.set1(Million / 2, element));
            TestHost::pump();
        }
    };
    reads(follow, 60);
}

} // namespace

TEST(LargeLists, OnlyWhatIsSeenOfAMillionNumbersIsRead)
{
    expectFewReads<EdMFDoubleWidget, SoMFDouble>(1, "2");
}

// Every row shows the text of the whole field, of which no more is made than a row has room for.
TEST(LargeLists, OnlyTheStartOfAMillionMatricesIsRead)
{
    expectFewReads<EdMFMatrixWidget, SoMFMatrix>(40, "2 0 0 0 0 2 0 0 0 0 2 0 0 0 0 2");
}

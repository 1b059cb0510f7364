// SPDX-License-Identifier: MIT
// The columns of a list: all of them are seen, however narrow the dock is.
#include "ListEditors.h"
#include "MultiFixture.h"

#include <QHeaderView>
#include <QScrollBar>

namespace
{

template <class Kind>
class Columns : public testing::Test
{
protected:
    int widthOfAll()
    {
        int width = 0;
        for (int column = 0; column < f.table().columnCount(); ++column)
            width += f.table().columnWidth(column);
        return width;
    }
    MultiFixture<typename Kind::Editor, typename Kind::Field> f;
};

using Points = MultiFixture<EdMFVec3fWidget, SoMFVec3f>;

void mouse(QWidget* on, QEvent::Type type, const QPoint& at)
{
    const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, on->mapToGlobal(at), button, buttons, {});
    QApplication::sendEvent(on, &event);
}

// Takes the border at the right of a column and moves it.
void dragBorder(EdMFieldTable& table, int column, int by)
{
    QHeaderView* header = table.horizontalHeader();
    const QPoint border(header->sectionViewportPosition(column) + header->sectionSize(column) - 1,
                        header->height() / 2);
    mouse(header->viewport(), QEvent::MouseMove, border);
    mouse(header->viewport(), QEvent::MouseButtonPress, border);
    mouse(header->viewport(), QEvent::MouseMove, border + QPoint(by / 2, 0));
    mouse(header->viewport(), QEvent::MouseMove, border + QPoint(by, 0));
    mouse(header->viewport(), QEvent::MouseButtonRelease, border + QPoint(by, 0));
}

QVector<int> widths(const EdMFieldTable& table)
{
    QVector<int> all;
    for (int column = 0; column < table.columnCount(); ++column)
        all.append(table.columnWidth(column));
    return all;
}

} // namespace

TYPED_TEST_SUITE(Columns, ListEditors, );

TYPED_TEST(Columns, FillTheTableWhateverItsWidth)
{
    auto& f = this->f;
    f.field.setNum(3);
    f.open();
    EXPECT_EQ(this->widthOfAll(), f.table().viewport()->width()) << "as it comes";
    for (int width : {300, 420, 290, 777, 100, 300}) {
        f.editor.getWidgetContainer()->resize(width, 150);
        TestHost::pump();
        EXPECT_EQ(this->widthOfAll(), f.table().viewport()->width()) << width;
        for (int column = 0; column < f.table().columnCount(); ++column)
            EXPECT_GT(f.table().columnWidth(column), 20) << width << ' ' << column;
    }
    f.field.setNum(100'000); // makes the row numbers wider
    TestHost::pump();
    EXPECT_EQ(this->widthOfAll(), f.table().viewport()->width());
}

// Columns can be made wider by hand; the bar below is always off and the one beside always on, which is
// meant.
TYPED_TEST(Columns, CanBeResizedAndHaveOnlyTheBarBeside)
{
    auto& f = this->f;
    f.open();
    for (int column = 0; column < f.table().columnCount(); ++column)
        EXPECT_EQ(f.table().horizontalHeader()->sectionResizeMode(column), QHeaderView::Interactive);
    EXPECT_EQ(f.table().horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    EXPECT_EQ(f.table().verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
}

TEST(ColumnBorders, AMovedBorderLeavesTheOtherColumnsAndIsKept)
{
    Points f("[ 1 2 3 ]");
    f.open();
    f.editor.getWidgetContainer()->resize(500, 150);
    TestHost::pump();
    const QVector<int> before = widths(f.table());
    dragBorder(f.table(), 0, 40);
    EXPECT_EQ(widths(f.table()), (QVector<int>{before[0] + 40, before[1] - 40, before[2]}));
    dragBorder(f.table(), 1, -30);
    const QVector<int> chosen{before[0] + 40, before[1] - 70, before[2] + 30};
    EXPECT_EQ(widths(f.table()), chosen);
    f.editor.getWidgetContainer()->resize(900, 150);
    TestHost::pump();
    EXPECT_GT(f.table().columnWidth(0), chosen[0]);
    f.editor.getWidgetContainer()->resize(500, 150);
    TestHost::pump();
    EXPECT_EQ(widths(f.table()), chosen);
}

TEST(ColumnBorders, NoColumnIsPushedOutOfSight)
{
    Points f("[ 1 2 3 ]");
    f.open();
    f.editor.getWidgetContainer()->resize(500, 150);
    TestHost::pump();
    const int width = f.table().viewport()->width();
    for (int column : {0, 1, 2}) {
        dragBorder(f.table(), column, 1000);
        const QVector<int> now = widths(f.table());
        EXPECT_EQ(now[0] + now[1] + now[2], width) << column;
        EXPECT_GT(std::min({now[0], now[1], now[2]}), 20) << column;
    }
    dragBorder(f.table(), 0, -1000);
    EXPECT_GT(f.table().columnWidth(0), 20);
    EXPECT_EQ(f.table().horizontalScrollBar()->maximum(), 0);
}

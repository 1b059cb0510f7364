// SPDX-License-Identifier: MIT
#include <scopix/editing/SpxFlowLayout.h>

#include <gtest/gtest.h>

#include <QWidget>

namespace
{

class FlowLayout : public ::testing::Test
{
protected:
    FlowLayout() { flow->setContentsMargins({}); }
    QWidget* add(int width, QSizePolicy::Policy policy = QSizePolicy::Fixed)
    {
        auto* widget = new QWidget;
        widget->setMinimumSize(policy == QSizePolicy::Fixed ? width : 1, 10);
        widget->setSizePolicy(policy, QSizePolicy::Fixed);
        flow->addWidget(widget);
        return widget;
    }
    void show(int width)
    {
        row.resize(width, row.heightForWidth(width));
        row.show();
        flow->activate();
    }

    QWidget row;
    SpxFlowLayout* flow = new SpxFlowLayout(&row);
};

TEST_F(FlowLayout, TakesAsManyLinesAsTheWidthNeeds)
{
    QWidget* first = add(40);
    QWidget* second = add(40);
    QWidget* third = add(60);
    EXPECT_EQ(row.heightForWidth(200), 10);
    EXPECT_EQ(row.heightForWidth(144), 10);
    EXPECT_EQ(row.heightForWidth(143), 22);
    EXPECT_EQ(row.heightForWidth(60), 34);
    EXPECT_EQ(row.minimumSizeHint().width(), 60);
    EXPECT_EQ(row.sizeHint(), QSize(144, 10));
    show(100);
    EXPECT_EQ(first->geometry(), QRect(0, 0, 40, 10));
    EXPECT_EQ(second->geometry(), QRect(42, 0, 40, 10));
    EXPECT_EQ(third->geometry(), QRect(0, 12, 60, 10));
}

TEST_F(FlowLayout, GivesWhatIsLeftToThoseThatExpand)
{
    QWidget* input = add(20, QSizePolicy::Expanding);
    QWidget* fixed = add(30);
    show(100);
    EXPECT_EQ(input->width(), 68);
    EXPECT_EQ(fixed->x(), 70);
}

TEST_F(FlowLayout, LeavesNoRoomForWhatIsHidden)
{
    QWidget* first = add(40);
    QWidget* second = add(40);
    first->hide();
    show(100);
    EXPECT_EQ(second->x(), 0);
    EXPECT_EQ(row.sizeHint().width(), 40);
}

TEST_F(FlowLayout, BeginsAtTheRightWhereTextDoes)
{
    row.setLayoutDirection(Qt::RightToLeft);
    QWidget* first = add(40);
    QWidget* second = add(40);
    show(100);
    EXPECT_EQ(first->geometry(), QRect(60, 0, 40, 10));
    EXPECT_EQ(second->geometry(), QRect(18, 0, 40, 10));
}

TEST_F(FlowLayout, LetsItemsGo)
{
    add(40);
    add(30);
    const std::unique_ptr<QLayoutItem> taken(flow->takeAt(0));
    EXPECT_EQ(flow->count(), 1);
    EXPECT_EQ(flow->takeAt(3), nullptr);
    EXPECT_EQ(row.sizeHint().width(), 30);
    taken->widget()->deleteLater();
}

} // namespace

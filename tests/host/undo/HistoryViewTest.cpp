// SPDX-License-Identifier: MIT
#include "undo/HistoryView.h"

#include "HostParts.h"

#include <gtest/gtest.h>

#include <QStyledItemDelegate>
#include <QtTest>
#include <QtWidgets>

namespace
{

/// Counts the rows that are measured.
class Counting : public QStyledItemDelegate
{
public:
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        ++count;
        return QStyledItemDelegate::sizeHint(option, index);
    }
    mutable int count = 0;
};

class HistoryList : public ::testing::Test
{
protected:
    HistoryList()
    {
        view.setItemDelegate(&counting);
        view.resize(200, 300);
        view.show();
    }
    void edit(int times)
    {
        for (int i = 0; i < times; ++i) {
            services.executeCommand(new LoggingCommand(log, "edit"));
            services.history().endStep();
        }
    }
    QString toolTipOfFirst()
    {
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), QPoint(100, 100));
        QApplication::sendEvent(view.viewport(), &help);
        return QToolTip::text();
    }

    Log log;
    HostServices services;
    HistoryView view{services.history()};
    Counting counting;
};

TEST_F(HistoryList, AnEditMeasuresAsManyRowsAfterManySteps)
{
    const auto measuredByAnEdit = [this] {
        QCoreApplication::processEvents();
        counting.count = 0;
        edit(1);
        QCoreApplication::processEvents();
        return counting.count;
    };
    edit(5);
    const int few = measuredByAnEdit();
    edit(500);
    EXPECT_EQ(view.model()->rowCount(), 507);
    EXPECT_LE(measuredByAnEdit(), few);
}

TEST_F(HistoryList, ARowThatIsCutIsWholeInItsToolTip)
{
    EXPECT_EQ(toolTipOfFirst(), QString());
    view.resize(30, 300);
    EXPECT_EQ(toolTipOfFirst(), view.model()->index(0, 0).data().toString());
    EXPECT_NE(toolTipOfFirst(), QString());
}

} // namespace

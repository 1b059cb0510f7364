// SPDX-License-Identifier: MIT
#pragma once

#include "CounterFixture.h"
#include "SoPerfCounterCreateCounter.h"
#include "SoPerfCounterCreateProfile.h"
#include "SoPerfCounterPage.h"

#include <QPointer>
#include <QPushButton>

/// The dock of the example with its profile manager, used by its buttons and dialogs.
class CounterProfileManager : public CounterHome
{
protected:
    void openBoth()
    {
        writeExample();
        open();
        manager = openManager();
    }
    // Selects these rows of a table, and only these.
    static void select(QTableWidget& table, const QStringList& names)
    {
        table.clearSelection();
        table.setSelectionMode(QAbstractItemView::MultiSelection);
        for (int row = 0; row < table.rowCount(); ++row) {
            if (names.contains(table.item(row, 0)->text()))
                table.selectRow(row);
        }
    }
    static QStringList namesIn(const QTableWidget& table)
    {
        QStringList names;
        for (int row = 0; row < table.rowCount(); ++row)
            names.append(table.item(row, 0)->text());
        return names;
    }
    QTableWidget& page(int index)
    {
        return *static_cast<SoPerfCounterPage*>(manager->m_tabProfile->widget(index))->getTableProfile();
    }
    void press(QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(manager->m_buttonBox->button(button), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    SoPerfCounterCreateCounter* createDialog(const QStringList& parents)
    {
        select(*manager->m_listCounter, parents);
        QTest::mouseClick(manager->m_createCounter, Qt::LeftButton);
        return manager->findChild<SoPerfCounterCreateCounter*>();
    }
    void createCounter(const char* name)
    {
        SoPerfCounterCreateCounter* dialog = createDialog({"testA", "testB"});
        ASSERT_TRUE(dialog);
        dialog->m_name->setText(name);
        dialog->m_operation->setCurrentText("*");
        dialog->m_level->setCurrentIndex(1);
        dialog->okButtonAction();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QPointer<SoPerfCounterProfileManager> manager;
};

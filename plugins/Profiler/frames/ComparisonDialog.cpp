// SPDX-License-Identifier: MIT
#include "frames/ComparisonDialog.h"

#include "frames/FrameBars.h"

#include <xsg/frames/SoFrameStatistics.h>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace profiler
{

namespace
{

QString chanceText(double chance)
{
    return chance < 0.001 ? QStringLiteral("< 0.1 %")
                          : QString::number(chance * 100, 'f', 1) + QStringLiteral(" %");
}

} // namespace

ComparisonDialog::ComparisonDialog(const SoFrameRecording& before, const SoFrameRecording& after,
                                   QWidget* parent)
    : QDialog(parent)
    , m_table(new QTableWidget(0, 5))
{
    setWindowTitle(tr("Compare Frames"));
    auto* layout = new QVBoxLayout(this);
    auto* about = new QLabel(
        tr("Medians of %1 frames of “%2” before, and of %3 frames after. By the test of Mann "
           "and Whitney; bold where chance alone would do it less than once in a hundred.")
            .arg(QString::number(before.getNumFrames()), QString::fromStdString(before.getAbout("title")),
                 QString::number(after.getNumFrames())));
    about->setWordWrap(true);
    layout->addWidget(about);
    m_table->setObjectName(QStringLiteral("frameComparison"));
    m_table->setAccessibleName(tr("Differences"));
    m_table->setHorizontalHeaderLabels(
        {tr("Counter"), tr("Before"), tr("After"), tr("Change"), tr("Chance")});
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->verticalHeader()->hide();
    fill(before, after);
    m_table->resizeColumnsToContents();
    layout->addWidget(m_table);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    resize(560, 480);
}

void ComparisonDialog::fill(const SoFrameRecording& before, const SoFrameRecording& after)
{
    for (const SoFrameColumn& column : after.columns) {
        const SoFrameColumn* old = before.findColumn(column.name);
        if (!old || column.name == SoFrame::getName(SoFrame::Begin))
            continue;
        const SoFrameComparison compared = SoFrameComparison::of(old->getKnown(), column.getKnown());
        const QString unit = QString::fromStdString(column.getShownUnit());
        const QString change =
            compared.before > 0 ? QString::number(compared.getChange() * 100, 'f', 1) + QStringLiteral(" %")
                                : QString();
        const int row = m_table->rowCount();
        m_table->insertRow(row);
        const QString cells[] = {QString::fromStdString(column.name), readable(compared.before, unit),
                                 readable(compared.after, unit), change, chanceText(compared.chance)};
        for (int i = 0; i < 5; ++i) {
            auto* item = new QTableWidgetItem(cells[i]);
            QFont font = m_table->font();
            font.setBold(compared.isSignificant());
            item->setFont(font);
            item->setTextAlignment(i > 0 ? Qt::AlignRight | Qt::AlignVCenter
                                         : Qt::AlignLeft | Qt::AlignVCenter);
            m_table->setItem(row, i, item);
        }
    }
}

} // namespace profiler

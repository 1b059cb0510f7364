// SPDX-License-Identifier: MIT
#include "SoPerfCounterCreateCounter.h"

#include "CounterText.h"
#include "CustomCounter.h"

#include <QMessageBox>

SoPerfCounterCreateCounter::SoPerfCounterCreateCounter(const QString& firstCounter,
                                                       const QString& secondCounter, QWidget* parent)
    : QDialog(parent)
    , m_firstCounter(firstCounter)
    , m_secondCounter(secondCounter)
{
    setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    m_firstLabel->setText(beginningOf(firstCounter, LongestInLine));
    m_secondLabel->setText(beginningOf(secondCounter, LongestInLine));
    connect(m_buttonBox, &QDialogButtonBox::accepted, this, &SoPerfCounterCreateCounter::okButtonAction);
    connect(m_buttonBox, &QDialogButtonBox::rejected, this, &QWidget::close);
}

void SoPerfCounterCreateCounter::okButtonAction()
{
    if (m_name->text().isEmpty()) {
        QMessageBox::warning(this, windowTitle(), tr("You have to give a name to your counter."));
        return;
    }
    CustomCounter counter;
    counter.name = m_name->text();
    counter.isAccumulation = m_accumRadio->isChecked();
    counter.description = m_description->toPlainText();
    counter.module = m_module->text();
    counter.level = m_level->currentIndex();
    counter.firstParent = m_firstCounter;
    counter.secondParent = m_secondCounter;
    counter.operation = m_operation->currentText();
    if (!counter.registerIt()) {
        QMessageBox::warning(this, windowTitle(),
                             tr("There is already a counter with this name. Please rename it."));
        return;
    }
    emit createNow(counter.name);
    close();
}

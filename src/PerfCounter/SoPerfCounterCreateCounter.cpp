#include "SoPerfCounterCreateCounter.h"

#include "CustomCounter.h"

#include <QMessageBox>

SoPerfCounterCreateCounter::SoPerfCounterCreateCounter(const QString& firstCounter, const QString& secondCounter,
                                                       QWidget* parent)
    : QDialog(parent)
{
    setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    m_firstLabel->setText(firstCounter);
    m_secondLabel->setText(secondCounter);
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
    counter.firstParent = m_firstLabel->text();
    counter.secondParent = m_secondLabel->text();
    counter.operation = m_operation->currentText();
    if (!counter.registerIt()) {
        QMessageBox::warning(this, windowTitle(),
                             tr("There is already a counter with this name. Please rename it."));
        return;
    }
    emit createNow(counter.name);
    close();
}

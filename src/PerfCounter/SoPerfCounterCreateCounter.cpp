// SPDX-License-Identifier: MIT
#include "SoPerfCounterCreateCounter.h"

#include "CounterText.h"
#include "CustomCounter.h"
#include "ProfileText.h"

#include <QMessageBox>

#include <algorithm>

namespace
{

// Spaces alone are lost when the file is read.
QString textOrNothing(const QString& text)
{
    return text.trimmed().isEmpty() ? QString() : text;
}

} // namespace

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
    const CustomCounter counter = typedCounter();
    const QString refusal = refusalOf(counter);
    if (!refusal.isEmpty()) {
        QMessageBox::warning(this, windowTitle(), refusal);
        return;
    }
    if (!counter.registerIt()) {
        QMessageBox::warning(this, windowTitle(),
                             tr("There is already a counter with this name. Please rename it."));
        return;
    }
    emit createNow(counter.name);
    close();
}

CustomCounter SoPerfCounterCreateCounter::typedCounter() const
{
    CustomCounter counter;
    counter.name = m_name->text();
    counter.isAccumulation = m_accumRadio->isChecked();
    counter.description = textOrNothing(m_description->toPlainText());
    counter.module = textOrNothing(m_module->text());
    counter.level = m_level->currentIndex();
    counter.firstParent = m_firstCounter;
    counter.secondParent = m_secondCounter;
    counter.operation = m_operation->currentText();
    return counter;
}

QString SoPerfCounterCreateCounter::refusalOf(const CustomCounter& counter)
{
    const QString refusals[] = {
        profileText::counterNameRefusal(tr("The name"), counter.name),
        profileText::refusal(tr("The description"), counter.description),
        profileText::refusal(tr("The module"), counter.module),
        profileText::listedNameRefusal(tr("The name of the first counter"), counter.firstParent),
        profileText::listedNameRefusal(tr("The name of the second counter"), counter.secondParent),
        counter.wouldLoop() ? tr("This counter would be computed from itself. Please rename it.")
                            : QString()};
    const auto* first = std::find_if_not(std::begin(refusals), std::end(refusals),
                                         [](const QString& refusal) { return refusal.isEmpty(); });
    return first == std::end(refusals) ? QString() : *first;
}

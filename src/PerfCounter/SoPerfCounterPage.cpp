// SPDX-License-Identifier: MIT
#include "SoPerfCounterPage.h"

#include "CounterTable.h"
#include "CustomCounter.h"
#include "SoPerfCounterProfile.h"

#include <xsg/counters/SoPerfCounterManager.h>

SoPerfCounterPage::SoPerfCounterPage(const SoPerfCounterProfile& profile, QWidget* parent)
    : QWidget(parent)
    , m_profile(profile)
{
    m_tableProfile = nullptr;
}

QTableWidget* SoPerfCounterPage::getTableProfile()
{
    if (!m_tableProfile) {
        setupUi(this);
        counterTable::showBeginnings(*m_tableProfile);
        refill();
    }
    return m_tableProfile;
}

void SoPerfCounterPage::refill()
{
    if (!m_tableProfile)
        return; // it will be full as soon as there is one
    const auto* registry = SoPerfCounterManager::getInstance();
    std::vector<const SoPerfCounter*> counters;
    for (const QString& name : qAsConst(*m_profile.getList())) {
        const SoPerfCounter* counter = registry->getCounter(toCounterName(name));
        if (counter && counter->isEnabled())
            counters.push_back(counter);
    }
    counterTable::fill(*m_tableProfile, counters);
}

void SoPerfCounterPage::setVisible(bool visible)
{
    // Not when it is shown: what is made then is laid out a turn of the event loop later.
    if (visible)
        getTableProfile();
    QWidget::setVisible(visible);
}

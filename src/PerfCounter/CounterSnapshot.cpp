// SPDX-License-Identifier: MIT
#include "CounterSnapshot.h"

#include "CounterProfileFile.h"

#include <xsg/counters/SoPerfCounterManager.h>

CounterSnapshot::CounterSnapshot(const QDomDocument& document)
    : m_document(document.cloneNode(true).toDocument())
{
    for (const SoPerfCounter* counter : SoPerfCounterManager::getInstance()->getCounters()) {
        if (counter->isCustom())
            m_counters.push_back({CustomCounter::of(*counter), counter->getScaleFactor()});
    }
}

void CounterSnapshot::restore(QDomDocument& document) const
{
    if (m_document.isNull())
        return;
    counterProfileFile::replace(document, m_document);
    removeCustomCounters();
    for (const Kept& kept : m_counters)
        kept.counter.registerIt();
    restoreScales();
}

void CounterSnapshot::restoreScales() const
{
    for (const Kept& kept : m_counters) {
        SoPerfCounter* counter =
            SoPerfCounterManager::getInstance()->getCounter(toCounterName(kept.counter.name));
        if (counter && counter->isCustom())
            counter->setScaleFactor(kept.scale);
    }
}

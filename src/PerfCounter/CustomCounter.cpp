// SPDX-License-Identifier: MIT
#include "CustomCounter.h"

#include <scopix/editing/SpxText.h>
#include <xsg/counters/SoPerfCounterManager.h>

#include <unordered_set>
#include <vector>

bool isCounterName(const QString& text)
{
    return QString::fromLatin1(text.toLatin1()) == text;
}

SbName toCounterName(const QString& text)
{
    return isCounterName(text) ? SbName(text.toLatin1().constData()) : SbName();
}

void removeCustomCounters()
{
    auto* registry = SoPerfCounterManager::getInstance();
    for (const SoPerfCounter* counter : registry->getCounters()) {
        if (counter->isCustom())
            registry->disableCounter(counter->getName());
    }
    registry->removeDisabledCounters();
}

CustomCounter CustomCounter::of(const SoPerfCounter& counter)
{
    CustomCounter made;
    made.name = SpxText::toQString(counter.getName());
    made.isAccumulation = counter.getTypeCode() == SbString("A");
    made.description = SpxText::toQString(counter.getDescription());
    made.module = SpxText::toQString(counter.getModule());
    made.level = counter.getLevel();
    made.firstParent = SpxText::toQString(counter.getFirstParent());
    made.secondParent = SpxText::toQString(counter.getSecondParent());
    made.operation = SpxText::toQString(counter.getOperation());
    return made;
}

bool CustomCounter::wouldLoop() const
{
    const auto* registry = SoPerfCounterManager::getInstance();
    const SbName own = toCounterName(name);
    std::unordered_set<const SoPerfCounter*> seen;
    std::vector<SbName> open{toCounterName(firstParent), toCounterName(secondParent)};
    while (!open.empty()) {
        const SbName next = open.back();
        open.pop_back();
        if (next == own)
            return true;
        const SoPerfCounter* counter = registry->getCounter(next);
        if (!counter || !counter->isCustom() || !seen.insert(counter).second)
            continue;
        open.push_back(counter->getFirstParent());
        open.push_back(counter->getSecondParent());
    }
    return false;
}

bool CustomCounter::registerIt() const
{
    const SbName counterName = toCounterName(name);
    const SbString text = SpxText::toSbString(description);
    const SbString moduleName = SpxText::toSbString(module);
    std::unique_ptr<SoPerfCounter> counter;
    if (isAccumulation)
        counter = std::make_unique<SoPerfAccumCounter>(counterName, text, moduleName, level, true);
    else
        counter = std::make_unique<SoPerfStateCounter>(counterName, text, moduleName, level, true);
    if (!SoPerfCounterManager::getInstance()->registerCounter(counter.get()))
        return false;
    SoPerfCounter* registered = counter.release();
    registered->setFirstParent(toCounterName(firstParent));
    registered->setSecondParent(toCounterName(secondParent));
    registered->setOperation(SpxText::toSbString(operation));
    return true;
}

// SPDX-License-Identifier: MIT
#include "CustomCounter.h"

#include <scopix/editing/SpxText.h>
#include <xsg/counters/SoPerfCounterManager.h>

SbName toCounterName(const QString& text)
{
    return SbName(text.toLatin1().constData());
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

// SPDX-License-Identifier: MIT
#include "SampleText.h"

#include "CounterText.h"

#include <QCoreApplication>

#include <cmath>

QString undividedText(double rate, double seconds)
{
    if (std::isnan(rate))
        return {};
    return QCoreApplication::translate("PerfCounter", "undivided: %1").arg(numberText(rate * seconds));
}

QString sampleText(const QString& counter, double rate, double seconds)
{
    if (std::isnan(rate))
        return {};
    return QStringLiteral("%1: %2 (%3)")
        .arg(beginningOf(counter, LongestInLine), numberText(rate), undividedText(rate, seconds));
}

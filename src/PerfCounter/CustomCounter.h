// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbName.h>

#include <QString>

class SoPerfCounter;

/// What makes a counter that is computed from two others: as the file has it, as the dialog asks for it.
struct CustomCounter {
    QString name;
    bool isAccumulation = true; // otherwise a state
    QString description;
    QString module;
    int level = 0;
    QString firstParent;
    QString secondParent;
    QString operation;

    /// What a counter of the registry is.
    static CustomCounter of(const SoPerfCounter& counter);
    /// Makes the counter, which is the registry's from then on; false where the name is taken.
    bool registerIt() const;
    /// Whether a registered counter that it would be computed from is waiting for one of its name.
    bool wouldLoop() const;
};

/// Takes every custom counter out of the registry, and those that are disabled.
void removeCustomCounters();

/// Counters are named in Latin-1.
bool isCounterName(const QString& text);
/// The empty name, which no counter has, for a text that cannot name one.
SbName toCounterName(const QString& text);

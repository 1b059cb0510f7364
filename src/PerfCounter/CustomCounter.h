// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbName.h>

#include <QString>

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

    /// Makes the counter, which is the registry's from then on; false where the name is taken.
    bool registerIt() const;
};

/// Counters are named in Latin-1.
SbName toCounterName(const QString& text);

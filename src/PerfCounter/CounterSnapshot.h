// SPDX-License-Identifier: MIT
#pragma once

#include "CustomCounter.h"

#include <QDomDocument>

#include <vector>

/// A profile document and the registry's custom counters, with their scales, as they were when it was made.
class CounterSnapshot
{
public:
    CounterSnapshot() = default;
    explicit CounterSnapshot(const QDomDocument& document);

    /// Puts both back, the document into the tree that this one shares with others. Does nothing where
    /// nothing was taken.
    void restore(QDomDocument& document) const;
    /// Gives the custom counters that have a name of then the scale of then.
    void restoreScales() const;

private:
    struct Kept {
        CustomCounter counter;
        double scale;
    };
    QDomDocument m_document; // a tree of its own
    std::vector<Kept> m_counters;
};

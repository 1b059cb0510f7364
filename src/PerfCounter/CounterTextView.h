// SPDX-License-Identifier: MIT
#pragma once

#include "CounterSampler.h"

class QTableWidget;

/// The view of the latest samples as text: name, value and scale of each counter.
class CounterTextView
{
public:
    /// Neither is owned.
    CounterTextView(QTableWidget& table, const CounterSampler& sampler);

    void show(const CounterSampler::Viewed& viewed);

private:
    QTableWidget& m_table;
    const CounterSampler& m_sampler;
};

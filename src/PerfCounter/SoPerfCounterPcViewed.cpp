// SPDX-License-Identifier: MIT
#include "SoPerfCounterPcViewed.h"

#include <algorithm>
#include <limits>

SoPerfCounterPcViewed::SoPerfCounterPcViewed(const QString& name, int historyLength)
    : m_name(name)
    , m_history(std::make_unique<double[]>(std::size_t(historyLength)))
{
}

void SoPerfCounterPcViewed::setColor(int red, int green, int blue)
{
    m_red = red;
    m_green = green;
    m_blue = blue;
}

void SoPerfCounterPcViewed::setUnknown(int samples)
{
    std::fill_n(m_history.get(), samples, std::numeric_limits<double>::quiet_NaN());
}

// SPDX-License-Identifier: MIT
#include "SoPerfCounterPcViewed.h"

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

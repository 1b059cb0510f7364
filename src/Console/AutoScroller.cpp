// SPDX-License-Identifier: MIT
#include "AutoScroller.h"

#include <QScrollBar>

AutoScroller::AutoScroller(QScrollBar* bar)
    : QObject(bar)
    , m_bar(bar)
{
    connect(bar, &QScrollBar::valueChanged, this, [this] { m_following = isAtEnd(); });
    connect(bar, &QScrollBar::rangeChanged, this, &AutoScroller::rangeChanged);
}

bool AutoScroller::isAtEnd() const
{
    return m_bar->value() >= m_bar->maximum();
}

void AutoScroller::rangeChanged()
{
    m_following = m_following || isAtEnd();
    if (m_following)
        m_bar->setValue(m_bar->maximum());
}

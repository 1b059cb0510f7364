#include "ScrollFollower.h"

#include <QScrollBar>

ScrollFollower::ScrollFollower(QScrollBar* bar)
    : QObject(bar)
    , m_bar(bar)
{
    connect(bar, &QScrollBar::valueChanged, this, [this] { m_following = isAtEnd(); });
    connect(bar, &QScrollBar::rangeChanged, this, &ScrollFollower::rangeChanged);
}

bool ScrollFollower::isAtEnd() const
{
    return m_bar->value() >= m_bar->maximum();
}

void ScrollFollower::rangeChanged()
{
    m_following = m_following || isAtEnd();
    if (m_following)
        m_bar->setValue(m_bar->maximum());
}

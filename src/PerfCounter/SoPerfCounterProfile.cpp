#include "SoPerfCounterProfile.h"

SoPerfCounterProfile::SoPerfCounterProfile(const QString& name)
    : m_name(name)
    , m_list(std::make_unique<QList<QString>>())
    , m_view(std::make_unique<QList<QString>>())
{
}

void SoPerfCounterProfile::removeCounter(const QString& counter)
{
    m_list->removeAll(counter);
    m_view->removeAll(counter);
}

std::unique_ptr<SoPerfCounterProfile> SoPerfCounterProfile::copy() const
{
    auto twin = std::make_unique<SoPerfCounterProfile>(m_name);
    *twin->m_list = *m_list;
    *twin->m_view = *m_view;
    return twin;
}

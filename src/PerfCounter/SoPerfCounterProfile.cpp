// SPDX-License-Identifier: MIT
#include "SoPerfCounterProfile.h"

#include <QSet>

#include <algorithm>

namespace
{

void removeAll(QList<QString>& names, const QStringList& unwanted)
{
    const QSet<QString> removed(unwanted.begin(), unwanted.end());
    names.erase(std::remove_if(names.begin(), names.end(),
                               [&](const QString& name) { return removed.contains(name); }),
                names.end());
}

} // namespace

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

void SoPerfCounterProfile::removeCounters(const QStringList& counters)
{
    removeAll(*m_list, counters);
    removeAll(*m_view, counters);
}

void SoPerfCounterProfile::moveToEnd(const QStringList& counters)
{
    removeAll(*m_list, counters);
    m_list->append(counters);
}

std::unique_ptr<SoPerfCounterProfile> SoPerfCounterProfile::copy() const
{
    auto twin = std::make_unique<SoPerfCounterProfile>(m_name);
    *twin->m_list = *m_list;
    *twin->m_view = *m_view;
    return twin;
}

// SPDX-License-Identifier: MIT
#include "plugins/PluginGuard.h"

#include "plugins/PluginSearchPath.h"
#include "plugins/PluginTrial.h"

#include <QCoreApplication>

#include <algorithm>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("PluginGuard", text);
}

} // namespace

PluginGuard::PluginGuard(PluginRecords records)
    : m_records(std::move(records))
{
}

QString PluginGuard::enter(const QString& library, Asked asked)
{
    if (PluginSearchPath().isShipped(library))
        return {};
    if (m_records.takeBrokenStart(library))
        return quarantine(library, tr("the program ended the last time while it was being loaded"));
    const auto record = m_records.find(library);
    const bool isQuarantined = record && record->isQuarantined;
    if (isQuarantined && asked == Asked::Found)
        return quarantine(library, record->reason);
    if (isQuarantined)
        m_records.forget(library);
    const bool isKnown = record && !isQuarantined;
    const QString why = isKnown ? QString() : tryFirst(library);
    if (!why.isEmpty())
        return why;
    m_quarantined.removeAll(library);
    for (Loading& each : m_loading)
        each.start.reset(); // what ends now is not its doing
    m_loading.push_back({library, m_records.begin(library), isKnown});
    return {};
}

QString PluginGuard::tryFirst(const QString& library)
{
    if (!m_triesFirst)
        return {};
    const PluginTrial::Outcome outcome = PluginTrial::run(library);
    return outcome.isHarmful ? quarantine(library, outcome.reason) : outcome.reason;
}

QString PluginGuard::quarantine(const QString& library, const QString& reason)
{
    m_records.write(library, {true, reason});
    if (!m_quarantined.contains(library))
        m_quarantined += library;
    m_quarantined.sort();
    return tr("%1; View > Tools > Try Again loads it all the same").arg(reason);
}

void PluginGuard::leave(const QString& library, bool isLoaded)
{
    const auto isOver = [&](const Loading& each) {
        return each.library == library && (each.isKnown || !isLoaded);
    };
    m_loading.erase(std::remove_if(m_loading.begin(), m_loading.end(), isOver), m_loading.end());
    for (Loading& each : m_loading) {
        if (!each.start)
            each.start = m_records.begin(each.library);
    }
}

void PluginGuard::settle()
{
    for (const Loading& each : m_loading)
        m_records.write(each.library, {});
    m_loading.clear();
}

} // namespace scopix

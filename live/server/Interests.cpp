// SPDX-License-Identifier: MIT
#include "Interests.h"

#include "Guarded.h"

namespace scopix::live
{

void Interests::watch(NodeId node, bool values)
{
    Watchers& watchers = m_watched[node];
    const bool isNews = watchers.all == 0 || (values && watchers.ofValues == 0);
    ++watchers.all;
    watchers.ofValues += values ? 1 : 0;
    if (isNews)
        guarded([&] { m_adapter.watch(node, watchers.ofValues > 0); });
}

void Interests::unwatch(NodeId node, bool values)
{
    const auto found = m_watched.find(node);
    if (found == m_watched.end())
        return;
    Watchers& watchers = found->second;
    --watchers.all;
    watchers.ofValues -= values ? 1 : 0;
    const bool isLast = watchers.all == 0;
    const bool isLastOfValues = values && watchers.ofValues == 0;
    if (isLast)
        m_watched.erase(found);
    if (isLast)
        guarded([&] { m_adapter.unwatch(node); });
    else if (isLastOfValues)
        guarded([&] { m_adapter.watch(node, false); });
}

void Interests::drop(NodeId node)
{
    m_watched.erase(node);
}

void Interests::keep(NodeId node)
{
    ++m_kept[node];
}

void Interests::forget(NodeId node)
{
    const auto found = m_kept.find(node);
    if (found == m_kept.end() || --found->second > 0)
        return;
    m_kept.erase(found);
    guarded([&] { m_adapter.forget(node); });
}

void Interests::mark(NodeId node, const void* by)
{
    m_marker = node ? by : nullptr;
    guarded([&] { m_adapter.mark(node); });
}

void Interests::unmark(const void* by)
{
    if (m_marker == by)
        mark(0, by);
}

} // namespace scopix::live

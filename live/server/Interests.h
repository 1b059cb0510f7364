// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/adapter/Adapter.h>

#include <unordered_map>

namespace scopix::live
{

/// What all inspectors together watch, keep and mark: the adapter hears of the union, as if there were one.
/// In the program's thread.
class Interests
{
public:
    explicit Interests(Adapter& adapter)
        : m_adapter(adapter)
    {
    }

    void watch(NodeId node, bool values);
    void unwatch(NodeId node, bool values);
    /// The node has ended, and with it everybody's watch.
    void drop(NodeId node);

    void keep(NodeId node);
    void forget(NodeId node);

    void mark(NodeId node, const void* by);
    /// Takes the mark away, if it is the latest one's.
    void unmark(const void* by);

private:
    struct Watchers {
        unsigned all = 0;
        unsigned ofValues = 0;
    };

    Adapter& m_adapter;
    std::unordered_map<NodeId, Watchers> m_watched;
    std::unordered_map<NodeId, unsigned> m_kept;
    const void* m_marker = nullptr;
};

} // namespace scopix::live

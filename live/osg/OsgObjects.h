// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/adapter/Adapter.h>

#include <osg/Object>
#include <osg/observer_ptr>

#include <set>
#include <unordered_map>
#include <vector>

namespace scopix::live
{

/// The numbers under which an inspector knows objects of the program.
///
/// Keeps no object alive, except those of `keep`, and never dereferences one that has ended: each entry
/// observes its object, and a number is only given once, also where a new object lies at the address of an
/// old one. For one thread; objects may end in any.
class OsgObjects
{
public:
    /// The number of an object; 0 of none, and of one that nobody counts references of. `owner` is the object
    /// whose property it was found in: what is written to the one shows in the other.
    NodeId id(osg::Object* object, NodeId owner = 0);
    /// None where it has ended.
    osg::ref_ptr<osg::Object> find(NodeId id) const;
    template <class T>
    osg::ref_ptr<T> findAs(NodeId id) const
    {
        return dynamic_cast<T*>(find(id).get());
    }
    std::vector<osg::ref_ptr<osg::Object>> owners(NodeId id) const;

    /// Lives until `forget` or `clear`, though the program may have let it go.
    void keep(osg::Object* object);
    void forget(NodeId id);
    void clear();

private:
    struct Entry {
        osg::observer_ptr<osg::Object> object;
        std::set<NodeId> owners;
    };

    void dropEnded();

    std::unordered_map<NodeId, Entry> m_entries;
    std::unordered_map<const osg::Object*, NodeId> m_ids;
    std::unordered_map<NodeId, osg::ref_ptr<osg::Object>> m_kept;
    NodeId m_last = 0;
    std::size_t m_dropAt = 4096;
};

} // namespace scopix::live

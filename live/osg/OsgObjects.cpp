// SPDX-License-Identifier: MIT
#include "OsgObjects.h"

#include <algorithm>

namespace scopix::live
{

namespace
{

constexpr std::size_t mostOwners = 64;

} // namespace

NodeId OsgObjects::id(osg::Object* object, NodeId owner)
{
    if (!object || object->referenceCount() == 0)
        return 0;
    const auto known = m_ids.find(object);
    const bool same = known != m_ids.end() && find(known->second).get() == object;
    if (!same) {
        dropEnded();
        ++m_last;
        m_ids[object] = m_last;
        m_entries[m_last].object = object;
    }
    const NodeId id = m_ids[object];
    std::set<NodeId>& owners = m_entries[id].owners;
    if (owner && owners.size() < mostOwners)
        owners.insert(owner);
    return id;
}

osg::ref_ptr<osg::Object> OsgObjects::find(NodeId id) const
{
    osg::ref_ptr<osg::Object> object;
    const auto entry = m_entries.find(id);
    if (entry != m_entries.end())
        entry->second.object.lock(object);
    return object;
}

std::vector<osg::ref_ptr<osg::Object>> OsgObjects::owners(NodeId id) const
{
    std::vector<osg::ref_ptr<osg::Object>> owners;
    const auto entry = m_entries.find(id);
    if (entry != m_entries.end())
        for (NodeId owner : entry->second.owners)
            if (osg::ref_ptr<osg::Object> object = find(owner))
                owners.push_back(object);
    return owners;
}

void OsgObjects::keep(osg::Object* object)
{
    if (const NodeId number = id(object))
        m_kept[number] = object;
}

void OsgObjects::forget(NodeId id)
{
    m_kept.erase(id);
}

void OsgObjects::clear()
{
    m_kept.clear();
    m_entries.clear();
    m_ids.clear();
}

void OsgObjects::dropEnded()
{
    if (m_entries.size() < m_dropAt)
        return;
    for (auto entry = m_ids.begin(); entry != m_ids.end();) {
        if (find(entry->second)) {
            ++entry;
        } else {
            m_entries.erase(entry->second);
            entry = m_ids.erase(entry);
        }
    }
    m_dropAt = std::max<std::size_t>(4096, m_entries.size() * 2);
}

} // namespace scopix::live

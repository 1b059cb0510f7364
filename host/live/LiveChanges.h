// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/adapter/Adapter.h>
#include <xsg/paths/SoScenePath.h>

#include <list>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace scopix
{

class LiveNode;
struct LiveProperty;

/// What edits have changed in a running program, by place: a list that outlives the program. A value that is
/// as it was at first is on it no more.
class LiveChanges
{
public:
    LiveChanges() = default;
    LiveChanges(const LiveChanges&) = delete;
    LiveChanges& operator=(const LiveChanges&) = delete;

    /// From a node to a child: by type and name, and by place where that is not enough.
    struct Step {
        std::string type;
        std::string name;
        int index = 0;
    };
    struct Change {
        live::NodeId node = 0;
        std::vector<Step> way; // from the root, without it
        std::string property;
        live::Value before;
        live::Value after;
        SoScenePath path; // of the field
        std::string text; // as a field has it
    };

    void note(const LiveNode& node, const LiveProperty& property, const live::Value& before,
              const live::Value& after);
    std::vector<Change> getAll() const { return {m_all.begin(), m_all.end()}; }
    std::size_t getCount() const { return m_all.size(); }
    bool isEmpty() const { return m_all.empty(); }
    bool isChanged(live::NodeId node, const std::string& property) const;
    /// As a patch.
    std::string toText() const;

private:
    std::list<Change> m_all; // in the order in which they were made first
    std::map<std::pair<live::NodeId, std::string>, std::list<Change>::iterator> m_places;
};

} // namespace scopix

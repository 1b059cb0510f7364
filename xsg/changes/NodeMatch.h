// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/changes/BranchHash.h>
#include <xsg/paths/NodePlaces.h>
#include <xsg/support/WorkPieces.h>

#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace xsg
{

/// Which node of a scene before is which of the scene after. Both must stay as they are.
class NodeMatch
{
public:
    /// `goOn` is called each few milliseconds; see WorkPieces. What it throws may leave any member.
    NodeMatch(SoNode* before, SoNode* after, const WorkPieces::GoOn& goOn);

    NodePlaces& before() { return m_before; }
    NodePlaces& after() { return m_after; }
    /// Null for a node that is new, or gone.
    SoNode* oldOf(const SoNode& newNode) const { return m_oldOf.find(newNode).node; }
    SoNode* newOf(const SoNode& oldNode) const { return m_newOf.find(oldNode).node; }

    /// Whether each child of a group of the scene after has the place of one of the old group, all in order.
    bool isAligned(SoGroup& newGroup);
    /// Where not: for each child the place that it had in the old group; -1 for one that is inserted. Equally
    /// named children keep their order, and are either only inserted or only removed.
    const std::vector<int>& alignmentOf(SoGroup& newGroup);
    /// The places of the old group that no child of the new one has.
    std::vector<int> removedFrom(const SoGroup& oldGroup, SoGroup& newGroup);
    /// Whether a node could become the other one by changes of its fields, its name and its children.
    static bool areAlike(const SoNode& before, const SoNode& after);

private:
    struct Link {
        SoNode* node = nullptr;
    };
    struct Pool;

    void match(SoNode* before, SoNode* after);
    void matchBelow(SoNode* after);
    void matchMoved();
    void align(SoGroup& after);
    std::vector<int> alignChildren(const SoGroup& before, const SoGroup& after);
    void alignLabel(const SoGroup& before, const std::vector<int>& oldPlaces, const SoGroup& after,
                    const std::vector<int>& newPlaces, std::vector<int>& result);

    WorkPieces m_pieces;
    NodePlaces m_before;
    NodePlaces m_after;
    NodeNotes<Link> m_oldOf;
    NodeNotes<Link> m_newOf;
    BranchHash m_hash{m_pieces};
    enum class Alignment : char { Unknown, Same, Other };
    NodeNotes<Alignment> m_alignment;
    std::unordered_map<const SoGroup*, std::vector<int>> m_places; // of the others
    std::vector<SoNode*> m_inserted; // nodes of the scene after that may have been moved
    std::unordered_set<const SoNode*> m_isInserted;
};

/// The names of the fields that a file has of this node.
std::vector<std::string> writtenFields(const SoNode& node);
bool isWritten(const SoField& field);

template <class Visit>
void forEachField(const SoNode& node, Visit visit)
{
    const SoFieldData* data = node.getFieldData();
    for (SoField* field = data->getField(&node, 0); field; field = data->getNext(field))
        visit(*field);
}

} // namespace xsg

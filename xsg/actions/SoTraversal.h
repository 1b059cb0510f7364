// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoState.h>
#include <xsg/nodes/groups/SoGroup.h>

#include <chrono>
#include <unordered_set>

class SoHiding;
class SoShape;

/// Walks a scene in order and carries the state along: the base of everything that looks at a whole scene. A
/// derived class says what to do at each node. It keeps its own stack, so that only memory limits how deep a
/// scene may be nested.
class XSG_API SoTraversal
{
public:
    SoTraversal();
    SoTraversal(const SoTraversal&) = delete;
    SoTraversal& operator=(const SoTraversal&) = delete;
    virtual ~SoTraversal();

    /// The scene must not change until it returns. A short file of groups that share groups, level after
    /// level, can unfold to more visits than any computer could finish: after MostRepeats visits below groups
    /// that the walk has met before, such groups are left empty. An SoError says so, once for each root.
    void traverse(SoNode* root);
    /// The same in pieces: advance() returns true when the walk is over, or else when the time is up.
    void begin(SoNode* root);
    bool advance(std::chrono::steady_clock::time_point until);
    static constexpr int MostRepeats = 1 << 20;
    /// Whether that happened to the last walk, or has happened to this one so far.
    bool isCut() const { return m_isCut; }
    /// What the walk passes by, from the next one on; it must outlive them. Null, as at first: nothing.
    void setHiding(const SoHiding* hiding) { m_setHiding = hiding; }

protected:
    /// Before a group, with the state as it is there; false skips the group and leaves the state.
    virtual bool wantsGroup(SoGroup* group);
    /// With the state as the group's children will see it.
    virtual void enterGroup(SoGroup* group);
    /// With the state as what follows the group will see it.
    virtual void leaveGroup(SoGroup* group);
    virtual void visitShape(SoShape* shape);
    /// Any other node, after it has changed the state.
    virtual void visitProperty(SoNode* node);

    SoState& state() { return m_state; }
    void resetState() { m_state = SoState(); }
    /// In enterGroup(): of the group's children only those at these places are visited, in this order.
    void visitOnly(std::vector<std::uint32_t> places);
    /// Ends the walk; groups that are open are not left.
    void stop() { m_stopped = true; }
    int getNumVisited() const { return m_visited; }
    /// Whether the present node stands below a group that the walk has met before.
    bool isRepeating() const { return m_repeating > 0; }

    /// Of a node, as SoHiding has it: hidden, below one that is isolated, or neither.
    enum class Sight : char { Plain, Hidden, Isolated };

    /// A group on the way to the present node, and the child that is visited.
    struct Frame {
        SoGroup* group;
        int child;
        int end;
        bool isolates;
        bool repeats;        // the walk has met it before
        Sight sightBefore;   // of what it stands in
        std::size_t planned; // of the places to visit, those that were; NoPlan: all are visited
    };
    const std::vector<Frame>& getFrames() const { return m_frames; }

private:
    static constexpr std::size_t NoPlan = static_cast<std::size_t>(-1);
    void step();
    void end();
    void visit(SoNode* node);
    bool mayVisit();
    Sight sightOf(const SoNode* node) const;
    bool isSeen(SoNode* node, Sight sight) const;
    bool hasMet(const SoGroup* group);
    bool goToNextChild(Frame& frame);
    void openGroup(SoGroup* group, Sight sight);
    void closeGroup();
    void saveState();
    void restoreState();

    SoNode* m_root = nullptr;
    SoState m_state;
    std::vector<SoState> m_saved; // the first m_savedCount count
    std::size_t m_savedCount = 0;
    std::vector<Frame> m_frames;
    std::vector<std::vector<std::uint32_t>> m_plans; // of the open groups that have one
    bool m_hasNewPlan = false;
    bool m_stopped = false;
    int m_visited = 0;
    std::unordered_set<const SoGroup*> m_met; // of the groups with several parents
    int m_repeating = 0;                      // open groups that were met before
    int m_repeats = 0;                        // visits below such groups
    bool m_isCut = false;
    const SoHiding* m_setHiding = nullptr;
    const SoHiding* m_hiding = nullptr; // the same during a walk; null where it hides nothing
    Sight m_sight = Sight::Plain;
};

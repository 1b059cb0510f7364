// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/paths/SoScenePath.h>

#include <functional>
#include <list>
#include <unordered_map>
#include <vector>

namespace xsg
{

/// The children of a group as paths call them. They can be rearranged here first; commit() then changes the
/// group. Keeps references to them.
class XSG_API ChildTable
{
public:
    /// The place of a child; its node is null once it has gone.
    struct Place {
        SoRef<SoNode> node;
    };
    using Slot = std::list<Place>::iterator;

    explicit ChildTable(SoGroup* group);
    ChildTable(const ChildTable&) = delete;
    ChildTable& operator=(const ChildTable&) = delete;

    /// How many children were called so when the table was made, and where they are.
    int getFirstCount(const std::string& label) const;
    const Slot* findFirst(const SoScenePath::Step& step) const;

    /// Null where there is none.
    SoNode* find(const SoScenePath::Step& step);

    /// The step must be one that find() finds; an anchor that does not exist is the last child.
    void insert(const SoScenePath::Step& step, const SoScenePath::Step* after, const SoRef<SoNode>& node);
    void replace(const SoScenePath::Step& step, const SoRef<SoNode>& node);
    /// True where it was not there already.
    bool moveAfter(const SoScenePath::Step& step, const SoScenePath::Step* after);
    /// False where it has gone already.
    bool remove(const std::string& label, Slot slot);
    /// The other way round; it is then the last one called so.
    void restore(const std::string& label, Slot slot, const SoRef<SoNode>& node);

    bool isChanged() const { return m_isChanged; }
    /// In two parts, so that all groups give children up before any takes one. The second returns those that
    /// the group refuses, since they hold it.
    /// `announce` is called with the place and the number of those that go, before they do.
    void commitRemovals(const std::function<void(int start, int removed)>& announce);
    std::vector<SoRef<SoNode>> commitInsertions();

private:
    struct Named {
        std::vector<Slot> first;
        std::vector<Slot> now;
        bool hasGaps = false; // some of these have gone
    };
    static void closeGaps(Named& named);
    const Slot* slotOf(const SoScenePath::Step& step);
    Slot placeAfter(const SoScenePath::Step* after);

    SoRef<SoGroup> m_group;
    std::list<Place> m_order;
    std::unordered_map<std::string, Named> m_byLabel;
    bool m_isChanged = false;
    std::size_t m_sameFront = 0;
    std::size_t m_sameBack = 0;
};

/// Finds what paths name. Reads the children of a group once; the scene must stay as it is while this is
/// used, unless it is changed through the tables.
class XSG_API SceneLookup
{
public:
    explicit SceneLookup(SoNode* root)
        : m_root(root)
    {
    }

    SoNode* getRoot() const { return m_root.get(); }
    void setRoot(const SoRef<SoNode>& root) { m_root = root; }
    /// Null, and why as the end of a sentence, where there is no such node, or several for a path that does
    /// not start with "/".
    SoNode* find(const SoScenePath& path, SbSentence& problem);
    /// The same with the path's field.
    SoField* findField(const SoScenePath& path, SbSentence& problem);
    ChildTable& tableOf(SoGroup* group);
    std::unordered_map<SoGroup*, ChildTable>& getTables() { return m_tables; }

private:
    using Steps = std::vector<SoScenePath::Step>;

    /// From steps[at] on, which is moved along; null at the one that leads nowhere.
    SoNode* findBelow(SoNode* node, const Steps& steps, std::size_t& at);
    SbSentence reasonAgainst(const Steps& steps, std::size_t at) const;
    SoNode* search(const SoScenePath& path, SbSentence& problem);

    SoRef<SoNode> m_root;
    std::unordered_map<SoGroup*, ChildTable> m_tables;
};

} // namespace xsg

// SPDX-License-Identifier: MIT
#include <xsg/changes/PatchApplication.h>

#include <xsg/changes/FieldApplication.h>
#include <xsg/changes/NodeMatch.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/paths/ChildTable.h>
#include <xsg/paths/NodeLabel.h>

#include <algorithm>
#include <unordered_map>

namespace xsg
{

namespace
{

using Kind = SceneChange::Kind;
using Origin = SceneChange::Origin;

SoRef<SoNode> makeNode(const SceneChange& change)
{
    const SbName typeName{SbString(change.type)};
    const SoType type = SoType::fromName(typeName);
    const bool isKnown = type.isDerivedFrom(SoNode::getClassTypeId()) && type.canCreateInstance();
    SoRef<SoNode> node(isKnown ? static_cast<SoNode*>(type.createInstance()) : new SoUnknownNode(typeName));
    if (change.name)
        node->setName(SbName(SbString(*change.name)));
    return node;
}

SbSentence countProblem(int count, const SoScenePath::Step& step, int wanted)
{
    return SbSentence("there are %1 children called %2 and not %3", count, step.label, wanted);
}

/// First all places of the scene before are found, then structure changes in tables, then in the scene, and
/// then the fields.
class Application
{
public:
    Application(const SceneChanges& changes, SoRef<SoNode>& root, PatchWatch* watch)
        : m_changes(changes)
        , m_root(root)
        , m_watch(watch)
        , m_lookup(root.get())
    {
    }
    PatchResult run();

private:
    /// Where a change finds an old node, or why not.
    struct Taken {
        SoRef<SoNode> node;
        ChildTable* table = nullptr; // that it was in
        ChildTable::Slot slot;
        SbSentence problem;
        bool isPlaced = false;
    };

    void findOld(const SceneChange& change);
    void putBack();
    void change(const SceneChange& change);
    void remove(const SceneChange& change);
    void insert(const SceneChange& change);
    void insertInto(ChildTable& table, const SceneChange& change);
    void replace(const SceneChange& change);
    bool isReplaced(const SceneChange& change, const SoNode& node);
    void order(const SceneChange& change);
    void rename(const SceneChange& change);
    void commit();
    SoRef<SoNode> nodeFor(const SceneChange& change, SbSentence& problem);
    ChildTable* tableFor(const SceneChange& change);
    void misfit(const SceneChange& change, const SbSentence& reason);

    const SceneChanges& m_changes;
    SoRef<SoNode>& m_root;
    PatchWatch* m_watch;
    SceneLookup m_lookup;
    PatchResult m_result;
    std::vector<std::pair<int, SbSentence>> m_misfits; // with their lines
    std::unordered_map<const SceneChange*, Taken> m_taken;
    std::vector<std::pair<SoRef<SoNode>, SbName>> m_names;
};

void Application::misfit(const SceneChange& change, const SbSentence& reason)
{
    const char* kind = SceneChange::nameOf(change.kind);
    const std::string path = change.path.toText();
    m_misfits.emplace_back(
        change.line, change.line > 0 ? SbSentence("line %1: %2 %3: %4.", change.line, kind, path, reason)
                                     : SbSentence("%1 %2: %3.", kind, path, reason));
}

PatchResult Application::run()
{
    for (const SceneChange& each : m_changes)
        if (each.origin == Origin::Old)
            findOld(each);
    for (const SceneChange& each : m_changes)
        if (each.kind != Kind::Set)
            change(each);
    putBack();
    commit();
    FieldApplication fields(m_lookup, m_watch);
    for (const SceneChange& each : m_changes) {
        if (each.kind != Kind::Set)
            continue;
        SbSentence problem;
        if (!fields.add(each, problem))
            misfit(each, problem);
    }
    fields.apply();
    m_result.applied += fields.getApplied();
    m_result.alreadySo += fields.getAlreadySo();
    for (const auto& [change, problem] : fields.getMisfits())
        misfit(*change, problem);
    std::stable_sort(m_misfits.begin(), m_misfits.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (auto& [line, sentence] : m_misfits)
        m_result.misfits.push_back(std::move(sentence));
    return std::move(m_result);
}

void Application::findOld(const SceneChange& change)
{
    Taken& taken = m_taken[&change];
    taken.node = m_lookup.find(change.from, taken.problem);
    if (!taken.node || change.from.getSteps().empty())
        return;
    taken.table = &m_lookup.tableOf(m_lookup.find(change.from.getParent(), taken.problem)->asGroup());
    taken.slot = *taken.table->findFirst(change.from.getSteps().back());
}

void Application::change(const SceneChange& change)
{
    switch (change.kind) {
    case Kind::Remove:
        return remove(change);
    case Kind::Insert:
    case Kind::Move:
        return insert(change);
    case Kind::Replace:
        return replace(change);
    case Kind::Order:
        return order(change);
    default:
        return rename(change);
    }
}

void Application::remove(const SceneChange& change)
{
    ChildTable* table = tableFor(change);
    if (!table)
        return;
    const SoScenePath::Step& step = change.path.getSteps().back();
    const int count = table->getFirstCount(step.label);
    const ChildTable::Slot* slot = table->findFirst(step);
    if (count == change.count.after && count != change.count.before)
        ++m_result.alreadySo;
    else if (count != change.count.before || !slot)
        misfit(change, countProblem(count, step, change.count.before));
    else
        ++(table->remove(step.label, *slot) ? m_result.applied : m_result.alreadySo);
}

ChildTable* Application::tableFor(const SceneChange& change)
{
    SbSentence problem;
    SoNode* parent = m_lookup.find(change.path.getParent(), problem);
    SoGroup* group = parent ? parent->asGroup() : nullptr;
    if (!group)
        misfit(change,
               parent ? SbSentence("a %1 has no children", typeNameOf(*parent).getString()) : problem);
    return group ? &m_lookup.tableOf(group) : nullptr;
}

void Application::insert(const SceneChange& change)
{
    if (ChildTable* table = tableFor(change))
        insertInto(*table, change);
}

// How many there were when the table was made shows whether the change fits, or has been made.
void Application::insertInto(ChildTable& table, const SceneChange& change)
{
    const SoScenePath::Step& step = change.path.getSteps().back();
    const int count = table.getFirstCount(step.label);
    if (count == change.count.after && count != change.count.before) {
        ++m_result.alreadySo;
        m_taken.erase(&change);
        return;
    }
    if (count != change.count.before)
        return misfit(change, countProblem(count, step, change.count.before));
    SbSentence problem;
    const SoRef<SoNode> node = nodeFor(change, problem);
    if (!node)
        return misfit(change, problem);
    table.insert(step, change.after ? &*change.after : nullptr, node);
    if (change.origin == Origin::Old && change.name)
        m_names.emplace_back(node, SbName(SbString(*change.name)));
    if (change.origin == Origin::Old)
        m_taken[&change].isPlaced = true;
    ++m_result.applied;
}

SoRef<SoNode> Application::nodeFor(const SceneChange& change, SbSentence& problem)
{
    if (change.origin == Origin::New)
        return makeNode(change);
    if (change.origin == Origin::Same)
        return m_lookup.find(change.same, problem);
    problem = m_taken[&change].problem;
    return m_taken[&change].node;
}

bool Application::isReplaced(const SceneChange& change, const SoNode& node)
{
    SbSentence problem;
    if (change.origin == Origin::Same)
        return m_lookup.find(change.same, problem) == &node;
    if (typeNameOf(node) != SbName(SbString(change.type)))
        return false;
    if (change.apart) {
        const SoNode* other = m_lookup.find(*change.apart, problem);
        return other && other != &node;
    }
    return change.fields.empty() || writtenFields(node) == change.fields;
}

void Application::replace(const SceneChange& change)
{
    SbSentence problem;
    SoNode* old = m_lookup.find(change.path, problem);
    if (!old)
        return misfit(change, problem);
    if (isReplaced(change, *old)) {
        ++m_result.alreadySo;
        return;
    }
    const SoRef<SoNode> node = nodeFor(change, problem);
    if (!node)
        return misfit(change, problem);
    ++m_result.applied;
    if (change.path.getSteps().empty())
        m_lookup.setRoot(node);
    else
        tableFor(change)->replace(change.path.getSteps().back(), node);
}

void Application::order(const SceneChange& change)
{
    ChildTable* table = tableFor(change);
    if (!table)
        return;
    if (!table->find(change.path.getSteps().back()))
        return misfit(change, SbSentence("there is no such node"));
    if (change.after && !table->find(*change.after))
        return misfit(change, SbSentence("there is no %1 to put it after", change.after->label));
    const bool isMoved =
        table->moveAfter(change.path.getSteps().back(), change.after ? &*change.after : nullptr);
    ++(isMoved ? m_result.applied : m_result.alreadySo);
}

void Application::rename(const SceneChange& change)
{
    SbSentence problem;
    SoNode* node = m_lookup.find(change.path, problem);
    const SbName name{SbString(*change.name)};
    if (!node)
        return misfit(change, problem);
    ++(node->getName() == name ? m_result.alreadySo : m_result.applied);
    if (node->getName() != name)
        m_names.emplace_back(node, name);
}

// What was to be moved, was removed and found no place.
void Application::putBack()
{
    for (const auto& [change, taken] : m_taken)
        if (change->kind == Kind::Move && taken.table && !taken.isPlaced)
            taken.table->restore(change->from.getSteps().back().label, taken.slot, taken.node);
}

void Application::commit()
{
    for (auto& [group, table] : m_lookup.getTables())
        if (table.isChanged())
            table.commitRemovals([this, &group = *group](int start, int removed) {
                if (m_watch)
                    m_watch->aboutToChangeChildren(group, start, removed);
            });
    for (auto& [group, table] : m_lookup.getTables()) {
        if (!table.isChanged())
            continue;
        for (const SoRef<SoNode>& refused : table.commitInsertions())
            m_misfits.emplace_back(0, SbSentence("%1 cannot stand in %2, which it holds.",
                                                 labelOf(*refused).getString(), labelOf(*group).getString()));
    }
    for (const auto& [node, name] : m_names) {
        if (m_watch)
            m_watch->aboutToRename(*node);
        node->setName(name);
    }
    m_root = m_lookup.getRoot();
}

} // namespace

PatchResult applyChanges(const SceneChanges& changes, SoRef<SoNode>& root, PatchWatch* watch)
{
    return Application(changes, root, watch).run();
}

} // namespace xsg

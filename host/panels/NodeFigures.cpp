// SPDX-License-Identifier: MIT
#include "panels/NodeFigures.h"

#include "text/ValueBytes.h"

#include <xsg/actions/SoTraversal.h>
#include <xsg/core/SoField.h>
#include <xsg/nodes/base/SoGeometry.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <utility>
#include <vector>

namespace scopix
{

namespace
{

constexpr int SoonMs = 200;       // after a change, which may be one of many
constexpr int PieceMs = 6;        // of counting, before the user's events are looked at again
constexpr qint64 NodeBytes = 160; // without fields
constexpr qint64 FieldBytes = 96; // without its value

qint64 bytesOf(const SoNode& node)
{
    qint64 bytes = NodeBytes;
    const SoFieldData* data = node.getFieldData();
    for (const SoField* field = data->getField(&node, 0); field; field = data->getNext(field))
        bytes += FieldBytes + static_cast<qint64>(valueBytes(*field));
    return bytes;
}

} // namespace

class FigureWalk : private SoTraversal
{
public:
    using Figures = NodeFigures::Figures;

    FigureWalk(SoNode* root, const std::unordered_set<const SoNode*>& wanted)
        : m_wanted(wanted)
        , m_rootCount(root->getChangeCount())
    {
        m_open.emplace_back();
        begin(root);
    }
    using SoTraversal::advance;
    std::uint32_t rootCount() const { return m_rootCount; }
    std::unordered_map<const SoNode*, Figures> takeFound() { return std::move(m_found); }

private:
    void enterGroup(SoGroup* group) override
    {
        m_open.push_back({0, ownBytes(*group)});
        const SoChildRange chosen = group->getChosenChildren(state());
        for (int i = 0; i < group->getNumChildren(); ++i) {
            if (i < chosen.first || i >= chosen.last)
                addUnseen(*group->getChild(i));
        }
    }
    void leaveGroup(SoGroup* group) override
    {
        const Figures figures = m_open.back();
        m_open.pop_back();
        add(*group, figures);
    }
    void visitProperty(SoNode* node) override { add(*node, {0, ownBytes(*node)}); }
    void visitShape(SoShape* shape) override
    {
        const qint64 copies = state().instances ? static_cast<qint64>(state().instances->size()) : 1;
        add(*shape, {trianglesOf(*shape) * copies, ownBytes(*shape)});
    }

    void add(const SoNode& node, const Figures& figures)
    {
        m_open.back().triangles += figures.triangles;
        m_open.back().bytes += figures.bytes;
        if (m_wanted.count(&node) > 0)
            m_found.emplace(&node, figures);
    }
    // What a group does not show takes memory all the same.
    void addUnseen(SoNode& branch)
    {
        struct Open {
            SoNode* node;
            int next;
        };
        std::vector<Open> open{{&branch, 0}};
        m_open.push_back({0, ownBytes(branch)});
        while (!open.empty()) {
            Open& last = open.back();
            const SoGroup* group = last.node->asGroup();
            if (group && last.next < group->getNumChildren() &&
                (last.next > 0 || m_unseen.insert(group).second)) {
                SoNode* child = group->getChild(last.next++);
                open.push_back({child, 0});
                m_open.push_back({0, ownBytes(*child)});
                continue;
            }
            const Figures figures = m_open.back();
            m_open.pop_back();
            add(*last.node, figures);
            open.pop_back();
        }
    }
    qint64 ownBytes(const SoNode& node)
    {
        const bool isCounted = node.getParents().size() > 1 && !m_counted.insert(&node).second;
        return isCounted ? 0 : bytesOf(node);
    }
    qint64 trianglesOf(const SoShape& shape)
    {
        const auto [known, isNew] = m_triangles.try_emplace(shape.getGeometryKey(state()), 0);
        if (isNew) {
            SoGeometry geometry;
            shape.generate(state(), geometry);
            if (geometry.kind == SoGeometry::Kind::Triangles)
                known->second = static_cast<qint64>(geometry.index.size() / 3);
        }
        return known->second;
    }

    const std::unordered_set<const SoNode*> m_wanted;
    const std::uint32_t m_rootCount;
    std::vector<Figures> m_open; // of the groups that are open, the walk's own first
    std::unordered_map<const SoNode*, Figures> m_found;
    std::unordered_set<const SoNode*> m_unseen;  // groups that are not shown: each is looked into once
    std::unordered_set<const SoNode*> m_counted; // of those with several parents
    std::unordered_map<SoGeometryKey, qint64, SoGeometryKeyHash> m_triangles;
};

NodeFigures::NodeFigures(QObject* parent)
    : QObject(parent)
{
    m_soon.setSingleShot(true);
    connect(&m_pieces, &QTimer::timeout, this, &NodeFigures::advance);
    connect(&m_soon, &QTimer::timeout, this, &NodeFigures::begin);
}

NodeFigures::~NodeFigures() = default;

void NodeFigures::setRoot(SoNode* root)
{
    if (root == m_root.get())
        return;
    m_walk.reset();
    m_pieces.stop();
    m_soon.stop();
    m_wanted.clear();
    m_known.clear();
    m_root = root;
}

std::optional<NodeFigures::Figures> NodeFigures::find(const SoNode* node)
{
    const auto known = m_known.find(node);
    const bool isKnown = known != m_known.end();
    const bool isOld = isKnown && m_root && m_knownAt != m_root->getChangeCount();
    const bool isAsked = !m_wanted.insert(node).second;
    if ((isOld || (!isKnown && !isAsked)) && !isCounting())
        m_soon.start(isOld ? SoonMs : 0);
    return isKnown ? std::optional<Figures>(known->second) : std::nullopt;
}

void NodeFigures::begin()
{
    if (!m_root || m_wanted.empty())
        return;
    m_walk = std::make_unique<FigureWalk>(m_root.get(), m_wanted);
    m_pieces.start(0);
}

void NodeFigures::advance()
{
    // The walk must not go on in another scene.
    if (m_walk->rootCount() != m_root->getChangeCount()) {
        m_walk.reset();
        m_pieces.stop();
        return m_soon.start(SoonMs);
    }
    if (!m_walk->advance(std::chrono::steady_clock::now() + std::chrono::milliseconds(PieceMs)))
        return;
    m_pieces.stop();
    m_knownAt = m_walk->rootCount();
    m_known = m_walk->takeFound();
    m_walk.reset();
    // What does not stand in the scene has nothing to count; and what nobody asks about again is not counted
    // again.
    for (const SoNode* node : std::exchange(m_wanted, {}))
        m_known.emplace(node, Figures());
    emit changed();
}

} // namespace scopix

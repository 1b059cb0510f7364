// SPDX-License-Identifier: MIT
#include "commands/SceneCounts.h"

#include <xsg/actions/SoTraversal.h>
#include <xsg/core/SoMField.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <unordered_map>
#include <unordered_set>

namespace scopix
{

namespace
{

// A node with its share of the group that it is in.
constexpr std::int64_t NodeBytes = 240;
constexpr std::int64_t FieldBytes = 64;

std::int64_t pictureBytes(const SoField& field)
{
    const auto* image = dynamic_cast<const SoSFImage*>(&field);
    int width = 0;
    int height = 0;
    int components = 0;
    if (!image || !image->getValue(width, height, components))
        return 0;
    return std::int64_t{width} * height * components;
}

void addNode(SoNode& node, SceneCounts& counts)
{
    ++counts.nodes;
    counts.groups += node.asGroup() ? 1 : 0;
    counts.bytes += NodeBytes;
    bool hasPicture = false;
    const SoFieldData* data = node.getFieldData();
    for (SoField* field = data->getField(&node, 0); field; field = data->getNext(field)) {
        const auto* list = dynamic_cast<const SoMField*>(field);
        const std::int64_t picture = pictureBytes(*field);
        counts.bytes += FieldBytes + picture;
        if (list)
            counts.bytes += std::int64_t{list->getNum()} * static_cast<std::int64_t>(list->bytesPerValue());
        counts.pictureBytes += picture;
        hasPicture = hasPicture || picture > 0;
    }
    const auto* texture = dynamic_cast<const SoTexture2*>(&node);
    counts.pictures += hasPicture || (texture && !texture->getFilePath().empty()) ? 1 : 0;
}

void add(const SceneCounts& more, SceneCounts& counts)
{
    for (auto part : {&SceneCounts::nodes, &SceneCounts::groups, &SceneCounts::shapes,
                      &SceneCounts::triangles, &SceneCounts::lines, &SceneCounts::points,
                      &SceneCounts::pictures, &SceneCounts::pictureBytes, &SceneCounts::bytes})
        counts.*part += more.*part;
}

void addNodesBelow(SoNode* start, std::unordered_set<const SoNode*>& seen, SceneCounts& counts)
{
    std::vector<SoNode*> open{start};
    while (!open.empty()) {
        SoNode* node = open.back();
        open.pop_back();
        if (!seen.insert(node).second)
            continue;
        addNode(*node, counts);
        if (SoGroup* group = node->asGroup())
            open.insert(open.end(), group->getChildren().begin(), group->getChildren().end());
    }
}

/// Counts what is drawn below a group, child by child, with the state that it has in the scene.
class DrawnCounts : public SoTraversal
{
public:
    DrawnCounts(SoNode* node, std::vector<BranchCounts>& branches, SceneCounts& own)
        : m_node(node)
        , m_branches(branches)
        , m_own(own)
    {
    }

protected:
    void visitShape(SoShape* shape) override
    {
        SceneCounts* counts = shape == m_node ? &m_own : nullptr;
        for (const Frame& frame : getFrames())
            if (frame.group == m_node)
                counts = &m_branches[static_cast<std::size_t>(frame.child)].counts;
        if (counts)
            add(countsOf(*shape), *counts);
    }

private:
    const SceneCounts& countsOf(const SoShape& shape)
    {
        const auto [known, isNew] = m_known.try_emplace(shape.getGeometryKey(state()));
        if (!isNew)
            return known->second;
        SoGeometry geometry;
        shape.generate(state(), geometry);
        SceneCounts& counts = known->second;
        const auto size = static_cast<std::int64_t>(geometry.index.size());
        counts.shapes = 1;
        if (geometry.kind == SoGeometry::Kind::Triangles)
            counts.triangles = size / 3;
        else if (geometry.kind == SoGeometry::Kind::Lines)
            counts.lines = size / 2;
        else
            counts.points = size;
        return counts;
    }

    SoNode* m_node;
    std::vector<BranchCounts>& m_branches;
    SceneCounts& m_own;
    std::unordered_map<SoGeometryKey, SceneCounts, SoGeometryKeyHash> m_known;
};

} // namespace

SceneCounts countBranch(SoNode* root, SoNode* node, std::vector<BranchCounts>& branches)
{
    SceneCounts total;
    std::unordered_set<const SoNode*> seen{node};
    addNode(*node, total);
    if (SoGroup* group = node->asGroup()) {
        for (int i = 0; i < group->getNumChildren(); ++i) {
            branches.push_back({i, {}});
            addNodesBelow(group->getChild(i), seen, branches.back().counts);
        }
    }
    DrawnCounts(node, branches, total).traverse(root);
    for (const BranchCounts& branch : branches)
        add(branch.counts, total);
    return total;
}

} // namespace scopix

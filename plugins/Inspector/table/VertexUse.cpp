// SPDX-License-Identifier: MIT
#include "table/VertexUse.h"

#include <xsg/actions/SoPathTraversal.h>
#include <xsg/fields/SoMFInt32.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoNormals.h>
#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoTextureCoordinates.h>
#include <xsg/nodes/shapes/SoIndexedLineSet.h>
#include <xsg/nodes/shapes/SoIndexedPointSet.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/shapes/SoIndexedTriangleStripSet.h>

#include <algorithm>

namespace inspector
{

namespace
{

constexpr int MostVisited = 20'000; // nodes; a scene may be large, and the user waits

const SoField* indicesOf(const SoVertexShape& shape)
{
    if (const auto* triangles = dynamic_cast<const SoIndexedTriangleSet*>(&shape))
        return &triangles->index;
    if (const auto* strips = dynamic_cast<const SoIndexedTriangleStripSet*>(&shape))
        return &strips->index;
    if (const auto* lines = dynamic_cast<const SoIndexedLineSet*>(&shape))
        return &lines->index;
    const auto* points = dynamic_cast<const SoIndexedPointSet*>(&shape);
    return points ? &points->index : nullptr;
}

// Goes to the list's node and on to the first shape that sees it.
class Search : private SoPathTraversal
{
public:
    Search(const SoPath& path, const SoField& list)
        : SoPathTraversal(idsOf(path))
        , m_list(list)
    {
        state().chooseAll = true;
    }
    VertexUse find(SoNode* root)
    {
        traverse(root);
        return std::move(m_use);
    }

private:
    bool wantsGroup(SoGroup* group) override
    {
        if (getNumVisited() > MostVisited)
            stop();
        return m_isPast || SoPathTraversal::wantsGroup(group);
    }
    void leaveGroup(SoGroup* group) override
    {
        SoPathTraversal::leaveGroup(group);
        if (m_isPast && group->isStateScope() && getFrames().size() < m_depth)
            stop(); // what the node sets is seen no further
    }
    void visitProperty(SoNode* node) override
    {
        if (m_isPast || !isEnd(node))
            return;
        m_isPast = true;
        m_depth = getFrames().size();
    }
    void visitShape(SoShape* shape) override
    {
        const auto* corners = dynamic_cast<const SoVertexShape*>(shape);
        if (!corners || !state().points || (!m_isPast && !isEnd(shape)))
            return;
        m_use.kind = kindFor(*corners);
        if (m_use.kind == VertexUse::Kind::None)
            return;
        for (const Frame& frame : getFrames())
            m_use.shape.append(frame.group);
        m_use.shape.append(shape);
        m_use.points = state().points;
        stop();
    }
    VertexUse::Kind kindFor(const SoVertexShape& shape)
    {
        const bool hasColors = shape.colorBinding.getValue() == SoVertexShape::PerVertex;
        const auto isListOf = [this](const auto* node, auto member) {
            return node && &(node->*member) == &m_list;
        };
        if (isListOf(state().points, &SoPoints::points) || isListOf(state().normals, &SoNormals::vectors) ||
            isListOf(state().textureCoordinates, &SoTextureCoordinates::points) ||
            isListOf(state().secondTextureCoordinates, &SoTextureCoordinates::points) ||
            (hasColors && (isListOf(state().material.diffuseNode, &SoMaterial::diffuseColor) ||
                           isListOf(state().physicalMaterial, &SoPhysicalMaterial::baseColor))))
            return VertexUse::Kind::Values;
        return indicesOf(shape) == &m_list ? VertexUse::Kind::Indices : VertexUse::Kind::None;
    }

    const SoField& m_list;
    bool m_isPast = false; // the list's node was met, and what it sets is seen
    std::size_t m_depth = 0;
    VertexUse m_use;
};

} // namespace

VertexUse VertexUse::find(const SoPath& path, const SoField& list)
{
    return path.isEmpty() ? VertexUse() : Search(path, list).find(path.getHead());
}

int VertexUse::pointOf(const SoMField& list, int element) const
{
    const int point = kind == Kind::Indices ? static_cast<const SoMFInt32&>(list)[element] : element;
    return points && point >= 0 && point < points->points.getNum() ? point : -1;
}

// Only triangles say at once where a face's indices are.
int VertexUse::elementOf(const SoMField& list, int point, int face) const
{
    if (kind != Kind::Indices)
        return point < list.getNum() ? point : -1;
    const std::int32_t* const begin = static_cast<const SoMFInt32&>(list).getValues();
    const std::int32_t* const end = begin + list.getNum();
    const bool isOfTriangles = dynamic_cast<const SoIndexedTriangleSet*>(shape.getTail());
    const std::int32_t* const from =
        isOfTriangles && face >= 0 && face < list.getNum() / 3 ? begin + 3 * std::ptrdiff_t(face) : begin;
    const std::int32_t* const found = std::find(from, end, point);
    return found == end ? -1 : int(found - begin);
}

} // namespace inspector

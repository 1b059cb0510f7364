// SPDX-License-Identifier: MIT
#include <xsg/costs/SoCosts.h>

#include <xsg/actions/SoTraversal.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/nodes/base/SoGeometry.h>
#include <xsg/nodes/groups/SoLevelOfDetail.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <unordered_map>
#include <unordered_set>

namespace
{

constexpr std::int64_t SmallShape = 100; // triangles

template <class T>
std::int64_t bytesOf(const std::vector<T>& values)
{
    return static_cast<std::int64_t>(values.size() * sizeof(T));
}

// As it is uploaded, but for the tangents that pictures of normals need.
std::int64_t bytesOf(const SoGeometry& geometry)
{
    return bytesOf(geometry.points) + bytesOf(geometry.normals) + bytesOf(geometry.textureCoordinates) +
           bytesOf(geometry.secondTextureCoordinates) + bytesOf(geometry.colors) + bytesOf(geometry.index);
}

/// What one geometry takes.
struct MeshSize {
    std::int64_t triangles;
    std::int64_t bytes;
};

class CostWalk : private SoTraversal
{
public:
    CostWalk(const SoFittingImageReader& reader, const SoHiding* hiding)
        : m_reader(reader)
    {
        setHiding(hiding);
    }
    SoCosts count(SoNode* root)
    {
        m_rows.clear();
        traverse(root);
        return std::move(m_costs);
    }

private:
    void enterGroup(SoGroup* group) override
    {
        const std::size_t row = rowOf(group);
        m_open.push_back(row);
        m_levels += group->isOfType(SoLevelOfDetail::getClassTypeId());
    }
    void leaveGroup(SoGroup* group) override
    {
        m_open.pop_back();
        m_levels -= group->isOfType(SoLevelOfDetail::getClassTypeId());
    }
    void visitProperty(SoNode* node) override
    {
        const bool isNew = m_rows.count(node) == 0;
        const std::size_t row = rowOf(node);
        if (isNew && node->isOfType(SoTexture2::getClassTypeId()))
            addPicture(static_cast<const SoTexture2&>(*node), row);
    }
    void visitShape(SoShape* shape) override
    {
        const std::size_t row = rowOf(shape);
        const std::int64_t copies =
            state().instances ? static_cast<std::int64_t>(state().instances->size()) : 1;
        const auto [known, isNew] = m_meshes.try_emplace(shape->getGeometryKey(state()));
        if (isNew)
            known->second = sizeOf(*shape);
        const MeshSize& mesh = known->second;
        const auto newBytes = isNew ? mesh.bytes : 0;
        forEachOpen(row, [&](SoBranchCost& branch) {
            branch.shapes += copies;
            branch.triangles += mesh.triangles * copies;
            branch.meshBytes += newBytes;
            branch.smallShapes += mesh.triangles < SmallShape ? copies : 0;
        });
    }

    std::size_t rowOf(SoNode* node)
    {
        const auto [known, isNew] = m_rows.try_emplace(node, m_costs.branches.size());
        if (isNew) {
            SoBranchCost branch;
            branch.node = SoRef<SoNode>(node);
            branch.parent = m_open.empty() ? -1 : static_cast<int>(m_open.back());
            branch.hasLevels = m_levels > 0;
            m_costs.branches.push_back(std::move(branch));
        }
        return known->second;
    }
    // The row itself and the groups that are open, each once.
    template <class Act>
    void forEachOpen(std::size_t row, const Act& act)
    {
        act(m_costs.branches[row]);
        std::size_t last = row;
        for (auto open = m_open.rbegin(); open != m_open.rend(); ++open) {
            if (*open != last)
                act(m_costs.branches[*open]);
            last = *open;
        }
    }
    MeshSize sizeOf(const SoShape& shape)
    {
        SoGeometry geometry;
        shape.generate(state(), geometry);
        const bool isSurface = geometry.kind == SoGeometry::Kind::Triangles;
        return {isSurface ? static_cast<std::int64_t>(geometry.index.size() / 3) : 0,
                geometry.index.empty() ? 0 : bytesOf(geometry)};
    }
    void addPicture(const SoTexture2& texture, std::size_t row)
    {
        SoImageSize size;
        int components = 0;
        if (!texture.getFilePath().empty())
            askFile(texture.getFilePath(), size, components);
        else
            texture.image.getValue(size.width, size.height, components);
        if (size.isEmpty())
            return;
        // With its smaller copies, in four bytes a pixel as cards keep it.
        const std::int64_t bytes = std::int64_t{size.width} * size.height * 4 * 4 / 3;
        m_costs.branches[row].pictureWidth = size.width;
        m_costs.branches[row].pictureHeight = size.height;
        forEachOpen(row, [bytes](SoBranchCost& branch) { branch.pictureBytes += bytes; });
    }
    // Tells the size and takes no picture.
    void askFile(const std::string& path, SoImageSize& size, int& components) const
    {
        if (!m_reader)
            return;
        SoSFImage none;
        m_reader(
            path.c_str(),
            [&](const SoImageSize& whole, int bytesPerPixel) {
                size = whole;
                components = bytesPerPixel;
                return SoImageSize();
            },
            none);
    }

    const SoFittingImageReader& m_reader;
    SoCosts m_costs;
    std::unordered_map<const SoNode*, std::size_t> m_rows;
    std::vector<std::size_t> m_open;
    int m_levels = 0;
    std::unordered_map<SoGeometryKey, MeshSize, SoGeometryKeyHash> m_meshes;
};

} // namespace

const SoBranchCost* SoCosts::find(const SoNode* node) const
{
    for (const SoBranchCost& branch : branches) {
        if (branch.node.get() == node)
            return &branch;
    }
    return nullptr;
}

SoCosts countCosts(SoNode* root, const SoFittingImageReader& reader, const SoHiding* hiding)
{
    return CostWalk(reader, hiding).count(root);
}

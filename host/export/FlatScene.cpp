// SPDX-License-Identifier: MIT
#include "export/FlatScene.h"

#include "export/ExportNames.h"
#include "support/LongWork.h"

#include <xsg/actions/SoTraversal.h>
#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/nodes/lights/SoLight.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <map>
#include <set>

namespace scopix
{

namespace
{

QString leftOutKind(const SoNode& node)
{
    if (isA<SoLight>(node))
        return translated("lights");
    return isA<SoCamera>(node) ? translated("cameras") : lostKind(node);
}

bool isMirroring(const SbMatrix& matrix)
{
    const SbVec3f x = matrix.multDirection({1, 0, 0});
    const SbVec3f y = matrix.multDirection({0, 1, 0});
    return cross(x, y).dot(matrix.multDirection({0, 0, 1})) < 0;
}

class Flattener : public SoTraversal
{
public:
    FlatScene take(SoNode& root)
    {
        resetState();
        traverse(&root);
        for (const auto& kind : m_leftOut)
            m_scene.leftOut.insert(kind.first, static_cast<int>(kind.second.size()));
        m_scene.materials = m_materials.take();
        return std::move(m_scene);
    }

protected:
    void enterGroup(SoGroup* group) override { noteLoss(*group); }
    void visitShape(SoShape* shape) override
    {
        LongWork::goOn();
        SoGeometry geometry;
        shape->generate(state(), geometry);
        moveTextureCoordinates(state(), geometry);
        if (geometry.isScreenSpace || shape->asDrawingCallback())
            m_leftOut[translated("shapes without a place in space")].insert(shape);
        else if (!geometry.index.empty())
            state().forEachInstance(
                [&](const SbMatrix& toWorld) { add(*shape, geometry, shape->getPlacement() * toWorld); });
    }
    void visitProperty(SoNode* node) override
    {
        noteLoss(*node);
        if (isA<SoMaterial>(*node) || isA<SoPhysicalMaterial>(*node))
            m_materials.noteNode(*node);
    }

private:
    void noteLoss(const SoNode& node)
    {
        const QString kind = leftOutKind(node);
        if (!kind.isEmpty())
            m_leftOut[kind].insert(&node);
    }

    void add(const SoShape& shape, const SoGeometry& geometry, const SbMatrix& toWorld)
    {
        FlatScene::Mesh mesh{nearestName(shape), geometry, m_materials.placeOf(state(), shape)};
        for (SbVec3f& point : mesh.geometry.points)
            point = toWorld.multPoint(point);
        const SbMatrix forNormals = toWorld.inverse().value_or(SbMatrix()).transposed();
        for (SbVec3f& normal : mesh.geometry.normals)
            normal = forNormals.multDirection(normal).normalized();
        if (mesh.geometry.kind == SoGeometry::Kind::Triangles && isMirroring(toWorld))
            turnAround(mesh.geometry.index);
        m_scene.meshes.push_back(std::move(mesh));
    }

    // A mirrored triangle shows its back.
    static void turnAround(std::vector<std::uint32_t>& index)
    {
        for (std::size_t i = 0; i + 2 < index.size(); i += 3)
            std::swap(index[i + 1], index[i + 2]);
    }

    std::string nearestName(const SoShape& shape) const
    {
        std::string name = exportedName(shape);
        for (auto frame = getFrames().rbegin(); name.empty() && frame != getFrames().rend(); ++frame)
            name = exportedName(*frame->group);
        return name;
    }

    FlatScene m_scene;
    MaterialTable m_materials;
    std::map<QString, std::set<const SoNode*>> m_leftOut;
};

} // namespace

FlatScene flatten(SoNode& root)
{
    return Flattener().take(root);
}

} // namespace scopix

// SPDX-License-Identifier: MIT
#include "export/FlatScene.h"

#include <xsg/actions/SoTraversal.h>
#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/nodes/lights/SoLight.h>
#include <xsg/nodes/properties/SoClipPlane.h>
#include <xsg/nodes/properties/SoFog.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <QCoreApplication>

#include <array>
#include <map>
#include <set>
#include <tuple>

namespace scopix
{

namespace
{

QString translated(const char* text)
{
    return QCoreApplication::translate("SceneExport", text);
}

// Names hold Latin-1.
std::string nameOf(const SoNode& node)
{
    return QString::fromLatin1(node.getName().getString()).toStdString();
}

template <class Node>
bool isA(const SoNode& node)
{
    return node.isOfType(Node::getClassTypeId());
}

QString leftOutKind(const SoNode& node)
{
    if (isA<SoLight>(node))
        return translated("lights");
    if (isA<SoCamera>(node))
        return translated("cameras");
    if (isA<SoFog>(node))
        return translated("fogs");
    return isA<SoClipPlane>(node) ? translated("clip planes") : QString();
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
        return std::move(m_scene);
    }

protected:
    void visitShape(SoShape* shape) override
    {
        SoGeometry geometry;
        shape->generate(state(), geometry);
        if (geometry.isScreenSpace || shape->asDrawingCallback())
            m_leftOut[translated("shapes without a place in space")].insert(shape);
        else if (!geometry.index.empty())
            state().forEachInstance(
                [&](const SbMatrix& toWorld) { add(*shape, geometry, shape->getPlacement() * toWorld); });
    }
    void visitProperty(SoNode* node) override
    {
        const QString kind = leftOutKind(*node);
        if (!kind.isEmpty())
            m_leftOut[kind].insert(node);
        if (isA<SoMaterial>(*node))
            m_material = node;
    }

private:
    void add(const SoShape& shape, const SoGeometry& geometry, const SbMatrix& toWorld)
    {
        FlatScene::Mesh mesh{nearestName(shape), geometry, materialPlace()};
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
        std::string name = nameOf(shape);
        for (auto frame = getFrames().rbegin(); name.empty() && frame != getFrames().rend(); ++frame)
            name = nameOf(*frame->group);
        return name;
    }

    std::size_t materialPlace()
    {
        const SoMaterialState& look = state().material;
        const auto numbers = [](const SbColor& c) { return std::array<float, 3>{c[0], c[1], c[2]}; };
        const Key key{numbers(look.ambient),  numbers(look.diffuse), numbers(look.specular),
                      numbers(look.emissive), look.shininess,        look.transparency,
                      state().texture};
        const auto [place, isNew] = m_materials.emplace(key, m_scene.materials.size());
        if (isNew)
            m_scene.materials.push_back({newName(), look, state().texture});
        return place->second;
    }

    // A material without one is named by its place.
    std::string newName()
    {
        std::string name = m_material ? nameOf(*m_material) : std::string();
        for (char& c : name)
            c = c <= ' ' && c >= 0 ? '_' : c;
        const std::string number = std::to_string(m_scene.materials.size() + 1);
        if (name.empty() || !m_names.insert(name).second)
            name = (name.empty() ? "material" : name) + '_' + number;
        m_names.insert(name);
        return name;
    }

    using Color = std::array<float, 3>;
    using Key = std::tuple<Color, Color, Color, Color, float, float, const SoTexture2*>;

    FlatScene m_scene;
    std::map<Key, std::size_t> m_materials;
    std::set<std::string> m_names;
    std::map<QString, std::set<const SoNode*>> m_leftOut;
    const SoNode* m_material = nullptr;
};

} // namespace

FlatScene flatten(SoNode& root)
{
    return Flattener().take(root);
}

} // namespace scopix

// SPDX-License-Identifier: MIT
#include "export/GltfContent.h"

#include "export/ColorEncoding.h"
#include "export/ExportNames.h"
#include "support/LongWork.h"

#include <xsg/actions/SoTraversal.h>
#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/nodes/groups/SoInstances.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/lights/SoAmbientLight.h>
#include <xsg/nodes/lights/SoLight.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/shapes/SoShape.h>
#include <xsg/values/SbRotation.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <unordered_map>
#include <utility>

namespace scopix
{

namespace
{

// A channel of a highlight's colour that differs by less is not seen.
constexpr float SameColor = 0.02F;

// In glTF, what is sharp mirrors white.
bool hasItsOwnHighlight(const SoMaterialState& look)
{
    for (int i = 0; i < 3; ++i) {
        if (std::abs(look.specular[i] - look.shininess / 2) > SameColor)
            return true;
    }
    return false;
}

class Collector : public SoTraversal
{
public:
    GltfContent take(SoNode& root)
    {
        resetState();
        addNode(SbMatrix(), std::string());
        m_open.push_back(0);
        traverse(&root);
        m_content.materials = m_materials.take();
        for (const ExportedMaterial& material : m_content.materials)
            m_ownHighlights += !material.physical && hasItsOwnHighlight(material.look) ? 1 : 0;
        for (const auto& kind : m_leftOut)
            m_content.leftOut.insert(kind.first, static_cast<int>(kind.second.size()));
        m_content.leftOut.insert(translated("colours of highlights"), m_ownHighlights);
        return std::move(m_content);
    }

protected:
    void enterGroup(SoGroup* group) override
    {
        const bool isNode = group->isStateScope() && m_instancing == 0;
        m_opened.push_back(isNode);
        if (isNode) {
            const std::size_t node = addNode(state().modelMatrix, exportedName(*group));
            m_content.nodes[m_open.back()].children.push_back(node);
            m_open.push_back(node);
            state().modelMatrix = SbMatrix();
        }
        m_instancing += isA<SoInstances>(*group) ? 1 : 0;
        noteLoss(*group);
        if (isA<SoSwitch>(*group))
            lookAtHidden(*group);
    }
    void leaveGroup(SoGroup* group) override
    {
        m_instancing -= isA<SoInstances>(*group) ? 1 : 0;
        if (m_opened.back())
            m_open.pop_back();
        m_opened.pop_back();
    }
    void visitShape(SoShape* shape) override
    {
        LongWork::goOn();
        const int mesh = meshOf(*shape);
        if (mesh == GltfContent::None)
            return;
        state().forEachInstance([&](const SbMatrix& toNode) {
            addChild(shape->getPlacement() * toNode, exportedName(*shape)).mesh = mesh;
        });
    }
    void visitProperty(SoNode* node) override
    {
        noteLoss(*node);
        if (isA<SoMaterial>(*node) || isA<SoPhysicalMaterial>(*node))
            m_materials.noteNode(*node);
        else if (isA<SoLight>(*node))
            addLight(static_cast<const SoLight&>(*node));
        else if (isA<SoCamera>(*node))
            addCamera(static_cast<const SoCamera&>(*node));
    }

private:
    void noteLoss(const SoNode& node)
    {
        const QString kind = lostKind(node);
        if (!kind.isEmpty())
            m_leftOut[kind].insert(&node);
    }

    std::size_t addNode(const SbMatrix& matrix, std::string name)
    {
        GltfContent::Node node;
        node.name = std::move(name);
        node.matrix = matrix;
        m_content.nodes.push_back(std::move(node));
        return m_content.nodes.size() - 1;
    }
    GltfContent::Node& addChild(const SbMatrix& matrix, std::string name)
    {
        const std::size_t node = addNode(matrix, std::move(name));
        m_content.nodes[m_open.back()].children.push_back(node);
        return m_content.nodes[node];
    }

    // Cameras wait in switches to be looked through.
    void lookAtHidden(const SoGroup& group)
    {
        const SoChildRange chosen = group.getChosenChildren(state());
        for (int i = 0; i < group.getNumChildren(); ++i) {
            const SoNode& child = *group.getChild(i);
            if (i >= chosen.first && i < chosen.last)
                continue;
            if (isA<SoCamera>(child))
                addCamera(static_cast<const SoCamera&>(child));
            else
                m_leftOut[translated("hidden parts")].insert(&child);
        }
    }

    int meshOf(const SoShape& shape)
    {
        const std::size_t material = m_materials.placeOf(state(), shape);
        std::vector<KnownMesh>& known = m_meshes[shape.getGeometryKey(state())];
        for (const KnownMesh& mesh : known) {
            if (mesh.material == material && mesh.textureMatrix == state().textureMatrix)
                return mesh.place;
        }
        known.push_back({material, state().textureMatrix, addMesh(shape, material)});
        return known.back().place;
    }

    int addMesh(const SoShape& shape, std::size_t material)
    {
        GltfContent::Mesh mesh{nearestName(shape), {}, material};
        shape.generate(state(), mesh.geometry);
        moveTextureCoordinates(state(), mesh.geometry);
        // There is no second set without a first one.
        if (!mesh.geometry.secondTextureCoordinates.empty())
            mesh.geometry.textureCoordinates.resize(mesh.geometry.points.size());
        if (!state().physicalMaterial) {
            for (SbVec3f& color : mesh.geometry.colors)
                color = toLinear(color);
        }
        if (mesh.geometry.isScreenSpace || shape.asDrawingCallback())
            m_leftOut[translated("shapes without a place in space")].insert(&shape);
        if (mesh.geometry.isScreenSpace || mesh.geometry.index.empty())
            return GltfContent::None;
        m_content.meshes.push_back(std::move(mesh));
        return static_cast<int>(m_content.meshes.size()) - 1;
    }

    std::string nearestName(const SoShape& shape) const
    {
        std::string name = exportedName(shape);
        for (auto frame = getFrames().rbegin(); name.empty() && frame != getFrames().rend(); ++frame)
            name = exportedName(*frame->group);
        return name;
    }

    void addLight(const SoLight& light)
    {
        if (!light.on.getValue())
            return;
        if (isA<SoAmbientLight>(light)) {
            m_leftOut[translated("ambient lights")].insert(&light);
            return;
        }
        const SoLightSource source = light.getSource(state().modelMatrix);
        const SbMatrix place = SbMatrix::rotation(SbRotation::between({0, 0, -1}, source.direction)) *
                               SbMatrix::translation(source.location);
        addChild(place, exportedName(light)).light = static_cast<int>(m_content.lights.size());
        m_content.lights.push_back(
            {exportedName(light), source, light.intensity.getValue(), light.color.getValue()});
        if (source.kind != SoLightSource::Kind::Directional)
            m_leftOut[translated("how lights fade with distance")].insert(&light);
    }

    void addCamera(const SoCamera& camera)
    {
        const SbMatrix place = SbMatrix::rotation(camera.orientation.getValue()) *
                               SbMatrix::translation(camera.position.getValue()) * state().modelMatrix;
        addChild(place, exportedName(camera)).camera = static_cast<int>(m_content.cameras.size());
        m_content.cameras.push_back(&camera);
    }

    struct KnownMesh {
        std::size_t material;
        SoShared<SbMatrix> textureMatrix;
        int place;
    };

    GltfContent m_content;
    MaterialTable m_materials;
    std::vector<std::size_t> m_open; // nodes, from the root
    std::vector<bool> m_opened;      // for each open group: whether it is a node
    int m_instancing = 0;            // open groups that repeat what is in them
    int m_ownHighlights = 0;
    std::unordered_map<SoGeometryKey, std::vector<KnownMesh>, SoGeometryKeyHash> m_meshes;
    std::map<QString, std::set<const SoNode*>> m_leftOut;
};

/// Takes out what only a scene graph needs: a matrix that all children have is their parent's, and a node
/// that has nothing but one mesh below it has the mesh itself.
class Tidying
{
public:
    explicit Tidying(GltfContent& content)
        : m_nodes(content.nodes)
        , m_meshes(content.meshes)
    {
    }

    void run()
    {
        for (std::size_t i = m_nodes.size(); i > 0; --i) {
            liftMatrix(m_nodes[i - 1]);
            takeMesh(m_nodes[i - 1]);
        }
        dropUnused();
    }

private:
    using Node = GltfContent::Node;

    void liftMatrix(Node& node)
    {
        if (node.children.empty())
            return;
        const SbMatrix matrix = m_nodes[node.children.front()].matrix;
        for (const std::size_t child : node.children) {
            if (!(m_nodes[child].matrix == matrix))
                return;
        }
        for (const std::size_t child : node.children)
            m_nodes[child].matrix = SbMatrix();
        node.matrix = matrix * node.matrix;
    }

    void takeMesh(Node& node)
    {
        if (node.children.size() != 1)
            return;
        const Node& child = m_nodes[node.children.front()];
        const bool isBare = child.children.empty() && child.light < 0 && child.camera < 0 && child.mesh >= 0;
        if (!isBare || !(child.matrix == SbMatrix()))
            return;
        const std::string& mesh = m_meshes[static_cast<std::size_t>(child.mesh)].name;
        if (!child.name.empty() && !node.name.empty() && child.name != mesh)
            return;
        node.name = node.name.empty() ? child.name : node.name;
        node.mesh = child.mesh;
        node.children.clear();
    }

    void dropUnused()
    {
        std::vector<std::size_t> kept{0};
        for (std::size_t i = 0; i < kept.size(); ++i)
            kept.insert(kept.end(), m_nodes[kept[i]].children.begin(), m_nodes[kept[i]].children.end());
        std::vector<std::size_t> places(m_nodes.size());
        for (std::size_t i = 0; i < kept.size(); ++i)
            places[kept[i]] = i;
        std::vector<Node> nodes;
        nodes.reserve(kept.size());
        for (const std::size_t old : kept) {
            nodes.push_back(std::move(m_nodes[old]));
            for (std::size_t& child : nodes.back().children)
                child = places[child];
        }
        m_nodes = std::move(nodes);
    }

    std::vector<Node>& m_nodes;
    std::vector<GltfContent::Mesh>& m_meshes;
};

// Readers find lights and cameras by the names of their nodes.
void nameLightsAndCameras(std::vector<GltfContent::Node>& nodes)
{
    std::multiset<std::string> names;
    for (const GltfContent::Node& node : nodes)
        names.insert(node.name);
    for (GltfContent::Node& node : nodes) {
        if (node.light < 0 && node.camera < 0)
            continue;
        const std::string kind = node.light >= 0 ? "Light" : "Camera";
        const std::string stem = node.name.empty() ? kind : node.name;
        names.erase(names.find(node.name));
        node.name = stem;
        for (int number = 2; names.count(node.name) > 0; ++number)
            node.name = stem + ' ' + std::to_string(number);
        names.insert(node.name);
    }
}

// The scene's own root takes the place of the one that everything is collected in.
void takeRoot(GltfContent& content)
{
    GltfContent::Node& top = content.nodes.front();
    if (top.children.size() != 1 || top.mesh >= 0)
        return;
    const SbMatrix outside = top.matrix;
    GltfContent::Node root = std::exchange(content.nodes[top.children.front()], {});
    root.matrix = root.matrix * outside;
    content.nodes.front() = std::move(root);
}

} // namespace

GltfContent toGltf(SoNode& root)
{
    GltfContent content = Collector().take(root);
    takeRoot(content);
    Tidying(content).run();
    nameLightsAndCameras(content.nodes);
    return content;
}

} // namespace scopix

// SPDX-License-Identifier: MIT
#include "export/GltfContent.h"

#include "export/BentPoints.h"
#include "export/ColorEncoding.h"
#include "export/ExportNames.h"
#include "export/GltfMotion.h"
#include "export/GltfTidying.h"
#include "export/SceneMotion.h"
#include "support/LongWork.h"

#include <xsg/actions/SoTraversal.h>
#include <xsg/nodes/animation/SoAnimation.h>
#include <xsg/nodes/animation/SoMorph.h>
#include <xsg/nodes/animation/SoSkin.h>
#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/nodes/groups/SoInstances.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/lights/SoAmbientLight.h>
#include <xsg/nodes/lights/SoLight.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoNormals.h>
#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/shapes/SoShape.h>
#include <xsg/nodes/transforms/SoTransformation.h>
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
    explicit Collector(const SceneMotion& motion)
        : m_motion(motion)
    {
    }

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
        m_openBefore.push_back(isNode ? m_open.size() : 0);
        if (isNode)
            open(state().modelMatrix, exportedName(*group));
        m_instancing += isA<SoInstances>(*group) ? 1 : 0;
        noteLoss(*group);
        if (isA<SoSwitch>(*group))
            lookAtHidden(*group);
        note();
    }
    void leaveGroup(SoGroup* group) override
    {
        m_instancing -= isA<SoInstances>(*group) ? 1 : 0;
        if (m_openBefore.back() > 0)
            m_open.resize(m_openBefore.back());
        m_openBefore.pop_back();
        note();
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
        m_bending.noteNode(*node, state());
        if (m_instancing == 0 && m_motion.isMover(*node) && isA<SoTransformation>(*node))
            openMoved(static_cast<const SoTransformation&>(*node));
        else if (isA<SoMaterial>(*node) || isA<SoPhysicalMaterial>(*node))
            m_materials.noteNode(*node);
        else if (isA<SoLight>(*node))
            addLight(static_cast<const SoLight&>(*node));
        else if (isA<SoCamera>(*node))
            addCamera(static_cast<const SoCamera&>(*node));
        note();
    }

private:
    void note()
    {
        m_bending.note(state());
        m_matrix = state().modelMatrix;
    }

    // Tracks, skins and morph targets are counted once it is known where they lead.
    void noteLoss(const SoNode& node)
    {
        if (isA<SoAnimation>(node) || isA<SoSkin>(node) || isA<SoMorph>(node))
            return;
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
    std::size_t open(const SbMatrix& matrix, std::string name)
    {
        const std::size_t node = addNode(matrix, std::move(name));
        m_content.nodes[m_open.back()].children.push_back(node);
        m_open.push_back(node);
        state().modelMatrix = SbMatrix();
        return node;
    }

    // All that follows in the open node is in one of its own.
    void openMoved(const SoTransformation& transform)
    {
        if (!(m_matrix == SbMatrix()))
            open(m_matrix, {});
        m_content.nodes[open(SbMatrix(), exportedName(transform))].mover = &transform;
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
        const BentPoints* bent = m_bending.find(state());
        if (bent && !bent->isKnown) {
            noteBent(bent->morph);
            noteBent(bent->skin);
            bent = nullptr;
        }
        const SoState still = bent ? withoutBending(state(), *bent) : state();
        const std::size_t material = m_materials.placeOf(still, shape);
        std::vector<KnownMesh>& known = m_meshes[shape.getGeometryKey(still)];
        const SoNode* morph = bent ? bent->morph : nullptr;
        const SoNode* skin = bent ? bent->skin : nullptr;
        for (const KnownMesh& mesh : known) {
            if (mesh.material == material && mesh.textureMatrix == still.textureMatrix &&
                mesh.morph == morph && mesh.skin == skin)
                return mesh.place;
        }
        known.push_back({material, still.textureMatrix, morph, skin, addMesh(shape, still, material, bent)});
        return known.back().place;
    }

    void noteBent(const SoNode* node)
    {
        if (node)
            m_leftOut[lostKind(*node)].insert(node);
    }

    int addMesh(const SoShape& shape, const SoState& from, std::size_t material, const BentPoints* bent)
    {
        GltfContent::Mesh mesh;
        mesh.name = nearestName(shape);
        mesh.material = material;
        mesh.geometry = geometryOf(shape, from);
        if (mesh.geometry.isScreenSpace || shape.asDrawingCallback())
            m_leftOut[translated("shapes without a place in space")].insert(&shape);
        if (mesh.geometry.isScreenSpace || mesh.geometry.index.empty())
            return GltfContent::None;
        if (bent)
            addBending(mesh, shape, from, *bent);
        m_content.meshes.push_back(std::move(mesh));
        return static_cast<int>(m_content.meshes.size()) - 1;
    }

    void addBending(GltfContent::Mesh& mesh, const SoShape& shape, const SoState& from,
                    const BentPoints& bent)
    {
        mesh.morph = bent.morph;
        mesh.skin = bent.skin;
        mesh.places = placesOfCorners(shape, from);
        const int points = from.points->points.getNum();
        mesh.hasMorphedNormals = bent.morph && from.normals && from.normals->vectors.getNum() == points &&
                                 bent.morph->normalOffsets.getNum() == bent.morph->pointOffsets.getNum();
        if (bent.skin)
            mesh.posed = geometryOf(shape, state());
    }

    static SoGeometry geometryOf(const SoShape& shape, const SoState& from)
    {
        SoGeometry geometry;
        shape.generate(from, geometry);
        moveTextureCoordinates(from, geometry);
        // There is no second set without a first one.
        if (!geometry.secondTextureCoordinates.empty())
            geometry.textureCoordinates.resize(geometry.points.size());
        if (!from.physicalMaterial) {
            for (SbVec3f& color : geometry.colors)
                color = toLinear(color);
        }
        return geometry;
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
        const SoNode* morph;
        const SoNode* skin;
        int place;
    };

    const SceneMotion& m_motion;
    GltfContent m_content;
    MaterialTable m_materials;
    BentPointsWalk m_bending;
    SbMatrix m_matrix;                     // before the present node
    std::vector<std::size_t> m_open;       // nodes, from the root
    std::vector<std::size_t> m_openBefore; // for each open group: how many there were; 0 for one that is none
    int m_instancing = 0;                  // open groups that repeat what is in them
    int m_ownHighlights = 0;
    std::unordered_map<SoGeometryKey, std::vector<KnownMesh>, SoGeometryKeyHash> m_meshes;
    std::map<QString, std::set<const SoNode*>> m_leftOut;
};

} // namespace

GltfContent toGltf(SoNode& root)
{
    const SceneMotion motion(root);
    GltfContent content = Collector(motion).take(root);
    tidy(content);
    addMotion(content, motion);
    nameWhatIsReferredTo(content);
    return content;
}

} // namespace scopix

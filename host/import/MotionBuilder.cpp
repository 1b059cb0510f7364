// SPDX-License-Identifier: MIT
#include "import/MotionBuilder.h"

#include "import/TransformBuilder.h"
#include "text/NodeText.h"

#include <xsg/nodes/animation/SoAnimation.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <algorithm>
#include <set>

namespace scopix
{

namespace
{

template <class Items>
auto& at(Items& items, int place)
{
    return items[static_cast<std::size_t>(place)];
}

const char* fieldOf(ModelMotion::Property property)
{
    switch (property) {
    case ModelMotion::Property::Translation:
        return "translation";
    case ModelMotion::Property::Rotation:
        return "rotation";
    case ModelMotion::Property::Scale:
        return "scaleFactor";
    case ModelMotion::Property::Weights:
        break;
    }
    return "weights";
}

template <class Part>
std::vector<int> byMesh(const std::vector<Part>& parts, std::size_t meshes)
{
    std::vector<int> places(meshes, -1);
    for (std::size_t i = 0; i < parts.size(); ++i)
        at(places, parts[i].mesh) = static_cast<int>(i);
    return places;
}

} // namespace

MotionBuilder::MotionBuilder(ModelData& model)
    : m_model(model)
    , m_parents(model.nodes.size(), -1)
    , m_isMoved(model.nodes.size())
    , m_isBone(model.nodes.size())
    , m_transforms(model.nodes.size())
    , m_skinOf(byMesh(model.motion.skins, model.meshes.size()))
    , m_morphOf(byMesh(model.motion.morphs, model.meshes.size()))
    , m_morphs(model.meshes.size())
{
    findParents();
    findMoved();
    findBones();
}

void MotionBuilder::findParents()
{
    for (std::size_t i = 0; i < m_model.nodes.size(); ++i) {
        for (const int child : m_model.nodes[i].children)
            at(m_parents, child) = static_cast<int>(i);
    }
}

void MotionBuilder::findMoved()
{
    for (const ModelMotion::Clip& clip : m_model.motion.clips) {
        for (const ModelMotion::Track& track : clip.tracks) {
            if (track.property != ModelMotion::Property::Weights)
                m_isMoved[static_cast<std::size_t>(track.node)] = true;
        }
    }
}

void MotionBuilder::findBones()
{
    for (const ModelMotion::Skin& skin : m_model.motion.skins) {
        for (const int bone : skin.bones)
            m_isBone[static_cast<std::size_t>(bone)] = true;
    }
}

bool MotionBuilder::isMover(int node) const
{
    const auto place = static_cast<std::size_t>(node);
    return m_isMoved[place] || m_isBone[place];
}

SoTransformation* MotionBuilder::makeTransform(int node)
{
    const SbMatrix& matrix = at(m_model.nodes, node).matrix;
    if (m_isMoved[static_cast<std::size_t>(node)])
        at(m_transforms, node) = SoRef<SoTransformation>(makeMovablePlacement(matrix));
    else if (matrix != SbMatrix())
        at(m_transforms, node) = SoRef<SoTransformation>(makePlacement(matrix));
    return at(m_transforms, node).get();
}

void MotionBuilder::bend(SoSeparator& group, int mesh, int node)
{
    SoRef<SoMorph>& morph = at(m_morphs, mesh);
    if (const int place = at(m_morphOf, mesh); place >= 0 && !morph) {
        ModelMotion::Morph& from = at(m_model.motion.morphs, place);
        morph = SoRef<SoMorph>(new SoMorph);
        morph->weights.setValues(std::move(from.weights));
        morph->pointOffsets.setValues(std::move(from.pointOffsets));
        if (!from.normalOffsets.empty())
            morph->normalOffsets.setValues(std::move(from.normalOffsets));
    }
    if (morph)
        group.addChild(morph.get());
    if (!isSkinned(mesh))
        return;
    m_bent.push_back({SoRef<SoSkin>(new SoSkin), at(m_skinOf, mesh), node});
    group.addChild(m_bent.back().node.get());
}

void MotionBuilder::finish(SoSeparator& scene)
{
    for (const Bent& bent : m_bent)
        complete(bent);
    for (ModelMotion::Clip& clip : m_model.motion.clips)
        addClip(scene, clip);
}

// The bones, what they stand in, and what the mesh stands in: parents first, as the nodes are.
std::vector<int> MotionBuilder::skeletonOf(const Bent& bent) const
{
    std::set<int> nodes;
    const auto addWithParents = [&](int node) {
        while (node >= 0 && nodes.insert(node).second)
            node = at(m_parents, node);
    };
    addWithParents(bent.place);
    for (const int bone : at(m_model.motion.skins, bent.skin).bones)
        addWithParents(bone);
    return {nodes.begin(), nodes.end()};
}

void MotionBuilder::complete(const Bent& bent)
{
    const ModelMotion::Skin& skin = at(m_model.motion.skins, bent.skin);
    const std::vector<int> skeleton = skeletonOf(bent);
    const auto placeOf = [&](int node) {
        const auto place = std::lower_bound(skeleton.begin(), skeleton.end(), node);
        return place != skeleton.end() && *place == node ? static_cast<int>(place - skeleton.begin()) : -1;
    };
    std::vector<SoRef<SoNode>> bones;
    std::vector<std::int32_t> parents;
    for (const int node : skeleton) {
        bones.emplace_back(at(m_transforms, node).get());
        parents.push_back(placeOf(at(m_parents, node)));
    }
    // A bone of its own keeps points that belong to none where the mesh stands.
    const int place = placeOf(bent.place);
    const int still = static_cast<int>(bones.size());
    bones.emplace_back(nullptr);
    parents.push_back(place);
    std::vector<SbMatrix> binds(bones.size());
    std::vector<int> places;
    for (std::size_t i = 0; i < skin.bones.size(); ++i) {
        places.push_back(placeOf(skin.bones[i]));
        at(binds, places.back()) = skin.binds[i];
    }
    std::vector<std::int32_t> indices;
    for (const std::int32_t bone : skin.boneIndices)
        indices.push_back(bone < 0 ? still : at(places, bone));
    bent.node->bones.setValues(std::move(bones));
    bent.node->parents.setValues(std::move(parents));
    bent.node->binds.setValues(std::move(binds));
    bent.node->place.setValue(place);
    bent.node->bonesPerPoint.setValue(skin.bonesPerPoint);
    bent.node->boneIndices.setValues(std::move(indices));
    bent.node->weights.setValues(skin.weights);
}

std::vector<SoRef<SoNode>> MotionBuilder::targetsOf(const ModelMotion::Track& track) const
{
    if (track.property != ModelMotion::Property::Weights)
        return {SoRef<SoNode>(at(m_transforms, track.node).get())};
    std::vector<SoRef<SoNode>> targets;
    for (const int mesh : at(m_model.nodes, track.node).meshes)
        targets.emplace_back(at(m_morphs, mesh).get());
    return targets;
}

void MotionBuilder::addClip(SoSeparator& scene, ModelMotion::Clip& clip)
{
    const SoRef<SoAnimation> animation(new SoAnimation);
    if (!clip.name.empty())
        animation->setName(toName(QString::fromStdString(clip.name)));
    for (const ModelMotion::Track& track : clip.tracks) {
        for (const SoRef<SoNode>& target : targetsOf(track)) {
            if (!target)
                continue;
            auto* node = new SoTrack;
            animation->addChild(node);
            node->target.setValue(target);
            node->field.setValue(SbName(fieldOf(track.property)));
            if (track.between != ModelMotion::Between::Linear)
                node->interpolation.setValue(static_cast<int>(track.between));
            node->times.setValues(track.times);
            node->values.setValues(track.values);
        }
    }
    if (animation->getNumChildren() > 0)
        scene.addChild(animation.get());
}

} // namespace scopix

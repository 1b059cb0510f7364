// SPDX-License-Identifier: MIT
#include "export/GltfMotion.h"

#include "export/ExportNames.h"
#include "export/GltfKeys.h"
#include "export/SceneMotion.h"

#include <xsg/nodes/animation/SoAnimatedValues.h>
#include <xsg/nodes/animation/SoAnimation.h>
#include <xsg/nodes/animation/SoMorph.h>
#include <xsg/nodes/animation/SoSkin.h>
#include <xsg/nodes/animation/SoTrack.h>
#include <xsg/nodes/transforms/SoTransformation.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <set>

namespace scopix
{

namespace
{

bool areNear(const SbMatrix& a, const SbMatrix& b, int firstRow, int lastRow, float largest)
{
    constexpr float Near = 1e-3F;
    for (int i = 4 * firstRow; i < 4 * (lastRow + 1); ++i) {
        if (!(std::abs(a.getValue()[i] - b.getValue()[i]) <= Near * largest))
            return false;
    }
    return true;
}

float largestOf(const SbMatrix& matrix, int rows)
{
    float largest = 0;
    for (int i = 0; i < 4 * rows; ++i)
        largest = std::max(largest, std::abs(matrix.getValue()[i]));
    return largest;
}

// The same place, as far as it can be told from numbers that were computed in two ways.
bool isSamePlace(const SbMatrix& a, const SbMatrix& b)
{
    return areNear(a, b, 0, 2, largestOf(a, 3)) && areNear(a, b, 3, 3, largestOf(a, 4));
}

class SkinBuilder
{
public:
    explicit SkinBuilder(GltfContent& content)
        : m_content(content)
    {
        m_toWorld.resize(content.nodes.size());
        for (std::size_t i = 0; i < content.nodes.size(); ++i)
            place(i);
    }

    void build()
    {
        std::map<int, std::vector<std::size_t>> byMesh;
        for (std::size_t i = 0; i < m_content.nodes.size(); ++i) {
            const int mesh = m_content.nodes[i].mesh;
            if (mesh >= 0 && m_content.meshes[static_cast<std::size_t>(mesh)].skin)
                byMesh[mesh].push_back(i);
        }
        for (const auto& [mesh, nodes] : byMesh)
            bend(static_cast<std::size_t>(mesh), nodes);
        for (GltfContent::Mesh& mesh : m_content.meshes)
            mesh.posed = SoGeometry();
    }

private:
    // Parents stand before their children.
    void place(std::size_t node)
    {
        const GltfContent::Node& it = m_content.nodes[node];
        m_toWorld[node] = (it.mover ? it.mover->getMatrix() : it.matrix) * m_toWorld[node];
        for (const std::size_t child : it.children)
            m_toWorld[child] = m_toWorld[node];
        if (it.mover)
            m_movers[it.mover].push_back(node);
    }

    // A mesh that cannot be bent where it stands is there as it is at present.
    void bend(std::size_t mesh, const std::vector<std::size_t>& nodes)
    {
        std::vector<std::size_t> stiff;
        for (const std::size_t node : nodes) {
            m_content.nodes[node].skin = makeSkin(*m_content.meshes[mesh].skin, m_toWorld[node]);
            if (m_content.nodes[node].skin < 0)
                stiff.push_back(node);
        }
        if (stiff.empty())
            return;
        noteLoss(m_content.meshes[mesh]);
        GltfContent::Mesh posed;
        posed.name = m_content.meshes[mesh].name;
        posed.material = m_content.meshes[mesh].material;
        posed.geometry = m_content.meshes[mesh].posed;
        if (stiff.size() == nodes.size()) {
            m_content.meshes[mesh] = std::move(posed);
            return;
        }
        for (const std::size_t node : stiff)
            m_content.nodes[node].mesh = static_cast<int>(m_content.meshes.size());
        m_content.meshes.push_back(std::move(posed));
    }

    void noteLoss(const GltfContent::Mesh& mesh)
    {
        if (m_lost.insert(mesh.skin).second)
            ++m_content.leftOut[lostKind(*mesh.skin)];
        if (mesh.morph && m_lost.insert(mesh.morph).second)
            ++m_content.leftOut[lostKind(*mesh.morph)];
    }

    // Adds nodes, so that references to places do not last.
    int makeSkin(const SoSkin& from, const SbMatrix meshToWorld)
    {
        const std::vector<SbMatrix> places = from.getBonePlaces();
        const std::vector<int> bones = bonesInUse(from);
        GltfContent::Skin skin{&from, std::vector<std::size_t>(bones.size())};
        std::set<std::size_t> used;
        for (std::size_t i = 0; i < bones.size(); ++i) {
            if (!from.bones[bones[i]])
                continue;
            const auto node = findNode(from, bones[i], places, meshToWorld);
            if (!node || !used.insert(*node).second)
                return GltfContent::None;
            skin.joints[i] = *node;
        }
        for (std::size_t i = 0; i < bones.size(); ++i) {
            if (from.bones[bones[i]])
                continue;
            const auto node = findStill(from, bones[i], places, meshToWorld, used);
            if (!node)
                return GltfContent::None;
            used.insert(*node);
            skin.joints[i] = *node;
        }
        return add(std::move(skin));
    }

    int add(GltfContent::Skin skin)
    {
        for (const std::size_t joint : skin.joints)
            m_content.nodes[joint].isJoint = true;
        m_content.skins.push_back(std::move(skin));
        return static_cast<int>(m_content.skins.size()) - 1;
    }

    // The node with the bone's transform that stands where the bone does.
    std::optional<std::size_t> findNode(const SoSkin& skin, int bone, const std::vector<SbMatrix>& places,
                                        const SbMatrix& meshToWorld) const
    {
        const auto all = m_movers.find(skin.bones[bone].get());
        const SbMatrix place = places[static_cast<std::size_t>(bone)] * meshToWorld;
        if (all != m_movers.end())
            for (const std::size_t node : all->second) {
                if (isSamePlace(place, m_toWorld[node]))
                    return node;
            }
        return {};
    }

    // A bone without a transform stands where the next one above it does. No node can be two joints.
    std::optional<std::size_t> findStill(const SoSkin& skin, int bone, const std::vector<SbMatrix>& places,
                                         const SbMatrix& meshToWorld, const std::set<std::size_t>& used)
    {
        int above = bone;
        while (above >= 0 && !skin.bones[above])
            above = skin.parents[above];
        const SbMatrix place = places[static_cast<std::size_t>(bone)] * meshToWorld;
        std::optional<std::size_t> node;
        if (above >= 0)
            node = findNode(skin, above, places, meshToWorld);
        else if (isSamePlace(place, m_toWorld.front()))
            node = 0;
        if (node && used.count(*node) == 0)
            return node;
        const std::optional<SbMatrix> fromWorld = m_toWorld.front().inverse();
        if (node)
            return addNode(*node, SbMatrix());
        return above < 0 && fromWorld ? std::optional(addNode(0, place * *fromWorld)) : std::nullopt;
    }

    std::size_t addNode(std::size_t parent, const SbMatrix& matrix)
    {
        const std::size_t node = m_content.nodes.size();
        m_content.nodes.emplace_back();
        m_content.nodes.back().matrix = matrix;
        m_content.nodes[parent].children.push_back(node);
        m_toWorld.push_back(matrix * m_toWorld[parent]);
        return node;
    }

    GltfContent& m_content;
    std::vector<SbMatrix> m_toWorld;
    std::map<const SoNode*, std::vector<std::size_t>> m_movers;
    std::set<const SoNode*> m_lost;
};

class ClipBuilder
{
public:
    explicit ClipBuilder(const GltfContent& content)
    {
        for (std::size_t i = 0; i < content.nodes.size(); ++i) {
            const GltfContent::Node& node = content.nodes[i];
            const SoMorph* morph =
                node.mesh < 0 ? nullptr : content.meshes[static_cast<std::size_t>(node.mesh)].morph;
            if (node.mover)
                m_nodes[node.mover].push_back(i);
            if (morph)
                m_nodes[morph].push_back(i);
        }
    }

    GltfContent::Clip build(const SoAnimation& animation)
    {
        GltfContent::Clip clip;
        clip.name = exportedName(animation);
        std::map<const SoField*, const SoTrack*> tracks; // of several for one field, the last one is shown
        for (const SoNode* child : animation.getChildren()) {
            if (isA<SoTrack>(*child))
                tracks[static_cast<const SoTrack*>(child)->findTarget()] = static_cast<const SoTrack*>(child);
        }
        for (const SoNode* child : animation.getChildren()) {
            if (!isA<SoTrack>(*child))
                continue;
            const auto& track = static_cast<const SoTrack&>(*child);
            if (tracks[track.findTarget()] != &track || !add(track, clip))
                ++m_lostCount;
        }
        return clip;
    }
    int getLostCount() const { return m_lostCount; }

private:
    bool add(const SoTrack& track, GltfContent::Clip& clip) const
    {
        const auto nodes = m_nodes.find(track.target.getNode());
        std::optional<GltfContent::Keys> keys = keysOf(track);
        if (!keys || nodes == m_nodes.end())
            return false;
        for (const std::size_t node : nodes->second)
            clip.channels.push_back({node, propertyOf(track).name, clip.keys.size()});
        clip.keys.push_back(std::move(*keys));
        return true;
    }

    std::map<const SoNode*, std::vector<std::size_t>> m_nodes; // by what moves them or bends their mesh
    int m_lostCount = 0;
};

bool restOf(const SoSFBool& field)
{
    return static_cast<const SoSFBool&>(SoAnimatedValues::getInstance().getRest(field)).getValue();
}

float restOf(const SoSFFloat& field)
{
    return static_cast<const SoSFFloat&>(SoAnimatedValues::getInstance().getRest(field)).getValue();
}

// The format knows nothing but keys.
bool isPlayedOtherwise(const SoAnimation& clip)
{
    return restOf(clip.speed) != 1 || !restOf(clip.loop) || !clip.duration.isDefault();
}

} // namespace

std::vector<int> bonesInUse(const SoSkin& skin)
{
    std::set<int> bones;
    for (int i = 0; i < std::min(skin.boneIndices.getNum(), skin.weights.getNum()); ++i) {
        if (skin.weights[i] > 0)
            bones.insert(skin.boneIndices[i]);
    }
    return {bones.begin(), bones.end()};
}

void addMotion(GltfContent& content, const SceneMotion& motion)
{
    SkinBuilder(content).build();
    ClipBuilder builder(content);
    int played = 0;
    for (const SoAnimation* animation : motion.getClips()) {
        GltfContent::Clip clip = builder.build(*animation);
        played += isPlayedOtherwise(*animation) ? 1 : 0;
        if (!clip.channels.empty())
            content.clips.push_back(std::move(clip));
    }
    content.leftOut.insert(translated("tracks that move other things than nodes and morph targets"),
                           builder.getLostCount());
    content.leftOut.insert(translated("how fast, how long or how often animations are played"), played);
}

} // namespace scopix

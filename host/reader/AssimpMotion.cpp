// SPDX-License-Identifier: MIT
#include "reader/AssimpMotion.h"

#include "reader/AssimpValues.h"

#include <assimp/scene.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <unordered_map>

namespace scopix
{

namespace
{

constexpr double UsualTicksPerSecond = 25; // where a file does not say it
constexpr std::size_t MostBonesPerPoint = 8;

using Property = ModelMotion::Property;

class Places
{
public:
    explicit Places(const ModelData& model)
    {
        for (std::size_t i = 0; i < model.nodes.size(); ++i)
            m_nodes.emplace(model.nodes[i].name, static_cast<int>(i)); // the first of a name
    }
    int nodeOf(const aiString& name) const
    {
        const auto place = m_nodes.find(name.C_Str());
        return place == m_nodes.end() ? -1 : place->second;
    }

private:
    std::unordered_map<std::string, int> m_nodes;
};

struct Influence {
    int bone;
    float weight;
};

// The strongest ones of each point, which add up to 1.
void keepStrongest(std::vector<Influence>& of)
{
    std::stable_sort(of.begin(), of.end(),
                     [](const Influence& a, const Influence& b) { return a.weight > b.weight; });
    of.resize(std::min(of.size(), MostBonesPerPoint));
    float sum = 0;
    for (const Influence& each : of)
        sum += each.weight;
    if (!(sum > 0) || !std::isfinite(sum))
        of.assign(1, {-1, 1});
    else
        for (Influence& each : of)
            each.weight /= sum;
}

void takeInfluences(std::vector<std::vector<Influence>> points, ModelMotion::Skin& skin)
{
    std::size_t most = 1;
    for (std::vector<Influence>& point : points) {
        keepStrongest(point);
        most = std::max(most, point.size());
    }
    skin.bonesPerPoint = static_cast<int>(most);
    for (std::vector<Influence>& point : points) {
        point.resize(most, {-1, 0});
        for (const Influence& each : point) {
            skin.boneIndices.push_back(each.bone);
            skin.weights.push_back(each.weight);
        }
    }
}

ModelMotion::Skin toSkin(const aiMesh& mesh, const Places& places)
{
    ModelMotion::Skin skin;
    std::vector<std::vector<Influence>> points(mesh.mNumVertices);
    for (unsigned i = 0; i < mesh.mNumBones; ++i) {
        const aiBone& bone = *mesh.mBones[i];
        const int node = places.nodeOf(bone.mName);
        if (node < 0)
            continue;
        const int place = static_cast<int>(skin.bones.size());
        skin.bones.push_back(node);
        skin.binds.push_back(toMatrix(bone.mOffsetMatrix));
        for (unsigned k = 0; k < bone.mNumWeights; ++k) {
            const aiVertexWeight& weight = bone.mWeights[k];
            if (weight.mVertexId < mesh.mNumVertices && weight.mWeight > 0)
                points[weight.mVertexId].push_back({place, weight.mWeight});
        }
    }
    if (!skin.bones.empty())
        takeInfluences(std::move(points), skin);
    return skin;
}

std::vector<SbVec3f> offsets(const aiVector3D* to, const aiVector3D* from, unsigned count)
{
    std::vector<SbVec3f> result(count);
    if (to && from)
        std::transform(to, to + count, from, result.begin(),
                       [](const aiVector3D& a, const aiVector3D& b) { return toVec(a - b); });
    return result;
}

ModelMotion::Morph toMorph(const aiMesh& mesh)
{
    ModelMotion::Morph morph;
    bool hasNormals = false;
    for (unsigned i = 0; i < mesh.mNumAnimMeshes; ++i) {
        const aiAnimMesh& target = *mesh.mAnimMeshes[i];
        const bool fits = target.mNumVertices == mesh.mNumVertices;
        hasNormals |= fits && target.mNormals && mesh.mNormals;
        const auto add = [&](std::vector<SbVec3f>& all, const aiVector3D* to, const aiVector3D* from) {
            const std::vector<SbVec3f> some = offsets(fits ? to : nullptr, from, mesh.mNumVertices);
            all.insert(all.end(), some.begin(), some.end());
        };
        add(morph.pointOffsets, target.mVertices, mesh.mVertices);
        add(morph.normalOffsets, target.mNormals, mesh.mNormals);
        morph.weights.push_back(std::isfinite(target.mWeight) ? target.mWeight : 0);
    }
    if (!hasNormals)
        morph.normalOffsets.clear();
    return morph;
}

double ticksPerSecond(const aiAnimation& animation)
{
    return animation.mTicksPerSecond > 0 ? animation.mTicksPerSecond : UsualTicksPerSecond;
}

class ClipBuilder
{
public:
    ClipBuilder(const aiAnimation& animation, const ModelData& model, const Places& places)
        : m_animation(animation)
        , m_model(model)
        , m_places(places)
        , m_ticks(ticksPerSecond(animation))
    {
    }

    ModelMotion::Clip build()
    {
        m_clip.name = m_animation.mName.C_Str();
        for (unsigned i = 0; i < m_animation.mNumChannels; ++i)
            addNode(*m_animation.mChannels[i]);
        for (unsigned i = 0; i < m_animation.mNumMorphMeshChannels; ++i)
            addWeights(*m_animation.mMorphMeshChannels[i]);
        return std::move(m_clip);
    }

private:
    template <class Key, class Put>
    void add(int node, Property property, const Key* keys, unsigned count, Put put)
    {
        ModelMotion::Track track;
        track.node = node;
        track.property = property;
        for (unsigned i = 0; i < count; ++i) {
            const auto seconds = static_cast<float>(keys[i].mTime / m_ticks);
            if (!std::isfinite(seconds) || (!track.times.empty() && seconds <= track.times.back()))
                continue; // no key can be shown at the time of another
            track.times.push_back(seconds);
            put(keys[i], track.values);
        }
        if (track.times.empty())
            return;
        m_clip.seconds = std::max(m_clip.seconds, track.times.back());
        m_clip.tracks.push_back(std::move(track));
    }

    void addNode(const aiNodeAnim& channel)
    {
        const int node = m_places.nodeOf(channel.mNodeName);
        if (node < 0)
            return;
        const auto putVector = [](const aiVectorKey& key, std::vector<float>& to) {
            to.insert(to.end(), {key.mValue.x, key.mValue.y, key.mValue.z});
        };
        add(node, Property::Translation, channel.mPositionKeys, channel.mNumPositionKeys, putVector);
        add(node, Property::Rotation, channel.mRotationKeys, channel.mNumRotationKeys,
            [](const aiQuatKey& key, std::vector<float>& to) {
                to.insert(to.end(), {key.mValue.x, key.mValue.y, key.mValue.z, key.mValue.w});
            });
        add(node, Property::Scale, channel.mScalingKeys, channel.mNumScalingKeys, putVector);
    }

    void addWeights(const aiMeshMorphAnim& channel)
    {
        const int node = nodeOfWeights(channel.mName);
        unsigned targets = 0;
        for (unsigned i = 0; i < channel.mNumKeys; ++i)
            targets = std::max(targets, channel.mKeys[i].mNumValuesAndWeights);
        if (node < 0 || targets == 0)
            return;
        add(node, Property::Weights, channel.mKeys, channel.mNumKeys,
            [targets](const aiMeshMorphKey& key, std::vector<float>& to) {
                std::vector<float> weights(targets);
                for (unsigned i = 0; i < key.mNumValuesAndWeights; ++i) {
                    if (key.mValues[i] < targets)
                        weights[key.mValues[i]] = static_cast<float>(key.mWeights[i]);
                }
                to.insert(to.end(), weights.begin(), weights.end());
            });
    }

    // Some importers name the mesh, and a number after it.
    int nodeOfWeights(const aiString& name) const
    {
        const int node = m_places.nodeOf(name);
        if (node >= 0)
            return node;
        const std::string text(name.C_Str());
        const std::string mesh = text.substr(0, text.find('*'));
        for (std::size_t i = 0; i < m_model.nodes.size(); ++i) {
            for (const int each : m_model.nodes[i].meshes) {
                if (m_model.meshes[static_cast<std::size_t>(each)].name == mesh)
                    return static_cast<int>(i);
            }
        }
        return -1;
    }

    const aiAnimation& m_animation;
    const ModelData& m_model;
    const Places& m_places;
    const double m_ticks;
    ModelMotion::Clip m_clip;
};

// How many of these stand in a node that an animation moves, or below one.
template <class Thing>
unsigned countMoved(const aiScene& scene, Thing* const* things, unsigned count)
{
    std::set<std::string> moved;
    for (unsigned i = 0; i < scene.mNumAnimations; ++i) {
        const aiAnimation& animation = *scene.mAnimations[i];
        for (unsigned k = 0; k < animation.mNumChannels; ++k)
            moved.insert(animation.mChannels[k]->mNodeName.C_Str());
    }
    const auto isMoved = [&](const aiNode* node) {
        while (node && moved.count(node->mName.C_Str()) == 0)
            node = node->mParent;
        return node != nullptr;
    };
    return static_cast<unsigned>(std::count_if(things, things + count, [&](const Thing* thing) {
        return isMoved(scene.mRootNode->FindNode(thing->mName));
    }));
}

} // namespace

ModelMotion motionOf(const aiScene& scene, const ModelData& model)
{
    ModelMotion motion;
    const Places places(model);
    for (unsigned i = 0; i < scene.mNumMeshes; ++i) {
        const aiMesh& mesh = *scene.mMeshes[i];
        if (ModelMotion::Skin skin = toSkin(mesh, places); !skin.bones.empty()) {
            skin.mesh = static_cast<int>(i);
            motion.skins.push_back(std::move(skin));
        }
        if (mesh.mNumAnimMeshes > 0) {
            motion.morphs.push_back(toMorph(mesh));
            motion.morphs.back().mesh = static_cast<int>(i);
        }
    }
    for (unsigned i = 0; i < scene.mNumAnimations; ++i) {
        ModelMotion::Clip clip = ClipBuilder(*scene.mAnimations[i], model, places).build();
        if (!clip.tracks.empty())
            motion.clips.push_back(std::move(clip));
    }
    return motion;
}

unsigned countTracksLeftOut(const aiScene& scene)
{
    unsigned count = 0;
    for (unsigned i = 0; i < scene.mNumAnimations; ++i) {
        const aiAnimation& animation = *scene.mAnimations[i];
        count += animation.mNumMeshChannels;
        for (unsigned k = 0; k < animation.mNumChannels; ++k)
            count += scene.mRootNode->FindNode(animation.mChannels[k]->mNodeName) ? 0 : 1;
    }
    return count;
}

unsigned countMovedLights(const aiScene& scene)
{
    return countMoved(scene, scene.mLights, scene.mNumLights);
}

unsigned countMovedCameras(const aiScene& scene)
{
    return countMoved(scene, scene.mCameras, scene.mNumCameras);
}

} // namespace scopix

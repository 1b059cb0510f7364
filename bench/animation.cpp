// SPDX-License-Identifier: MIT
// How often a skinned, morphed and animated shape of 100,000 points can take another pose in a second,
// without drawing: time passes, all tracks write, and what is drawn of the scene is walked, which bends the
// points.
#include <xsg/actions/SoTraversal.h>
#include <xsg/nodes/animation/SoAnimation.h>
#include <xsg/nodes/animation/SoMorph.h>
#include <xsg/nodes/animation/SoSkin.h>
#include <xsg/nodes/animation/SoTrack.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <cmath>
#include <cstdio>
#include <ctime>
#include <numeric>

namespace
{

constexpr int Points = 100'000;
constexpr int Bones = 64;
constexpr int BonesPerPoint = 4;
constexpr int Keys = 32;
constexpr int Updates = 300;
constexpr int Aim = 60; // a second

void addTrack(SoAnimation& clip, SoNode* target, const char* field, int width, int seed)
{
    auto* track = new SoTrack;
    track->target.setValue(target);
    track->field.setValue(SbName(field));
    std::vector<float> times;
    std::vector<float> values;
    for (int key = 0; key < Keys; ++key) {
        times.push_back(static_cast<float>(key) / 8);
        for (int i = 0; i < width; ++i)
            values.push_back(std::sin(static_cast<float>(seed + 5 * key + 3 * i)) + (i == 3 ? 4.0F : 0.0F));
    }
    track->times.setValues(std::move(times));
    track->values.setValues(std::move(values));
    clip.addChild(track);
}

SoRef<SoSeparator> makeScene()
{
    SoRef<SoSeparator> root(new SoSeparator);
    auto* clip = new SoAnimation;
    auto* skeleton = new SoSeparator;
    auto* skin = new SoSkin;
    std::vector<SoRef<SoNode>> bones;
    std::vector<std::int32_t> parents;
    for (int i = 0; i < Bones; ++i) {
        bones.emplace_back(new SoTransform);
        parents.push_back(i - 1);
        skeleton->addChild(bones.back().get());
        addTrack(*clip, bones.back().get(), "translation", 3, i);
        addTrack(*clip, bones.back().get(), "rotation", 4, i);
        addTrack(*clip, bones.back().get(), "scaleFactor", 3, i);
    }
    auto* points = new SoPoints;
    auto* normals = new SoNormals;
    auto* morph = new SoMorph;
    auto* shape = new SoIndexedTriangleSet;
    std::vector<std::int32_t> indices(std::size_t{Points} * BonesPerPoint);
    for (std::size_t i = 0; i < indices.size(); ++i)
        indices[i] = static_cast<std::int32_t>(i * 7 % Bones);
    std::vector<std::int32_t> corners(std::size_t{Points} * 6);
    for (std::size_t i = 0; i < corners.size(); ++i)
        corners[i] = static_cast<std::int32_t>((i / 6 + i % 6) % Points);
    points->points.setValues(std::vector<SbVec3f>(Points, {1, 2, 3}));
    normals->vectors.setValues(std::vector<SbVec3f>(Points, {0, 0, 1}));
    morph->weights.setValues({0, 0});
    morph->pointOffsets.setValues(std::vector<SbVec3f>(std::size_t{2} * Points, {0, 0, 1}));
    addTrack(*clip, morph, "weights", 2, 1);
    skin->bones.setValues(std::move(bones));
    skin->parents.setValues(std::move(parents));
    skin->binds.setValues(std::vector<SbMatrix>(Bones));
    skin->bonesPerPoint.setValue(BonesPerPoint);
    skin->boneIndices.setValues(std::move(indices));
    skin->weights.setValues(std::vector<float>(std::size_t{Points} * BonesPerPoint, 0.25F));
    shape->index.setValues(std::move(corners));
    for (SoNode* node : std::initializer_list<SoNode*>{skeleton, points, normals, morph, skin, shape, clip})
        root->addChild(node);
    return root;
}

class Walk : public SoTraversal
{
public:
    void walk(SoNode* root)
    {
        resetState();
        traverse(root);
    }
    const SoPoints* seen = nullptr;

protected:
    void visitShape(SoShape* /*shape*/) override { seen = state().points; }
};

} // namespace

int main()
{
    const SoRef<SoSeparator> root = makeScene();
    SoAnimation::findBelow(*root).front()->play();
    Walk walk;
    walk.walk(root.get());
    double sum = 0;                          // so that nothing is left out
    const std::clock_t start = std::clock(); // of this process alone
    for (int i = 0; i < Updates; ++i) {
        SoTimeSource::getInstance().advance(1.0 / Aim, root.get());
        walk.walk(root.get());
        sum += static_cast<double>(walk.seen->points[i][0]);
    }
    const double took = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    const double perSecond = Updates / took;
    std::printf("%d points, %d bones, %d tracks: %.2f ms an update, %.0f a second (aim: %d or more) [%g]\n",
                Points, Bones, 3 * Bones + 1, 1000 * took / Updates, perSecond, Aim, sum);
    return perSecond >= Aim ? 0 : 1;
}

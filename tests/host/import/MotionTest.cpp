// SPDX-License-Identifier: MIT
// What of a model moves, moves here too.
#include "AnimatedGltf.h"
#include "ModelFiles.h"

#include "import/SceneBuilder.h"
#include "reader/ModelReader.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoSearchAction.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/animation/SoAnimation.h>
#include <xsg/nodes/animation/SoMorph.h>
#include <xsg/nodes/animation/SoSkin.h>
#include <xsg/nodes/animation/SoTrack.h>
#include <xsg/nodes/transforms/SoTransform.h>

using namespace scopix;

namespace
{

class Motion : public testing::Test
{
protected:
    void open(const QString& path)
    {
        const ModelReadResult model = readModel(path);
        ASSERT_EQ(model.error, "");
        for (const std::string& note : model.notes)
            notes << QString::fromStdString(note);
        scene = buildScene(model.data, "scene");
    }
    void openGltf() { open(files.write("model.gltf", gltf.text())); }
    void openSample(const char* name)
    {
        const QString path = QStringLiteral("/usr/share/assimp/models/") + QLatin1String(name);
        if (!QFile::exists(path))
            GTEST_SKIP() << "needs the package assimp-testmodels";
        open(path);
    }
    template <class Node>
    std::vector<Node*> all() const
    {
        SoSearchAction search;
        search.setType(Node::getClassTypeId());
        search.setLimit(-1);
        std::vector<Node*> nodes;
        for (const SoPath& path : search.apply(scene.get()))
            nodes.push_back(static_cast<Node*>(path.getTail()));
        return nodes;
    }
    SoAnimation* clip(std::size_t number = 0) const
    {
        const std::vector<SoAnimation*> clips = SoAnimation::findBelow(*scene);
        return number < clips.size() ? clips[number] : nullptr;
    }
    SbBox3f boxAt(double seconds)
    {
        clip()->goTo(seconds);
        return SoBoundingBoxAction().getBox(scene.get());
    }
    SoTransform* transformOf(const char* name) const
    {
        SoSearchAction search;
        search.setName(SbName(name));
        const auto paths = search.apply(scene.get());
        if (paths.empty())
            return nullptr;
        return dynamic_cast<SoTransform*>(static_cast<SoGroup*>(paths.front().getTail())->getChild(0));
    }

    ModelFiles files;
    AnimatedGltf gltf;
    SoRef<SoSeparator> scene;
    QStringList notes;
};

TEST_F(Motion, OfNodesIsPlayed)
{
    gltf.addChannel(2, "translation", {0, 2}, {5, 0, 0, 9, 2, 0}, "VEC3");
    gltf.addChannel(0, "scale", {0.5F, 1}, {1, 1, 1, 3, 1, 1}, "VEC3");
    openGltf();
    ASSERT_TRUE(clip());
    EXPECT_STREQ(clip()->getName().getString(), "clip");
    EXPECT_EQ(clip()->getDuration(), 2);
    const SbBox3f rest = SoBoundingBoxAction().getBox(scene.get());
    EXPECT_EQ(rest, SbBox3f({5, 0, 0}, {6, 2, 0}));
    EXPECT_EQ(boxAt(0.5), SbBox3f({6, 0.5F, 0}, {7, 2.5F, 0}));
    EXPECT_EQ(boxAt(2), SbBox3f({27, 2, 0}, {30, 4, 0}));
    clip()->stop();
    EXPECT_EQ(SoBoundingBoxAction().getBox(scene.get()), rest);
    EXPECT_TRUE(notes.isEmpty()) << notes.join('\n').toStdString();
}

TEST_F(Motion, OfSkinsIsPlayed)
{
    gltf.addSkin();
    gltf.addChannel(1, "translation", {0, 1}, {0, 1, 0, 0, 3, 0}, "VEC3");
    openGltf();
    ASSERT_EQ(all<SoSkin>().size(), 1U);
    // Where the node of a skinned mesh stands does not matter.
    EXPECT_EQ(SoBoundingBoxAction().getBox(scene.get()), SbBox3f({0, 0, 0}, {1, 2, 0}));
    EXPECT_EQ(boxAt(1), SbBox3f({0, 0, 0}, {1, 4, 0}));
    EXPECT_TRUE(notes.isEmpty()) << notes.join('\n').toStdString();
}

TEST_F(Motion, OfMorphsIsPlayed)
{
    gltf.addMorph();
    gltf.addChannel(2, "weights", {0, 1}, {0, 1}, "SCALAR");
    openGltf();
    ASSERT_EQ(all<SoMorph>().size(), 1U);
    EXPECT_EQ(SoBoundingBoxAction().getBox(scene.get()), SbBox3f({5, 0, 0}, {6, 2, 0}));
    EXPECT_EQ(boxAt(0.5), SbBox3f({5, 0, 0}, {6, 2, 2}));
    EXPECT_TRUE(notes.isEmpty()) << notes.join('\n').toStdString();
}

TEST_F(Motion, BetweenKeysIsAsTheFileSaysIt)
{
    gltf.addChannel(2, "translation", {0, 1}, {5, 0, 0, 9, 0, 0}, "VEC3", "STEP");
    // Leaves at 8 a second and arrives at rest: half-way it is 1 further than straight on.
    gltf.addChannel(1, "translation", {0, 1}, {0, 0, 0, 0, 1, 0, 0, 8, 0, 0, 0, 0, 0, 3, 0, 0, 0, 0}, "VEC3",
                    "CUBICSPLINE");
    gltf.addChannel(0, "scale", {0.0001F, 1}, {1, 1, 1, 2, 1, 1}, "VEC3");
    openGltf();
    clip()->goTo(0.5);
    EXPECT_EQ(transformOf("mesh")->translation.getValue(), SbVec3f(5, 0, 0));
    EXPECT_EQ(transformOf("bone")->translation.getValue(), SbVec3f(0, 3, 0));
    EXPECT_EQ(static_cast<SoTrack*>(clip()->getChild(2))->times[0], 0.0001F); // to the last bit
}

TEST_F(Motion, OfNodesOfOneNameIsTheirOwn)
{
    gltf.rename(1, "mesh");
    gltf.addChannel(1, "translation", {0}, {0, 4, 0}, "VEC3");
    gltf.addChannel(2, "translation", {0}, {7, 0, 0}, "VEC3");
    openGltf();
    EXPECT_EQ(boxAt(0), SbBox3f({7, 0, 0}, {8, 2, 0}));
}

TEST_F(Motion, IsSavedAndReadAgain)
{
    gltf.addSkin();
    gltf.addMorph();
    gltf.addChannel(1, "translation", {0, 1}, {0, 1, 0, 0, 3, 0}, "VEC3");
    gltf.addChannel(2, "weights", {0, 1}, {0, 1}, "SCALAR");
    openGltf();
    const SbBox3f moved = boxAt(1);
    EXPECT_EQ(moved, SbBox3f({0, 0, 0}, {1, 4, 4}));
    const std::string text = SoSceneFile::writeText(scene.get());
    std::string error;
    const SoRef<SoNode> read = SoSceneFile::readText(text, "scene", error);
    ASSERT_TRUE(read) << error;
    EXPECT_EQ(SoBoundingBoxAction().getBox(read.get()), SbBox3f({0, 0, 0}, {1, 2, 0}));
    SoAnimation::findBelow(*read).front()->goTo(1);
    EXPECT_EQ(SoBoundingBoxAction().getBox(read.get()), moved);
    EXPECT_EQ(SoSceneFile::writeText(read.get()), text);
}

TEST_F(Motion, OfASkinWithoutBonesInReachStaysWhereItIs)
{
    gltf.addSkin();
    openGltf();
    SoSkin* skin = all<SoSkin>().front();
    for (int i = 0; i < skin->weights.getNum(); ++i)
        EXPECT_LT(skin->boneIndices[i], skin->bones.getNum());
    EXPECT_FALSE(clip());
}

// Samples that other programs have made: something of each is elsewhere after a quarter of its time.
class MotionOfSamples : public Motion, public testing::WithParamInterface<const char*>
{
};

TEST_P(MotionOfSamples, IsPlayed)
{
    openSample(GetParam());
    if (IsSkipped())
        return;
    ASSERT_TRUE(clip());
    SoBoundingBoxAction boxes;
    const SbBox3f rest = boxes.getBox(scene.get());
    ASSERT_FALSE(rest.isEmpty());
    bool isMoved = false;
    std::vector<float> values;
    for (std::size_t i = 0; clip(i); ++i) {
        clip(i)->goTo(0);
        const SbBox3f start = boxes.getBox(scene.get());
        clip(i)->goTo(clip(i)->getDuration() / 4);
        isMoved |= boxes.getBox(scene.get()) != start;
        clip(i)->stop();
    }
    EXPECT_TRUE(isMoved);
    EXPECT_EQ(boxes.getBox(scene.get()), rest);
}

INSTANTIATE_TEST_SUITE_P(
    Assimp, MotionOfSamples,
    testing::Values("glTF2/simple_skin/simple_skin.gltf",
                    "glTF2/glTF-Sample-Models/AnimatedMorphCube-glTF/AnimatedMorphCube.gltf",
                    "FBX/animation_with_skeleton.fbx", "FBX/huesitos.fbx", "Collada/box_nested_animation.dae",
                    "Collada/anims_with_full_rotations_between_keys.DAE"));

} // namespace

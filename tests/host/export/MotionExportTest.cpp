// SPDX-License-Identifier: MIT
// What moves in a scene moves in the glTF file that it is exported to, or is named as lost.
#include "export/SceneExport.h"
#include "host/import/AnimatedGltf.h"
#include "host/import/ModelFiles.h"
#include "import/SceneBuilder.h"
#include "reader/ModelReader.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoSearchAction.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/animation/SoAnimation.h>
#include <xsg/nodes/animation/SoMorph.h>
#include <xsg/nodes/animation/SoSkin.h>
#include <xsg/nodes/animation/SoTrack.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoTriangleSet.h>
#include <xsg/nodes/transforms/SoTransform.h>

using namespace scopix;

namespace
{

class MotionExport : public testing::Test
{
protected:
    SoRef<SoSeparator> read(const QString& path)
    {
        ModelReadResult model = readModel(path);
        EXPECT_EQ(model.error, "");
        EXPECT_TRUE(model.notes.empty());
        return buildScene(std::move(model.data), "scene");
    }
    SoRef<SoSeparator> model() { return read(files.write("model.gltf", gltf.text())); }
    SoRef<SoSeparator> copyOf(SoNode& scene)
    {
        const QString path = files.path("copy.glb");
        EXPECT_EQ(SceneExport(scene, path).write(), "");
        return read(path);
    }
    static QStringList losses(SoNode& scene) { return SceneExport(scene, "a.glb").getLosses(); }
    static SbBox3f boxAt(SoNode& scene, double seconds, std::size_t clip = 0)
    {
        const auto clips = SoAnimation::findBelow(scene);
        if (clip < clips.size())
            clips[clip]->goTo(seconds);
        return SoBoundingBoxAction().getBox(&scene);
    }
    static void expectSameMotion(SoNode& scene, SoNode& copy)
    {
        ASSERT_EQ(SoAnimation::findBelow(copy).size(), 1U);
        for (const double seconds : {0.0, 0.25, 0.5, 1.0, 2.0}) {
            const SbBox3f mine = boxAt(scene, seconds);
            const SbBox3f theirs = boxAt(copy, seconds);
            EXPECT_LT((mine.getMin() - theirs.getMin()).length(), 1e-5F) << seconds;
            EXPECT_LT((mine.getMax() - theirs.getMax()).length(), 1e-5F) << seconds;
        }
    }
    static SoTrack* addTrack(SoAnimation& clip, SoNode& target, const char* field, std::vector<float> times,
                             std::vector<float> values)
    {
        auto* track = new SoTrack;
        track->target.setValue(SoRef<SoNode>(&target));
        track->field.setValue(SbName(field));
        track->times.setValues(std::move(times));
        track->values.setValues(std::move(values));
        clip.addChild(track);
        return track;
    }

    ModelFiles files;
    AnimatedGltf gltf;
};

TEST_F(MotionExport, KeepsSkinsMorphTargetsAndClips)
{
    gltf.addSkin();
    gltf.addMorph();
    gltf.addChannel(1, "translation", {0, 1}, {0, 1, 0, 0, 3, 0}, "VEC3", "STEP");
    gltf.addChannel(2, "weights", {0, 1}, {0, 0, 1, 0, 1, 0}, "SCALAR", "CUBICSPLINE");
    gltf.addChannel(0, "rotation", {0, 2}, {0, 0, 0, 1, 0, 0, 1, 0}, "VEC4");
    gltf.addChannel(0, "scale", {0, 2}, {1, 1, 1, 2, 2, 2}, "VEC3");
    const SoRef<SoSeparator> scene = model();
    const SoRef<SoSeparator> copy = copyOf(*scene);
    EXPECT_EQ(losses(*scene), QStringList());
    expectSameMotion(*scene, *copy);
    const auto mine = SoAnimation::findBelow(*scene);
    const auto theirs = SoAnimation::findBelow(*copy);
    EXPECT_STREQ(theirs[0]->getName().getString(), "clip");
    ASSERT_EQ(theirs[0]->getNumChildren(), 4);
    for (int i = 0; i < 4; ++i) {
        const auto* before = static_cast<const SoTrack*>(mine[0]->getChild(i));
        const auto* after = static_cast<const SoTrack*>(theirs[0]->getChild(i));
        EXPECT_EQ(before->field.getValue(), after->field.getValue());
        EXPECT_EQ(before->interpolation.getValue(), after->interpolation.getValue());
        EXPECT_TRUE(before->times.isSame(after->times));
        EXPECT_TRUE(before->values.isSame(after->values));
    }
}

TEST_F(MotionExport, KeepsSkinsOfModelsThatWereMovedElsewhere)
{
    gltf.addSkin();
    gltf.addChannel(1, "translation", {0, 1}, {0, 1, 0, 0, 3, 0}, "VEC3");
    const SoRef<SoSeparator> scene(new SoSeparator);
    auto* place = new SoTransform;
    place->translation.setValue(7, 0, 0);
    place->scaleFactor.setValue(2, 2, 2);
    scene->addChild(place);
    scene->addChild(model().get());
    EXPECT_EQ(losses(*scene), QStringList());
    expectSameMotion(*scene, *copyOf(*scene));
}

// The animation is written, and not what it shows at present.
TEST_F(MotionExport, KeepsWhatStandsAtRest)
{
    gltf.addMorph();
    gltf.addChannel(2, "weights", {0, 1}, {0, 1}, "SCALAR");
    gltf.addChannel(2, "translation", {0, 1}, {6, 0, 0, 9, 0, 0}, "VEC3");
    const SoRef<SoSeparator> scene = model();
    const SbBox3f rest = SoBoundingBoxAction().getBox(scene.get());
    EXPECT_NE(boxAt(*scene, 1), rest);
    EXPECT_EQ(SoBoundingBoxAction().getBox(copyOf(*scene).get()), rest);
}

TEST_F(MotionExport, MovesWhatStandsInSeveralPlaces)
{
    const SoRef<SoSeparator> scene(new SoSeparator);
    const SoRef<SoSeparator> part(new SoSeparator);
    auto* turn = new SoTransform;
    part->addChild(turn);
    part->addChild(new SoCube);
    for (int i = 0; i < 2; ++i) {
        auto* group = new SoSeparator;
        auto* place = new SoTransform;
        place->translation.setValue(float(5 * i), 0, 0);
        group->addChild(place);
        group->addChild(part.get());
        scene->addChild(group);
    }
    auto* clip = new SoAnimation;
    scene->addChild(clip);
    addTrack(*clip, *turn, "translation", {0, 1}, {0, 0, 0, 0, 4, 0});
    expectSameMotion(*scene, *copyOf(*scene));
}

TEST_F(MotionExport, BeginsAtZero)
{
    const SoRef<SoSeparator> scene(new SoSeparator);
    auto* place = new SoTransform;
    scene->addChild(place);
    scene->addChild(new SoCube);
    auto* clip = new SoAnimation;
    scene->addChild(clip);
    addTrack(*clip, *place, "translation", {-2, -1, 1}, {0, 0, 0, 1, 0, 0, 5, 0, 0});
    const SoRef<SoSeparator> copy = copyOf(*scene);
    expectSameMotion(*scene, *copy);
    const auto* track = static_cast<const SoTrack*>(SoAnimation::findBelow(*copy)[0]->getChild(0));
    EXPECT_EQ(track->times.getNum(), 2);
    EXPECT_EQ(track->times[0], 0);
    EXPECT_EQ(track->values[0], 3);
}

TEST_F(MotionExport, SaysWhichMovementIsLost)
{
    const SoRef<SoSeparator> scene(new SoSeparator);
    auto* material = new SoMaterial;
    auto* offCentre = new SoTransform;
    offCentre->center.setValue(1, 0, 0);
    scene->addChild(material);
    scene->addChild(offCentre);
    scene->addChild(new SoCube);
    auto* clip = new SoAnimation;
    scene->addChild(clip);
    addTrack(*clip, *material, "transparency", {0, 1}, {0, 1});
    addTrack(*clip, *offCentre, "translation", {0, 1}, {0, 0, 0, 1, 0, 0});
    clip->speed.setValue(2);
    const QString tracks = "tracks that move other things than nodes and morph targets (2)";
    const QString speed = "how fast, how long or how often animations are played (1)";
    EXPECT_TRUE(losses(*scene).contains(tracks)) << losses(*scene).join('\n').toStdString();
    EXPECT_TRUE(losses(*scene).contains(speed));
}

TEST_F(MotionExport, BendsAsAtPresentWhatOtherProgramsCannotBend)
{
    const SoRef<SoSeparator> scene(new SoSeparator);
    auto* points = new SoPoints;
    points->points.setValues({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}});
    scene->addChild(points);
    for (int i = 0; i < 2; ++i) {
        auto* morph = new SoMorph;
        morph->weights.setValues({0.5F});
        morph->pointOffsets.setValues({{0, 0, 0}, {0, 0, 0}, {0, 2, 0}});
        scene->addChild(morph);
    }
    scene->addChild(new SoTriangleSet);
    EXPECT_TRUE(losses(*scene).contains("morph targets, whose present mix is kept (1)"))
        << losses(*scene).join('\n').toStdString();
    EXPECT_EQ(SoBoundingBoxAction().getBox(copyOf(*scene).get()), SbBox3f({0, 0, 0}, {1, 3, 0}));
}

// A bone that is no part of the scene stands nowhere in the file.
TEST_F(MotionExport, PosesSkinsWhoseBonesStandElsewhere)
{
    gltf.addSkin();
    const SoRef<SoSeparator> scene = model();
    SoSearchAction search;
    search.setType(SoSkin::getClassTypeId());
    auto* skin = static_cast<SoSkin*>(search.apply(scene.get()).front().getTail());
    const SoRef<SoTransform> elsewhere(new SoTransform);
    elsewhere->translation.setValue(0, 3, 0);
    for (int i = 0; i < skin->bones.getNum(); ++i) {
        if (skin->bones[i])
            skin->bones.set1Value(i, SoRef<SoNode>(elsewhere.get()));
    }
    const SbBox3f posed = SoBoundingBoxAction().getBox(scene.get());
    EXPECT_TRUE(losses(*scene).contains("skins, whose present pose is kept (1)"));
    EXPECT_EQ(SoBoundingBoxAction().getBox(copyOf(*scene).get()), posed);
}

} // namespace

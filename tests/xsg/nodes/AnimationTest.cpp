// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoRayPickAction.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/animation/SoAnimatedValues.h>
#include <xsg/nodes/animation/SoAnimation.h>
#include <xsg/nodes/animation/SoMorph.h>
#include <xsg/nodes/animation/SoSkin.h>
#include <xsg/nodes/animation/SoTrack.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoTriangleSet.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <limits>

namespace
{

SoTimeSource& source()
{
    return SoTimeSource::getInstance();
}

SoAnimatedValues& values()
{
    return SoAnimatedValues::getInstance();
}

SoTrack* track(SoNode* target, const char* field, std::vector<float> times, std::vector<float> numbers)
{
    auto* result = new SoTrack;
    result->target.setValue(target);
    result->field.setValue(SbName(field));
    result->times.setValues(std::move(times));
    result->values.setValues(std::move(numbers));
    return result;
}

// A transform that a clip of 2 seconds takes from (0, 0, 0) to (4, 0, 0), and a separator around it.
class Moved : public testing::Test
{
protected:
    Moved()
    {
        transform->translation.setValue(0, 7, 0);
        clip->addChild(track(transform.get(), "translation", {0, 2}, {0, 0, 0, 4, 0, 0}));
        root->addChild(transform.get());
        root->addChild(clip.get());
        SoSensorQueue::getInstance().process();
    }

    const SoRef<SoSeparator> root{new SoSeparator};
    const SoRef<SoTransform> transform{new SoTransform};
    const SoRef<SoAnimation> clip{new SoAnimation};
};

std::string text(SoNode* root)
{
    return SoSceneFile::writeText(root);
}

} // namespace

TEST_F(Moved, PlaysPausesAndGivesBack)
{
    EXPECT_FALSE(source().isNeeded(root.get()));
    clip->play();
    EXPECT_TRUE(source().isNeeded(root.get()));
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(0, 0, 0));
    source().advance(0.5, root.get());
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(1, 0, 0));
    clip->pause();
    EXPECT_FALSE(source().isNeeded(root.get()));
    source().advance(0.5, root.get());
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(1, 0, 0));
    clip->stop();
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(0, 7, 0));
    EXPECT_EQ(clip->state.getValue(), SoAnimation::Stopped);
    EXPECT_EQ(clip->time.getValue(), SbTime(0));
}

TEST_F(Moved, GoesAroundOrStopsAtTheEnd)
{
    clip->play();
    source().advance(2.5, root.get());
    EXPECT_EQ(clip->time.getValue(), SbTime(0.5));
    clip->loop.setValue(false);
    source().advance(9, root.get());
    EXPECT_EQ(clip->state.getValue(), SoAnimation::Paused);
    EXPECT_EQ(clip->time.getValue(), SbTime(2));
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(4, 0, 0));
    clip->play(); // once more
    EXPECT_EQ(clip->time.getValue(), SbTime(0));
    clip->speed.setValue(-2);
    clip->goTo(1);
    source().advance(0.25, root.get());
    EXPECT_EQ(clip->time.getValue(), SbTime(0.5));
    source().advance(1, root.get());
    EXPECT_EQ(clip->time.getValue(), SbTime(0));
    EXPECT_EQ(clip->state.getValue(), SoAnimation::Paused);
}

TEST_F(Moved, StepsFromKeyToKey)
{
    clip->addChild(track(transform.get(), "scaleFactor", {0.5F}, {2, 2, 2}));
    clip->step(true);
    EXPECT_EQ(clip->time.getValue(), SbTime(0.5));
    EXPECT_EQ(clip->state.getValue(), SoAnimation::Paused);
    EXPECT_EQ(transform->scaleFactor.getValue(), SbVec3f(2, 2, 2));
    clip->step(true);
    EXPECT_EQ(clip->time.getValue(), SbTime(2));
    clip->step(true);
    EXPECT_EQ(clip->time.getValue(), SbTime(2));
    clip->step(false);
    EXPECT_EQ(clip->time.getValue(), SbTime(0.5));
}

TEST_F(Moved, LeavesNoTraceInFiles)
{
    const std::string before = text(root.get());
    clip->play();
    source().advance(0.5, root.get());
    EXPECT_EQ(text(root.get()), before);
    clip->stop();
    EXPECT_EQ(text(root.get()), before);
    EXPECT_TRUE(transform->rotation.isDefault());
}

TEST_F(Moved, KeepsTheDefaultFlag)
{
    clip->addChild(track(transform.get(), "scaleFactor", {0, 1}, {1, 1, 1, 3, 3, 3}));
    clip->goTo(1);
    EXPECT_EQ(transform->scaleFactor.getValue(), SbVec3f(3, 3, 3));
    EXPECT_TRUE(transform->scaleFactor.isDefault());
    clip->stop();
    EXPECT_TRUE(transform->scaleFactor.isDefault());
    EXPECT_FALSE(transform->translation.isDefault());
}

TEST_F(Moved, SaysWhatIsAnimated)
{
    EXPECT_FALSE(values().isAnimated(transform->translation));
    clip->goTo(1);
    EXPECT_TRUE(values().isAnimated(transform->translation));
    EXPECT_TRUE(values().isAnimated(clip->time));
    EXPECT_FALSE(values().isAnimated(transform->rotation));
    const SoSFVec3f rest(nullptr, nullptr, {0, 7, 0});
    EXPECT_TRUE(values().getRest(transform->translation).isSame(rest));
    clip->stop();
    EXPECT_FALSE(values().isAnimated(transform->translation));
    EXPECT_FALSE(values().isAnimated(clip->time));
}

TEST_F(Moved, LetsGoOfWhatSomebodyElseWrites)
{
    clip->play();
    transform->translation.setValue(0, 0, 5);
    source().advance(0.5, root.get());
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(0, 0, 5));
    EXPECT_FALSE(values().isAnimated(transform->translation));
    clip->play();
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(1, 0, 0));
    clip->stop();
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(0, 0, 5));
}

TEST_F(Moved, FollowsItsOwnFields)
{
    clip->time.setValue(1);
    clip->state.setValue(SoAnimation::Paused);
    SoSensorQueue::getInstance().process();
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(2, 0, 0));
    auto* keys = static_cast<SoTrack*>(clip->getChild(0));
    keys->values.set1Value(3, 8);
    SoSensorQueue::getInstance().process();
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(4, 0, 0));
    clip->removeAllChildren();
    SoSensorQueue::getInstance().process();
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(0, 7, 0));
}

TEST_F(Moved, GivesBackWhenItGoes)
{
    SoRef<SoAnimation> gone(new SoAnimation);
    gone->addChild(track(transform.get(), "scaleFactor", {0}, {2, 2, 2}));
    gone->play();
    EXPECT_EQ(transform->scaleFactor.getValue(), SbVec3f(2, 2, 2));
    gone = {};
    EXPECT_EQ(transform->scaleFactor.getValue(), SbVec3f(1, 1, 1));
    EXPECT_FALSE(values().isAnimated(transform->scaleFactor));
}

TEST_F(Moved, HandsAFieldOverToTheClipThatWasStartedLast)
{
    const SoRef<SoAnimation> other(new SoAnimation);
    other->addChild(track(transform.get(), "translation", {0}, {9, 9, 9}));
    clip->play();
    other->play();
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(9, 9, 9));
    source().advance(0.5, root.get());
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(9, 9, 9));
    clip->stop();
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(9, 9, 9));
    other->stop();
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(0, 7, 0));
}

TEST_F(Moved, LeavesWhatItCannotWrite)
{
    SoSFVec3f elsewhere(nullptr, nullptr, {1, 2, 3});
    clip->removeAllChildren();
    clip->addChild(track(transform.get(), "translation", {0, 2}, {0, 0, 0, 4}));
    clip->addChild(track(transform.get(), "nothing", {0}, {0, 0, 0}));
    clip->addChild(track(nullptr, "translation", {0}, {0, 0, 0}));
    clip->addChild(track(transform.get(), "rotation", {0}, {0, 0, 0}));
    ASSERT_TRUE(transform->scaleFactor.connectFrom(&elsewhere));
    clip->addChild(track(transform.get(), "scaleFactor", {0}, {5, 5, 5}));
    clip->goTo(1);
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(0, 7, 0));
    EXPECT_EQ(transform->rotation.getValue(), SbRotation());
    EXPECT_EQ(transform->scaleFactor.getValue(), SbVec3f(1, 2, 3));
}

TEST_F(Moved, TakesAnyNumbers)
{
    auto* keys = static_cast<SoTrack*>(clip->getChild(0));
    keys->interpolation.setValue(77); // as if it were the default
    clip->speed.setValue(std::numeric_limits<float>::quiet_NaN());
    clip->play();
    source().advance(1, root.get());
    EXPECT_EQ(clip->time.getValue(), SbTime(0));
    clip->goTo(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(clip->time.getValue(), SbTime(0));
    keys->times.setValues({1, 1, 0});
    keys->values.setValues({0, 0, 0, 1, 1, 1, 2, 2, 2});
    for (const double at : {-1.0, 0.0, 0.5, 1.0, 2.0})
        clip->goTo(at);
    keys->times.setNum(0);
    clip->goTo(1);
    EXPECT_EQ(transform->translation.getValue(), SbVec3f(0, 7, 0));
}

TEST_F(Moved, ComesBackFromAFile)
{
    static_cast<SoTrack*>(clip->getChild(0))->interpolation.setValue(SoTrack::Step);
    clip->setName(SbName("walk"));
    std::string error;
    const SoRef<SoNode> read = SoSceneFile::readText(text(root.get()), "scene", error);
    ASSERT_TRUE(read) << error;
    EXPECT_EQ(text(read.get()), text(root.get()));
    auto* again = static_cast<SoAnimation*>(static_cast<SoSeparator*>(read.get())->getChild(1));
    auto* movedAgain = static_cast<SoTransform*>(static_cast<SoSeparator*>(read.get())->getChild(0));
    again->goTo(1.5);
    EXPECT_EQ(movedAgain->translation.getValue(), SbVec3f(0, 0, 0));
    again->goTo(2);
    EXPECT_EQ(movedAgain->translation.getValue(), SbVec3f(4, 0, 0));
}

namespace
{

// A triangle of two bones: its corners 0 and 1 belong to the first, corner 2 to the second, which stands at
// (0, 1, 0) above the first.
class Skinned : public testing::Test
{
protected:
    Skinned()
    {
        upper->translation.setValue(0, 1, 0);
        points->points.setValues({{0, 0, 0}, {1, 0, 0}, {0, 2, 0}});
        skin->bones.setValues({SoRef<SoNode>(lower.get()), SoRef<SoNode>(upper.get())});
        skin->parents.setValues({-1, 0});
        skin->binds.setValues({SbMatrix(), SbMatrix::translation({0, -1, 0})});
        skin->bonesPerPoint.setValue(2);
        skin->boneIndices.setValues({0, 1, 0, 1, 0, 1});
        skin->weights.setValues({1, 0, 1, 0, 0, 1});
        root->addChild(points.get());
        root->addChild(morph.get());
        root->addChild(skin.get());
        root->addChild(shape.get());
    }
    SbBox3f box() { return SoBoundingBoxAction().getBox(root.get()); }
    bool isHit(const SbVec3f& at)
    {
        return SoRayPickAction().pick(root.get(), {at + SbVec3f(0, 0, 5), {0, 0, -1}}).has_value();
    }

    const SoRef<SoSeparator> root{new SoSeparator};
    const SoRef<SoPoints> points{new SoPoints};
    const SoRef<SoMorph> morph{new SoMorph};
    const SoRef<SoSkin> skin{new SoSkin};
    const SoRef<SoTransform> lower{new SoTransform};
    const SoRef<SoTransform> upper{new SoTransform};
    const SoRef<SoTriangleSet> shape{new SoTriangleSet};
};

} // namespace

TEST_F(Skinned, StandsAsItWasMade)
{
    EXPECT_EQ(box(), SbBox3f({0, 0, 0}, {1, 2, 0}));
}

TEST_F(Skinned, FollowsItsBones)
{
    EXPECT_FALSE(isHit({0, 2.5F, 0}));
    upper->translation.setValue(0, 2, 0);
    EXPECT_EQ(box(), SbBox3f({0, 0, 0}, {1, 3, 0}));
    EXPECT_TRUE(isHit({0.01F, 2.5F, 0}));
    lower->translation.setValue(5, 0, 0);
    EXPECT_EQ(box(), SbBox3f({5, 0, 0}, {6, 3, 0}));
    upper->translation.setValue(0, 1, 0);
    lower->translation.setValue(0, 0, 0);
    EXPECT_EQ(box(), SbBox3f({0, 0, 0}, {1, 2, 0}));
    EXPECT_EQ(points->points[2], SbVec3f(0, 2, 0)); // which nobody has written
}

TEST_F(Skinned, MixesBonesByTheirWeights)
{
    skin->weights.setValues({1, 0, 1, 0, 0.25F, 0.75F});
    upper->translation.setValue(0, 5, 0);
    EXPECT_EQ(box(), SbBox3f({0, 0, 0}, {1, 5, 0}));
}

TEST_F(Skinned, StandsInTheCoordinatesOfItsPlace)
{
    skin->place.setValue(0);
    lower->translation.setValue(5, 0, 0);
    EXPECT_EQ(box(), SbBox3f({0, 0, 0}, {1, 2, 0}));
}

TEST_F(Skinned, TakesOtherBones)
{
    const SoRef<SoTransform> other(new SoTransform);
    other->translation.setValue(0, 9, 0);
    skin->bones.set1Value(1, SoRef<SoNode>(other.get()));
    EXPECT_EQ(box(), SbBox3f({0, 0, 0}, {1, 10, 0}));
    other->translation.setValue(0, 3, 0);
    EXPECT_EQ(box(), SbBox3f({0, 0, 0}, {1, 4, 0}));
    upper->translation.setValue(0, 30, 0);
    EXPECT_EQ(box(), SbBox3f({0, 0, 0}, {1, 4, 0}));
}

TEST_F(Skinned, IgnoresListsThatDoNotFitTogether)
{
    upper->translation.setValue(0, 2, 0);
    for (const std::function<void()>& spoil : std::vector<std::function<void()>>{
             [&] { skin->weights.setNum(5); }, [&] { skin->boneIndices.set1Value(3, 2); },
             [&] { skin->parents.set1Value(1, 1); }, [&] { skin->binds.setNum(1); },
             [&] { skin->place.setValue(2); }, [&] { skin->bonesPerPoint.setValue(-2); }}) {
        spoil();
        EXPECT_EQ(box(), SbBox3f({0, 0, 0}, {1, 2, 0}));
    }
}

TEST_F(Skinned, TurnsNormals)
{
    SoState state;
    const SoRef<SoNormals> normals(new SoNormals);
    normals->vectors.setValues({{1, 0, 0}, {1, 0, 0}, {1, 0, 0}});
    state.points = points.get();
    state.normals = normals.get();
    upper->rotation.setValue(SbRotation({0, 0, 1}, std::acos(-1.0F) / 2));
    skin->apply(state);
    EXPECT_EQ(state.normals->vectors[0], SbVec3f(1, 0, 0));
    EXPECT_NEAR(state.normals->vectors[2][1], 1, 1e-6);
}

TEST_F(Skinned, IsMorphedBefore)
{
    morph->weights.setValues({0.5F, 0});
    morph->pointOffsets.setValues({{0, 0, 0}, {4, 0, 0}, {0, 0, 0}, {0, 0, 8}, {0, 0, 8}, {0, 0, 8}});
    upper->translation.setValue(0, 2, 0);
    EXPECT_EQ(box(), SbBox3f({0, 0, 0}, {3, 3, 0}));
    morph->weights.setValues({0, 1});
    EXPECT_EQ(box(), SbBox3f({0, 0, 8}, {1, 3, 8}));
    morph->weights.setValues({1});
    EXPECT_EQ(box(), SbBox3f({0, 0, 0}, {1, 3, 0}));
}

TEST_F(Skinned, IsPlayedWithItsMorphs)
{
    morph->weights.setValues({0, 0});
    morph->pointOffsets.setValues({{0, 0, 0}, {4, 0, 0}, {0, 0, 0}, {0, 0, 8}, {0, 0, 8}, {0, 0, 8}});
    const SoRef<SoAnimation> clip(new SoAnimation);
    clip->addChild(track(morph.get(), "weights", {0, 1}, {0, 0, 1, 0.5F}));
    clip->addChild(track(upper.get(), "translation", {0, 1}, {0, 1, 0, 0, 3, 0}));
    clip->goTo(1);
    EXPECT_EQ(box(), SbBox3f({0, 0, 4}, {5, 4, 4}));
    clip->goTo(0.5);
    EXPECT_EQ(box(), SbBox3f({0, 0, 2}, {3, 3, 2}));
    clip->stop();
    EXPECT_EQ(box(), SbBox3f({0, 0, 0}, {1, 2, 0}));
}

// SPDX-License-Identifier: MIT
#include "document/ChangedFields.h"

#include <gtest/gtest.h>

#include <xsg/nodes/animation/SoAnimation.h>
#include <xsg/nodes/animation/SoSkin.h>
#include <xsg/nodes/animation/SoTrack.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/transforms/SoTransform.h>

using namespace scopix;

namespace
{

TEST(ChangedFields, AreNoneOfThoseThatAnAnimationWrites)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    auto* bone = new SoTransform;
    auto* skin = new SoSkin;
    auto* clip = new SoAnimation;
    auto* track = new SoTrack;
    for (SoNode* node : std::initializer_list<SoNode*>{bone, skin, clip})
        root->addChild(node);
    clip->addChild(track);
    track->target.setValue(bone);
    track->field.setValue(SbName("translation"));
    track->times.setValues({0, 1});
    track->values.setValues({0, 0, 0, 1, 2, 3});
    skin->bones.setValue(SoRef<SoNode>(bone));
    ChangedFields changes([] {});
    changes.watch(root.get());
    clip->goTo(1);
    clip->play();
    SoTimeSource::getInstance().advance(0.25, root.get());
    clip->stop();
    EXPECT_TRUE(changes.isEmpty());
    bone->translation.setValue(1, 1, 1);
    EXPECT_FALSE(changes.isEmpty());
}

} // namespace

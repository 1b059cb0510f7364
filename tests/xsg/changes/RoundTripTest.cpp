// SPDX-License-Identifier: MIT
// Random pairs of scenes: what is between them, as text and applied, makes one the other to the last byte.
// SCOPIX_WALK_SEED takes other pairs, SCOPIX_WALK_STEPS another number of them.
#include "RandomScene.h"

#include <gtest/gtest.h>
#include <support/RandomWalk.h>
#include <xsg/changes/PatchApplication.h>
#include <xsg/changes/SceneDiff.h>

namespace
{

class Changes : public testing::Test
{
protected:
    static SoRef<SoNode> read(const std::string& text)
    {
        std::string error;
        SoRef<SoNode> scene = SoSceneFile::readText(text, "scene", error);
        EXPECT_TRUE(scene) << error << "\n" << text;
        return scene;
    }
    static xsg::SceneChanges reread(const xsg::SceneChanges& changes)
    {
        const std::string text = xsg::PatchText::write(changes);
        xsg::SceneChanges result;
        SbSentence error;
        EXPECT_TRUE(xsg::PatchText::read(text, "p.xsgpatch", result, error)) << error.getText() << "\n"
                                                                             << text;
        EXPECT_EQ(xsg::PatchText::write(result), text);
        return result;
    }
    static void expectPatch(SoNode* before, SoNode* after, const std::string& about)
    {
        const std::string oldText = SoSceneFile::writeText(before);
        const std::string wanted = SoSceneFile::writeText(after);
        const xsg::SceneChanges changes = reread(xsg::compareScenes(before, after));
        EXPECT_EQ(changes.empty(), oldText == wanted) << about;
        SoRef<SoNode> root(before);
        const xsg::PatchResult once = xsg::applyChanges(changes, root);
        const auto said = [&](const xsg::PatchResult& result) {
            std::string text = about + "\n" + xsg::PatchText::write(changes);
            for (const SbSentence& misfit : result.misfits)
                text += misfit.getText() + "\n";
            return text;
        };
        ASSERT_EQ(SoSceneFile::writeText(root.get()), wanted) << said(once) << oldText;
        EXPECT_TRUE(once.isWhole()) << said(once);
        const xsg::PatchResult twice = xsg::applyChanges(changes, root);
        EXPECT_EQ(SoSceneFile::writeText(root.get()), wanted) << "twice: " << said(twice) << oldText;
        RandomScene::forgetReferences(root.get());
        RandomScene::forgetReferences(after);
    }
};

} // namespace

TEST_F(Changes, OfRandomPairsMakeOneTheOther)
{
    const int pairs = std::max(1, fromEnvironment("SCOPIX_WALK_STEPS", 1000));
    const auto first = static_cast<unsigned>(fromEnvironment("SCOPIX_WALK_SEED", 1));
    for (int i = 0; i < pairs && !HasFatalFailure(); ++i) {
        const unsigned seed = first + static_cast<unsigned>(i);
        RandomScene scenes(seed);
        const SoRef<SoNode> made = scenes.make(2 + scenes.below(30));
        const SoRef<SoNode> before = settled(made.get());
        SoRef<SoNode> changed = i % 5 == 4 ? scenes.make(10) : settled(before.get());
        scenes.mutate(changed.get(), 1 + scenes.below(12));
        const SoRef<SoNode> after = settled(changed.get());
        RandomScene::forgetReferences(made.get());
        RandomScene::forgetReferences(changed.get());
        expectPatch(before.get(), after.get(), "seed " + std::to_string(seed));
    }
}

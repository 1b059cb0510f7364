// SPDX-License-Identifier: MIT
// Pictures of large scenes, drawn in pieces while the scene goes on.
#include "Picture.h"

#include <xsg/nodes/properties/SoFog.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>

namespace
{

class PiecewisePicture : public Picture
{
protected:
    using Progress = SoRenderer::Progress;
    static constexpr int Cubes = 9000; // more nodes than are looked at without a pause

    PiecewisePicture()
    {
        for (int i = 0; i < Cubes; ++i) {
            auto* group = new SoSeparator;
            auto* move = new SoTransform;
            move->translation.setValue(static_cast<float>(i % 100) * 0.05F - 2.5F,
                                       static_cast<float>(i / 100) * 0.05F - 2.2F, 0);
            move->scaleFactor.setValue(0.02F, 0.02F, 0.02F);
            group->addChild(move);
            group->addChild(new SoCube);
            root->addChild(group);
        }
    }
    SoTransform& transform(int i)
    {
        return *static_cast<SoTransform*>(static_cast<SoSeparator*>(root->getChild(i))->getChild(0));
    }
    // One piece, as short as possible.
    Progress drawPiece()
    {
        ++pieces;
        return renderer().renderPart(root.get(), camera.get(), 64, 64, {}, pixels);
    }
    // The rest; `between` runs between two pieces.
    template <class Between>
    void drawRest(const Between& between)
    {
        for (int most = 0; most < 10'000 && drawPiece() == Progress::Unfinished; ++most)
            between();
    }
    void drawRest()
    {
        drawRest([] {});
    }

    SoPixels pixels;
    int pieces = 0;
};

} // namespace

TEST_F(PiecewisePicture, IsTheSameInTheEnd)
{
    drawRest();
    EXPECT_GT(pieces, 3);
    EXPECT_TRUE(pixels.rgba == drawAfresh().rgba);
    EXPECT_EQ(renderer().getRenderer().getStatistics().shapes, Cubes);
    // From another place only drawing takes time.
    camera->position.setValue(0.1F, 0, 5);
    pieces = 0;
    drawRest();
    EXPECT_GT(pieces, 1);
    EXPECT_TRUE(pixels.rgba == drawAfresh().rgba);
}

TEST_F(PiecewisePicture, OfASmallSceneIsFinishedAtOnce)
{
    root->removeAllChildren();
    add<SoCube>();
    EXPECT_EQ(drawPiece(), Progress::Finished);
    EXPECT_TRUE(pixels.rgba == drawAfresh().rgba);
}

TEST_F(PiecewisePicture, FollowsFieldsThatChangeMeanwhile)
{
    int i = 0;
    drawRest([&] { transform(i = (i + 500) % Cubes).translation.setValue(0, 0, 1); });
    drawRest();
    EXPECT_TRUE(pixels.rgba == drawAfresh().rgba);
}

TEST_F(PiecewisePicture, FollowsChildrenThatComeAndGoMeanwhile)
{
    for (const int phase : {1, 3, 6}) {
        root->insertChild(new SoSphere, 0);
        static_cast<SoSphere*>(root->getChild(0))->radius.setValue(0.01F);
        // Something that is drawn by its fields, and is gone before it is.
        root->insertChild(new SoFog, 0);
        for (int piece = 0; piece < phase; ++piece)
            drawPiece();
        root->removeChild(0);
        root->removeChild(root->getNumChildren() - 1);
        drawRest();
        EXPECT_TRUE(pixels.rgba == drawAfresh().rgba) << phase;
    }
}

TEST_F(PiecewisePicture, OfASceneThatAlwaysChangesIsFinished)
{
    int changes = 0;
    drawRest([&] {
        root->removeChild(0);
        ++changes;
    });
    EXPECT_LT(changes, 100);
    drawRest();
    EXPECT_TRUE(pixels.rgba == drawAfresh().rgba);
}

TEST_F(PiecewisePicture, GivesWayToAnotherSceneAndToAWholePicture)
{
    EXPECT_EQ(drawPiece(), Progress::Unfinished);
    const SoRef<SoSeparator> large = root;
    root = SoRef<SoSeparator>(new SoSeparator);
    add<SoCube>();
    EXPECT_EQ(drawPiece(), Progress::Finished);
    EXPECT_TRUE(pixels.rgba == drawAfresh().rgba);
    root = large;
    EXPECT_EQ(drawPiece(), Progress::Unfinished);
    EXPECT_TRUE(draw().rgba == drawAfresh().rgba);
}

TEST_F(PiecewisePicture, MarksWhatIsSelected)
{
    renderer().getRenderer().setHighlight(root.get());
    drawRest();
    const SoPixels whole = draw();
    EXPECT_TRUE(pixels.rgba == whole.rgba);
    renderer().getRenderer().setHighlight(nullptr);
    EXPECT_FALSE(draw().rgba == whole.rgba);
}

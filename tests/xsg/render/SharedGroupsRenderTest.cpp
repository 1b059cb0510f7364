// SPDX-License-Identifier: MIT
// Groups that stand in many places.
#include "Picture.h"

#include "support/SharedLevels.h"
#include "xsg/errors/Collected.h"

#include <xsg/actions/SoTraversal.h>

namespace
{

class SharedGroupsPicture : public Picture
{
protected:
    static const SoRenderer::Statistics& statistics() { return renderer().getRenderer().getStatistics(); }

    Collected<SoError> said;
    const std::vector<std::string>& sentences = said.texts;
};

} // namespace

// To fill the picture thousands of times takes minutes, and shows what is there already.
TEST_F(SharedGroupsPicture, OfManyInOnePlaceAFewAreDrawn)
{
    root = makeSharedLevels(16, false);
    const SoPixels pixels = draw();
    EXPECT_EQ(statistics().shapes, 65'536);
    EXPECT_LE(statistics().triangles, 24);
    EXPECT_TRUE(sentences.empty());
    root = makeSharedLevels(0, false);
    EXPECT_EQ(draw().rgba, pixels.rgba);
}

TEST_F(SharedGroupsPicture, OfMillionsAPartIsDrawnAndThatIsSaid)
{
    root = makeSharedLevels(22, false);
    EXPECT_NE(center(draw()), Background);
    EXPECT_GT(statistics().nodes, SoTraversal::MostRepeats);
    EXPECT_LT(statistics().nodes, SoTraversal::MostRepeats + 1000);
    EXPECT_EQ(sentences.size(), 1U);
    // Another look draws from what is known; a change is followed.
    draw();
    EXPECT_EQ(statistics().nodes, 0);
    root->insertChild(new SoTransform, 0);
    static_cast<SoTransform*>(root->getChild(0))->translation.setValue(100, 0, 0);
    EXPECT_EQ(center(draw()), Background);
}

TEST_F(SharedGroupsPicture, EachOfThoseInOnePlaceCanBeMarkedAndMoved)
{
    const SoRef<SoSeparator> shared(new SoSeparator);
    shared->addChild(new SoCube);
    std::vector<SoSeparator*> groups;
    std::vector<SoTransform*> transforms;
    for (int i = 0; i < 4; ++i) {
        groups.push_back(add<SoSeparator>());
        transforms.push_back(new SoTransform);
        groups.back()->addChild(transforms.back());
        groups.back()->addChild(shared.get());
    }
    const SoPixels plain = draw();
    EXPECT_LT(statistics().triangles, 4 * 12);
    renderer().getRenderer().setHighlight(groups[0]);
    const SoPixels marked = draw();
    EXPECT_NE(marked.rgba, plain.rgba);
    for (const SoSeparator* group : groups) {
        renderer().getRenderer().setHighlight(group);
        EXPECT_EQ(draw().rgba, marked.rgba);
    }
    renderer().getRenderer().setHighlight(nullptr);
    for (const int moved : {1, 3, 2}) {
        transforms[static_cast<std::size_t>(moved)]->translation.setValue(static_cast<float>(moved) - 1.5F, 1,
                                                                          0);
        EXPECT_EQ(draw().rgba, drawAfresh().rgba) << moved;
    }
    transforms[2]->translation.setValue(0, 0, 0);
    EXPECT_EQ(draw().rgba, drawAfresh().rgba);
}

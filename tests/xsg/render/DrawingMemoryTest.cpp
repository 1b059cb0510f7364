// SPDX-License-Identifier: MIT
// What scenes take of main memory when they are drawn and measured, by the allocator's own count.
#include "Picture.h"

#include "support/HeapInUse.h"
#include "support/SharedLevels.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/values/SbRotation.h>

namespace
{

// Each with a transform in a separator of its own.
SoRef<SoSeparator> makeCubes(int count)
{
    SoRef<SoSeparator> root(new SoSeparator);
    for (int i = 0; i < count; ++i) {
        auto* group = new SoSeparator;
        auto* transform = new SoTransform;
        transform->translation.setValue(3.0F * static_cast<float>(i % 200),
                                        3.0F * static_cast<float>(i / 200), 0);
        group->addChild(transform);
        group->addChild(new SoCube);
        root->addChild(group);
    }
    return root;
}

class DrawingMemory : public testing::Test
{
protected:
    static constexpr int Cubes = 20'000;

    // What a scene takes of memory when its box is known and it has been drawn, beside its own nodes.
    enum class Look { At, Away }; // away: the rasterizer, whose memory varies, has nothing to do
    std::size_t taken(SoNode* root, Look look)
    {
        SoPixels pixels;
        const SoRef<SoSeparator> nothing(new SoSeparator);
        EXPECT_TRUE(renderer.render(nothing.get(), camera.get(), 400, 400, pixels))
            << renderer.getErrorText();
        renderer.render(nothing.get(), camera.get(), 400, 400, pixels);
        const std::size_t before = heapInUse();
        camera->orientation.setValue(SbRotation());
        camera->viewAll(SoBoundingBoxAction().getBox(root), 1);
        if (look == Look::Away)
            camera->orientation.setValue(SbRotation({0, 1, 0}, 3.14159265F));
        for (int picture = 0; picture < 3; ++picture)
            EXPECT_TRUE(renderer.render(root, camera.get(), 400, 400, pixels));
        return heapInUse() - before;
    }

    SoRef<SoPerspectiveCamera> camera{new SoPerspectiveCamera};
    SoOffscreenRenderer renderer;
};

} // namespace

// The rasterizer keeps what it has not filled yet: half a kilobyte a triangle, and more for each edge.
TEST_F(DrawingMemory, InSoftwareIsNotTakenForEachTriangle)
{
    const auto root = makeCubes(Cubes);
    renderer.getRenderer().setHighlight(root.get());
    EXPECT_LT(taken(root.get(), Look::At), std::size_t{50} << 20);
}

TEST_F(DrawingMemory, OfACubeIsLessThanAKilobyte)
{
    const auto few = makeCubes(Cubes);
    const auto many = makeCubes(2 * Cubes);
    const std::size_t forFew = taken(few.get(), Look::Away); // with what every picture takes
    EXPECT_LT(taken(many.get(), Look::Away), forFew + Cubes * 600);
}

TEST_F(DrawingMemory, OfSharedGroupsIsLessThanAKilobyteForEachPlace)
{
    const auto few = makeSharedLevels(14, true);
    const auto many = makeSharedLevels(16, true);
    const std::size_t forFew = taken(few.get(), Look::Away);
    EXPECT_LT(taken(many.get(), Look::Away), forFew + std::size_t{49'152} * 600);
    EXPECT_EQ(renderer.getRenderer().getStatistics().shapes, 65'536);
}

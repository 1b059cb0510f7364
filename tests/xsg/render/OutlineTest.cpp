// SPDX-License-Identifier: MIT
// The line around what is marked.
#include "Picture.h"

#include <xsg/nodes/properties/SoClipPlane.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/transforms/SoTransform.h>

namespace
{

class Outline : public Picture
{
protected:
    static constexpr Pixel Line{0, 255, 0};
    static constexpr Pixel Rim{0, 0, 0};

    Outline()
    {
        SoRenderer& drawing = renderer().getRenderer();
        drawing.setBackground({1, 1, 1});
        drawing.setHighlightColor({0, 1, 0});
        drawing.setHighlightThickness(2);
        renderer().setSamples(1);
    }
    ~Outline() override
    {
        renderer().getRenderer().setBackground({0, 0, 1});
        renderer().getRenderer().setHighlightThickness(2);
    }

    // A red square across the line of sight, of `side` wide, in a group of its own.
    SoSeparator* addSquare(float side, float z = 0, const SbColor& color = {1, 0, 0}, int cuts = 1)
    {
        auto* group = add<SoSeparator>();
        auto* material = new SoMaterial;
        material->ambientColor.setValue(SbColor(0, 0, 0));
        material->diffuseColor.setValue(SbColor(0, 0, 0));
        material->emissiveColor.setValue(color);
        std::vector<SbVec3f> corners;
        std::vector<std::int32_t> index;
        const auto row = static_cast<std::int32_t>(cuts + 1);
        for (std::int32_t i = 0; i < row * row; ++i) {
            const float x = static_cast<float>(i % row) / static_cast<float>(cuts) - 0.5F;
            const float y = static_cast<float>(i / row) / static_cast<float>(cuts) - 0.5F;
            corners.emplace_back(side * x, side * y, z);
            if (i % row < cuts && i / row < cuts)
                index.insert(index.end(), {i, i + 1, i + row + 1, i, i + row + 1, i + row});
        }
        auto* points = new SoPoints;
        points->points.setValues(0, static_cast<int>(corners.size()), corners.data());
        auto* faces = new SoIndexedTriangleSet;
        faces->index.setValues(0, static_cast<int>(index.size()), index.data());
        for (SoNode* node : std::initializer_list<SoNode*>{material, points, faces})
            group->addChild(node);
        return group;
    }
    SoPixels drawMarked(const SoNode* node, int size = 64)
    {
        renderer().getRenderer().setHighlight(node);
        return draw(size, size);
    }
    // From the left, in the middle of the picture: where pixels other than the background begin.
    static int firstFrom(const SoPixels& pixels, const Pixel& background)
    {
        int x = 0;
        while (x < pixels.width && isNear(at(pixels, x, pixels.height / 2), background))
            ++x;
        return x;
    }
};

} // namespace

TEST_F(Outline, LiesAroundWhatIsMarkedAndLeavesItsLooksAlone)
{
    SoSeparator* square = addSquare(1.6F, 0, {1, 0, 0}, 20);
    const SoPixels plain = draw();
    const int edge = firstFrom(plain, {255, 255, 255});
    const SoPixels marked = drawMarked(square);
    EXPECT_PIXEL(at(marked, edge - 1, 32), Line);
    EXPECT_PIXEL(at(marked, edge - 2, 32), Line);
    EXPECT_LT(at(marked, edge - 3, 32)[1], 150); // its rim
    EXPECT_PIXEL(at(marked, edge - 5, 32), (Pixel{255, 255, 255}));
    for (int y = edge + 1; y < 63 - edge; ++y) {
        for (int x = edge + 1; x < 63 - edge; ++x)
            ASSERT_EQ(at(marked, x, y), at(plain, x, y)) << x << ' ' << y;
    }
}

TEST_F(Outline, IsAsThickAsAsked)
{
    SoSeparator* square = addSquare(1);
    const int edge = firstFrom(draw(200, 200), {255, 255, 255});
    for (const float thickness : {1.0F, 2.0F, 4.0F, 6.0F}) {
        renderer().getRenderer().setHighlightThickness(thickness);
        const SoPixels marked = drawMarked(square, 200);
        EXPECT_NEAR(edge - firstFrom(marked, {255, 255, 255}), 1.5F * thickness, 1) << thickness;
        EXPECT_PIXEL(at(marked, edge - static_cast<int>(thickness), 100), Line);
    }
}

TEST_F(Outline, IsThinnerAroundAllButTheLastOfSeveral)
{
    SoSeparator* some = addSquare(1);
    SoSeparator* other = addSquare(0.25F, 0.5F, {0, 0, 1});
    const int edge = firstFrom(draw(200, 200), {255, 255, 255});
    renderer().getRenderer().setHighlightThickness(6);
    const auto widthAround = [&](std::vector<std::uint64_t> marked) {
        renderer().getRenderer().setHighlightedNumbers(marked);
        const SoPixels pixels = draw(200, 200);
        EXPECT_NE(at(pixels, 100, 100), Line);
        return edge - firstFrom(pixels, {255, 255, 255});
    };
    EXPECT_NEAR(widthAround({other->getNodeId(), some->getNodeId()}), 9, 1);
    EXPECT_NEAR(widthAround({some->getNodeId(), other->getNodeId()}), 6, 1);
    EXPECT_NEAR(widthAround({some->getNodeId(), some->getNodeId()}), 9, 1);
    EXPECT_EQ(widthAround({}), 0);
}

TEST_F(Outline, IsWeakerWhereSomethingCoversIt)
{
    SoSeparator* square = addSquare(1);
    const int edge = firstFrom(draw(), {255, 255, 255});
    addSquare(4, 1, {0, 0, 1});
    const SoPixels covered = draw();
    EXPECT_PIXEL(at(covered, edge - 1, 32), (Pixel{0, 0, 255}));
    const Pixel line = at(drawMarked(square), edge - 1, 32);
    EXPECT_GT(line[1], 60);
    EXPECT_LT(line[1], 160);
    EXPECT_GT(line[2], 100);
}

TEST_F(Outline, EndsWhereAClipPlaneCuts)
{
    SoSeparator* square = addSquare(1.6F);
    auto* plane = new SoClipPlane;
    plane->plane.setValue(SbPlane({1, 0, 0}, 0)); // keeps the right half
    square->insertChild(plane, 0);
    const int edge = firstFrom(draw(), {255, 255, 255});
    EXPECT_NEAR(edge, 32, 1);
    EXPECT_PIXEL(at(drawMarked(square), edge - 1, 32), Line);
}

TEST_F(Outline, MarksWhatIsTransparent)
{
    SoSeparator* square = addSquare(1.6F);
    static_cast<SoMaterial*>(square->getChild(0))->transparency.setValue(0.5F);
    const int edge = firstFrom(draw(), {255, 255, 255});
    EXPECT_PIXEL(at(drawMarked(square), edge - 1, 32), Line);
}

// What reaches beyond the picture would have no line at all.
TEST_F(Outline, IsClosedAlongThePicturesBorder)
{
    const SoPixels marked = drawMarked(addSquare(100));
    EXPECT_PIXEL(at(marked, 0, 32), Line);
    EXPECT_PIXEL(at(marked, 63, 32), Line);
    EXPECT_PIXEL(at(marked, 32, 0), Line);
    EXPECT_PIXEL(center(marked), (Pixel{255, 0, 0}));
}

TEST_F(Outline, OfWhatIsOutOfSightCostsNothing)
{
    SoSeparator* far = addSquare(1);
    auto* transform = new SoTransform;
    transform->translation.setValue(1000, 0, 0);
    far->insertChild(transform, 0);
    addSquare(1);
    const SoPixels plain = draw();
    EXPECT_EQ(drawMarked(far).rgba, plain.rgba);
    EXPECT_EQ(renderer().getRenderer().getStatistics().triangles, 2);
}

// SPDX-License-Identifier: MIT
// What is given to OpenGL again, and what is not: by the renderer's own counts.
#include "Picture.h"

#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoCylinder.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/values/SbRotation.h>

#include <random>

namespace
{

constexpr std::int64_t BytesOfACopy = 128;

class InstanceData : public Picture
{
protected:
    // A row of small shapes along x, -`half` to `half`.
    template <class Shape = SoCube>
    void addRow(int count, float half)
    {
        for (int i = 0; i < count; ++i) {
            auto* group = new SoSeparator;
            auto* transform = new SoTransform;
            transform->translation.setValue(
                half * (2 * static_cast<float>(i) / static_cast<float>(count - 1) - 1), 0, 0);
            transform->scaleFactor.setValue(0.05F, 0.05F, 0.05F);
            for (SoNode* node : std::initializer_list<SoNode*>{transform, new SoMaterial, new Shape})
                group->addChild(node);
            root->addChild(group);
        }
    }
    template <class Node>
    Node& part(int place, int child)
    {
        return *static_cast<Node*>(root->getChild(place)->asGroup()->getChild(child));
    }
    SoTransform& transformOf(int place) { return part<SoTransform>(place, 0); }
    SoMaterial& materialOf(int place) { return part<SoMaterial>(place, 1); }
    SoSFBitMask& partsOf(int place) { return part<SoCylinder>(place, 2).parts; }
    static const SoRenderer::Statistics& statistics() { return renderer().getRenderer().getStatistics(); }

    void expectUploads(std::int64_t uploads, std::int64_t copies)
    {
        draw();
        EXPECT_EQ(statistics().bufferUploads, uploads);
        EXPECT_EQ(statistics().uploadedBytes, copies * BytesOfACopy);
    }
};

} // namespace

TEST_F(InstanceData, IsGivenOnceAndThenOnlyWhereItChanges)
{
    addRow(200, 1.5F);
    draw();
    EXPECT_GE(statistics().uploadedBytes, 200 * BytesOfACopy);
    expectUploads(0, 0);
    camera->position.setValue(0, 0.5F, 5);
    expectUploads(0, 0);
    transformOf(20).translation.setValue(0, 1, 0);
    expectUploads(1, 1);
    EXPECT_EQ(draw().rgba, drawAfresh().rgba);
    for (const int place : {21, 23, 22, 150})
        materialOf(place).diffuseColor.setValue(SbColor(1, 0, 0));
    expectUploads(2, 4); // three neighbours, and one by itself
    EXPECT_EQ(draw().rgba, drawAfresh().rgba);
    for (int place = 0; place < 200; ++place)
        materialOf(place).diffuseColor.setValue(SbColor(0, 1, 0));
    expectUploads(1, 200);
    EXPECT_EQ(draw().rgba, drawAfresh().rgba);
}

TEST_F(InstanceData, OfWhatIsTransparentIsGivenAgainWhenItsOrderTurns)
{
    addRow(10, 1);
    for (int place = 0; place < 10; ++place)
        materialOf(place).transparency.setValue(0.5F);
    const auto lookFrom = [&](float x) {
        camera->position.setValue(x, 0, 5);
        camera->pointAt({0, 0, 0});
    };
    lookFrom(3);
    draw();
    expectUploads(0, 0);
    lookFrom(3.1F);
    expectUploads(0, 0); // the same one is still the farthest
    lookFrom(-3);
    expectUploads(1, 10);
    materialOf(4).diffuseColor.setValue(SbColor(1, 0, 0));
    expectUploads(1, 1);
    materialOf(4).transparency.setValue(0);
    expectUploads(2, 10); // nine, and one
    EXPECT_EQ(draw().rgba, drawAfresh().rgba);
}

TEST_F(InstanceData, AMarkCostsNoWalkOverTheScene)
{
    addRow(100, 1.5F);
    const SoPixels plain = draw();
    renderer().getRenderer().setHighlight(root->getChild(50));
    expectUploads(0, 0); // it is drawn from what is there
    EXPECT_EQ(statistics().nodes, 0);
    EXPECT_NE(draw().rgba, plain.rgba);
    expectUploads(0, 0);
    transformOf(50).translation.setValue(0, 1, 0);
    expectUploads(1, 1);
    renderer().getRenderer().setHighlight(&materialOf(3)); // nothing to see
    const SoPixels unmarked = draw();
    EXPECT_EQ(unmarked.rgba, drawAfresh().rgba);
    renderer().getRenderer().setHighlight(root.get());
    expectUploads(0, 0);
    renderer().getRenderer().setHighlight(nullptr);
    EXPECT_EQ(draw().rgba, unmarked.rgba);
}

// A toolkit asks for a mark by number, after the node may have been destroyed.
TEST_F(InstanceData, AMarkedNodeMayBeDestroyed)
{
    addRow(3, 1);
    renderer().getRenderer().setHighlight(root->getChild(1));
    draw();
    root->removeChild(1);
    EXPECT_EQ(draw().rgba, drawAfresh().rgba);
}

TEST_F(InstanceData, OnlyWhatIsInSightIsDrawn)
{
    addRow(1000, 100); // of which some twenty are in sight
    const SoPixels pixels = draw();
    EXPECT_EQ(pixels.rgba, drawAfresh().rgba);
    EXPECT_EQ(statistics().shapes, 1000);
    EXPECT_NEAR(static_cast<double>(statistics().culled), 980, 6);
    EXPECT_EQ(statistics().triangles, 12 * (1000 - statistics().culled));
    EXPECT_EQ(statistics().drawCalls, 1);
    // One that comes into sight from far away, among neighbours that do not.
    transformOf(990).translation.setValue(0, 1, 0);
    const auto culled = statistics().culled;
    EXPECT_NE(draw().rgba, pixels.rgba);
    EXPECT_EQ(statistics().culled, culled - 1);
    EXPECT_EQ(statistics().drawCalls, 2);
    transformOf(990).translation.setValue(0, 1000, 0);
    draw();
    EXPECT_EQ(statistics().culled, culled);
}

TEST_F(InstanceData, AFewOutOfSightAreDrawnRatherThanSkipped)
{
    addRow(9, 1);
    transformOf(4).translation.setValue(1000, 0, 0);
    draw();
    EXPECT_EQ(statistics().culled, 1);
    EXPECT_EQ(statistics().drawCalls, 1);
    EXPECT_EQ(statistics().triangles, 9 * 12);
}

TEST_F(InstanceData, OnlySettingsThatDifferAreChanged)
{
    auto* style = new SoDrawStyle;
    root->addChild(style);
    addRow(6, 1);
    draw();
    const auto alone = statistics().stateChanges;
    // A style for one in the middle: it alone has another setting, and shapes of a kind go together.
    auto* other = new SoDrawStyle;
    static_cast<SoSeparator*>(root->getChild(3))->insertChild(other, 0);
    draw();
    EXPECT_EQ(statistics().stateChanges, alone + 1);
    // A light for one of them.
    static_cast<SoSeparator*>(root->getChild(5))->insertChild(new SoDirectionalLight, 0);
    draw();
    EXPECT_LE(statistics().stateChanges, alone + 4);
    EXPECT_EQ(statistics().drawCalls, 3);
}

TEST_F(InstanceData, ABodysFarSideIsBlendedBeforeItsNearSide)
{
    // Two squares facing away from each other, the near one red, the far one green.
    auto* points = new SoPoints;
    points->points.setValues(
        {{-1, -1, 1}, {1, -1, 1}, {1, 1, 1}, {-1, 1, 1}, {-1, -1, -1}, {1, -1, -1}, {1, 1, -1}, {-1, 1, -1}});
    auto* material = new SoMaterial;
    const SbColor red(1, 0, 0);
    const SbColor green(0, 1, 0);
    material->ambientColor.setValue(SbColor(0, 0, 0));
    material->diffuseColor.setValues({red, red, green, green});
    material->transparency.setValue(0.5F);
    auto* faces = new SoIndexedTriangleSet;
    faces->index.setValues({0, 1, 2, 0, 2, 3, 5, 4, 7, 5, 7, 6});
    faces->colorBinding.setValue(SoVertexShape::PerFace);
    auto* turn = new SoTransform;
    for (SoNode* node : std::initializer_list<SoNode*>{turn, points, material, faces})
        root->addChild(node);
    EXPECT_PIXEL(center(draw()), (Pixel{128, 64, 64}));
    EXPECT_EQ(statistics().triangles, 4);
    turn->rotation.setValue(SbRotation({0, 1, 0}, 3.14159265F));
    EXPECT_PIXEL(center(draw()), (Pixel{64, 128, 64}));
    turn->rotation.setValue(SbRotation());
    turn->scaleFactor.setValue(-1, 1, 1);
    EXPECT_PIXEL(center(draw()), (Pixel{128, 64, 64}));
}

// A crowd is drawn by one call.
TEST_F(InstanceData, ManyTransparentCopiesAreDrawnTogether)
{
    addRow(100, 1);
    for (int place = 0; place < 100; ++place)
        materialOf(place).transparency.setValue(0.5F);
    draw();
    EXPECT_EQ(statistics().drawCalls, 1);
    EXPECT_EQ(statistics().triangles, 1200);
}

TEST_F(InstanceData, AChangedShapeLeavesItsBatchAndRejoinsIt)
{
    addRow<SoCylinder>(9, 1);
    const SoPixels before = draw();
    constexpr int Whole = SoCylinder::All;
    constexpr int Pipe = SoCylinder::Sides;
    constexpr int Cup = SoCylinder::Sides | SoCylinder::Bottom;
    struct Step {
        int place;
        int parts;
        int calls;
    };
    for (const Step& step : std::initializer_list<Step>{{4, Pipe, 3},
                                                        {5, Pipe, 3},
                                                        {7, Pipe, 5},
                                                        {6, Pipe, 3},
                                                        {0, Pipe, 4},
                                                        {8, Pipe, 3},
                                                        {5, Cup, 5},
                                                        {5, Pipe, 3},
                                                        {0, Whole, 2},
                                                        {6, Whole, 4},
                                                        {4, Whole, 4},
                                                        {5, Whole, 2},
                                                        {7, Whole, 2},
                                                        {8, Whole, 1},
                                                        {4, 0, 1},
                                                        {4, Whole, 1}}) {
        partsOf(step.place).setValue(step.parts);
        EXPECT_EQ(draw().rgba, drawAfresh().rgba);
        EXPECT_EQ(statistics().drawCalls, step.calls) << step.place << ' ' << step.parts;
    }
    EXPECT_EQ(draw().rgba, before.rgba);
}

// Nothing is uploaded but its geometry and its own copy, however many others there are.
TEST_F(InstanceData, AShapeThatChangesLeavesTheOthersAlone)
{
    addRow<SoCylinder>(1000, 1);
    draw();
    partsOf(500).setValue(SoCylinder::Sides);
    draw();
    EXPECT_EQ(statistics().bufferUploads, 2);
    EXPECT_LT(statistics().uploadedBytes, 200 * BytesOfACopy);
}

// They would need a call each where they stand.
TEST_F(InstanceData, ManyShapesThatChangeOneByOneAreGroupedAgain)
{
    addRow<SoCylinder>(200, 1);
    draw();
    for (int place = 0; place < 200; place += 2) {
        partsOf(place).setValue(SoCylinder::Sides);
        draw();
    }
    EXPECT_LE(statistics().drawCalls, 64);
}

TEST_F(InstanceData, AnySequenceOfEditsLooksAsIfDrawnByANewRenderer)
{
    addRow<SoCylinder>(80, 1.5F);
    std::mt19937 random(7);
    const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    const auto fraction = [&] { return static_cast<float>(below(100)) / 50 - 1; };
    renderer().getRenderer().setHighlight(nullptr);
    for (int round = 0; round < 40; ++round) {
        std::string done;
        for (int edits = below(round % 8 == 0 ? 25 : 3); edits >= 0; --edits) {
            const int place = below(root->getNumChildren());
            const int what = below(10);
            done += std::to_string(what) + '@' + std::to_string(place) + ' ';
            if (what == 0)
                root->insertChild(new SoMaterial, place);
            else if (what == 1 && root->getNumChildren() > 70)
                root->removeChild(place);
            else if (!root->getChild(place)->asGroup())
                static_cast<SoMaterial*>(root->getChild(place))->emissiveColor.setValue(SbColor(0.2F, 0, 0));
            else if (what == 2)
                static_cast<SoSeparator*>(root->getChild(place))->addChild(new SoSphere);
            else if (what == 3)
                materialOf(place).transparency.setValue(below(2) == 0 ? 0 : 0.4F);
            else if (what == 4)
                materialOf(place).diffuseColor.setValue(SbColor(1, 0, 1));
            else if (what == 5)
                partsOf(place).setValue(below(4)); // none at all among them
            else
                transformOf(place).translation.setValue(3 * fraction(), fraction(), fraction());
        }
        const SoPixels pixels = draw();
        ASSERT_EQ(pixels.rgba, drawAfresh().rgba) << done;
    }
}

// SPDX-License-Identifier: MIT
// What is done again for another picture after a change, and what is not drawn at all.
#include "Picture.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/nodes/groups/SoInstances.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/properties/SoClipPlane.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoFog.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>

using Redrawing = Picture;

TEST_F(Redrawing, DoesNotDrawWhatIsOutOfSight)
{
    add<SoCube>();
    add<SoTransform>()->translation.setValue(1000, 0, 0);
    add<SoCube>();
    draw();
    const auto& statistics = renderer().getRenderer().getStatistics();
    EXPECT_EQ(statistics.shapes, 2);
    EXPECT_EQ(statistics.culled, 1);
    EXPECT_EQ(statistics.triangles, 12);
}

// So many that there are runs of runs of shapes.
TEST_F(Redrawing, OfThousandsOnlyWhatIsInSightIsDrawn)
{
    std::vector<SoTransform*> moves;
    for (int i = 0; i < 5000; ++i) {
        auto* group = new SoSeparator;
        moves.push_back(new SoTransform);
        moves.back()->translation.setValue(static_cast<float>(20 * i), 0, 0);
        group->addChild(moves.back());
        group->addChild(new SoCube);
        root->addChild(group);
    }
    const auto& statistics = renderer().getRenderer().getStatistics();
    const auto lookAt = [&](float x) {
        camera->position.setValue(x, 0, 5);
        return draw();
    };
    for (const int place : {0, 63, 64, 4095, 4096, 4999}) {
        EXPECT_GT(center(lookAt(static_cast<float>(20 * place)))[0], 100) << place;
        EXPECT_EQ(statistics.culled, 4999) << place;
    }
    moves[4500]->translation.setValue(-5000, 0, 0);
    EXPECT_EQ(center(lookAt(20 * 4500))[0], 0);
    EXPECT_EQ(statistics.culled, 5000);
    EXPECT_GT(center(lookAt(-5000))[0], 100);
    EXPECT_EQ(statistics.culled, 4999);
    camera->position.setValue(50000, 0, 5000);
    camera->farDistance.setValue(10000);
    EXPECT_EQ(draw().rgba, drawAfresh().rgba);
}

TEST_F(Redrawing, AClippedPartLeavesTheOthersAsTheyWere)
{
    add<SoDirectionalLight>()->direction.setValue(1, -2, -3);
    auto* fog = add<SoFog>();
    fog->visibility.setValue(20);
    fog->color.setValue(SbColor(1, 1, 0));
    SoClipPlane* clips[2];
    for (int i = 0; i < 2; ++i) {
        auto* group = new SoSeparator;
        auto* move = new SoTransform;
        move->translation.setValue(i == 0 ? -1.0F : 1.0F, 0, 0);
        move->scaleFactor.setValue(0.8F, 0.8F, 0.8F);
        clips[i] = new SoClipPlane;
        clips[i]->plane.setValue(SbPlane({0, 1, 0}, 0));
        clips[i]->on.setValue(false);
        for (SoNode* node : std::initializer_list<SoNode*>{move, clips[i], new SoSphere})
            group->addChild(node);
        root->addChild(group);
    }
    renderer().setSamples(1);
    const SoPixels whole = draw();
    for (const bool isLeft : {true, false}) {
        SoClipPlane* clip = clips[isLeft ? 0 : 1];
        clip->on.setValue(true);
        const SoPixels cut = draw();
        int differing = 0;
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x) {
                const bool isCutAway = isLeft == (x < 32) && y >= 31;
                if (!isCutAway)
                    EXPECT_EQ(at(cut, x, y), at(whole, x, y)) << x << ' ' << y;
                else
                    differing += at(cut, x, y) != at(whole, x, y) ? 1 : 0;
            }
        }
        EXPECT_GT(differing, 50);
        clip->on.setValue(false);
        EXPECT_EQ(draw().rgba, whole.rgba);
    }
}

TEST_F(Redrawing, AChoiceAmongManyShowsAtOnce)
{
    auto* choice = add<SoSwitch>();
    for (int i = 0; i < 100; ++i) {
        auto* group = new SoSeparator;
        auto* move = new SoTransform;
        move->translation.setValue(i == 70 ? 0.0F : 100.0F, 0, 0);
        group->addChild(move);
        group->addChild(new SoCube);
        choice->addChild(group);
    }
    for (const int which : {3, 70, 4, int{SoSwitch::All}, int{SoSwitch::None}}) {
        choice->whichChild.setValue(which);
        const bool isShown = which == 70 || which == SoSwitch::All;
        EXPECT_EQ(center(draw())[0] > 100, isShown) << which;
    }
}

TEST_F(Redrawing, CopiesStandWhereTheirListPutsThem)
{
    auto* copies = add<SoInstances>();
    copies->addChild(new SoCube);
    for (const float x : {50.0F, 0.0F, 60.0F}) {
        copies->matrices.set1Value(0, SbMatrix::translation({x, 0, 0}));
        EXPECT_EQ(center(draw())[0] > 100, x == 0) << x;
    }
}

TEST_F(Redrawing, AnotherChildInTheSamePlaceIsSeen)
{
    add<SoCube>()->width.setValue(0.1F);
    const SoRef<SoCube> wide(new SoCube);
    wide->width.setValue(4);
    draw();
    root->replaceChild(0, wide.get());
    EXPECT_EQ(draw().rgba, drawAfresh().rgba);
}

TEST_F(Redrawing, GeometryIsUploadedOnlyWhenItsFieldsChange)
{
    auto* material = addMaterial({1, 0, 0});
    auto* points = add<SoPoints>();
    points->points.setValues({{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}});
    add<SoIndexedTriangleSet>()->index.setValues({0, 1, 2});
    draw();
    const auto& statistics = renderer().getRenderer().getStatistics();
    EXPECT_EQ(statistics.bufferUploads, 2); // the triangle and its place
    material->diffuseColor.setValue(SbColor(0, 1, 0));
    draw();
    EXPECT_EQ(statistics.bufferUploads, 1);
    points->points.set1Value(0, {-1, 1, 0});
    draw();
    EXPECT_EQ(statistics.bufferUploads, 2);
    draw();
    EXPECT_EQ(statistics.nodes, 0);
}

TEST_F(Redrawing, AFieldChangeCostsTheNodesAboveItAndWhatItReaches)
{
    SoMaterial* material = nullptr;
    SoTransform* transform = nullptr;
    add<SoDirectionalLight>();
    for (int i = 0; i < 100; ++i) {
        auto* group = new SoSeparator;
        transform = new SoTransform;
        material = new SoMaterial;
        transform->translation.setValue(static_cast<float>(i % 10) * 0.2F - 1, 0, 0);
        transform->scaleFactor.setValue(0.1F, 0.1F, 0.1F);
        for (SoNode* node : std::initializer_list<SoNode*>{transform, material, new SoCube, new SoSphere})
            group->addChild(node);
        root->addChild(group);
    }
    const auto& statistics = renderer().getRenderer().getStatistics();
    draw();
    EXPECT_EQ(statistics.nodes, 502);
    const auto expectAsAfresh = [&](int nodes) {
        const SoPixels patched = draw();
        EXPECT_EQ(statistics.nodes, nodes);
        EXPECT_EQ(renderer().getRenderer().getSceneBox(), SoBoundingBoxAction().getBox(root.get()));
        draw(16, 16);
        EXPECT_EQ(statistics.nodes, 0);
        EXPECT_EQ(drawAfresh().rgba, patched.rgba);
    };
    // The root, its light, the one separator that changed, and what is below that.
    material->diffuseColor.setValue(SbColor(1, 0, 0));
    expectAsAfresh(7);
    transform->translation.setValue(0, 1, 0);
    expectAsAfresh(7);
    material->transparency.setValue(0.5F);
    expectAsAfresh(7);
    material->transparency.setValue(0);
    static_cast<SoSphere*>(static_cast<SoSeparator*>(root->getChild(50))->getChild(3))->radius.setValue(7);
    material->diffuseColor.setValue(SbColor(0, 1, 0));
    expectAsAfresh(12);
}

TEST_F(Redrawing, RebuildsWhatCannotBePatched)
{
    auto* light = add<SoDirectionalLight>();
    auto* group = new SoSeparator;
    root->addChild(group);
    auto* style = new SoDrawStyle;
    group->addChild(style);
    group->addChild(new SoCube);
    addMaterial({1, 0, 0});
    auto* sphere = add<SoSphere>();
    sphere->radius.setValue(1.4F); // looks out of the cube
    const SoPixels first = draw();
    const auto triangles = renderer().getRenderer().getStatistics().triangles;
    style->style.setValue(SoDrawStyle::Invisible);
    draw();
    EXPECT_EQ(renderer().getRenderer().getStatistics().triangles, triangles - 12);
    style->style.setValue(SoDrawStyle::Filled);
    EXPECT_EQ(draw().rgba, first.rgba);
    light->on.setValue(false);
    light->on.setValue(true);
    EXPECT_EQ(draw().rgba, first.rgba);
    group->addChild(new SoSphere);
    sphere->radius.setValue(0.5F);
    EXPECT_NE(draw().rgba, first.rgba);
    group->removeChild(2);
    sphere->radius.setValue(1.4F);
    EXPECT_EQ(draw().rgba, first.rgba);
    SoRef<SoNode> last(root->getChild(3));
    root->removeChild(3);
    EXPECT_NE(draw().rgba, first.rgba);
    root->addChild(last.get());
    EXPECT_EQ(draw().rgba, first.rgba);
}

TEST_F(Redrawing, ACameraInTheSceneMovesWithoutAWalkOverTheScene)
{
    auto* holder = add<SoTransform>();
    auto* inside = add<SoPerspectiveCamera>();
    inside->position.setValue(0, 0, 5);
    for (int i = 0; i < 50; ++i) {
        auto* group = new SoSeparator;
        group->addChild(new SoCube);
        root->addChild(group);
    }
    SoPixels pixels;
    const auto show = [&] { ASSERT_TRUE(renderer().render(root.get(), nullptr, 32, 32, pixels)); };
    show();
    EXPECT_GT(center(pixels)[0], 100);
    inside->position.setValue(0, 9, 5);
    show();
    EXPECT_PIXEL(center(pixels), Background);
    EXPECT_EQ(renderer().getRenderer().getStatistics().nodes, 53);
    inside->position.setValue(0, 0, 5);
    holder->translation.setValue(0, 1, 0);
    show();
    EXPECT_GT(center(pixels)[0], 100); // camera and cubes moved alike
    inside->position.setValue(0, -0.9F, 5);
    show();
    EXPECT_GT(center(pixels)[0], 100);
}

TEST_F(Redrawing, EqualShapesAreDrawnByOneCall)
{
    for (int i = 0; i < 100; ++i) {
        auto* group = new SoSeparator;
        auto* transform = new SoTransform;
        transform->translation.setValue(static_cast<float>(i % 10) * 0.1F, 0, 0);
        group->addChild(transform);
        group->addChild(new SoCube);
        root->addChild(group);
    }
    draw();
    EXPECT_EQ(renderer().getRenderer().getStatistics().drawCalls, 1);
    EXPECT_EQ(renderer().getRenderer().getStatistics().triangles, 1200);
}

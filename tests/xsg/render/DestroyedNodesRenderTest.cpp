// SPDX-License-Identifier: MIT
// What a renderer keeps about a node is never taken for another one's, even where the next node has the
// address of a destroyed one and as many changes: every picture is that of a renderer that sees the scene for
// the first time.
#include "Picture.h"

#include <support/AtOneAddress.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoFog.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>

namespace
{

class DestroyedNodes : public Picture
{
protected:
    // Puts one node after the other into the scene, each alive alone, at the same address and with the same
    // change count.
    template <class Node, class SetUp>
    void expectTwoPictures(int place, const SetUp& setUp)
    {
        const auto insert = [&](bool isSecond) {
            auto* node = new AtOneAddress<Node>;
            setUp(*node, isSecond);
            root->insertChild(node, place);
            return static_cast<Node*>(node);
        };
        const Node* first = insert(false);
        const std::uint32_t count = first->getChangeCount();
        const SoPixels before = draw();
        root->removeChild(place);
        const Node* second = insert(true);
        ASSERT_EQ(first, second);
        ASSERT_EQ(second->getChangeCount(), count);
        const SoPixels after = draw();
        EXPECT_NE(after.rgba, before.rgba);
        EXPECT_EQ(after.rgba, drawAfresh().rgba);
    }
    static void fill(SoGroup& group, float width)
    {
        auto* cube = new SoCube;
        cube->width.setValue(width);
        group.addChild(cube);
    }
    static SoSeparator* makeSpeck(int number)
    {
        auto* group = new SoSeparator;
        auto* transform = new SoTransform;
        transform->translation.setValue(0.02F * static_cast<float>(number) - 2, 1.5F, 0);
        transform->scaleFactor.setValue(0.05F, 0.05F, 0.05F);
        group->addChild(transform);
        group->addChild(new SoSphere);
        return group;
    }
};

} // namespace

TEST_F(DestroyedNodes, AGroup)
{
    add<SoSphere>();
    expectTwoPictures<SoSeparator>(
        0, [](SoGroup& group, bool isSecond) { fill(group, isSecond ? 3.0F : 0.5F); });
}

TEST_F(DestroyedNodes, AGroupAmongMany)
{
    for (int i = 0; i < 200; ++i)
        root->addChild(makeSpeck(i));
    draw();
    static_cast<SoTransform*>(root->getChild(7)->asGroup()->getChild(0))->translation.setValue(0, -1, 0);
    expectTwoPictures<SoSeparator>(
        100, [](SoGroup& group, bool isSecond) { fill(group, isSecond ? 3.0F : 0.5F); });
    static_cast<SoTransform*>(root->getChild(7)->asGroup()->getChild(0))->translation.setValue(0, -2, 0);
    EXPECT_EQ(draw().rgba, drawAfresh().rgba);
}

TEST_F(DestroyedNodes, AMaterial)
{
    add<SoCube>();
    expectTwoPictures<SoMaterial>(0, [](SoMaterial& material, bool isSecond) {
        material.diffuseColor.setValue(isSecond ? SbColor(1, 0, 0) : SbColor(0, 1, 0));
    });
}

TEST_F(DestroyedNodes, AShape)
{
    expectTwoPictures<SoCube>(
        0, [](SoCube& cube, bool isSecond) { cube.height.setValue(isSecond ? 3.0F : 0.5F); });
}

TEST_F(DestroyedNodes, ATexture)
{
    add<SoCube>();
    expectTwoPictures<SoTexture2>(0, [](SoTexture2& texture, bool isSecond) {
        const unsigned char bytes[] = {255, 0, 0, 0, 255, 0};
        texture.image.setValue(1, 1, 3, bytes + (isSecond ? 3 : 0));
    });
}

TEST_F(DestroyedNodes, ADrawStyle)
{
    add<SoCube>();
    expectTwoPictures<SoDrawStyle>(0, [](SoDrawStyle& style, bool isSecond) {
        style.style.setValue(isSecond ? SoDrawStyle::Lines : SoDrawStyle::Points);
    });
}

TEST_F(DestroyedNodes, AFog)
{
    add<SoCube>();
    expectTwoPictures<SoFog>(0, [](SoFog& fog, bool isSecond) {
        fog.visibility.setValue(10);
        fog.color.setValue(isSecond ? SbColor(1, 0, 0) : SbColor(0, 1, 0));
    });
}

TEST_F(DestroyedNodes, TheCamera)
{
    add<SoCube>();
    const auto show = [&](float x) {
        camera = nullptr;
        camera = SoRef<SoPerspectiveCamera>(new AtOneAddress<SoPerspectiveCamera>);
        camera->position.setValue(x, 0, 5);
        return draw();
    };
    const SoPixels before = show(0);
    const SoNode* address = camera.get();
    const SoPixels after = show(1);
    ASSERT_EQ(camera.get(), address);
    EXPECT_NE(after.rgba, before.rgba);
    EXPECT_EQ(after.rgba, drawAfresh().rgba);
}

TEST_F(DestroyedNodes, TheRoot)
{
    const auto show = [&](float width) {
        root = nullptr;
        root = SoRef<SoSeparator>(new AtOneAddress<SoSeparator>);
        fill(*root, width);
        return draw();
    };
    const SoPixels before = show(0.5F);
    const SoNode* address = root.get();
    const std::uint32_t count = root->getChangeCount();
    const SoPixels after = show(3);
    ASSERT_EQ(root.get(), address);
    ASSERT_EQ(root->getChangeCount(), count);
    EXPECT_NE(after.rgba, before.rgba);
    EXPECT_EQ(after.rgba, drawAfresh().rgba);
}

TEST_F(DestroyedNodes, WhatWasMarked)
{
    add<SoSphere>();
    auto* group = new AtOneAddress<SoSeparator>;
    fill(*group, 1);
    root->addChild(group);
    renderer().getRenderer().setHighlight(group);
    const SoPixels marked = draw();
    root->removeChild(1);
    group = new AtOneAddress<SoSeparator>;
    fill(*group, 1);
    root->addChild(group);
    const SoPixels after = draw();
    EXPECT_NE(after.rgba, marked.rgba);
    EXPECT_EQ(after.rgba, drawAfresh().rgba);
}

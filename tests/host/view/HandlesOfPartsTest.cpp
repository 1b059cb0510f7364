// SPDX-License-Identifier: MIT
// Handles of parts, with and without a transform of their own, and of several nodes at once.
#include "HandlesFixture.h"

#include <xsg/nodes/shapes/SoSphere.h>

TEST_F(Handles, APartWithoutATransformGetsOneAboveIt)
{
    auto* look = add<SoSeparator>();
    auto* left = add<SoCube>(look);
    add<SoSphere>(look);
    show();
    select(left);
    key(Qt::Key_W);
    EXPECT_TRUE(told.last().contains("puts a Transform above")) << qPrintable(told.join('|'));
    const std::string before = text();
    const QPointF at = placeOf(HandlePart::X);
    drag(at, at + QPointF(60, 10));
    ASSERT_EQ(steps(), 1);
    EXPECT_TRUE(told.last().startsWith("Put a Transform above")) << qPrintable(told.last());
    ASSERT_EQ(look->getNumChildren(), 2);
    auto* wrapper = dynamic_cast<SoSeparator*>(look->getChild(0));
    ASSERT_TRUE(wrapper);
    auto* transform = dynamic_cast<SoTransform*>(wrapper->getChild(0));
    ASSERT_TRUE(transform);
    EXPECT_EQ(wrapper->getChild(1), left);
    EXPECT_EQ(services.selectedNode(), left) << "what is selected stays so";
    // The next drag has it already.
    const QPointF again = placeOf(HandlePart::Y);
    drag(again, again + QPointF(0, -30));
    EXPECT_EQ(steps(), 2);
    EXPECT_GT(transform->translation.getValue()[1], 0);
    undo();
    undo();
    EXPECT_EQ(text(), before);
    services.undoStack().redo();
    settle();
    EXPECT_EQ(look->getChild(0), wrapper);
    undo();
    EXPECT_EQ(text(), before);
    // Given back, none stays.
    select(left);
    press(placeOf(HandlePart::X));
    moveTo(at + QPointF(60, 10));
    EXPECT_NE(text(), before);
    key(Qt::Key_Escape);
    release(at);
    settle();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(services.selectedNode(), left);
}

TEST_F(Handles, AWholePartIsMovedByItsOwnTransform)
{
    SoTransform* transform = addPart({0, 1, 0});
    addPart({4, 0, 0});
    show();
    auto* part = dynamic_cast<SoSeparator*>(scene->getChild(0));
    for (SoNode* selected : {static_cast<SoNode*>(part), part->getChild(1)}) {
        select(selected);
        key(Qt::Key_W);
        ASSERT_TRUE(handles.getTarget());
        EXPECT_EQ(handles.getTarget()->getNode(), transform);
        key(Qt::Key_Q);
    }
}

TEST_F(Handles, SeveralSelectedNodesAreMovedTogetherInOneStep)
{
    SoTransform* left = addPart({-3, 0, 0});
    SoTransform* right = addPart({3, 0, 0});
    SoTransform* third = addPart({0, 3, 0});
    right->rotation.setValue(SbRotation({0, 1, 0}, 0.5F));
    show();
    selectAll({scene->getChild(0), scene->getChild(1)});
    key(Qt::Key_W);
    EXPECT_EQ(handles.getTarget()->getNode(), right) << "the handles are where the last one is";
    EXPECT_EQ(handles.getTargetCount(), 2);
    EXPECT_EQ(told.last(), "The handles change 2 nodes together.");
    const std::string before = text();
    const QPointF at = placeOf(HandlePart::X);
    drag(at, at + (at - handles.getShape().getCenter()) * 0.6);
    const float by = right->translation.getValue()[0] - 3;
    EXPECT_GT(by, 0.1F);
    EXPECT_NEAR(left->translation.getValue()[0], -3 + by, 1e-5F);
    EXPECT_EQ(third->translation.getValue(), SbVec3f(0, 3, 0));
    EXPECT_EQ(steps(), 1);
    EXPECT_EQ(services.getSelectedNodes().size(), 2);
    const std::string after = text();
    undo();
    EXPECT_EQ(text(), before);
    services.undoStack().redo();
    EXPECT_EQ(text(), after);
    undo();
    // By keys, each around its own place; given back, nothing stays.
    key(Qt::Key_E);
    key(Qt::Key_Z);
    type("90");
    EXPECT_NE(text(), before);
    key(Qt::Key_Escape);
    EXPECT_EQ(text(), before);
    key(Qt::Key_Z);
    type("90");
    key(Qt::Key_Return);
    EXPECT_EQ(left->translation.getValue(), SbVec3f(-3, 0, 0));
    EXPECT_LT((left->rotation.getValue().multVec({1, 0, 0}) - SbVec3f(0, 1, 0)).length(), 1e-5F);
    EXPECT_EQ(steps(), 1);
    undo();
    EXPECT_EQ(text(), before);
    // One that is taken away stays where it is, though the last one is the same.
    selectAll({scene->getChild(2), scene->getChild(0), scene->getChild(1)});
    EXPECT_EQ(handles.getTargetCount(), 3);
    selectAll({scene->getChild(0), scene->getChild(1)});
    EXPECT_EQ(handles.getTargetCount(), 2);
}

TEST_F(Handles, WhatIsBelowAnotherSelectedNodeIsNotMovedTwice)
{
    auto* house = add<SoSeparator>();
    auto* place = add<SoTransform>(house);
    auto* door = add<SoSeparator>(house);
    auto* hinge = add<SoTransform>(door);
    auto* wood = add<SoCube>(door);
    add<SoCube>(house);
    show();
    const auto expectOne = [&](const std::vector<SoNode*>& nodes, SoNode* moved) {
        selectAll(nodes);
        handles.setMode(HandleMode::Move);
        EXPECT_EQ(handles.getTargetCount(), 1);
        ASSERT_TRUE(handles.getTarget());
        EXPECT_EQ(handles.getTarget()->getNode(), moved);
        key(Qt::Key_X);
        type("2");
        key(Qt::Key_Return);
        EXPECT_EQ(place->translation.getValue(), moved == place ? SbVec3f(2, 0, 0) : SbVec3f());
        EXPECT_EQ(hinge->translation.getValue(), moved == hinge ? SbVec3f(2, 0, 0) : SbVec3f());
        undo();
    };
    expectOne({house, wood}, place);
    expectOne({wood, house}, place);
    expectOne({place, door}, place);
    expectOne({door, wood, hinge}, hinge);
}

TEST_F(Handles, SeveralPartsWithoutATransformGetOneEach)
{
    auto* look = add<SoSeparator>();
    auto* left = add<SoCube>(look);
    auto* right = add<SoSphere>(look);
    add<SoCube>(look);
    SoTransform* other = addPart({4, 0, 0});
    show();
    SoNode* const part = scene->getChild(1);
    const std::vector<SoNode*> all{part, right, left};
    selectAll(all);
    key(Qt::Key_W);
    EXPECT_EQ(told.last(), "The handles change 3 parts together; dragging puts a Transform above 2 of them.");
    const std::string before = text();
    key(Qt::Key_Y);
    type("3");
    key(Qt::Key_Return);
    settle();
    EXPECT_EQ(told.last(), "Put a Transform above each of 2 parts.");
    EXPECT_EQ(other->translation.getValue(), SbVec3f(4, 3, 0));
    for (int i : {0, 1}) {
        ASSERT_TRUE(look->getChild(i)->asGroup());
        auto* added = dynamic_cast<SoTransform*>(look->getChild(i)->asGroup()->getChild(0));
        ASSERT_TRUE(added);
        EXPECT_EQ(added->translation.getValue(), SbVec3f(0, 3, 0));
    }
    const QList<SoFieldContainer*> nodes{part, right, left};
    EXPECT_EQ(services.getSelectedNodes(), nodes);
    EXPECT_EQ(steps(), 1);
    const std::string after = text();
    undo();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(services.getSelectedNodes(), nodes);
    services.undoStack().redo();
    settle();
    EXPECT_EQ(text(), after);
    EXPECT_EQ(services.getSelectedNodes(), nodes);
    undo();
    key(Qt::Key_Y);
    type("3");
    key(Qt::Key_Escape);
    settle();
    EXPECT_EQ(text(), before);
    EXPECT_EQ(services.getSelectedNodes(), nodes);
    EXPECT_EQ(steps(), 0);
}

TEST_F(Handles, UndoingThatATransformWasPutInKeepsTheShapeSelected)
{
    auto* look = add<SoSeparator>();
    auto* left = add<SoCube>(look);
    add<SoSphere>(look);
    show();
    select(left);
    key(Qt::Key_W);
    key(Qt::Key_X);
    type("2");
    key(Qt::Key_Return);
    key(Qt::Key_Y);
    type("1");
    key(Qt::Key_Return);
    settle();
    ASSERT_EQ(steps(), 2);
    SoNode* const wrapper = look->getChild(0);
    services.undoStack().setIndex(0);
    settle();
    EXPECT_EQ(look->getChild(0), left);
    EXPECT_EQ(services.selectedNode(), left);
    EXPECT_EQ(services.getSelectedPath().getLength(), 3);
    services.undoStack().setIndex(2);
    settle();
    EXPECT_EQ(look->getChild(0), wrapper);
    EXPECT_EQ(services.selectedNode(), left);
    EXPECT_EQ(services.getSelectedPath().getLength(), 4);
    // What the step brought stands for it.
    select(wrapper);
    services.undoStack().setIndex(0);
    settle();
    EXPECT_EQ(services.selectedNode(), left);
    // Another selection stays as it is.
    select(look->getChild(1));
    services.undoStack().setIndex(2);
    settle();
    EXPECT_EQ(services.selectedNode(), look->getChild(1));
}

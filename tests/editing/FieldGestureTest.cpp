// SPDX-License-Identifier: MIT
// An edit that is seen while it goes on: one step, or nothing at all; and following another field.
#include <scopix/editing/SpxFieldGesture.h>
#include <scopix/editing/SpxText.h>
#include <support/TestHost.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/shapes/SoCube.h>

#include <gtest/gtest.h>

namespace
{

class FieldGesture : public ::testing::Test
{
protected:
    void write(float value)
    {
        gesture.write([=] { material->shininess.setValue(value); });
    }

    TestHost host;
    SoRef<SoMaterial> material{new SoMaterial};
    SpxFieldGesture gesture;
};

} // namespace

TEST_F(FieldGesture, ManyWritesAreOneStep)
{
    gesture.begin(&material->shininess);
    for (const float value : {0.3F, 0.4F, 0.5F})
        write(value);
    EXPECT_EQ(material->shininess.getValue(), 0.5F);
    EXPECT_EQ(host.undoCount(), 0);
    EXPECT_TRUE(gesture.keep());
    EXPECT_FALSE(gesture.isActive());
    EXPECT_EQ(host.undoCount(), 1);
    host.undo();
    EXPECT_EQ(material->shininess.getValue(), 0.2F);
    EXPECT_TRUE(material->shininess.isDefault());
    host.redo();
    EXPECT_EQ(material->shininess.getValue(), 0.5F);
}

TEST_F(FieldGesture, WhatIsGivenBackIsNoStep)
{
    gesture.begin(&material->shininess);
    write(0.5F);
    gesture.giveBack();
    EXPECT_EQ(material->shininess.getValue(), 0.2F);
    EXPECT_TRUE(material->shininess.isDefault());
    write(0.9F); // not active any more
    EXPECT_EQ(material->shininess.getValue(), 0.2F);
    EXPECT_FALSE(gesture.keep());
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(FieldGesture, AValueThatIsTheSameAsBeforeIsNoStep)
{
    gesture.begin(&material->shininess);
    write(0.5F);
    write(0.2F);
    EXPECT_FALSE(gesture.keep());
    EXPECT_TRUE(material->shininess.isDefault());
    gesture.begin(&material->shininess);
    EXPECT_FALSE(gesture.keep());
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(FieldGesture, AnotherOneKeepsTheOneBefore)
{
    gesture.begin(&material->shininess);
    write(0.5F);
    gesture.begin(&material->transparency);
    EXPECT_EQ(gesture.getField(), &material->transparency);
    EXPECT_EQ(host.undoCount(), 1);
}

TEST_F(FieldGesture, EndsWithTheNode)
{
    gesture.begin(&material->shininess);
    write(0.5F);
    material = nullptr;
    EXPECT_FALSE(gesture.isActive());
    EXPECT_FALSE(gesture.keep());
    gesture.giveBack();
    EXPECT_EQ(host.undoCount(), 0);
}

TEST_F(FieldGesture, FollowingAnotherFieldIsAStep)
{
    const SoRef<SoCube> cube(new SoCube);
    ASSERT_TRUE(SpxFieldEdit::setSource(&material->shininess, &cube->width));
    EXPECT_EQ(material->shininess.getValue(), 2.F);
    EXPECT_FALSE(SpxFieldEdit::setSource(&material->shininess, &cube->width));
    ASSERT_TRUE(SpxFieldEdit::setSource(&material->shininess, nullptr));
    EXPECT_FALSE(material->shininess.isConnected());
    EXPECT_EQ(host.undoCount(), 2);
    host.undo();
    EXPECT_EQ(material->shininess.getConnectedField(), &cube->width);
    host.undo();
    EXPECT_FALSE(material->shininess.isConnected());
    EXPECT_EQ(material->shininess.getValue(), 0.2F);
    EXPECT_TRUE(material->shininess.isDefault());
    host.redo();
    EXPECT_EQ(material->shininess.getConnectedField(), &cube->width);
}

TEST_F(FieldGesture, ASourceThatDoesNotFitIsRefused)
{
    EXPECT_FALSE(SpxFieldEdit::setSource(&material->shininess, &material->shininess));
    EXPECT_FALSE(SpxFieldEdit::setSource(&material->shininess, &material->diffuseColor));
    EXPECT_EQ(host.undoCount(), 0);
    EXPECT_FALSE(material->shininess.isConnected());
}

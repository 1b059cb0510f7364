// SPDX-License-Identifier: MIT
// The path of one edit: command, write, undo stack.
#include "EdFieldEdits.h"

#include <scopix/editing/SpxFreshDefault.h>
#include <support/TestHost.h>
#include <xsg/fields/SoMFInt32.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <gtest/gtest.h>

namespace
{

// A kind of node that cannot be made by its type.
class OneOfAKind : public SoNode
{
public:
    static SoType type()
    {
        static const SoType type = SoType::createType(SoNode::getClassTypeId(), "OneOfAKind");
        return type;
    }
    SoType getTypeId() const override { return type(); }
    SoSFFloat value{this, "value", 0.25F};
};

int s_deaths = 0;

void countDeath(void*, SoFieldContainer*)
{
    ++s_deaths;
}

} // namespace

TEST(Edits, UndoUndoesToTheLastBit)
{
    TestHost host;
    SoSFFloat field;
    field.setValue(0.1F + 1e-8F);
    const float before = field.getValue();
    EdFieldEdits::write(&field, [&] { field.setValue(0.7F); });
    EXPECT_EQ(host.takeLog(), (TestHost::Log{"executeCommand SpxSFSetValueCommand"}));
    EXPECT_EQ(field.getValue(), 0.7F);
    ASSERT_TRUE(host.undo());
    EXPECT_EQ(field.getValue(), before);
    ASSERT_TRUE(host.redo());
    EXPECT_EQ(field.getValue(), 0.7F);
}

TEST(Edits, RestoreTheSavedTextWhereThereIsOne)
{
    TestHost host;
    SoSFFloat field;
    field.setValue(0.6F);
    SbString saved("0.25");
    EdFieldEdits::write(&field, saved, [&] { field.setValue(0.7F); });
    EXPECT_TRUE(saved.isNull());
    host.undo();
    EXPECT_EQ(field.getValue(), 0.25F);
}

TEST(Edits, OfOneOfManyUndo)
{
    TestHost host;
    SoMFInt32 field;
    field.setValues({1, 2, 3});
    EdFieldEdits::write1(&field, 1, [&] { field.set1Value(1, 20); });
    EXPECT_EQ(host.takeLog(), (TestHost::Log{"executeCommand SpxMFSetValueCommand"}));
    host.undo();
    EXPECT_EQ(field[1], 2);
    host.redo();
    EXPECT_EQ(field[1], 20);
}

TEST(Edits, AreSafeWithoutAHost)
{
    SoSFFloat field;
    EdFieldEdits::write(&field, [&] { field.setValue(0.7F); });
    EXPECT_EQ(field.getValue(), 0.7F);
}

TEST(SetToDefault, IsOneStepThatUndoUndoes)
{
    TestHost host;
    const SoRef<SoMaterial> material(new SoMaterial);
    material->transparency.setValue(0.75F);
    EdFieldEdits::setToDefault(&material->transparency);
    EXPECT_EQ(material->transparency.getValue(), 0.F);
    EXPECT_EQ(host.takeLog(), (TestHost::Log{"executeCommand SpxFieldSetDefaultCommand"}));
    host.undo();
    EXPECT_EQ(material->transparency.getValue(), 0.75F);
    host.redo();
    EXPECT_EQ(material->transparency.getValue(), 0.F);
}

TEST(SetToDefault, ServesLists)
{
    TestHost host;
    const SoRef<SoMaterial> material(new SoMaterial);
    material->diffuseColor.setNum(3);
    EdFieldEdits::setToDefault(&material->diffuseColor);
    EXPECT_EQ(material->diffuseColor.getNum(), 1);
    host.undo();
    EXPECT_EQ(material->diffuseColor.getNum(), 3);
}

TEST(SetToDefault, ReleasesTheFreshNode)
{
    TestHost host;
    const SoRef<SoMaterial> material(new SoMaterial);
    s_deaths = 0;
    SoFieldContainer::addDyingCallback(countDeath, nullptr);
    EdFieldEdits::setToDefault(&material->transparency);
    SoFieldContainer::removeDyingCallback(countDeath, nullptr);
    EXPECT_EQ(s_deaths, 1);
    EXPECT_EQ(host.undoCount(), 1);
}

TEST(SetToDefault, DoesNothingWhereNoFreshNodeCanBeMade)
{
    TestHost host;
    const SoRef<OneOfAKind> node(new OneOfAKind);
    node->value.setValue(0.5F);
    EdFieldEdits::setToDefault(&node->value);
    EXPECT_EQ(node->value.getValue(), 0.5F);
    SoSFFloat alone;
    alone.setValue(0.5F);
    EdFieldEdits::setToDefault(&alone);
    EXPECT_EQ(alone.getValue(), 0.5F);
    EXPECT_TRUE(host.log().empty());
}

TEST(DefaultField, IsThatOfAFreshNode)
{
    const SoRef<SoMaterial> material(new SoMaterial);
    material->shininess.setValue(0.9F);
    const SpxFreshDefault fresh(&material->shininess);
    auto* field = dynamic_cast<SoSFFloat*>(fresh.get());
    ASSERT_TRUE(field);
    EXPECT_NE(field, &material->shininess);
    EXPECT_EQ(field->getValue(), 0.2F);
    EXPECT_EQ(field->getName(), SbName("shininess"));
}

TEST(Ignoring, IsOneStepThatUndoUndoes)
{
    TestHost host;
    SoSFFloat field;
    EdFieldEdits::setIgnored(&field, true);
    EXPECT_TRUE(field.isIgnored());
    EXPECT_EQ(host.takeLog(), (TestHost::Log{"executeCommand SpxFieldIgnoredCommand"}));
    host.undo();
    EXPECT_FALSE(field.isIgnored());
    host.redo();
    EXPECT_TRUE(field.isIgnored());
}

TEST(Ignoring, IgnoringAgainIsNoStep)
{
    TestHost host;
    SoSFFloat field;
    EdFieldEdits::setIgnored(&field, false);
    EXPECT_TRUE(host.log().empty());
}

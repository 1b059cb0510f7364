// SPDX-License-Identifier: MIT
// Commands that keep typed copies, whatever the type of the field, and no node alive that they edit.
#include <scopix/editing/SpxSetFieldCommand.h>
#include <scopix/editing/SpxSetIgnoredCommand.h>

#include <support/TestHost.h>
#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoSFTime.h>
#include <xsg/nodes/base/SoSFNode.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <gtest/gtest.h>

#include <limits>

namespace
{

int s_deaths = 0;

void countDeath(void*, SoFieldContainer*)
{
    ++s_deaths;
}

// How many containers are destroyed by `act`.
template <class Act>
int deathsDuring(Act&& act)
{
    s_deaths = 0;
    SoFieldContainer::addDyingCallback(countDeath, nullptr);
    act();
    SoFieldContainer::removeDyingCallback(countDeath, nullptr);
    return s_deaths;
}

} // namespace

TEST(TypedCommand, KeepsWhatNoTextHolds)
{
    SoSFFloat field;
    field.setValue(-std::numeric_limits<float>::quiet_NaN());
    SpxSetFieldCommand command(&field);
    field.setValue(1);
    command.execute();
    command.undo();
    EXPECT_TRUE(std::isnan(field.getValue()));
    EXPECT_TRUE(std::signbit(field.getValue()));
    command.redo();
    EXPECT_EQ(field.getValue(), 1);
}

TEST(TypedCommand, KeepsOfAListWhatDiffers)
{
    SoMFFloat field;
    field.setValues(std::vector<float>{1, 2, 3, 4});
    SpxSetFieldCommand command(&field);
    field.set1Value(1, 20);
    command.execute();
    EXPECT_FALSE(command.isWithoutEffect());
    EXPECT_EQ(command.editedFields(), std::vector<SoField*>{&field});
    field.set1Value(3, 40); // by somebody else
    const auto expect = [&field](const std::vector<float>& values) {
        EXPECT_EQ(std::vector<float>(field.getValues(), field.getValues() + field.getNum()), values);
    };
    command.undo();
    expect({1, 2, 3, 40});
    command.redo();
    expect({1, 20, 3, 40});
    field.setNum(3);
    command.undo();
    expect({1, 20, 3});
}

TEST(TypedCommand, PutsInsertedAndDeletedValuesBack)
{
    const std::vector<float> before{1, 2, 3, 4};
    for (const auto& after : std::vector<std::vector<float>>{
             {1, 2, 9, 9, 3, 4}, {1, 4}, {}, {1, 2, 3, 4, 5}, {1, 1, 2, 3, 4}, {1, 2, 3, 4}, {7}}) {
        SoMFFloat field;
        field.setValues(before);
        SpxSetFieldCommand command(&field);
        field.setValues(after);
        command.execute();
        for (int times = 0; times < 2; ++times) {
            command.undo();
            EXPECT_EQ(std::vector<float>(field.getValues(), field.getValues() + field.getNum()), before);
            command.redo();
            EXPECT_EQ(std::vector<float>(field.getValues(), field.getValues() + field.getNum()), after);
        }
    }
}

TEST(TypedCommand, SaysWhereItHasNoEffect)
{
    SoSFFloat field;
    field.setValue(2);
    SpxSetFieldCommand same(&field);
    field.setValue(2);
    same.execute();
    EXPECT_TRUE(same.isWithoutEffect());
    field.setDefault(true);
    SpxSetFieldCommand flagOnly(&field);
    field.setValue(2);
    flagOnly.execute();
    EXPECT_FALSE(flagOnly.isWithoutEffect());
}

TEST(TypedCommand, ServesEveryTypeOfField)
{
    const std::vector<SoType> types = SoType::getAllDerivedFrom(SoField::getClassTypeId());
    int served = 0;
    for (const SoType type : types) {
        if (!type.canCreateInstance())
            continue;
        const std::unique_ptr<SoTypedObject> object(type.createInstance());
        auto* field = dynamic_cast<SoField*>(object.get());
        ASSERT_NE(field, nullptr);
        SbString before;
        field->get(before);
        SpxSetFieldCommand command(field);
        EXPECT_TRUE(command.canUndo()) << type.getName().getString();
        field->touch();
        command.execute();
        command.undo();
        SbString after;
        field->get(after);
        EXPECT_EQ(after, before) << type.getName().getString();
        EXPECT_TRUE(field->isDefault()) << type.getName().getString();
        ++served;
    }
    EXPECT_GT(served, 40);
}

TEST(TypedCommand, RestoresTheFlags)
{
    const SoRef<SoMaterial> material(new SoMaterial);
    SpxSetFieldCommand command(&material->shininess);
    material->shininess.setValue(0.9F);
    material->shininess.setIgnored(true);
    command.execute();
    command.undo();
    EXPECT_TRUE(material->shininess.isDefault());
    EXPECT_FALSE(material->shininess.isIgnored());
    command.redo();
    EXPECT_FALSE(material->shininess.isDefault());
    EXPECT_TRUE(material->shininess.isIgnored());
}

TEST(TypedCommand, KeepsAReferenceToThatVeryNode)
{
    SoSFNode field;
    SoNode* before = new SoMaterial;
    field.setValue(before);
    EXPECT_EQ(deathsDuring([&] {
                  SpxSetFieldCommand command(&field);
                  field.setValue(nullptr);
                  command.execute();
                  command.undo();
                  EXPECT_EQ(field.getNode(), before);
                  field.setValue(nullptr);
                  EXPECT_EQ(s_deaths, 0);
              }),
              1);
}

TEST(TypedCommand, KeepsNoNodeAliveThatItEdits)
{
    SoRef<SoMaterial> material(new SoMaterial);
    SpxSetFieldCommand set(&material->shininess);
    SpxSetIgnoredCommand ignore(&material->transparency, true);
    material->shininess.setValue(0.5F);
    set.execute();
    ignore.execute();
    EXPECT_EQ(material->getRefCount(), 1);
    EXPECT_EQ(deathsDuring([&] { material = nullptr; }), 1);
    // The sanitizers would see any of these touch the node.
    set.undo();
    set.redo();
    ignore.undo();
    ignore.redo();
    set.execute();
}

TEST(TypedCommand, DoesNothingWhileTheNodeIsBeingDestroyed)
{
    struct Undoer {
        std::unique_ptr<SpxCommand> command;
        float seen = 0;
        static void dying(void* data, SoFieldContainer* node)
        {
            auto* self = static_cast<Undoer*>(data);
            self->command->undo();
            self->seen = static_cast<SoMaterial*>(node)->shininess.getValue();
        }
    } undoer;
    SoRef<SoMaterial> material(new SoMaterial);
    // Asked before the library's own listener, which comes with the command.
    SoFieldContainer::addDyingCallback(Undoer::dying, &undoer);
    undoer.command = std::make_unique<SpxSetFieldCommand>(&material->shininess);
    material->shininess.setValue(0.5F);
    undoer.command->execute();
    material = nullptr;
    SoFieldContainer::removeDyingCallback(Undoer::dying, &undoer);
    EXPECT_EQ(undoer.seen, 0.5F);
}

TEST(FieldPointer, BecomesNullWithItsFieldOrItsNode)
{
    SoRef<SoMaterial> material(new SoMaterial);
    const SpxFieldPointer pointer(&material->shininess);
    const SpxFieldPointer copy = pointer;
    EXPECT_EQ(copy.get(), &material->shininess);
    material = nullptr;
    EXPECT_FALSE(pointer);
    EXPECT_FALSE(copy);

    auto alone = std::make_unique<SoSFTime>();
    const SpxFieldPointer toAlone(alone.get());
    EXPECT_TRUE(toAlone);
    alone.reset();
    EXPECT_FALSE(toAlone);
    EXPECT_FALSE(SpxFieldPointer(nullptr));
}

TEST(FieldPointer, ToOneNodeIsNotThatToTheNextAtItsPlace)
{
    std::vector<SpxFieldPointer> old;
    for (int i = 0; i < 100; ++i) {
        const SoRef<SoMaterial> material(new SoMaterial);
        old.emplace_back(&material->shininess);
        EXPECT_TRUE(old.back());
    }
    const SoRef<SoMaterial> living(new SoMaterial);
    const SpxFieldPointer toLiving(&living->shininess);
    for (const SpxFieldPointer& pointer : old)
        EXPECT_FALSE(pointer);
    old.clear();
    EXPECT_TRUE(toLiving);
}

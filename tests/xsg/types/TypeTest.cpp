// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/types/SoTypedObject.h>

#include <algorithm>

namespace
{

struct Thing : SoTypedObject {
    SoType getTypeId() const override;
};

SoTypedObject* makeThing()
{
    return new Thing;
}

SoType thingType()
{
    return SoType::createType(SoTypedObject::getClassTypeId(), "Thing", makeThing);
}

SoType Thing::getTypeId() const
{
    return thingType();
}

} // namespace

TEST(Type, TheFirstLookUpKnowsWhatTheLibraryHas)
{
    const SoType cube = SoType::fromName("Cube");
    ASSERT_FALSE(cube.isBad());
    EXPECT_TRUE(cube.canCreateInstance());
    EXPECT_TRUE(cube.isDerivedFrom(SoType::fromName("Node")));
    EXPECT_FALSE(SoType::fromName("Node").canCreateInstance());
    EXPECT_TRUE(SoType::fromName("NoSuchThing").isBad());
}

TEST(Type, AllDerivedTypesAreListedWithoutALookUpBefore)
{
    const auto all = SoType::getAllDerivedFrom(SoTypedObject::getClassTypeId());
    const auto isCube = [](SoType type) { return type.getName() == SbName("Cube"); };
    EXPECT_EQ(std::count_if(all.begin(), all.end(), isCube), 1);
}

TEST(Type, ATypeMadeAtRunTimeCreatesObjects)
{
    const SoType type = thingType();
    EXPECT_EQ(SoType::fromName("Thing"), type);
    EXPECT_EQ(thingType(), type);
    const std::unique_ptr<SoTypedObject> thing(type.createInstance());
    ASSERT_TRUE(thing);
    EXPECT_TRUE(thing->isOfType(type));
    EXPECT_TRUE(thing->isOfType(SoTypedObject::getClassTypeId()));
    EXPECT_FALSE(thing->isOfType(SoType::badType()));
    EXPECT_FALSE(SoTypedObject::getClassTypeId().isDerivedFrom(type));
}

// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/nodes/transforms/SoMatrixTransform.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/values/SbRotation.h>

namespace
{

constexpr float QuarterTurn = 1.5707964F;

void expectNear(const SbVec3f& a, const SbVec3f& b)
{
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(a[i], b[i], 1e-5F) << "component " << i;
}

} // namespace

TEST(Transform, ScalesThenTurnsThenMoves)
{
    const SoRef<SoTransform> t(new SoTransform);
    t->scaleFactor.setValue(2, 1, 1);
    t->rotation.setValue(SbRotation({0, 0, 1}, QuarterTurn));
    t->translation.setValue(10, 0, 0);
    expectNear(t->getMatrix().multPoint({1, 0, 0}), {10, 2, 0});
}

TEST(Transform, CenterStaysInPlace)
{
    const SoRef<SoTransform> t(new SoTransform);
    t->center.setValue(3, 4, 5);
    t->scaleFactor.setValue(2, 7, 1);
    t->rotation.setValue(SbRotation({0, 1, 1}, 1));
    expectNear(t->getMatrix().multPoint({3, 4, 5}), {3, 4, 5});
}

TEST(Transform, ScalesAlongTurnedAxes)
{
    const SoRef<SoTransform> t(new SoTransform);
    t->scaleOrientation.setValue(SbRotation({0, 0, 1}, QuarterTurn));
    t->scaleFactor.setValue(2, 1, 1);
    expectNear(t->getMatrix().multPoint({1, 1, 0}), {1, 2, 0});
}

TEST(Transform, AnIgnoredFieldTakesNoPart)
{
    const SoRef<SoTransform> t(new SoTransform);
    t->translation.setValue(1, 2, 3);
    t->translation.setIgnored(true);
    EXPECT_EQ(t->getMatrix(), SbMatrix());
}

TEST(Transform, ByMatrix)
{
    const SoRef<SoMatrixTransform> t(new SoMatrixTransform);
    t->matrix.setValue(SbMatrix::translation({1, 2, 3}));
    EXPECT_EQ(t->getMatrix(), SbMatrix::translation({1, 2, 3}));
}

// Its matrix is remembered; every way in which a field changes has to reach it.
TEST(Transform, FollowsItsFieldsHoweverTheyChange)
{
    const SoRef<SoTransform> t(new SoTransform);
    const SoRef<SoTransform> master(new SoTransform);
    EXPECT_EQ(t->getMatrix(), SbMatrix());
    t->translation.setValue(1, 0, 0);
    EXPECT_EQ(t->getMatrix(), SbMatrix::translation({1, 0, 0}));
    t->translation.set("2 0 0");
    EXPECT_EQ(t->getMatrix(), SbMatrix::translation({2, 0, 0}));
    master->translation.setValue(3, 0, 0);
    t->translation.connectFrom(&master->translation);
    EXPECT_EQ(t->getMatrix(), SbMatrix::translation({3, 0, 0}));
    master->translation.setValue(4, 0, 0);
    EXPECT_EQ(t->getMatrix(), SbMatrix::translation({4, 0, 0}));
    t->translation.setIgnored(true);
    EXPECT_EQ(t->getMatrix(), SbMatrix());
    t->translation.setIgnored(false);
    EXPECT_EQ(t->getMatrix(), SbMatrix::translation({4, 0, 0}));
}

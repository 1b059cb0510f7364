#include <gtest/gtest.h>

#include <xsg/base/SbRotation.h>
#include <xsg/nodes/SoMatrixTransform.h>
#include <xsg/nodes/SoTransform.h>

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

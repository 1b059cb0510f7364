// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/values/SbMatrix.h>
#include <xsg/values/SbRotation.h>

#include <cmath>

namespace
{

void expectBoxOfCorners(const SbMatrix& matrix)
{
    const SbBox3f box(-1, -2, -3, 4, 5, 6);
    SbBox3f expected;
    for (const float x : {-1.0F, 4.0F}) {
        for (const float y : {-2.0F, 5.0F}) {
            for (const float z : {-3.0F, 6.0F})
                expected.extendBy(matrix.multPoint({x, y, z}));
        }
    }
    const SbBox3f found = matrix.transform(box);
    for (int i = 0; i < 3; ++i) {
        EXPECT_FLOAT_EQ(found.getMin()[i], expected.getMin()[i]);
        EXPECT_FLOAT_EQ(found.getMax()[i], expected.getMax()[i]);
    }
}

} // namespace

TEST(Matrix, ABoxGoesWhereItsCornersGo)
{
    const SbMatrix turned = SbMatrix::rotation(SbRotation({1, 2, 3}, 2)) * SbMatrix::translation({5, -7, 9});
    expectBoxOfCorners(SbMatrix());
    expectBoxOfCorners(turned);
    expectBoxOfCorners(SbMatrix::scale({-2, 0.5F, 3}) * turned);
    expectBoxOfCorners(SbMatrix::scale({0, 1, 1}) * turned);
    expectBoxOfCorners(turned * SbMatrix::translation({0, 0, -50}) * SbMatrix::perspective(1, 1, 1, 100));
}

TEST(Matrix, ABoxOfNothingStaysEmpty)
{
    EXPECT_TRUE(SbMatrix::translation({1, 2, 3}).transform(SbBox3f()).isEmpty());
}

TEST(Matrix, TheInverseLeadsBack)
{
    const SbMatrix turned = SbMatrix::rotation(SbRotation({1, 2, 3}, 2)) * SbMatrix::translation({5, -7, 9});
    const auto back = turned.inverse();
    ASSERT_TRUE(back);
    const SbVec3f point = back->multPoint(turned.multPoint({1, 2, 3}));
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(point[i], i + 1, 1e-5);
    EXPECT_EQ(SbMatrix().inverse(), SbMatrix());
    EXPECT_TRUE(SbMatrix::scale({1e-6F, 1e-6F, 1e-6F}).inverse());
}

TEST(Matrix, ASingularMatrixHasNoInverse)
{
    EXPECT_FALSE(SbMatrix::scale({1, 0, 1}).inverse());
    EXPECT_FALSE(SbMatrix::translation({std::nanf(""), 0, 0}).inverse());
}

// SPDX-License-Identifier: MIT
// Angles, rotations and matrices in the panel.
#include "PanelFixture.h"

#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/transforms/SoMatrixTransform.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <QLabel>

namespace
{

constexpr float Exact = 0.1F + 0.0123456F;

} // namespace

TEST_F(Panel, AnglesAreShownInDegreesAndTypedInAnyUnit)
{
    const SoRef<SoPerspectiveCamera> camera(new SoPerspectiveCamera);
    session.selectNode(camera.get());
    QLineEdit* input = session.number("heightAngle");
    EXPECT_EQ(input->text(), QString::fromUtf8("45°"));
    session.enter(input, "60");
    EXPECT_NEAR(camera->heightAngle.getValue(), M_PI / 3, 1e-6);
    session.enter(input, "0.5rad");
    EXPECT_EQ(camera->heightAngle.getValue(), 0.5F);
    session.enter(session.number("position", 1), "30cm");
    EXPECT_EQ(camera->position.getValue()[1], 0.3F);
}

TEST_F(Panel, ARotationKeepsTheTypedAxisWhileTheAngleIsZero)
{
    const SoRef<SoTransform> transform(new SoTransform);
    session.selectNode(transform.get());
    session.enter(session.number("rotation", 0), "1");
    session.enter(session.number("rotation", 2), "0");
    EXPECT_EQ(session.number("rotation", 0)->text(), "1");
    EXPECT_EQ(transform->rotation.getValue(), SbRotation());
    session.enter(session.number("rotation", 3), "90");
    EXPECT_EQ(transform->rotation.getValue(), SbRotation(SbVec3f(1, 0, 0), float(M_PI / 2)));
    EXPECT_EQ(session.number("rotation", 3)->text(), QString::fromUtf8("90°"));
}

TEST_F(Panel, TheFormOfRotationsAndTheUnitOfAnglesAreKept)
{
    const SoRef<SoTransform> transform(new SoTransform);
    transform->rotation.setValue(SbRotation(SbVec3f(0, 0, 1), 0.5F));
    session.selectNode(transform.get());
    auto* form = session.in<QComboBox>("rotation", "form");
    form->setFocus();
    QTest::keyClick(form, Qt::Key_Down);
    session.settle();
    EXPECT_EQ(form->currentText(), "Euler");
    EXPECT_EQ(session.number("rotation", 2)->text(), QString::fromUtf8("28.6479°"));
    EXPECT_FALSE(session.number("rotation", 3)->isVisible());
    for (QAction* action : session.host.window().actions()) {
        if (QString(action->text()).remove('&').startsWith("Angles"))
            action->trigger();
    }
    session.settle();
    EXPECT_EQ(session.number("rotation", 2)->text(), "0.5");
    session.selectNode(nullptr);
    session.selectNode(transform.get());
    EXPECT_EQ(session.number("rotation", 2)->text(), "0.5");
    EXPECT_EQ(steps(), 0);
}

TEST_F(Panel, AMatrixIsAGrid)
{
    const SoRef<SoMatrixTransform> transform(new SoMatrixTransform);
    session.selectNode(transform.get());
    session.enter(session.number("matrix", 12), "2.5");
    EXPECT_EQ(transform->matrix.getValue()[3][0], 2.5F);
    EXPECT_EQ(steps(), 1);
}

TEST_F(Panel, AMatrixIsMovedTurnedAndScaledAndTheRestKeepsItsBits)
{
    const SoRef<SoMatrixTransform> transform(new SoMatrixTransform);
    const SbMatrix before = SbMatrix::scale({2, 3, Exact}) *
                            SbMatrix::rotation(SbRotation(SbVec3f(0, 0, 1), 0.5F)) *
                            SbMatrix::translation({1, Exact, 3});
    transform->matrix.setValue(before);
    session.selectNode(transform.get());
    chooseForm("matrix", 1);
    EXPECT_EQ(steps(), 0);
    EXPECT_EQ(session.number("matrix", 17)->text(), "0.1123456");
    EXPECT_EQ(session.number("matrix", 21)->text(), QString::fromUtf8("28.6479°"));
    EXPECT_NEAR(session.number("matrix", 23)->text().toDouble(), 3, 1e-5);

    session.enter(session.number("matrix", 16), "7");
    SbMatrix expected = before;
    expected[3][0] = 7;
    EXPECT_EQ(transform->matrix.getValue(), expected);
    session.enter(session.number("matrix", 23), "6");
    for (int row : {0, 2, 3}) {
        for (int column = 0; column < 4; ++column)
            EXPECT_EQ(transform->matrix.getValue()[row][column], expected[row][column]);
    }
    EXPECT_NEAR(transform->matrix.getValue()[1][1], 2 * before[1][1], 1e-5);
    session.enter(session.number("matrix", 21), "90");
    EXPECT_NEAR(transform->matrix.getValue()[0][1], 2, 1e-5);
    EXPECT_EQ(transform->matrix.getValue()[0][0], 0.F);
    EXPECT_EQ(steps(), 3);
    for (int i = 0; i < 3; ++i)
        session.undo();
    EXPECT_EQ(transform->matrix.getValue(), before);
}

TEST_F(Panel, ScalingOneAxisOfATurnedMatrixKeepsTheBitsOfTheOthers)
{
    const SoRef<SoMatrixTransform> transform(new SoMatrixTransform);
    const SbMatrix before =
        SbMatrix::scale({2.3F, 0.7F, Exact}) * SbMatrix::rotation(SbRotation(SbVec3f(1, 2, 3), 0.7F));
    transform->matrix.setValue(before);
    session.selectNode(transform.get());
    chooseForm("matrix", 1);
    session.enter(session.number("matrix", 23), "6");
    EXPECT_NE(transform->matrix.getValue(), before);
    for (int row : {0, 2, 3}) {
        for (int column = 0; column < 4; ++column)
            EXPECT_EQ(transform->matrix.getValue()[row][column], before[row][column]) << row << column;
    }
}

TEST_F(Panel, AScaleOf0KeepsTheTurn)
{
    const SoRef<SoMatrixTransform> transform(new SoMatrixTransform);
    session.selectNode(transform.get());
    chooseForm("matrix", 1);
    session.enter(session.number("matrix", 21), "30");
    const SbMatrix turned = transform->matrix.getValue();
    for (int axis : {22, 23, 24})
        session.enter(session.number("matrix", axis), "0");
    EXPECT_EQ(session.number("matrix", 21)->text(), QString::fromUtf8("30°"));
    for (int axis : {22, 23, 24})
        session.enter(session.number("matrix", axis), "1");
    for (int i = 0; i < 16; ++i)
        EXPECT_NEAR(transform->matrix.getValue().getValue()[i], turned.getValue()[i], 1e-6) << i;
}

TEST_F(Panel, AShearedMatrixStaysAGridAndSaysWhy)
{
    const SoRef<SoMatrixTransform> transform(new SoMatrixTransform);
    session.selectNode(transform.get());
    chooseForm("matrix", 1);
    EXPECT_FALSE(session.number("matrix", 0)->isVisible());
    const std::pair<int, const char*> cases[] = {{1, "sheared"}, {0, "flat"}, {3, "perspective"}};
    for (const auto& [element, word] : cases) {
        SbMatrix matrix;
        matrix[0][element] = element == 0 ? 0.F : 0.5F;
        transform->matrix.setValue(matrix);
        auto* note = session.in<QLabel>("matrix", "note");
        EXPECT_TRUE(session.comesTrue([&] { return note->text() == word; })) << word;
        EXPECT_TRUE(session.number("matrix", 0)->isVisible());
        EXPECT_TRUE(note->toolTip().endsWith("cannot be shown as moving, turning and scaling."));
    }
    transform->matrix.setValue(SbMatrix());
    EXPECT_TRUE(session.comesTrue([&] { return session.number("matrix", 16)->isVisible(); }));
    session.selectNode(&material);
    session.selectNode(transform.get());
    EXPECT_TRUE(session.number("matrix", 16)->isVisible()) << "the form is kept";
    EXPECT_EQ(steps(), 0);
}

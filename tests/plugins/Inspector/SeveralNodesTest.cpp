// SPDX-License-Identifier: MIT
// The panel of several selected nodes, in the real host.
#include "plugins/Inspector/InspectorSession.h"

#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoCone.h>
#include <xsg/nodes/shapes/SoCylinder.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <QComboBox>

namespace
{

class SeveralNodes : public testing::Test
{
protected:
    SeveralNodes()
    {
        first->shininess.setValue(0.25F);
        second->shininess.setValue(0.5F);
        current->shininess.setValue(0.75F);
        current->diffuseColor.setValue(SbColor(1, 0, 0));
    }
    void select(const QList<SoFieldContainer*>& nodes)
    {
        session.host.services().selectNodes(nodes);
        session.selectNode(nullptr);
        session.host.services().selectNodes(nodes);
        session.settle();
        ASSERT_TRUE(session.panel());
    }
    void selectMaterials() { select({first.get(), second.get(), current.get()}); }
    QString title() { return session.panel()->findChild<QLabel*>("nodeTitle")->text(); }
    std::vector<float> shininess() const
    {
        return {first->shininess.getValue(), second->shininess.getValue(), current->shininess.getValue()};
    }

    InspectorSession session;
    SoRef<SoMaterial> first{new SoMaterial};
    SoRef<SoMaterial> second{new SoMaterial};
    SoRef<SoMaterial> current{new SoMaterial};
    const std::vector<float> before{0.25F, 0.5F, 0.75F};
};

} // namespace

TEST_F(SeveralNodes, TheHeadingCountsThemByType)
{
    const SoRef<SoCone> cone(new SoCone);
    select({first.get(), cone.get(), second.get()});
    EXPECT_EQ(title(), "<b>3 nodes: 2 Material, 1 Cone</b>");
    EXPECT_TRUE(session.panel()->findChildren<QWidget*>("row").isEmpty()) << "they share no field";
    session.host.services().selectNodes({first.get()});
    session.settle();
    EXPECT_FALSE(title().contains("nodes"));
    EXPECT_EQ(session.number("shininess")->text(), "0.25");
}

TEST_F(SeveralNodes, OnlyWhatAllShareIsShown)
{
    const SoRef<SoCone> cone(new SoCone);
    const SoRef<SoCylinder> cylinder(new SoCylinder);
    select({cylinder.get(), cone.get()});
    EXPECT_TRUE(session.row("height"));
    EXPECT_FALSE(session.row("bottomRadius"));
    EXPECT_FALSE(session.row("radius"));
}

TEST_F(SeveralNodes, MixedValuesAreSaidSoAndShowingWritesNothing)
{
    selectMaterials();
    EXPECT_EQ(session.number("shininess")->text(), "");
    EXPECT_EQ(session.number("shininess")->placeholderText(), "mixed");
    EXPECT_EQ(session.number("transparency")->text(), "0");
    EXPECT_EQ(session.number("transparency")->placeholderText(), "");
    EXPECT_EQ(session.number("diffuseColor", 0)->placeholderText(), "mixed");
    const auto* swatch = session.in<QPushButton>("diffuseColor", "swatch");
    EXPECT_TRUE(swatch->toolTip().startsWith("mixed"));
    const QImage stripes = swatch->icon().pixmap(swatch->iconSize()).toImage();
    EXPECT_NE(stripes.pixelColor(1, 2), stripes.pixelColor(stripes.width() - 2, 2));
    EXPECT_EQ(shininess(), before);
    EXPECT_EQ(session.stack().count(), 0);
}

TEST_F(SeveralNodes, ATypedNumberSetsAllInOneStepUndoneToTheBit)
{
    selectMaterials();
    session.enter(session.number("shininess"), "0.1");
    EXPECT_EQ(shininess(), (std::vector<float>{0.1F, 0.1F, 0.1F}));
    EXPECT_EQ(session.number("shininess")->text(), "0.1");
    ASSERT_EQ(session.stack().count(), 1);
    session.undo();
    EXPECT_EQ(shininess(), before);
    EXPECT_TRUE(session.comesTrue([&] { return session.number("shininess")->placeholderText() == "mixed"; }));
    session.stack().redo();
    EXPECT_EQ(shininess(), (std::vector<float>{0.1F, 0.1F, 0.1F}));
}

TEST_F(SeveralNodes, AFormulaStartsFromEachNodesOwnValue)
{
    selectMaterials();
    session.enter(session.number("shininess"), "x/2");
    EXPECT_EQ(shininess(), (std::vector<float>{0.125F, 0.25F, 0.375F}));
    EXPECT_EQ(session.stack().count(), 1);
    session.enter(session.number("shininess"), "+= 0.5");
    EXPECT_EQ(shininess(), (std::vector<float>{0.625F, 0.75F, 0.875F}));
}

TEST_F(SeveralNodes, ADragShiftsAllByTheSameWithinTheirLimits)
{
    selectMaterials();
    session.dragOver(session.number("shininess"), 20);
    const float by = current->shininess.getValue() - 0.75F;
    EXPECT_GT(by, 0);
    EXPECT_FLOAT_EQ(first->shininess.getValue(), 0.25F + by);
    EXPECT_FLOAT_EQ(second->shininess.getValue(), 0.5F + by);
    EXPECT_EQ(session.stack().count(), 1);
    session.undo();
    EXPECT_EQ(shininess(), before);
    session.dragOver(session.number("shininess"), -400);
    EXPECT_EQ(shininess(), (std::vector<float>{0, 0, 0}));
    session.undo();
    EXPECT_EQ(shininess(), before);
}

TEST_F(SeveralNodes, EscGivesEachItsOwnBack)
{
    selectMaterials();
    session.dragOver(session.number("shininess"), 20, {}, [&] {
        EXPECT_NE(shininess(), before);
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget()
                                                    : session.number("shininess"),
                        Qt::Key_Escape);
        if (shininess() != before)
            QTest::keyClick(session.number("shininess"), Qt::Key_Escape);
    });
    EXPECT_EQ(shininess(), before);
    EXPECT_TRUE(first->ambientColor.isDefault());
    EXPECT_EQ(session.stack().count(), 0);
}

TEST_F(SeveralNodes, KeysShiftAllToo)
{
    selectMaterials();
    auto* number = session.number("shininess");
    session.click(number);
    QTest::keyClick(number, Qt::Key_Up);
    const float by = current->shininess.getValue() - 0.75F;
    EXPECT_GT(by, 0);
    EXPECT_FLOAT_EQ(first->shininess.getValue(), 0.25F + by);
}

TEST_F(SeveralNodes, ChoicesBoxesAndTextsShowMixedAndSetAll)
{
    const SoRef<SoDrawStyle> lines(new SoDrawStyle);
    const SoRef<SoDrawStyle> points(new SoDrawStyle);
    lines->style.setValue(SoDrawStyle::Lines);
    points->style.setValue(SoDrawStyle::Points);
    select({lines.get(), points.get()});
    auto* box = session.row("style")->findChild<QComboBox*>();
    EXPECT_EQ(box->currentIndex(), -1);
    EXPECT_EQ(box->placeholderText(), "mixed");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    EXPECT_EQ(lines->style.getValue(), points->style.getValue());
    EXPECT_EQ(session.stack().count(), 1);
    session.undo();
    EXPECT_EQ(lines->style.getValue(), SoDrawStyle::Lines);
    EXPECT_EQ(points->style.getValue(), SoDrawStyle::Points);

    const SoRef<SoTexture2> sand(new SoTexture2);
    const SoRef<SoTexture2> water(new SoTexture2);
    sand->fileName.setValue("sand.png");
    water->fileName.setValue("water.png");
    select({sand.get(), water.get()});
    auto* line = session.row("fileName")->findChild<QLineEdit*>();
    EXPECT_EQ(line->text(), "");
    EXPECT_EQ(line->placeholderText(), "mixed");
    session.click(line);
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_STREQ(sand->fileName.getValue().getString(), "sand.png") << "nothing was typed";
    session.enter(line, "stone.png");
    EXPECT_STREQ(sand->fileName.getValue().getString(), "stone.png");
    EXPECT_STREQ(water->fileName.getValue().getString(), "stone.png");
}

TEST_F(SeveralNodes, ResetAndIgnoreAreOfAll)
{
    selectMaterials();
    session.chooseInMenu(session.row("shininess"), "Reset");
    const float standard = SoMaterial().shininess.getValue();
    EXPECT_EQ(shininess(), (std::vector<float>{standard, standard, standard}));
    EXPECT_TRUE(first->shininess.isDefault());
    EXPECT_EQ(session.stack().count(), 1);
    session.undo();
    EXPECT_EQ(shininess(), before);
    EXPECT_FALSE(first->shininess.isDefault());
    session.chooseInMenu(session.row("shininess"), "Ignore");
    EXPECT_TRUE(first->shininess.isIgnored() && second->shininess.isIgnored() &&
                current->shininess.isIgnored());
    session.undo();
    EXPECT_FALSE(first->shininess.isIgnored() || second->shininess.isIgnored() ||
                 current->shininess.isIgnored());
}

TEST_F(SeveralNodes, RotationsAreTurnedByTheSameAngle)
{
    const SoRef<SoTransform> a(new SoTransform);
    const SoRef<SoTransform> b(new SoTransform);
    a->rotation.setValue(SbRotation(SbVec3f(0, 1, 0), 0.5F));
    b->rotation.setValue(SbRotation(SbVec3f(0, 1, 0), 1));
    const SbRotation was = a->rotation.getValue();
    select({a.get(), b.get()});
    EXPECT_EQ(session.number("rotation", 1)->text(), "1");
    EXPECT_EQ(session.number("rotation", 3)->placeholderText(), "mixed");
    session.enter(session.number("rotation", 3), "x*2");
    SbVec3f axis;
    float angle = 0;
    a->rotation.getValue().getValue(axis, angle);
    EXPECT_NEAR(angle, 1, 1e-5);
    b->rotation.getValue().getValue(axis, angle);
    EXPECT_NEAR(angle, 2, 1e-5);
    session.undo();
    EXPECT_EQ(a->rotation.getValue(), was);
}

TEST_F(SeveralNodes, OneThatIsDestroyedLeavesTheOthers)
{
    selectMaterials();
    first = {};
    session.settle();
    EXPECT_EQ(title(), "<b>2 nodes: 2 Material</b>");
    session.enter(session.number("shininess"), "0.1");
    EXPECT_EQ(second->shininess.getValue(), 0.1F);
    current = {};
    session.settle();
    ASSERT_TRUE(session.panel());
    EXPECT_FALSE(title().contains("nodes"));
    EXPECT_EQ(session.number("shininess")->text(), "0.1");
}

TEST_F(SeveralNodes, AChangeOfAnyIsShown)
{
    selectMaterials();
    first->transparency.setValue(0.5F);
    EXPECT_TRUE(
        session.comesTrue([&] { return session.number("transparency")->placeholderText() == "mixed"; }));
}

// SPDX-License-Identifier: MIT
// Colours in the panel: picked, typed, and in their other forms.
#include "PanelFixture.h"

#include <QColorDialog>

namespace
{

constexpr float Exact = 0.1F + 0.0123456F;

} // namespace

TEST_F(Panel, AColourIsPickedLiveAndCancelGivesEveryBitBack)
{
    material.specularColor.setValue(SbColor(Exact, 0.5F, 0.25F));
    session.settle();
    session.click(session.in<QPushButton>("specularColor", "swatch"));
    auto* picker = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(picker);
    picker->setCurrentColor(Qt::red);
    EXPECT_EQ(material.specularColor.getValue()[0], 1.F);
    picker->reject();
    session.settle();
    EXPECT_EQ(material.specularColor.getValue(), SbColor(Exact, 0.5F, 0.25F));
    EXPECT_EQ(steps(), 0);
}

TEST_F(Panel, AColoursUntouchedChannelsKeepTheirBitsAndOkIsOneStep)
{
    material.specularColor.setValue(SbColor(Exact, 0.5F, 0.25F));
    session.settle();
    session.click(session.in<QPushButton>("specularColor", "swatch"));
    auto* picker = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(picker);
    QColor color = picker->currentColor();
    EXPECT_NEAR(color.redF(), Exact, 0.5 / 255);
    color.setBlueF(1);
    picker->setCurrentColor(color);
    picker->accept();
    session.settle();
    EXPECT_EQ(material.specularColor.getValue(), SbColor(Exact, 0.5F, 1.F));
    EXPECT_EQ(steps(), 1);
    session.undo();
    EXPECT_EQ(material.specularColor.getValue(), SbColor(Exact, 0.5F, 0.25F));
}

TEST_F(Panel, AColourIsTypedAsHexToo)
{
    session.enter(session.number("diffuseColor", 1), "#ff8000");
    EXPECT_EQ(material.diffuseColor[0][0], 1.F);
    EXPECT_NEAR(material.diffuseColor[0][1], 128 / 255.0, 1e-4);
    EXPECT_EQ(material.diffuseColor[0][2], 0.F);
    EXPECT_EQ(material.diffuseColor.getNum(), 1);
    EXPECT_EQ(steps(), 1);
}

TEST_F(Panel, AColourIsEditedAsHsvAndChannelsThatComeOutTheSameKeepTheirBits)
{
    material.specularColor.setValue(SbColor(Exact, 0.5F, 0.25F));
    session.settle();
    chooseColorForm("specularColor", 1);
    EXPECT_EQ(session.number("specularColor", 2)->text(), "0.5");
    session.enter(session.number("specularColor", 2), "1");
    EXPECT_FLOAT_EQ(material.specularColor.getValue()[0], 2 * Exact);
    EXPECT_FLOAT_EQ(material.specularColor.getValue()[1], 1);
    session.undo();
    EXPECT_TRUE(session.comesTrue([&] { return session.number("specularColor", 2)->text() == "0.5"; }));
    session.enter(session.number("specularColor"), "+= 5");
    EXPECT_EQ(material.specularColor.getValue()[0], Exact) << "the hue changes the middle channel only";
    EXPECT_EQ(material.specularColor.getValue()[1], 0.5F);
    EXPECT_NE(material.specularColor.getValue()[2], 0.25F);
    EXPECT_EQ(steps(), 1);
}

TEST_F(Panel, AHueOutlastsAGrey)
{
    material.specularColor.setValue(SbColor(0, 0, 1));
    session.settle();
    chooseColorForm("specularColor", 1);
    session.enter(session.number("specularColor", 1), "0");
    EXPECT_EQ(material.specularColor.getValue(), SbColor(1, 1, 1));
    EXPECT_EQ(session.number("specularColor")->text(), QString::fromUtf8("240°"));
    session.enter(session.number("specularColor", 1), "1");
    EXPECT_EQ(material.specularColor.getValue(), SbColor(0, 0, 1));
}

TEST_F(Panel, AColourIsTypedAsTextOrLinearLightAndSaysWhich)
{
    chooseColorForm("specularColor", 2);
    auto* hex = session.in<QLineEdit>("specularColor", "hex");
    EXPECT_FALSE(session.number("specularColor")->isVisible());
    session.enter(hex, "#ff8000");
    EXPECT_FLOAT_EQ(material.specularColor.getValue()[1], 128 / 255.F);
    session.enter(hex, "nonsense");
    EXPECT_EQ(hex->text(), "#ff8000");
    session.type(hex, "#00");
    QTest::keyClick(hex, Qt::Key_Escape);
    EXPECT_EQ(hex->text(), "#ff8000");
    EXPECT_EQ(steps(), 1);
    chooseColorForm("specularColor", 3);
    EXPECT_EQ(session.number("specularColor", 1)->text(), "0.2159");
    EXPECT_TRUE(session.number("specularColor")->accessibleDescription().startsWith("Linear"));
    session.enter(session.number("specularColor", 2), "0.5");
    EXPECT_NEAR(material.specularColor.getValue()[2], 0.7354, 1e-4);
    EXPECT_EQ(material.specularColor.getValue()[0], 1.F);
}

TEST_F(Panel, ThePickerOfAMaterialsColourHasItsTransparency)
{
    material.transparency.setValue(Exact);
    session.settle();
    const auto open = [&] {
        session.click(session.in<QPushButton>("diffuseColor", "swatch"));
        return qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
    };
    QColorDialog* picker = open();
    ASSERT_TRUE(picker);
    QColor color = picker->currentColor();
    EXPECT_NEAR(color.alphaF(), 1 - Exact, 0.5 / 255);
    color.setRedF(1);
    picker->setCurrentColor(color);
    EXPECT_EQ(material.transparency.getValue(), Exact) << "not touched";
    color.setAlphaF(0.25);
    picker->setCurrentColor(color);
    EXPECT_NEAR(material.transparency.getValue(), 0.75, 0.5 / 255);
    picker->reject();
    session.settle();
    EXPECT_EQ(material.transparency.getValue(), Exact);
    EXPECT_EQ(steps(), 0);
    picker = open();
    ASSERT_TRUE(picker);
    picker->setCurrentColor(color);
    picker->accept();
    session.settle();
    EXPECT_EQ(material.diffuseColor[0][0], 1.F);
    EXPECT_EQ(steps(), 1);
    session.undo();
    EXPECT_EQ(material.transparency.getValue(), Exact);
    EXPECT_NE(material.diffuseColor[0][0], 1.F);
}

// SPDX-License-Identifier: MIT
// What the menus of the panel and of its rows do: values that are copied, pasted, reset and kept as defaults.
#include "PanelFixture.h"

#include <scopix/SpxNodeDefaults.h>
#include <xsg/nodes/properties/SoTexture2.h>

#include <QLabel>

namespace
{

constexpr float Exact = 0.1F + 0.0123456F;

} // namespace

TEST_F(Panel, IgnoringAndConnectingAreSteps)
{
    session.chooseInMenu(session.row("shininess"), "Ignore");
    EXPECT_TRUE(material.shininess.isIgnored());
    material.shininess.connectFrom(&material.transparency);
    material.transparency.setValue(0.7F);
    EXPECT_TRUE(session.comesTrue([&] { return session.number("shininess")->text() == "0.7"; }));
    session.chooseInMenu(session.row("shininess"), "Disconnect");
    EXPECT_FALSE(material.shininess.isConnected());
    EXPECT_EQ(steps(), 2);
    session.undo();
    EXPECT_EQ(material.shininess.getConnectedField(), &material.transparency);
    session.undo();
    EXPECT_FALSE(material.shininess.isIgnored());
}

TEST_F(Panel, AValueIsCopiedAndPasted)
{
    material.shininess.setValue(Exact);
    session.chooseInMenu(session.row("shininess"), "Copy Value");
    session.chooseInMenu(session.row("transparency"), "Paste");
    EXPECT_EQ(material.transparency.getValue(), Exact);
    EXPECT_EQ(steps(), 1);
    session.chooseInMenu(session.row("shininess"), "Copy as C++");
    EXPECT_EQ(QApplication::clipboard()->text(), "node->shininess.set(SbString(\"0.1123456\"));");
    session.chooseInMenu(session.row("shininess"), "Copy as Scene");
    EXPECT_EQ(QApplication::clipboard()->text(), "shininess: 0.1123456");
    session.chooseInMenu(session.row("shininess"), "Copy Path");
    EXPECT_EQ(QApplication::clipboard()->text(), "Material.shininess");
    QApplication::clipboard()->setText("no number");
    session.chooseInMenu(session.row("transparency"), "Paste");
    EXPECT_EQ(material.transparency.getValue(), Exact);
    EXPECT_EQ(steps(), 1);
}

TEST_F(Panel, ValuesOfOtherProgramsArePasted)
{
    const auto paste = [&](const char* field, const char* text) {
        QApplication::clipboard()->setText(text);
        session.chooseInMenu(session.row(field), "Paste Value");
    };
    for (const char* text :
         {"0.25\t0.5\t1", "0.25, 0.5, 1", "(0.25; 0.5; 1)", "[ 0.25 0.5 1 ]", "0.25 0.5 1"}) {
        material.specularColor.setValue(SbColor(0, 0, 0));
        paste("specularColor", text);
        EXPECT_EQ(material.specularColor.getValue(), SbColor(0.25F, 0.5F, 1)) << text;
    }
    paste("diffuseColor", "1 0 0\n0\t1\t0\n0, 0, 1\n");
    ASSERT_EQ(material.diffuseColor.getNum(), 3);
    EXPECT_EQ(material.diffuseColor[1], SbVec3f(0, 1, 0));
    paste("shininess", "[ 0.5, 0.75 ]");
    EXPECT_EQ(material.shininess.getValue(), 0.5F);
    const int before = steps();
    paste("shininess", "half");
    EXPECT_EQ(steps(), before);
    const SoRef<SoTexture2> texture(new SoTexture2);
    session.selectNode(texture.get());
    paste("fileName", "a \"b\".png");
    EXPECT_EQ(texture->fileName.getValue(), SbString("a \"b\".png"));
    session.chooseInMenu(session.row("fileName"), "Copy Value");
    EXPECT_EQ(QApplication::clipboard()->text(), "a \"b\".png");
}

TEST_F(Panel, ARowsMenuKeepsAndForgetsTheUsersDefault)
{
    material.shininess.setValue(Exact);
    session.chooseInMenu(session.row("shininess"), "Use as My Default");
    const SoRef<SoMaterial> fresh(new SoMaterial);
    SpxNodeDefaults::getInstance()->applyUserDefaults(*fresh);
    EXPECT_EQ(fresh->shininess.getValue(), Exact);
    session.chooseInMenu(session.row("shininess"), "Forget My Default");
    EXPECT_FALSE(SpxNodeDefaults::getInstance()->hasUserDefault(material.shininess));
    EXPECT_EQ(steps(), 0);
}

TEST_F(Panel, ARowsMenuShowsOnlyWhatIsChanged)
{
    material.shininess.setValue(Exact);
    session.chooseInMenu(session.row("shininess"), "Show Only Changed");
    EXPECT_TRUE(session.comesTrue([&] { return !session.row("transparency"); }));
    EXPECT_TRUE(session.panel()->findChild<QCheckBox*>("onlyChanged")->isChecked());
}

TEST_F(Panel, TheNodesMenuCopiesPastesAndResetsAllInOneStep)
{
    material.shininess.setValue(Exact);
    material.transparency.setValue(0.5F);
    QWidget* title = session.panel()->findChild<QLabel*>("nodeTitle");
    session.chooseInMenu(title, "Copy Values");
    const QString text = QApplication::clipboard()->text();
    EXPECT_EQ(text, "#Xsg V1.0 utf8\nMaterial {\n    shininess: 0.1123456\n    transparency: 0.5\n}\n");
    session.chooseInMenu(title, "Reset All");
    EXPECT_TRUE(material.shininess.isDefault());
    EXPECT_TRUE(material.transparency.isDefault());
    EXPECT_EQ(steps(), 1);
    QApplication::clipboard()->setText(text);
    session.chooseInMenu(title, "Paste Values");
    EXPECT_EQ(material.shininess.getValue(), Exact);
    EXPECT_EQ(material.transparency.getValue(), 0.5F);
    EXPECT_EQ(steps(), 2);
    QApplication::clipboard()->setText("transparency: 0.75");
    session.chooseInMenu(title, "Paste Values");
    EXPECT_EQ(material.transparency.getValue(), 0.75F);
    for (const char* nothing : {"nonsense", "a: b", "Cube { width: 3 }"}) {
        QApplication::clipboard()->setText(nothing);
        session.chooseInMenu(title, "Paste Values");
    }
    EXPECT_EQ(steps(), 3);
    session.chooseInMenu(title, "Copy as C++");
    EXPECT_EQ(QApplication::clipboard()->text(), "auto* node = new SoMaterial;\n"
                                                 "node->shininess.set(SbString(\"0.1123456\"));\n"
                                                 "node->transparency.set(SbString(\"0.75\"));\n");
}

TEST_F(Panel, ARowThatGoesTakesItsMenuAlong)
{
    QWidget* row = session.row("diffuseColor");
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, row->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(row, &event);
    ASSERT_TRUE(QApplication::activePopupWidget());
    const SbVec3f colors[] = {{1, 0, 0}, {0, 1, 0}};
    material.diffuseColor.setValues(0, 2, colors);
    EXPECT_TRUE(session.comesTrue([&] {
        return session.row("diffuseColor") && session.row("diffuseColor")->findChild<QPushButton*>("link");
    }));
    EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_F(Panel, AResetIsAStep)
{
    session.enter(session.number("shininess"), "0.5");
    session.chooseInMenu(session.row("shininess"), "Reset");
    EXPECT_TRUE(material.shininess.isDefault());
    EXPECT_EQ(material.shininess.getValue(), 0.2F);
    EXPECT_EQ(steps(), 2);
}

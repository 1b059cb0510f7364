// SPDX-License-Identifier: MIT
// The panel in the real host: every kind of row, driven by keys and mouse.
#include "plugins/Inspector/InspectorSession.h"

#include <support/Waiting.h>

#include <scopix/SpxNodeDefaults.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoCone.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoMatrixTransform.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/types/SoTypedImpl.h>

#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QLabel>
#include <QToolButton>

namespace
{

// A node of as many fields as wanted.
class ManyFields : public SoTyped<ManyFields, SoFieldContainer>
{
public:
    static constexpr const char* ClassName = "ManyFields";
    explicit ManyFields(int count)
    {
        for (int i = 0; i < count; ++i)
            fields.push_back(std::make_unique<SoSFFloat>(this, names[i % 4], float(i)));
    }
    static constexpr const char* names[] = {"first", "second", "third", "fourth"};
    std::vector<std::unique_ptr<SoSFFloat>> fields;
};

constexpr float Exact = 0.1F + 0.0123456F;

class Panel : public testing::Test
{
protected:
    Panel() { session.selectNode(session.material.get()); }

    int steps() { return session.stack().count(); }
    QString undoText() { return session.stack().undoText(); }
    void chooseForm(const char* field, int form)
    {
        auto* forms = session.in<QComboBox>(field, "form");
        forms->setFocus();
        QTest::keyClick(forms, Qt::Key_Home);
        for (int i = 0; i < form; ++i)
            QTest::keyClick(forms, Qt::Key_Down);
        session.settle();
    }
    void chooseColorForm(const char* field, int form)
    {
        session.click(session.in<QToolButton>(field, "form"));
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        menu->setActiveAction(menu->actions()[form]);
        QTest::keyClick(menu, Qt::Key_Return);
        session.settle();
    }

    InspectorSession session;
    SoMaterial& material = *session.material;
};

} // namespace

TEST_F(Panel, ShowsEveryFieldInItsOwnOrderAndWritesNothing)
{
    QStringList names;
    QMap<int, QString> byPlace;
    for (auto* row : session.panel()->findChildren<QWidget*>("row"))
        byPlace[row->y()] = row->accessibleName().section(',', 0, 0);
    EXPECT_EQ(byPlace.values(), (QStringList{"diffuseColor", "shininess", "transparency", "specularColor",
                                             "emissiveColor", "ambientColor"}));
    EXPECT_EQ(session.number("shininess")->text(), "0.2");
    EXPECT_TRUE(material.shininess.isDefault());
    EXPECT_EQ(steps(), 0);
}

TEST_F(Panel, ATypedFormulaIsOneStepAndUndoBringsEveryBitBack)
{
    material.shininess.setValue(Exact);
    session.enter(session.number("shininess"), "x*2 + 1/4");
    EXPECT_FLOAT_EQ(material.shininess.getValue(), Exact * 2 + 0.25F);
    EXPECT_EQ(steps(), 1);
    EXPECT_TRUE(undoText().startsWith("Material.shininess: 0.112")) << qPrintable(undoText());
    EXPECT_TRUE(undoText().contains(" → 0.474")) << qPrintable(undoText());
    session.undo();
    EXPECT_EQ(material.shininess.getValue(), Exact);
    EXPECT_TRUE(session.comesTrue([&] { return session.number("shininess")->text() == "0.1123456"; }));
}

TEST_F(Panel, AChangeOfThePresentValueAndACommaAreUnderstood)
{
    session.enter(session.number("shininess"), "+= 10 %");
    EXPECT_FLOAT_EQ(material.shininess.getValue(), 0.22F);
    session.enter(session.number("shininess"), "0,5");
    EXPECT_EQ(material.shininess.getValue(), 0.5F);
}

TEST_F(Panel, WhatIsNoNumberIsRefusedAndThenDropped)
{
    QLineEdit* input = session.number("shininess");
    for (const char* text : {"1,234.5", "two", "1/0", "(1"}) {
        session.enter(input, text);
        EXPECT_EQ(input->text(), text);
        EXPECT_TRUE(input->accessibleDescription().endsWith('.')) << text;
        QTest::keyClick(input, Qt::Key_Escape);
        EXPECT_EQ(input->text(), "0.2");
    }
    session.type(input, "nonsense");
    session.click(session.number("transparency"));
    EXPECT_EQ(input->text(), "0.2");
    EXPECT_EQ(steps(), 0);
    EXPECT_TRUE(material.shininess.isDefault());
}

TEST_F(Panel, TypingKeepsWithinTheHardRange)
{
    session.enter(session.number("shininess"), "7");
    EXPECT_EQ(material.shininess.getValue(), 1.F);
    EXPECT_EQ(session.number("shininess")->text(), "1");
}

TEST_F(Panel, LeavingAnInputAppliesWhatIsTyped)
{
    session.type(session.number("shininess"), "0.75");
    session.click(session.number("transparency"));
    EXPECT_EQ(material.shininess.getValue(), 0.75F);
    EXPECT_EQ(steps(), 1);
}

TEST_F(Panel, SelectingAnotherNodeAppliesWhatIsTypedToThisOne)
{
    const SoRef<SoMaterial> other(new SoMaterial);
    session.type(session.number("shininess"), "0.75");
    session.selectNode(other.get());
    EXPECT_EQ(material.shininess.getValue(), 0.75F);
    EXPECT_TRUE(other->shininess.isDefault());
}

TEST_F(Panel, ADragIsSeenAtOnceAndIsOneStep)
{
    QLineEdit* input = session.number("shininess");
    session.dragOver(input, 60, {}, [&] { EXPECT_NEAR(material.shininess.getValue(), 0.5F, 1e-5); });
    EXPECT_EQ(steps(), 1);
    EXPECT_FALSE(input->hasFocus());
    session.undo();
    EXPECT_EQ(material.shininess.getValue(), 0.2F);
    EXPECT_TRUE(material.shininess.isDefault());
}

TEST_F(Panel, ShiftDragsFinerAndCtrlSnaps)
{
    session.dragOver(session.number("shininess"), 60, Qt::ShiftModifier);
    EXPECT_NEAR(material.shininess.getValue(), 0.23F, 1e-5);
    session.undo();
    session.dragOver(session.number("shininess"), 63, Qt::ControlModifier);
    EXPECT_NEAR(material.shininess.getValue(), 0.52F, 0.011);
    EXPECT_NEAR(material.shininess.getValue() * 100, std::round(material.shininess.getValue() * 100), 1e-4);
}

TEST_F(Panel, ADragStaysInItsRange)
{
    session.dragOver(session.number("shininess"), 400);
    EXPECT_EQ(material.shininess.getValue(), 1.F);
    session.dragOver(session.number("shininess"), -400);
    EXPECT_EQ(material.shininess.getValue(), 0.F);
}

TEST_F(Panel, EscGivesTheDragBackWithoutAStep)
{
    material.shininess.setValue(Exact);
    session.settle();
    QLineEdit* input = session.number("shininess");
    session.dragOver(input, 60, {}, [&] {
        QTest::keyClick(input, Qt::Key_Escape);
        EXPECT_EQ(material.shininess.getValue(), Exact);
    });
    EXPECT_EQ(material.shininess.getValue(), Exact);
    EXPECT_EQ(steps(), 0);
}

TEST_F(Panel, TheCaptionDragsToo)
{
    auto* caption = session.row("shininess")->findChild<QWidget*>("caption");
    ASSERT_TRUE(caption);
    session.dragOver(caption, 20);
    EXPECT_NEAR(material.shininess.getValue(), 0.3F, 1e-5);
    EXPECT_EQ(steps(), 1);
}

TEST_F(Panel, KeysChangeTheDigitAtTheCursorInOneStepARun)
{
    QLineEdit* input = session.number("shininess");
    session.enter(input, "0.25");
    session.stack().clear();
    input->deselect();
    input->setCursorPosition(3); // behind the 2
    QTest::keyClick(input, Qt::Key_Up);
    QTest::keyClick(input, Qt::Key_Up);
    EXPECT_FLOAT_EQ(material.shininess.getValue(), 0.45F);
    input->deselect();
    input->setCursorPosition(4);
    QTest::keyClick(input, Qt::Key_Down);
    EXPECT_FLOAT_EQ(material.shininess.getValue(), 0.44F);
    QTest::keyClick(input, Qt::Key_PageUp);
    EXPECT_FLOAT_EQ(material.shininess.getValue(), 0.54F);
}

TEST_F(Panel, TheWheelNeedsTheFocus)
{
    QLineEdit* input = session.number("shininess");
    const auto turn = [&] {
        QWheelEvent event(input->rect().center(), input->mapToGlobal(input->rect().center()), {}, {0, 120},
                          Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(input, &event);
        session.settle();
    };
    turn();
    EXPECT_EQ(material.shininess.getValue(), 0.2F);
    session.click(input);
    turn();
    EXPECT_FLOAT_EQ(material.shininess.getValue(), 0.21F);
}

TEST_F(Panel, WhatIsTypedStaysWhenTheValueChangesElsewhere)
{
    QLineEdit* input = session.number("shininess");
    session.type(input, "0.7");
    material.shininess.setValue(0.9F);
    session.settle();
    EXPECT_EQ(input->text(), "0.7");
    auto* mark = session.in<QWidget>("shininess", "mark");
    EXPECT_TRUE(waitFor([&] { return mark->toolTip().startsWith("Changed elsewhere"); }));
    QTest::keyClick(input, Qt::Key_Return);
    EXPECT_EQ(material.shininess.getValue(), 0.7F);
    EXPECT_FALSE(mark->toolTip().startsWith("Changed elsewhere"));
    session.undo();
    EXPECT_EQ(material.shininess.getValue(), 0.9F);
}

TEST_F(Panel, EscTakesTheirsWhenTheValueChangedElsewhere)
{
    QLineEdit* input = session.number("shininess");
    session.type(input, "0.7");
    material.shininess.setValue(0.9F);
    session.settle();
    QTest::keyClick(input, Qt::Key_Escape);
    EXPECT_EQ(input->text(), "0.9");
    EXPECT_EQ(steps(), 0);
}

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

TEST_F(Panel, AListOfManyOpensInTheFieldEditor)
{
    const SbVec3f colors[] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 1, 1}};
    material.diffuseColor.setValues(0, 4, colors);
    ASSERT_TRUE(
        session.comesTrue([&] { return session.row("diffuseColor")->findChild<QPushButton*>("link"); }));
    auto* link = session.row("diffuseColor")->findChild<QPushButton*>("link");
    EXPECT_TRUE(link->toolTip().startsWith("4 values, 0 to 1: 1 0 0")) << qPrintable(link->toolTip());
    session.click(link);
    EXPECT_EQ(session.host.services().selectedField(), &material.diffuseColor);
    ASSERT_TRUE(session.dock());
    EXPECT_TRUE(waitFor([&] { return !session.dock()->widget()->visibleRegion().isEmpty(); }));
}

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

TEST_F(Panel, TheToolTipSaysWhatAFieldMeans)
{
    QLineEdit* input = session.number("shininess");
    QHelpEvent ask(QEvent::ToolTip, input->rect().center(), input->mapToGlobal(input->rect().center()));
    QApplication::sendEvent(input, &ask);
    const QString text = session.row("shininess")->toolTip();
    for (const char* part : {"shininess", "SFFloat", "0 dull to 1 sharp", "Range: 0 to 1", "Default: 0.2"})
        EXPECT_TRUE(text.contains(part)) << part << " in " << qPrintable(text);
}

TEST_F(Panel, TheToolTipSaysUnitAndLimits)
{
    const SoRef<SoPerspectiveCamera> camera(new SoPerspectiveCamera);
    session.selectNode(camera.get());
    QHelpEvent ask(QEvent::ToolTip, {5, 5}, session.row("heightAngle")->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(session.row("heightAngle"), &ask);
    const QString angle = session.row("heightAngle")->toolTip();
    EXPECT_TRUE(angle.contains("Unit: radians, shown in degrees")) << qPrintable(angle);
    QApplication::sendEvent(session.row("nearDistance"), &ask);
    const QString distance = session.row("nearDistance")->toolTip();
    EXPECT_TRUE(distance.contains("Unit: metres")) << qPrintable(distance);
    EXPECT_TRUE(distance.contains("Range: at least 0")) << qPrintable(distance);
    const QString spoken = session.number("nearDistance")->accessibleDescription();
    EXPECT_TRUE(spoken.startsWith("SFFloat, metres")) << qPrintable(spoken);
    session.enter(session.number("nearDistance"), "two");
    EXPECT_NE(session.number("nearDistance")->accessibleDescription(), spoken);
    QTest::keyClick(session.number("nearDistance"), Qt::Key_Escape);
    EXPECT_EQ(session.number("nearDistance")->accessibleDescription(), spoken);
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

TEST_F(Panel, TheFilterAndOnlyChangedHideRows)
{
    auto* filter = session.panel()->findChild<QLineEdit*>("fieldFilter");
    auto* only = session.panel()->findChild<QCheckBox*>("onlyChanged");
    QTest::keyClick(&session.host.window(), Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(filter->hasFocus());
    QTest::keyClicks(filter, "sharp"); // in the meaning of shininess
    session.settle();
    EXPECT_TRUE(session.row("shininess"));
    EXPECT_FALSE(session.row("transparency"));
    QTest::keyClick(filter, Qt::Key_Escape);
    session.settle();
    EXPECT_TRUE(session.row("transparency"));
    material.transparency.setValue(0.5F);
    QTest::mouseClick(only, Qt::LeftButton, {}, {8, only->height() / 2});
    session.settle();
    EXPECT_TRUE(only->isChecked());
    EXPECT_TRUE(session.row("transparency"));
    EXPECT_FALSE(session.row("shininess"));
    EXPECT_EQ(steps(), 0);
}

TEST_F(Panel, AnEnumerationIsChosenByTheKeyboard)
{
    const SoRef<SoDrawStyle> style(new SoDrawStyle);
    session.selectNode(style.get());
    auto* box = session.row("style")->findChild<QComboBox*>();
    EXPECT_EQ(box->currentText(), "FILLED");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    session.settle();
    EXPECT_NE(box->currentText(), "FILLED");
    EXPECT_EQ(steps(), 1);
    style->style.setValue(77);
    session.settle();
    EXPECT_TRUE(waitFor([&] { return box->currentText() == "77 (no name)"; }));
    session.undo();
    EXPECT_TRUE(session.comesTrue([&] { return box->currentText() == "FILLED"; }));
}

TEST_F(Panel, AMasksBitsAreCheckedAndOtherBitsStay)
{
    const SoRef<SoCone> cone(new SoCone);
    cone->parts.setValue(cone->parts.getValue() | 0x40);
    session.selectNode(cone.get());
    const auto boxes = session.row("parts")->findChildren<QCheckBox*>();
    ASSERT_GE(boxes.size(), 2);
    const int before = cone->parts.getValue();
    session.click(boxes[0]);
    EXPECT_NE(cone->parts.getValue(), before);
    EXPECT_TRUE(cone->parts.getValue() & 0x40);
    EXPECT_EQ(steps(), 1);
    session.undo();
    EXPECT_EQ(cone->parts.getValue(), before);
}

TEST_F(Panel, ABoolIsAClick)
{
    const SoRef<SoDirectionalLight> light(new SoDirectionalLight);
    session.selectNode(light.get());
    auto* box = session.row("on")->findChild<QCheckBox*>();
    session.click(box);
    EXPECT_FALSE(light->on.getValue());
    session.undo();
    EXPECT_TRUE(light->on.getValue());
}

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

TEST_F(Panel, AFileIsTypedOrDropped)
{
    const SoRef<SoTexture2> texture(new SoTexture2);
    session.selectNode(texture.get());
    QWidget* row = session.row("fileName");
    session.enter(row->findChild<QLineEdit*>(), "tiles.png");
    EXPECT_EQ(texture->fileName.getValue(), SbString("tiles.png"));
    session.click(session.panel()->findChild<QLineEdit*>("fieldFilter"));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/pictures/sea.png")});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(row, &enter);
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(row, &drop);
    EXPECT_EQ(texture->fileName.getValue(), SbString("/pictures/sea.png"));
    EXPECT_EQ(steps(), 2);
}

TEST_F(Panel, AnEndingNodeTakesItsRowsAlong)
{
    SoRef<SoCube> cube(new SoCube);
    session.selectNode(cube.get());
    session.type(session.number("width"), "7");
    cube = nullptr;
    session.settle();
    EXPECT_FALSE(session.panel());
    session.selectNode(&material);
    EXPECT_TRUE(session.row("shininess"));
}

TEST_F(Panel, EveryInputHasANameAndIsReachedInReadingOrder)
{
    const SoRef<SoTransform> transform(new SoTransform);
    for (SoNode* node : {static_cast<SoNode*>(&material), static_cast<SoNode*>(transform.get())}) {
        session.selectNode(node);
        session.number(node == &material ? "diffuseColor" : "translation")->setFocus(Qt::TabFocusReason);
        QStringList names;
        for (QWidget* at = QApplication::focusWidget(); at && session.panel()->isAncestorOf(at);
             at = QApplication::focusWidget()) {
            const QString name = at->accessibleName();
            EXPECT_FALSE(name.isEmpty()) << at->metaObject()->className();
            if (names.contains(name))
                break;
            names += name;
            QTest::keyClick(at, Qt::Key_Tab);
        }
        const QStringList expected = node == &material
                                         ? QStringList{"diffuseColor red", "diffuseColor green",
                                                       "diffuseColor blue", "shininess", "transparency"}
                                         : QStringList{"translation x", "translation y", "translation z",
                                                       "rotation form", "rotation angle"};
        EXPECT_EQ(names.mid(0, 3), expected.mid(0, 3)) << qPrintable(names.join('|'));
        for (const QString& name : expected)
            EXPECT_TRUE(names.contains(name)) << qPrintable(name);
    }
}

TEST_F(Panel, MakesTheRowsInViewOnlyAndReachesTheOthersByTab)
{
    const SoRef<ManyFields> node(new ManyFields(500));
    session.selectNode(node.get());
    const auto rows = [&] { return session.panel()->findChildren<QWidget*>("row").size(); };
    const int atFirst = rows();
    EXPECT_GT(atFirst, 5);
    EXPECT_LT(atFirst, 40);
    QWidget* first = session.panel()->findChildren<QWidget*>("number0").first();
    first->setFocus();
    for (int i = 0; i < 60; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget())->text(), "60");
    EXPECT_FALSE(QApplication::focusWidget()->visibleRegion().isEmpty());
    EXPECT_LT(rows(), 100);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget())->text(), "59");
    session.selectNode(nullptr);
}

// SPDX-License-Identifier: MIT
// The panel in the real host: its rows, driven by keys and mouse.
#include "PanelFixture.h"

#include <support/Waiting.h>

#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoCone.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/types/SoTypedImpl.h>

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

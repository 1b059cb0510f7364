// SPDX-License-Identifier: MIT
#include "GuidedWindow.h"

#include "palette/CommandPalette.h"
#include "palette/PaletteModel.h"
#include "preferences/PreferencesDialog.h"
#include "viewport/SceneView.h"

#include <support/Waiting.h>

#include <xsg/core/SoField.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QLineEdit>
#include <QMenuBar>

using namespace scopix;

namespace
{

class PaletteTest : public GuidedWindow
{
protected:
    CommandPalette& palette() { return window->getPalette().getPalette(); }
    void type(const char* text)
    {
        if (!palette().isVisible())
            QTest::keyClick(window.get(), Qt::Key_K, Qt::ControlModifier);
        EXPECT_TRUE(palette().isVisible());
        QTest::keyClicks(&palette().getLine(), text);
    }
    void enter()
    {
        QTest::keyClick(&palette().getLine(), Qt::Key_Return);
        settle();
    }
    QString first() { return palette().getModel().index(0).data().toString(); }
    bool finds(const char* text, const char* place)
    {
        return waitFor([&] {
            const PaletteModel& model = palette().getModel();
            for (int row = 0; row < model.rowCount(); ++row)
                if (model.entry(row).text == QString::fromUtf8(text) &&
                    model.entry(row).place.startsWith(QString::fromUtf8(place)))
                    return true;
            return false;
        });
    }
};

TEST(FitTest, PrefersWholeWordsThenTheirBeginningsThenLettersInOrder)
{
    EXPECT_GT(fitOf("Save", "save"), fitOf("Save As…", "save"));
    EXPECT_GT(fitOf("Save As…", "save"), fitOf("Autosave", "save"));
    EXPECT_GT(fitOf("Autosave", "save"), fitOf("Show a Vertex", "save"));
    EXPECT_GT(fitOf("View Selected", "vs"), fitOf("Lever Set", "vs"));
    EXPECT_EQ(fitOf("Open", "opx"), 0);
    EXPECT_GT(fitOf("Open", ""), 0);
}

TEST_F(PaletteTest, DoesAnActOfAMenu)
{
    type("statistics");
    EXPECT_EQ(first(), QStringLiteral("Statistics"));
    enter();
    EXPECT_FALSE(palette().isVisible());
    bool isOn = false;
    for (QAction* each : window->findChildren<QAction*>())
        isOn = isOn || (each->shortcut() == QKeySequence(Qt::Key_F4) && each->isChecked());
    EXPECT_TRUE(isOn);
}

TEST_F(PaletteTest, FindsEachActOfEachMenu)
{
    for (const MenuAct& each : findActs(*window->menuBar())) {
        if (each.action == window->getPalette().getAction())
            continue;
        palette().open();
        palette().getLine().setText(each.text);
        EXPECT_TRUE(finds(each.text.toUtf8().constData(), each.place.toUtf8().constData()))
            << each.text.toStdString();
    }
}

TEST_F(PaletteTest, SelectsANodeOfTheScene)
{
    type("glass");
    EXPECT_TRUE(finds("Glass", "node"));
    EXPECT_EQ(first(), QStringLiteral("Glass"));
    enter();
    ASSERT_TRUE(services.selectedNode());
    EXPECT_STREQ(services.selectedNode()->getName().getString(), "Glass");
}

TEST_F(PaletteTest, SelectsAFieldOfTheSelectedNode)
{
    ASSERT_TRUE(window->selectField("Glass", "diffuseColor"));
    type("transp");
    EXPECT_EQ(first(), QStringLiteral("transparency"));
    enter();
    ASSERT_TRUE(services.selectedField());
    EXPECT_STREQ(services.selectedField()->getName().getString(), "transparency");
}

TEST_F(PaletteTest, OpensThePreferencesAtASetting)
{
    type("memory for undo");
    EXPECT_EQ(first(), QStringLiteral("Memory for undo"));
    enter();
    auto* dialog = window->findChild<PreferencesDialog*>();
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(dialog->findChild<QWidget*>(QStringLiteral("SCOPIX_UNDO_MEMORY"))->isVisible());
}

TEST_F(PaletteTest, MovesByArrowsAndGoesByEsc)
{
    type("view");
    ASSERT_GT(palette().getModel().rowCount(), 3);
    QAbstractItemModelTester tester(&palette().getModel());
    auto* list = palette().findChild<QAbstractItemView*>(QStringLiteral("paletteList"));
    QTest::keyClick(&palette().getLine(), Qt::Key_Down);
    QTest::keyClick(&palette().getLine(), Qt::Key_Down);
    EXPECT_EQ(list->currentIndex().row(), 2);
    QTest::keyClick(&palette().getLine(), Qt::Key_Escape);
    EXPECT_FALSE(palette().isVisible());
}

TEST_F(PaletteTest, KeepsNoNodeAliveOnceItIsGone)
{
    const SoRef<SoMaterial> node(new SoMaterial);
    node->setName("Lonely");
    window->setScene(node.get(), QStringLiteral("one"));
    type("lonely");
    EXPECT_TRUE(finds("Lonely", "node"));
    QTest::keyClick(&palette().getLine(), Qt::Key_Escape);
    window->inspect(nullptr, {});
    settle();
    EXPECT_EQ(node->getRefCount(), 1);
}

TEST_F(PaletteTest, SaysWhereNothingIsCalledSo)
{
    type("qqqqqq");
    EXPECT_EQ(palette().getModel().rowCount(), 0);
    enter();
    EXPECT_TRUE(palette().isVisible());
}

} // namespace

// SPDX-License-Identifier: MIT
// The field list's context menu, what leads plug-ins' users to the scene and to the documentation, and the
// user's own defaults.
#include "panels/FieldListModel.h"
#include "panels/FieldListView.h"
#include "panels/SceneFinder.h"
#include "panels/ScenePanel.h"
#include "services/HostServices.h"
#include "services/NodeDefaults.h"
#include "settings/UserSettings.h"
#include "support/UserNotifier.h"
#include "window/HelpWindow.h"
#include "window/MainWindow.h"

#include <support/Waiting.h>

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/shapes/SoScreenText.h>

#include <QClipboard>
#include <QTextBrowser>

using namespace scopix;

namespace
{

constexpr float Exact = 0.1F + 0.0123456F;

class FieldMenuOf : public testing::Test
{
protected:
    FieldMenuOf()
    {
        qputenv("XDG_CONFIG_HOME", m_settings.path().toLocal8Bit());
        material->setName("Water");
        root->setName("Sea");
        root->addChild(material.get());
        services.setSceneSource(&window);
        window.setScene(root.get(), "test");
        window.show();
        services.select(&material->shininess);
        QCoreApplication::processEvents();
    }
    ~FieldMenuOf() override
    {
        services.setSceneSource(nullptr);
        qunsetenv("XDG_CONFIG_HOME");
    }
    QMenu* openMenu()
    {
        FieldListView& list = window.getFields();
        const QRect row = list.visualRect(list.getModel().indexOf(&material->shininess));
        QContextMenuEvent event(QContextMenuEvent::Mouse, row.center(),
                                list.viewport()->mapToGlobal(row.center()));
        QApplication::sendEvent(list.viewport(), &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    bool choose(const QString& entry)
    {
        QMenu* menu = openMenu();
        for (QAction* action : menu ? menu->actions() : QList<QAction*>()) {
            if (!action->text().remove('&').startsWith(entry) || !action->isEnabled())
                continue;
            menu->setActiveAction(action);
            QTest::keyClick(menu, Qt::Key_Return);
            return true;
        }
        if (menu)
            menu->close();
        return false;
    }

    QTemporaryDir m_settings;
    SoRef<SoSeparator> root{new SoSeparator};
    SoRef<SoMaterial> material{new SoMaterial};
    UserNotifier notifier;
    HostServices services;
    MainWindow window{services, notifier};
};

} // namespace

TEST_F(FieldMenuOf, CopiesValueAndPathAndResetsAsAStep)
{
    EXPECT_FALSE(choose("Reset to Default")) << "it has the default";
    material->shininess.setValue(Exact);
    ASSERT_TRUE(choose("Copy Value"));
    EXPECT_EQ(QApplication::clipboard()->text(), "0.1123456");
    ASSERT_TRUE(choose("Copy Path"));
    EXPECT_EQ(QApplication::clipboard()->text(), "/Water.shininess");
    ASSERT_TRUE(choose("Reset to Default"));
    EXPECT_EQ(material->shininess.getValue(), 0.2F);
    EXPECT_TRUE(material->shininess.isDefault());
    EXPECT_EQ(services.undoStack().count(), 1);
    services.undoStack().undo();
    EXPECT_EQ(material->shininess.getValue(), Exact);
    EXPECT_FALSE(material->shininess.isDefault());
    services.undoStack().redo();
    EXPECT_EQ(material->shininess.getValue(), 0.2F);
    EXPECT_TRUE(material->shininess.isDefault());
}

TEST_F(FieldMenuOf, GoesWithItsNode)
{
    QPointer<QMenu> menu = openMenu();
    ASSERT_TRUE(menu);
    services.clearSelection();
    window.setScene(new SoSeparator, "another");
    material = nullptr;
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(menu);
}

TEST_F(FieldMenuOf, FindingIsAsIfTyped)
{
    material->shininess.setValue(Exact);
    window.findInScene("shininess=0.1123456");
    EXPECT_TRUE(waitFor([&] { return window.getScenePanel().getFinder().isFinished(); }));
    const auto& found = window.getScenePanel().getFinder().getFound();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found.front().get(), material.get());
}

TEST_F(FieldMenuOf, F1OpensThePageAtTheNode)
{
    QTest::keyClick(&window, Qt::Key_F1);
    auto* help = window.findChild<HelpWindow*>();
    ASSERT_TRUE(help);
    EXPECT_TRUE(help->isVisible());
    auto* browser = help->findChild<QTextBrowser*>();
    EXPECT_EQ(browser->textCursor().block().text(), "Material");
    EXPECT_GT(browser->verticalScrollBar()->value(), 0);
    EXPECT_FALSE(window.showHelp("no such page", {}));
    EXPECT_TRUE(help->isVisible());
    EXPECT_TRUE(window.showHelp("plugins", "Formulas"));
    EXPECT_EQ(browser->textCursor().block().text(), "Formulas");
    EXPECT_TRUE(window.showHelp("nodes", "no such section"));
    EXPECT_EQ(browser->verticalScrollBar()->value(), 0);
    QTest::keyClick(help, Qt::Key_Escape);
    EXPECT_FALSE(help->isVisible());
}

TEST_F(FieldMenuOf, F1OpensTheTutorialWhereNothingIsSelected)
{
    services.clearSelection();
    QTest::keyClick(&window, Qt::Key_F1);
    auto* help = window.findChild<HelpWindow*>();
    ASSERT_TRUE(help);
    EXPECT_EQ(help->windowTitle(), "Tutorial");
    help->close();
    services.select(material.get());
    window.findChild<QAction*>("tutorialAction")->trigger();
    EXPECT_TRUE(help->isVisible());
    EXPECT_EQ(help->windowTitle(), "Tutorial");
}

TEST_F(FieldMenuOf, LinksOfAPageLeadToPagesAndSections)
{
    ASSERT_TRUE(window.showHelp("inspector", {}));
    auto* browser = window.findChild<HelpWindow*>()->findChild<QTextBrowser*>();
    emit browser->anchorClicked(QUrl("plugins.md#formulas"));
    EXPECT_EQ(browser->textCursor().block().text(), "Formulas");
    emit browser->anchorClicked(QUrl("https://example.org/nodes.md"));
    emit browser->anchorClicked(QUrl("nowhere.md"));
    EXPECT_EQ(browser->textCursor().block().text(), "Formulas");
}

TEST_F(FieldMenuOf, TheUsersDefaultsComeIntoNewNodesOfTheType)
{
    material->shininess.setValue(Exact);
    material->diffuseColor.setValue(SbColor(Exact, 0.5F, 0.25F));
    for (const SoField* field :
         {static_cast<SoField*>(&material->shininess), static_cast<SoField*>(&material->diffuseColor)}) {
        EXPECT_FALSE(hasUserDefault(*field));
        EXPECT_EQ(setUserDefault(*field), "");
        EXPECT_TRUE(hasUserDefault(*field));
    }
    const SoRef<SoMaterial> fresh(new SoMaterial);
    applyUserDefaults(*fresh);
    EXPECT_EQ(fresh->shininess.getValue(), Exact);
    EXPECT_TRUE(fresh->diffuseColor.isSame(material->diffuseColor));
    EXPECT_TRUE(fresh->transparency.isDefault());
    EXPECT_EQ(clearUserDefault(material->shininess), "");
    material->diffuseColor.setDefault(true);
    EXPECT_EQ(setUserDefault(material->diffuseColor), "") << "the type's own is none";
    const SoRef<SoMaterial> another(new SoMaterial);
    applyUserDefaults(*another);
    EXPECT_TRUE(another->shininess.isDefault());
    EXPECT_TRUE(another->diffuseColor.isDefault());
}

TEST_F(FieldMenuOf, DefaultsOfAnyTextAreKeptAndWhatIsNoValueIsLeftOut)
{
    const SoRef<SoScreenText> text(new SoScreenText);
    text->lines.setValue("a, \"b\"; = 100%\n[ä]");
    EXPECT_EQ(setUserDefault(text->lines), "");
    const SoRef<SoScreenText> fresh(new SoScreenText);
    applyUserDefaults(*fresh);
    EXPECT_TRUE(fresh->lines.isSame(text->lines));
    text->lines.setValue(SbString(std::string(100000, 'x')));
    EXPECT_TRUE(setUserDefault(text->lines).contains("longer than"))
        << qPrintable(setUserDefault(text->lines));

    QFile file(UserSettings::path("node-defaults.ini"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Material]\nshininess=much\nnothing=1\ntransparency=0.5\n");
    file.close();
    applyUserDefaults(*material);
    EXPECT_EQ(material->shininess.getValue(), 0.2F);
    EXPECT_EQ(material->transparency.getValue(), 0.5F);
}

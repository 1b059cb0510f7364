// SPDX-License-Identifier: MIT
// The plug-in in the real host, loaded after the default extensions as the program does it.
#include "plugins/Inspector/InspectorSession.h"

#include "panels/SceneFinder.h"
#include "panels/ScenePanel.h"
#include "plugins/PluginSearchPath.h"
#include "window/MainWindow.h"

#include <support/Waiting.h>

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <QTextBlock>
#include <QTextBrowser>
#include <QToolButton>

namespace
{

QStringList labelsIn(QWidget& panel, const char* flow)
{
    QStringList labels;
    for (const auto* button : panel.findChild<QWidget*>(QLatin1String(flow))->findChildren<QToolButton*>())
        labels += button->text();
    return labels;
}

} // namespace

TEST(Inspector, ANodeOpensThePanelInTheNodeEditorDock)
{
    InspectorSession session;
    EXPECT_FALSE(session.panel());
    session.selectNode(session.material.get());
    ASSERT_TRUE(session.panel());
    EXPECT_EQ(session.panel()->objectName(), "inspectorPanel");
    session.selectNode(nullptr);
    EXPECT_FALSE(session.panel());
    EXPECT_EQ(session.stack().count(), 0);
}

TEST(Inspector, IsFoundByTheProgramAfterTheDefaultExtensions)
{
    const QStringList found = PluginSearchPath().findAll();
    const int defaults = found.indexOf(QRegularExpression(QStringLiteral(".*/libSpxDefaults\\.so")));
    const int inspector = found.indexOf(QRegularExpression(QStringLiteral(".*/libSpxInspector\\.so")));
    EXPECT_GE(defaults, 0);
    EXPECT_GT(inspector, defaults);
}

TEST(Inspector, AProfileOfTheDefaultExtensionsShowsNoPanel)
{
    InspectorSession session;
    ProfileList& profiles = session.host.plugins().profiles();
    profiles.read();
    ASSERT_TRUE(profiles.useProfile("Classic"));
    session.settle();
    session.selectNode(session.material.get());
    EXPECT_FALSE(session.panel());
    session.select(&session.material->shininess);
    EXPECT_TRUE(session.editorShown());
    ASSERT_TRUE(profiles.useProfile("Default"));
    EXPECT_TRUE(waitFor([&] { return session.panel(); }));
}

TEST(Inspector, TheWayUpAndTheNodesThatGovernAShapeAreAClickAway)
{
    SoRef<SoSeparator> root(new SoSeparator);
    auto* other = new SoMaterial;
    auto* group = new SoSeparator;
    auto* material = new SoMaterial;
    auto* transform = new SoTransform;
    auto* inner = new SoGroup;
    auto* texture = new SoTexture2;
    auto* cube = new SoCube;
    group->setName("Sea");
    material->setName("Water");
    root->addChild(other);
    root->addChild(group);
    inner->addChild(texture);
    for (SoNode* child :
         {static_cast<SoNode*>(material), static_cast<SoNode*>(transform), static_cast<SoNode*>(inner),
          static_cast<SoNode*>(cube), static_cast<SoNode*>(new SoMaterial)})
        group->addChild(child);

    InspectorSession session([](HostServices& services, UserNotifier& notifier) {
        return std::make_unique<MainWindow>(services, notifier);
    });
    static_cast<MainWindow&>(session.host.window()).setScene(root.get(), "test");
    session.settle();
    session.selectNode(cube);
    ASSERT_TRUE(session.panel());
    EXPECT_EQ(labelsIn(*session.panel(), "breadcrumb"),
              (QStringList{QString::fromUtf8("Separator ▸"), QString::fromUtf8("Sea ▸")}));
    EXPECT_EQ(labelsIn(*session.panel(), "nearby"), (QStringList{"Material Water", "Transform", "Texture2"}));

    session.click(session.panel()->findChild<QWidget*>("nearby")->findChildren<QToolButton*>().first());
    EXPECT_EQ(session.host.services().selectedNode(), material);
    EXPECT_TRUE(session.row("diffuseColor"));
    session.click(session.panel()->findChild<QWidget*>("breadcrumb")->findChildren<QToolButton*>().last());
    EXPECT_EQ(session.host.services().selectedNode(), group);
    session.selectNode(nullptr);
}

TEST(Inspector, AValueIsFoundInTheSceneAndF1OpensThePageOfTheRowsNode)
{
    InspectorSession session([](HostServices& services, UserNotifier& notifier) {
        return std::make_unique<MainWindow>(services, notifier);
    });
    auto& window = static_cast<MainWindow&>(session.host.window());
    SoRef<SoSeparator> root(new SoSeparator);
    auto* dull = new SoMaterial;
    auto* same = new SoMaterial;
    auto* moved = new SoTransform;
    for (SoNode* child : {static_cast<SoNode*>(dull), static_cast<SoNode*>(same), static_cast<SoNode*>(moved),
                          static_cast<SoNode*>(new SoMaterial)})
        root->addChild(child);
    dull->shininess.setValue(0.1123456F);
    same->shininess.setValue(0.1123456F);
    moved->translation.setValue(SbVec3f(1, 2, 3));
    window.setScene(root.get(), "test");
    session.settle();
    const auto countOf = [&](SoNode* node, const char* field) {
        session.selectNode(node);
        session.chooseInMenu(session.row(field), "Find This Value");
        EXPECT_TRUE(waitFor([&] { return window.getScenePanel().getFinder().isFinished(); }));
        return window.getScenePanel().getFinder().getFound().size();
    };
    EXPECT_EQ(countOf(dull, "shininess"), 2U);
    EXPECT_EQ(countOf(moved, "translation"), 1U);
    EXPECT_EQ(countOf(dull, "specularColor"), 3U);

    session.selectNode(dull);
    session.click(session.number("shininess"));
    QTest::keyClick(session.number("shininess"), Qt::Key_F1);
    auto* browser = window.findChild<QTextBrowser*>();
    ASSERT_TRUE(browser);
    EXPECT_EQ(browser->textCursor().block().text(), "Material");
    session.selectNode(nullptr);
}

TEST(Inspector, SelectingNeverMovesOrResizesTheView)
{
    InspectorSession session([](HostServices& services, UserNotifier& notifier) {
        return std::make_unique<MainWindow>(services, notifier);
    });
    auto& window = static_cast<MainWindow&>(session.host.window());
    auto* placeholder = window.findChild<QDockWidget*>("placeholder");
    ASSERT_TRUE(placeholder);
    window.resizeDocks({placeholder}, {330}, Qt::Horizontal);
    session.settle();
    const QRect before = window.centralWidget()->geometry();
    EXPECT_TRUE(placeholder->isVisible());
    HostServices& services = session.host.services();
    for (int i = 0; i < 2; ++i) {
        services.select(session.material.get());
        session.settle();
        ASSERT_TRUE(session.panel());
        EXPECT_FALSE(placeholder->isVisible());
        EXPECT_EQ(window.centralWidget()->geometry(), before);
        session.click(session.number("shininess")); // the Field Editor too
        EXPECT_EQ(window.centralWidget()->geometry(), before);
        services.clearSelection();
        session.settle();
        EXPECT_TRUE(placeholder->isVisible());
        EXPECT_EQ(window.centralWidget()->geometry(), before);
    }
}

TEST(Inspector, WorkingInARowShowsItsFieldInTheFieldEditorBehindThePanel)
{
    InspectorSession session;
    session.selectNode(session.material.get());
    session.click(session.number("shininess"));
    EXPECT_EQ(session.host.services().selectedField(), &session.material->shininess);
    EXPECT_TRUE(session.editorShown());
    EXPECT_FALSE(session.panel()->visibleRegion().isEmpty());
    EXPECT_TRUE(session.number("shininess")->hasFocus());
    EXPECT_EQ(session.stack().count(), 0);
}

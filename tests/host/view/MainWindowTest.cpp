// SPDX-License-Identifier: MIT
#include "window/MainWindow.h"
#include "panels/FieldListModel.h"
#include "panels/FieldListView.h"
#include "panels/SceneTreeModel.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "support/UserNotifier.h"
#include "theme/Theme.h"
#include "viewport/SceneView.h"

#include <support/Waiting.h>

#include <xsg/core/SoField.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <scopix/SpxCommand.h>

using namespace scopix;

namespace
{

QString shippedModel(const char* name)
{
    return QStringLiteral(SCOPIX_SOURCE_DIR "/data/models/") + QLatin1String(name);
}

class Window : public testing::Test
{
protected:
    Window()
    {
        notifier.setAttended(false);
        QObject::connect(&notifier, &UserNotifier::told, [this](const QString& text) { told << text; });
        QObject::connect(&window, &HostWindow::openFinished, [this](bool opened) { done << opened; });
        window.show();
    }
    bool open(const QString& path)
    {
        done.clear();
        window.openFile(path);
        EXPECT_TRUE(waitFor([this] { return !done.isEmpty(); }));
        EXPECT_EQ(done.size(), 1);
        return done.value(0);
    }
    QAction* action(const QString& start)
    {
        for (QAction* each : window.findChildren<QAction*>()) {
            if (each->text().remove('&').startsWith(start))
                return each;
        }
        return nullptr;
    }
    QTemporaryDir folder;
    UserNotifier notifier;
    HostServices services;
    MainWindow window{services, notifier};
    QStringList told;
    QList<bool> done;
};

TEST_F(Window, StartsWithTheShippedScene)
{
    ASSERT_TRUE(window.getScene());
    EXPECT_EQ(window.getTree().getModel().getRoot(), window.getScene());
    EXPECT_TRUE(window.selectField("Glass", "transparency"));
    EXPECT_TRUE(window.selectField("/Sky", "intensity"));
    EXPECT_EQ(services.selectedNode(), window.getScene()->asGroup()->getChild(1));
    EXPECT_FALSE(window.selectField("/Nowhere", "transparency"));
}

TEST_F(Window, OpensAModelAndSelectsAField)
{
    ASSERT_TRUE(open(shippedModel("lighthouse.glb")));
    EXPECT_TRUE(window.windowTitle().contains("lighthouse.glb"));
    ASSERT_TRUE(window.selectField("Glass", "opacity"));
    ASSERT_TRUE(services.selectedField());
    EXPECT_STREQ(services.selectedField()->getName().getString(), "opacity");
    auto* node = window.getTree().getModel().nodeAt(window.getTree().currentIndex());
    EXPECT_EQ(node, services.selectedNode());
    EXPECT_EQ(window.getFields().getModel().getContainer(), node);
    EXPECT_EQ(window.getFields().getModel().fieldAt(window.getFields().currentIndex()),
              services.selectedField());
}

TEST_F(Window, ATunedSceneCanBeSavedAndOpenedAgain)
{
    ASSERT_TRUE(open(shippedModel("crate.gltf")));
    ASSERT_TRUE(window.selectField("Planks", "opacity"));
    services.selectedField()->set("0.375");
    const QString path = folder.filePath("tuned.xsg");
    ASSERT_TRUE(window.getFiles().saveTo(path));
    ASSERT_TRUE(open(shippedModel("lighthouse.glb")));
    ASSERT_TRUE(open(path));
    ASSERT_TRUE(window.selectField("Planks", "opacity"));
    SbString text;
    services.selectedField()->get(text);
    EXPECT_EQ(text, "0.375");
    EXPECT_FALSE(window.getFiles().saveTo(folder.filePath("nowhere/tuned.xsg")));
    EXPECT_TRUE(told.last().contains("nowhere/tuned.xsg")) << qPrintable(told.last());
}

TEST_F(Window, ABadSceneFileKeepsTheOpenScene)
{
    SoNode* scene = window.getScene();
    QFile file(folder.filePath("bad.xsg"));
    file.open(QIODevice::WriteOnly);
    file.write("#Xsg V1.0 utf8\nSeparator {\n  oops\n");
    file.close();
    EXPECT_FALSE(open(file.fileName()));
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].contains(file.fileName())) << qPrintable(told[0]);
    EXPECT_EQ(window.getScene(), scene);
}

TEST_F(Window, SelectsByTypeTheFirstThatIsFound)
{
    ASSERT_TRUE(window.selectField("Material", "shininess"));
    EXPECT_STREQ(services.selectedNode()->getName().getString(), "Slate");
}

TEST_F(Window, ReportsWhatCannotBeSelected)
{
    EXPECT_FALSE(window.selectField("Nobody", "x"));
    EXPECT_TRUE(told.value(0).contains("Nobody")) << qPrintable(told.join('|'));
    EXPECT_FALSE(window.selectField("Glass", "colour"));
    EXPECT_TRUE(told.value(1).contains("colour") && told.value(1).contains("Glass"));
    EXPECT_EQ(notifier.errorCount(), 2);
}

TEST_F(Window, AFileThatCannotBeOpenedKeepsTheOpenScene)
{
    ASSERT_TRUE(open(shippedModel("crate.gltf")));
    SoNode* scene = window.getScene();
    ASSERT_TRUE(window.selectField("Planks", "opacity"));
    QFile text(folder.filePath("text.glb"));
    text.open(QIODevice::WriteOnly);
    text.write("This is no model.");
    text.close();
    for (const QString& path : {folder.filePath("none.glb"), folder.path(), text.fileName()}) {
        told.clear();
        EXPECT_FALSE(open(path));
        ASSERT_EQ(told.size(), 1);
        EXPECT_TRUE(told[0].contains(path)) << qPrintable(told[0]);
        EXPECT_TRUE(window.statusBar()->currentMessage().contains(path));
    }
    EXPECT_EQ(window.getScene(), scene);
    EXPECT_STREQ(services.selectedField()->getName().getString(), "opacity");
    EXPECT_EQ(notifier.errorCount(), 3);
}

TEST_F(Window, ASecondFileTakesTheFirstOnesPlace)
{
    window.openFile(shippedModel("lighthouse.glb"));
    window.openFile(shippedModel("crate.gltf"));
    ASSERT_TRUE(waitFor([this] { return done.contains(true); }));
    EXPECT_EQ(done, QList<bool>({false, true}));
    EXPECT_TRUE(window.windowTitle().contains("crate.gltf"));
}

TEST_F(Window, AClickInThePictureSelectsInTreeAndList)
{
    ASSERT_TRUE(open(shippedModel("crate.gltf")));
    QTest::mouseClick(&window.getView(), Qt::LeftButton, {}, window.getView().rect().center());
    ASSERT_TRUE(services.selectedNode());
    EXPECT_STRNE(services.selectedNode()->getName().getString(), ""); // a part; its shape comes next
    QTest::mouseClick(&window.getView(), Qt::LeftButton, {}, window.getView().rect().center());
    ASSERT_TRUE(services.selectedNode());
    EXPECT_STREQ(services.selectedNode()->getTypeId().getName().getString(), "IndexedTriangleSet");
    EXPECT_EQ(window.getTree().getModel().nodeAt(window.getTree().currentIndex()), services.selectedNode());
    EXPECT_EQ(window.getFields().getModel().getContainer(), services.selectedNode());
    QTest::mouseClick(&window.getView(), Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_EQ(services.selectedNode(), nullptr);
    EXPECT_EQ(window.getFields().getModel().rowCount(), 0);
}

TEST_F(Window, TheViewIsSteeredByMenuShortcutAndToolBar)
{
    auto* bar = window.findChild<QToolBar*>("mainToolBar");
    ASSERT_TRUE(bar);
    for (const char* text : {"View All", "View Selected", "Wireframe", "Statistics"}) {
        ASSERT_TRUE(action(text)) << text;
        EXPECT_TRUE(bar->actions().contains(action(text))) << text;
        EXPECT_FALSE(action(text)->shortcut().isEmpty()) << text;
    }
    ASSERT_TRUE(action("Home"));
    SceneView& view = window.getView();
    window.activateWindow();
    ASSERT_TRUE(waitForActive(&window));
    QTest::keyClick(&window, Qt::Key_F3);
    EXPECT_TRUE(view.isWireframe());
    QTest::mouseClick(bar->widgetForAction(action("Wireframe")), Qt::LeftButton);
    EXPECT_FALSE(view.isWireframe());
    auto* statistics = view.findChild<QLabel*>("statistics");
    QTest::keyClick(&window, Qt::Key_F4);
    EXPECT_TRUE(statistics->isVisible());
    QTest::mouseClick(bar->widgetForAction(action("Statistics")), Qt::LeftButton);
    EXPECT_FALSE(statistics->isVisible());

    const auto eye = [&] { return view.getCamera().position.getValue(); };
    const SbVec3f home = eye();
    ASSERT_TRUE(window.selectField("Sphere", "radius"));
    QTest::keyClick(&window, Qt::Key_Period, Qt::ControlModifier);
    const SbVec3f near = eye();
    EXPECT_NE(near, home);
    QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
    EXPECT_NE(eye(), near);
    QTest::keyClick(&view, Qt::Key_Left);
    EXPECT_NE(eye(), home);
    QTest::keyClick(&window, Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(eye(), home);
    QTest::mouseClick(bar->widgetForAction(action("View Selected")), Qt::LeftButton);
    EXPECT_NE(eye(), home);
}

TEST_F(Window, AClickOnAFieldSelectsIt)
{
    ASSERT_TRUE(window.selectField("Glass", "shininess"));
    auto* material = static_cast<SoMaterial*>(services.selectedNode());
    FieldListView& list = window.getFields();
    const QRect row = list.visualRect(list.getModel().indexOf(&material->transparency));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_EQ(services.selectedField(), &material->transparency);
}

class SetTransparency : public SpxCommand
{
public:
    explicit SetTransparency(SoMaterial* node)
        : m_node(node)
    {
    }
    void execute() override { redo(); }
    void undo() override { m_node->transparency.setValue(0); }
    void redo() override { m_node->transparency.setValue(1); }

private:
    SoMaterial* m_node;
};

TEST_F(Window, UndoAndRedoNameTheStep)
{
    ASSERT_TRUE(window.selectField("Leaf", "transparency"));
    auto* material = static_cast<SoMaterial*>(services.selectedNode());
    services.executeCommand(new SetTransparency(material));
    QAction* undo = action("Undo ");
    ASSERT_TRUE(undo);
    EXPECT_TRUE(undo->text().contains("transparency")) << qPrintable(undo->text());
    undo->trigger();
    EXPECT_EQ(material->transparency.getValue(), 0.0F);
    QAction* redo = action("Redo ");
    ASSERT_TRUE(redo);
    EXPECT_TRUE(redo->text().contains("transparency"));
    redo->trigger();
    EXPECT_EQ(material->transparency.getValue(), 1.0F);
    auto* history = window.findChild<QUndoView*>("history");
    ASSERT_TRUE(history);
    EXPECT_EQ(history->model()->rowCount(), 2);
}

TEST_F(Window, AnotherSceneClearsSelectionAndHistory)
{
    ASSERT_TRUE(window.selectField("Leaf", "transparency"));
    services.executeCommand(new SetTransparency(static_cast<SoMaterial*>(services.selectedNode())));
    ASSERT_TRUE(open(shippedModel("crate.gltf")));
    EXPECT_EQ(services.undoStack().count(), 0);
    EXPECT_EQ(services.selectedNode(), nullptr);
    EXPECT_EQ(services.selectedField(), nullptr);
}

TEST_F(Window, ScreenshotShowsTheWindowWithItsPicture)
{
    ASSERT_TRUE(open(shippedModel("crate.gltf")));
    const QString path = folder.filePath("shot.png");
    ASSERT_TRUE(window.saveScreenshot(path));
    const QImage shot(path);
    EXPECT_EQ(shot.size(), window.size());
    const QRect view(window.getView().mapTo(&window, QPoint()), window.getView().size());
    QSet<QRgb> colors;
    for (int y = view.top(); y < view.bottom(); y += 5) {
        for (int x = view.left(); x < view.right(); x += 5)
            colors.insert(shot.pixel(x, y));
    }
    EXPECT_GT(colors.size(), 50);
}

TEST_F(Window, ReportsAScreenshotThatCannotBeWritten)
{
    const QString path = folder.filePath("nowhere/shot.png");
    EXPECT_FALSE(window.saveScreenshot(path));
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].contains(path));
}

TEST_F(Window, ScreenshotReplacesNoFileOfAnotherKind)
{
    const QString scene = folder.filePath("scene.xsg");
    QFile file(scene);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("precious");
    file.close();
    const QString picture = folder.filePath("picture.png");
    QFile::copy(scene, picture);
    QFile::setPermissions(picture, QFile::ReadOwner);
    const QStringList paths{scene, picture, "/dev/full", folder.path()};
    for (const QString& path : paths)
        EXPECT_FALSE(window.saveScreenshot(path)) << qPrintable(path);
    ASSERT_EQ(told.size(), paths.size());
    for (int i = 0; i < paths.size(); ++i)
        EXPECT_TRUE(told[i].contains(paths[i])) << qPrintable(told[i]);
    for (const QString& path : {scene, picture}) {
        QFile kept(path);
        ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
        EXPECT_EQ(kept.readAll(), "precious") << qPrintable(path);
    }
}

TEST_F(Window, ScreenshotIsOfTheKindThatItsNameSays)
{
    const QString path = folder.filePath("shot.JPG");
    ASSERT_TRUE(window.saveScreenshot(path));
    EXPECT_EQ(QImageReader(path).format(), "jpeg");
}

TEST_F(Window, TheSceneMayChangeUnderTheSelection)
{
    ASSERT_TRUE(window.selectField("Glass", "transparency"));
    static_cast<SoSeparator*>(window.getScene())->removeAllChildren();
    SoSensorQueue::getInstance().process();
    EXPECT_EQ(services.selectedField(), nullptr);
    EXPECT_EQ(window.getFields().getModel().rowCount(), 0);
    EXPECT_FALSE(window.getTree().currentIndex().isValid());
}

TEST_F(Window, EveryActionOfTheToolBarHasAnIcon)
{
    for (const QToolBar* bar : window.findChildren<QToolBar*>()) {
        for (const QAction* action : bar->actions())
            EXPECT_EQ(action->icon().isNull(), action->isSeparator()) << qPrintable(action->text());
    }
}

TEST(Themes, AreReadableBoth)
{
    for (const Theme theme : {Theme::Dark, Theme::Light}) {
        const QPalette p = themePalette(theme);
        EXPECT_EQ(isDark(p), theme == Theme::Dark);
        for (const auto& [ground, text] : {std::make_pair(QPalette::Window, QPalette::WindowText),
                                           std::make_pair(QPalette::Base, QPalette::Text),
                                           std::make_pair(QPalette::Button, QPalette::ButtonText),
                                           std::make_pair(QPalette::Highlight, QPalette::HighlightedText)})
            EXPECT_GT(std::abs(p.color(ground).lightness() - p.color(text).lightness()), 90);
    }
    EXPECT_EQ(themeFromName("dark"), Theme::Dark);
    EXPECT_EQ(themeFromName("nonsense"), Theme::System);
}

} // namespace

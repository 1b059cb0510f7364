// SPDX-License-Identifier: MIT
// Windows beside the main one, each with a tree and a view: what they share, and what is their own.
#include "ViewPictures.h"

#include "acts/KeyBindings.h"
#include "handles/HandleTool.h"
#include "palette/CommandPalette.h"
#include "palette/PaletteModel.h"
#include "panels/FieldListView.h"
#include "panels/ScenePanel.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "structure/SceneStates.h"
#include "support/UserNotifier.h"
#include "window/FurtherWindows.h"
#include "window/MainWindow.h"
#include "window/PaletteActs.h"
#include "window/TreeAndView.h"

#include <support/RandomWalk.h>
#include <support/Waiting.h>

#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/cameras/SoCamera.h>

#include <QtWidgets>

#include <random>

namespace
{

const char* const Boxes = R"(Separator "boxes" {
    Separator "left" { Transform { translation: -3 0 0 } Cube "red" { } }
    Separator "right" { Transform { translation: 3 0 0 } Cube "blue" { } }
    Material "mark" { }
})";

SoRef<SoNode> sceneOf(const char* text)
{
    std::string error;
    SoRef<SoNode> scene =
        SoSceneFile::readText(std::string(SoSceneFile::FirstLine) + "\n" + text, "test", error);
    EXPECT_TRUE(scene) << error;
    return scene;
}

class Further : public testing::Test
{
protected:
    Further()
    {
        qputenv("XDG_CONFIG_HOME", m_home.path().toLocal8Bit());
        make();
    }
    ~Further() override
    {
        window.reset();
        qunsetenv("XDG_CONFIG_HOME");
    }
    // Attended: as a user starts the program.
    void make(bool isAttended = false)
    {
        window = std::make_unique<MainWindow>(services, notifier);
        notifier.setAttended(isAttended);
        services.setSceneSource(window.get());
        window->resize(1000, 640);
        window->show();
        EXPECT_TRUE(waitForActive(window.get()));
        window->setScene(sceneOf(Boxes).get(), QStringLiteral("Boxes"));
        settle();
    }
    static void settle()
    {
        for (int round = 0; round < 2; ++round) {
            SoSensorQueue::getInstance().process();
            QCoreApplication::processEvents();
        }
    }
    FurtherWindow& openAnother()
    {
        activate(*window);
        QTest::keyClick(&window->getView(), Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_FALSE(windows().isEmpty());
        FurtherWindow& made = *windows().last();
        EXPECT_TRUE(waitForActive(&made));
        settle();
        return made;
    }
    const QList<FurtherWindow*>& windows() { return window->getFurtherWindows().getAll(); }
    static void activate(QWidget& which)
    {
        which.activateWindow();
        EXPECT_TRUE(waitForActive(&which));
    }
    static SceneTreeView& treeOf(const FurtherWindow& further) { return further.getPane().getTree(); }
    static SceneView& viewOf(const FurtherWindow& further) { return further.getPane().getView(); }
    static SoNode* node(const char* name) { return dynamic_cast<SoNode*>(SoFieldContainer::getByName(name)); }
    static void click(SceneTreeView& tree, const char* name)
    {
        const QModelIndex row = tree.getModel().indexOf(node(name));
        ASSERT_TRUE(row.isValid()) << name;
        tree.scrollTo(row);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(row).center());
        settle();
    }
    static void key(QWidget& widget, int key, Qt::KeyboardModifiers keys = {})
    {
        activate(*widget.window());
        widget.setFocus();
        QTest::keyClick(&widget, static_cast<Qt::Key>(key), keys);
        settle();
    }
    static const SoNode* selectedIn(const SceneTreeView& tree) { return tree.getSelectedPath().getTail(); }
    std::string text() const { return SoSceneFile::writeText(window->getScene()); }
    QList<int> numbers()
    {
        QList<int> numbers;
        for (const FurtherWindow* each : windows())
            numbers << each->getNumber();
        return numbers;
    }
    // The program ends as it does when its window is closed, and is started again.
    void quitAndStart()
    {
        key(window->getView(), Qt::Key_Q, Qt::ControlModifier);
        EXPECT_TRUE(windows().isEmpty());
        window.reset();
        make(true);
    }

private:
    QTemporaryDir m_home;

protected:
    UserNotifier notifier;
    HostServices services;
    std::unique_ptr<MainWindow> window;
};

} // namespace

TEST_F(Further, OpenByAKeyAndShowTheSceneAsTheMainWindowDoes)
{
    window->getView().turn(0.1F, 0.2F);
    FurtherWindow& second = openAnother();
    EXPECT_EQ(treeOf(second).getModel().getRoot(), window->getScene());
    EXPECT_EQ(viewOf(second).getScene(), window->getScene());
    EXPECT_EQ(viewOf(second).getCamera().position.getValue(),
              window->getView().getCamera().position.getValue());
    EXPECT_GT(partOf(pictureOf(viewOf(second))).width(), 50);
    EXPECT_EQ(second.windowTitle(), QStringLiteral("Boxes[*] – 2"));
    EXPECT_TRUE(viewOf(second).hasFocus());
    EXPECT_EQ(openAnother().windowTitle(), QStringLiteral("Boxes[*] – 3"));
    ASSERT_EQ(windows().size(), 2);
    key(viewOf(second), Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_EQ(windows().size(), 1);
    EXPECT_EQ(openAnother().getNumber(), 2);
}

TEST_F(Further, SelectWhatIsSelectedEverywhere)
{
    FurtherWindow& second = openAnother();
    FurtherWindow& third = openAnother();
    click(treeOf(second), "left");
    for (const SceneTreeView* tree : {&window->getTree(), &treeOf(second), &treeOf(third)})
        EXPECT_EQ(selectedIn(*tree), node("left"));
    EXPECT_EQ(services.selectedNode(), node("left"));
    click(window->getTree(), "mark");
    EXPECT_GT(window->getFields().model()->rowCount(window->getFields().rootIndex()), 0);
    EXPECT_EQ(selectedIn(treeOf(second)), node("mark"));
    EXPECT_EQ(selectedIn(treeOf(third)), node("mark"));
    activate(second);
    QTest::mouseClick(&viewOf(second), Qt::LeftButton, {}, placeOf(viewOf(second), {3, 0, 1}));
    settle();
    EXPECT_EQ(services.selectedNode(), node("blue"));
    EXPECT_EQ(selectedIn(window->getTree()), node("blue"));
    EXPECT_EQ(selectedIn(treeOf(third)), node("blue"));
}

TEST_F(Further, HaveFoldsViewpointsAndLooksOfTheirOwn)
{
    FurtherWindow& second = openAnother();
    SceneTreeView& tree = treeOf(second);
    tree.expand(tree.getModel().indexOf(node("left")));
    EXPECT_FALSE(window->getTree().isExpanded(window->getTree().getModel().indexOf(node("left"))));
    const SbVec3f before = window->getView().getCamera().position.getValue();
    click(tree, "red");
    ASSERT_EQ(services.selectedNode(), node("red"));
    key(viewOf(second), Qt::Key_F);
    EXPECT_LT((viewOf(second).getCamera().getFocalPoint() - SbVec3f(-3, 0, 0)).length(), 0.5F);
    key(tree, Qt::Key_7);
    key(viewOf(second), Qt::Key_F3);
    EXPECT_TRUE(viewOf(second).isWireframe());
    EXPECT_FALSE(window->getView().isWireframe());
    EXPECT_EQ(window->getView().getCamera().position.getValue(), before);
    const SbVec3f there = viewOf(second).getCamera().position.getValue();
    key(window->getView(), Qt::Key_1);
    key(window->getTree(), Qt::Key_F3);
    EXPECT_TRUE(window->getView().isWireframe());
    EXPECT_NE(window->getView().getCamera().position.getValue(), before);
    EXPECT_EQ(viewOf(second).getCamera().position.getValue(), there);
}

TEST_F(Further, EditUndoAndRedoByTheSameKeys)
{
    FurtherWindow& second = openAnother();
    const std::string before = text();
    click(treeOf(second), "left");
    const SoFieldContainer* left = services.selectedNode();
    key(treeOf(second), Qt::Key_D, Qt::ControlModifier);
    EXPECT_NE(text(), before);
    ASSERT_NE(services.selectedNode(), left);
    EXPECT_EQ(selectedIn(treeOf(second)), services.selectedNode()); // what was made
    EXPECT_EQ(selectedIn(window->getTree()), services.selectedNode());
    key(viewOf(second), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), before);
    EXPECT_FALSE(second.isWindowModified());
    key(viewOf(second), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_NE(text(), before);
    EXPECT_TRUE(second.isWindowModified());
    click(treeOf(second), "mark");
    key(viewOf(second), Qt::Key_Delete);
    EXPECT_EQ(text().find("\"mark\""), std::string::npos);
    EXPECT_EQ(selectedIn(treeOf(second)), services.selectedNode());
    EXPECT_EQ(selectedIn(window->getTree()), services.selectedNode());
}

TEST_F(Further, AreRenamedInTheirOwnRow)
{
    FurtherWindow& second = openAnother();
    click(treeOf(second), "left");
    key(treeOf(second), Qt::Key_F2);
    auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(line);
    EXPECT_EQ(line->window(), &second);
    line->selectAll();
    QTest::keyClicks(line, "west");
    QTest::keyClick(line, Qt::Key_Return);
    settle();
    EXPECT_TRUE(node("west"));
}

TEST_F(Further, HideInAllViewsAndHaveTheSameKindOfHandles)
{
    FurtherWindow& second = openAnother();
    click(treeOf(second), "left");
    const QRect both = partOf(pictureOf(window->getView()));
    key(treeOf(second), Qt::Key_H);
    EXPECT_TRUE(window->getStates().isHidden(node("left")));
    EXPECT_LT(partOf(pictureOf(window->getView())).width(), both.width());
    key(viewOf(second), Qt::Key_H);
    key(viewOf(second), Qt::Key_W);
    EXPECT_EQ(second.getPane().getHandles().getMode(), HandleMode::Move);
    EXPECT_EQ(window->getHandles().getMode(), HandleMode::Move);
    const std::string before = text();
    for (const int each : {int(Qt::Key_X), int(Qt::Key_2), int(Qt::Key_Return)})
        key(viewOf(second), each);
    EXPECT_NE(text(), before);
    key(window->getView(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), before);
    key(window->getView(), Qt::Key_Q);
    EXPECT_EQ(second.getPane().getHandles().getMode(), HandleMode::Select);
}

TEST_F(Further, FindInTheirOwnTreeAndOfferTheirOwnActs)
{
    FurtherWindow& second = openAnother();
    key(viewOf(second), Qt::Key_F, Qt::ControlModifier);
    auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(line);
    EXPECT_TRUE(second.getPane().getPanel().isAncestorOf(line));
    QTest::keyClicks(line, "blue");
    EXPECT_TRUE(waitFor([&] { return treeOf(second).isMarked(node("blue")); }));
    EXPECT_FALSE(window->getTree().isMarked(node("blue")));
    key(viewOf(second), Qt::Key_K, Qt::ControlModifier);
    CommandPalette& palette = window->getPalette().getPalette();
    ASSERT_TRUE(palette.isVisible());
    QTest::keyClicks(&palette.getLine(), "Close This Window");
    EXPECT_GE(palette.getModel().rowCount(), 1);
    const QPointer<FurtherWindow> lives = &second;
    QTest::keyClick(&palette.getLine(), Qt::Key_Return);
    EXPECT_TRUE(waitFor([&] { return !lives; }));
}

TEST_F(Further, HaveTheKeysThatTheUserChose)
{
    KeyBindings keys(*window->menuBar());
    keys.restore();
    FurtherWindow& second = openAnother();
    keys.set(*window->getFurtherWindows().getAction(), QKeySequence(Qt::Key_F11));
    for (const MenuAct& act : keys.acts())
        if (act.text == "Wireframe")
            keys.set(*act.action, QKeySequence(Qt::Key_F12 | Qt::ALT));
    key(viewOf(second), Qt::Key_F12, Qt::AltModifier);
    EXPECT_TRUE(viewOf(second).isWireframe());
    EXPECT_FALSE(window->getView().isWireframe());
    key(viewOf(second), Qt::Key_F11);
    EXPECT_EQ(windows().size(), 2);
}

TEST_F(Further, ShowTheSceneInFrontAndKnowHowTheyLookedAtTheOthers)
{
    FurtherWindow& second = openAnother();
    key(viewOf(second), Qt::Key_7);
    treeOf(second).expand(treeOf(second).getModel().indexOf(node("left")));
    const SbVec3f fromAbove = viewOf(second).getCamera().position.getValue();
    OpenScenes& scenes = window->getFiles().getScenes();
    OpenScene& first = scenes.getFront();
    click(treeOf(second), "mark");
    key(viewOf(second), Qt::Key_D, Qt::ControlModifier); // a new tab beside what is untouched is none
    ASSERT_NE(&scenes.add(), &first);
    const SoRef<SoNode> cone = sceneOf("Separator { Cone { } }");
    window->setScene(cone.get(), QStringLiteral("Cone"));
    settle();
    EXPECT_EQ(viewOf(second).getScene(), cone.get());
    EXPECT_EQ(second.windowTitle(), QStringLiteral("Cone[*] – 2"));
    scenes.bringToFront(first);
    settle();
    EXPECT_EQ(viewOf(second).getScene(), window->getScene());
    EXPECT_EQ(viewOf(second).getCamera().position.getValue(), fromAbove);
    EXPECT_TRUE(treeOf(second).isExpanded(treeOf(second).getModel().indexOf(node("left"))));
    EXPECT_NE(window->getView().getCamera().position.getValue(), fromAbove);
}

TEST_F(Further, CloseWithTheMainWindowAndComeBackWhereTheyWere)
{
    FurtherWindow& second = openAnother();
    openAnother();
    second.setGeometry(130, 90, 700, 500);
    auto* splitter = second.findChild<QSplitter*>();
    splitter->setSizes({220, 480});
    settle();
    const QRect place = second.geometry();
    const QList<int> sizes = splitter->sizes();
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(windows().isEmpty());
    for (const QWidget* each : QApplication::topLevelWidgets())
        EXPECT_FALSE(each->inherits("scopix::FurtherWindow"));
    window.reset();
    make();
    FurtherWindow& again = openAnother();
    EXPECT_EQ(again.geometry(), place);
    EXPECT_EQ(again.findChild<QSplitter*>()->sizes(), sizes);
}

TEST_F(Further, OpenAgainAtTheNextStartButForThoseThatWereClosed)
{
    FurtherWindow& second = openAnother();
    FurtherWindow& third = openAnother();
    FurtherWindow& fourth = openAnother();
    second.setGeometry(130, 90, 700, 500);
    second.findChild<QSplitter*>()->setSizes({220, 480});
    fourth.setGeometry(40, 30, 800, 600);
    settle();
    const QList<int> sizes = second.findChild<QSplitter*>()->sizes();
    key(viewOf(fourth), Qt::Key_T, Qt::ControlModifier);
    key(viewOf(fourth), Qt::Key_2);
    EXPECT_TRUE(treeOf(fourth).isColumnShown(SceneTreeModel::TrianglesColumn));
    treeOf(second).header()->resizeSection(SceneTreeModel::NameColumn, 100);
    key(viewOf(third), Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier);
    quitAndStart();
    ASSERT_EQ(numbers(), (QList<int>{2, 4}));
    EXPECT_TRUE(waitForActive(window.get()));
    EXPECT_EQ(windows()[0]->geometry(), QRect(130, 90, 700, 500));
    EXPECT_EQ(windows()[0]->findChild<QSplitter*>()->sizes(), sizes);
    EXPECT_EQ(treeOf(*windows()[0]).columnWidth(SceneTreeModel::NameColumn), 100);
    EXPECT_EQ(windows()[1]->geometry(), QRect(40, 30, 800, 600));
    EXPECT_EQ(treeOf(*windows()[1]).getModel().getRoot(), window->getScene());
    EXPECT_TRUE(treeOf(*windows()[1]).isColumnShown(SceneTreeModel::TrianglesColumn));
    EXPECT_FALSE(treeOf(*windows()[0]).isColumnShown(SceneTreeModel::TrianglesColumn));
    EXPECT_FALSE(window->getTree().isColumnShown(SceneTreeModel::TrianglesColumn));
    for (const QList<int>& left : {QList<int>{4}, QList<int>{}}) {
        key(viewOf(*windows().first()), Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier);
        quitAndStart();
        EXPECT_EQ(numbers(), left);
    }
}

TEST_F(Further, OpenAgainWhereTheProgramEndedOtherwise)
{
    FurtherWindow& second = openAnother();
    second.setGeometry(130, 90, 700, 500);
    settle();
    window.reset();
    make(true);
    ASSERT_EQ(numbers(), QList<int>{2});
    EXPECT_EQ(windows().first()->geometry(), QRect(130, 90, 700, 500));
    window.reset();
    make();
    EXPECT_EQ(numbers(), QList<int>()) << "nobody is there to see them";
}

TEST_F(Further, OpenAgainWithAWindowThatIsShownAgain)
{
    openAnother();
    notifier.setAttended(true);
    window->close();
    settle();
    EXPECT_TRUE(windows().isEmpty());
    window->show();
    EXPECT_TRUE(waitForActive(window.get()));
    settle();
    EXPECT_EQ(numbers(), QList<int>{2});
    window->hide(); // by the application around it
    window->show();
    settle();
    EXPECT_EQ(numbers(), QList<int>{2});
}

TEST_F(Further, CostNothingWhenTheyAreClosed)
{
    FurtherWindow& second = openAnother();
    const QPointer<SceneView> view = &viewOf(second);
    second.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(view);
    click(window->getTree(), "left");
    key(window->getTree(), Qt::Key_D, Qt::ControlModifier);
    key(window->getTree(), Qt::Key_Z, Qt::ControlModifier);
    window->setScene(sceneOf("Separator { Cone { } }").get(), QStringLiteral("Cone"));
    settle();
    EXPECT_EQ(window->getTree().getModel().getRoot(), window->getScene());
}

// By keys and clicks in either window; then all is undone.
TEST_F(Further, AgreeWhateverIsDoneInThem)
{
    FurtherWindow& second = openAnother();
    std::mt19937 random(static_cast<unsigned>(fromEnvironment("SCOPIX_WALK_SEED", 5)));
    const auto below = [&random](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
    const std::string before = text();
    const std::pair<int, Qt::KeyboardModifiers> keys[] = {
        {Qt::Key_D, Qt::ControlModifier},
        {Qt::Key_G, Qt::ControlModifier},
        {Qt::Key_Delete, {}},
        {Qt::Key_Z, Qt::ControlModifier},
        {Qt::Key_H, {}},
        {Qt::Key_Up, Qt::AltModifier},
        {Qt::Key_Left, Qt::AltModifier},
        {Qt::Key_Asterisk, {}},
        {Qt::Key_F, {}},
        {Qt::Key_X, Qt::ControlModifier},
        {Qt::Key_V, Qt::ControlModifier},
        {Qt::Key_Minus, {}},
        {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier}};
    for (int step = 0; step < fromEnvironment("SCOPIX_WALK_STEPS", 60); ++step) {
        SceneTreeView& tree = below(2) ? window->getTree() : treeOf(second);
        if (below(2)) {
            QModelIndex row = tree.getModel().index(0, 0);
            for (int down = below(12); down > 0 && tree.indexBelow(row).isValid(); --down)
                row = tree.indexBelow(row);
            tree.scrollTo(row);
            QTest::mouseClick(tree.viewport(), Qt::LeftButton,
                              below(3) ? Qt::NoModifier : Qt::ControlModifier, tree.visualRect(row).center());
            settle();
        } else {
            const auto& [code, held] = keys[below(int(std::size(keys)))];
            key(tree, code, held);
        }
        QSet<QString> inMain;
        for (const SoPath& path : window->getTree().getSelectedPaths())
            inMain << QString::number(path.getTail()->getNodeId());
        QSet<QString> inSecond;
        for (const SoPath& path : treeOf(second).getSelectedPaths())
            inSecond << QString::number(path.getTail()->getNodeId());
        ASSERT_EQ(inMain, inSecond) << "step " << step;
        QSet<QString> all;
        for (const SoFieldContainer* each : services.getSelectedNodes())
            all << QString::number(static_cast<const SoNode*>(each)->getNodeId());
        ASSERT_EQ(inMain, all) << "step " << step;
    }
    while (services.undoStack().canUndo())
        key(viewOf(second), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), before);
    QGuiApplication::clipboard()->clear();
}

// The pictures of the documentation come from here: SCOPIX_PICTURES names the folder that they go to.
TEST_F(Further, ArePictured)
{
    bool isOpen = false;
    const auto opened =
        QObject::connect(window.get(), &HostWindow::openFinished, [&](bool is) { isOpen = is; });
    window->openFile(QStringLiteral(SCOPIX_SOURCE_DIR "/data/models/lighthouse.glb"));
    EXPECT_TRUE(waitFor([&] { return isOpen; }));
    QObject::disconnect(opened);
    FurtherWindow& second = openAnother();
    second.resize(760, 480);
    treeOf(second).setFocus();
    click(treeOf(second), "Glass");
    key(viewOf(second), Qt::Key_3);
    window->statusBar()->clearMessage(); // says where the file lies
    pictureOf(window->getView());
    pictureOf(viewOf(second));
    const QImage first = window->grab().toImage();
    const QImage beside = second.grab().toImage();
    QImage both(first.width() + 160, first.height() + 60, QImage::Format_RGB32);
    both.fill(Qt::white);
    QPainter painter(&both);
    painter.drawImage(0, 0, first);
    const QPoint corner(both.width() - beside.width(), both.height() - beside.height());
    painter.fillRect(QRect(corner, beside.size()).adjusted(-3, -3, 0, 0), Qt::white);
    painter.drawImage(corner, beside);
    painter.end();
    const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
    EXPECT_TRUE(folder.isEmpty() || both.save(folder + QStringLiteral("/windows.png")));
}

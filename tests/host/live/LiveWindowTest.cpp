// SPDX-License-Identifier: MIT
// The window with a running program, used as a person does.
#include "LiveWindowFixture.h"

#include "language/Languages.h"
#include "live/LivePicture.h"
#include "live/LiveReplay.h"
#include "live/LiveScene.h"
#include "panels/FieldListModel.h"
#include "panels/FieldListView.h"
#include "panels/SceneFinder.h"
#include "panels/ScenePanel.h"
#include "panels/SceneTreeModel.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "support/UserNotifier.h"
#include "viewport/SceneView.h"
#include "window/AttachDialog.h"
#include "window/FurtherWindows.h"
#include "window/LiveActs.h"
#include "window/MainWindow.h"
#include "window/SceneTabs.h"
#include "window/TreeAndView.h"

#include <support/Waiting.h>

#include <xsg/counters/SoPerfCounterManager.h>
#include <xsg/fields/SoMFString.h>
#include <xsg/fields/SoSFBitMask.h>
#include <xsg/fields/SoSFBool.h>
#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFDouble.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/fields/SoSFMatrix.h>
#include <xsg/fields/SoSFString.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <QLabel>
#include <QSignalSpy>

using namespace scopix;

namespace
{

TEST_F(LiveWindow, ShowsNodesAsTheyAreUnfolded)
{
    attach();
    EXPECT_TRUE(window.windowTitle().startsWith("orrery")) << window.windowTitle().toStdString();
    ASSERT_TRUE(wait([&] { return row("sky").isValid(); }));
    EXPECT_EQ(program.scene.childQuestions, 0);
    EXPECT_TRUE(model().hasChildren(row("sky")));
    ASSERT_TRUE(unfold("sky"));
    EXPECT_EQ(model().rowCount(row("sky")), 2);
    EXPECT_EQ(model().data(row("mars").siblingAtColumn(SceneTreeModel::TypeColumn)).toString(), "Planet");
    EXPECT_FALSE(SoFieldContainer::getByName("luna"));
    EXPECT_EQ(program.scene.valueQuestions, 0);
}

TEST_F(LiveWindow, HasFurtherWindowsThatSayWhereThePictureIs)
{
    FurtherWindow& further = window.getFurtherWindows().open();
    auto* note = further.findChild<QLabel*>("elsewhereNote");
    ASSERT_TRUE(note);
    EXPECT_FALSE(note->isVisible());
    program.scene.property(2, "radius", number(1));
    attach();
    EXPECT_TRUE(wait([&] { return note->isVisible(); }));
    EXPECT_TRUE(further.getPane().getView().rect().contains(note->geometry()));
    SceneTreeView& tree = further.getPane().getTree();
    ASSERT_TRUE(unfold("sky"));
    const LiveNode* earth = select("earth");
    ASSERT_TRUE(earth);
    EXPECT_TRUE(wait([&] { return tree.getSelectedPath().getTail() == earth; }));
    further.close();
    EXPECT_TRUE(wait([&] { return window.getFurtherWindows().getAll().isEmpty(); }));
}

TEST_F(LiveWindow, FollowsChildrenThatComeAndGo)
{
    attach();
    ASSERT_TRUE(unfold("sky"));
    program.scene.put(1, 5, "Comet", "halley");
    program.scene.changes.children.push_back(1);
    EXPECT_TRUE(wait([&] { return row("halley").isValid(); }));
    program.scene.nodes[1].children = {5};
    program.scene.changes.children.push_back(1);
    EXPECT_TRUE(wait([&] { return !row("mars").isValid(); }));
    EXPECT_TRUE(row("halley").isValid());
}

TEST_F(LiveWindow, TakesAnEditToTheProgramAndItsUndoToo)
{
    attach();
    ASSERT_TRUE(unfold("sky"));
    LiveNode* mars = select("mars");
    ASSERT_TRUE(mars);
    auto& shown = field<SoSFDouble>(*mars, "radius");
    EXPECT_EQ(shown.getValue(), 3.5);
    EXPECT_TRUE(shown.isDefault());
    edit(shown, [&] { shown.setValue(7.25); });
    EXPECT_TRUE(wait([&] { return radius() == 7.25; }));
    EXPECT_EQ(services.undoStack().count(), 1);
    EXPECT_FALSE(shown.isDefault());
    services.undoStack().undo();
    EXPECT_TRUE(wait([&] { return radius() == 3.5; }));
    services.undoStack().redo();
    EXPECT_TRUE(wait([&] { return radius() == 7.25; }));
}

TEST_F(LiveWindow, CountsWhatTheProgramMadeOfAnEditAsPartOfIt)
{
    attach();
    ASSERT_TRUE(unfold("sky"));
    LiveNode* mars = select("mars");
    ASSERT_TRUE(mars);
    auto& shown = field<SoSFDouble>(*mars, "radius");
    edit(shown, [&] { shown.setValue(70); });
    ASSERT_TRUE(wait([&] { return shown.getValue() == 10; }));
    EXPECT_EQ(radius(), 10);
    EXPECT_EQ(services.undoStack().count(), 1);
    EXPECT_TRUE(services.undoStack().undoText().contains("10"))
        << services.undoStack().undoText().toStdString();
    EXPECT_FALSE(mars->remarkOn(shown).isEmpty());
    EXPECT_TRUE(told.last().contains("radius")) << told.last().toStdString();
    services.undoStack().undo();
    EXPECT_TRUE(wait([&] { return radius() == 3.5; }));
    services.undoStack().redo();
    EXPECT_TRUE(wait([&] { return radius() == 10; }));
    EXPECT_TRUE(wait([&] { return mars->remarkOn(shown).isEmpty(); }));
}

TEST_F(LiveWindow, PutsBackWhatTheProgramRefuses)
{
    program.scene.refused.insert("radius");
    attach();
    ASSERT_TRUE(unfold("sky"));
    LiveNode* mars = select("mars");
    ASSERT_TRUE(mars);
    auto& shown = field<SoSFDouble>(*mars, "radius");
    edit(shown, [&] { shown.setValue(4); });
    ASSERT_TRUE(wait([&] { return shown.getValue() == 3.5; }));
    EXPECT_TRUE(wait([&] { return services.undoStack().count() == 0; }));
    EXPECT_TRUE(told.last().contains("It is not to its liking.")) << told.last().toStdString();
}

TEST_F(LiveWindow, SaysInTheUsersLanguageWhyTheProgramRefuses)
{
    Languages::begin();
    const std::unique_ptr<Languages> language(Languages::instance());
    language->speak("de");
    program.scene.refused.insert("radius");
    program.scene.refusal = "“radius” cannot be set: it can only be read.";
    attach();
    ASSERT_TRUE(unfold("sky"));
    LiveNode* mars = select("mars");
    ASSERT_TRUE(mars);
    auto& shown = field<SoSFDouble>(*mars, "radius");
    edit(shown, [&] { shown.setValue(4); });
    EXPECT_TRUE(wait([&] { return services.undoStack().count() == 0; }));
    EXPECT_TRUE(told.last().endsWith("„radius“ lässt sich nicht setzen: Es lässt sich nur lesen."))
        << told.last().toStdString();
    const LiveScene* scene = window.getLive().getScene();
    program.kill();
    ASSERT_TRUE(wait([&] { return scene->getState() == LiveScene::State::Ended; }));
    EXPECT_EQ(scene->getEnd(), "Das Programm „orrery“ hat seine Verbindung beendet.");
}

TEST_F(LiveWindow, ShowsWhatTheProgramChangesAndRecordsNoEdit)
{
    attach();
    ASSERT_TRUE(unfold("sky"));
    LiveNode* mars = select("mars");
    ASSERT_TRUE(mars);
    auto& shown = field<SoSFDouble>(*mars, "radius");
    program.scene.change(3, "radius", number(5));
    EXPECT_TRUE(wait([&] { return shown.getValue() == 5; }));
    EXPECT_EQ(services.undoStack().count(), 0);
}

TEST_F(LiveWindow, StaysReadableAndRefusesEditsWhenTheProgramIsGone)
{
    attach();
    ASSERT_TRUE(unfold("sky"));
    LiveNode* mars = select("mars");
    ASSERT_TRUE(mars);
    auto& shown = field<SoSFDouble>(*mars, "radius");
    edit(shown, [&] { shown.setValue(8); });
    ASSERT_TRUE(wait([&] { return radius() == 8; }));
    program.kill();
    LiveScene* scene = window.getLive().getScene();
    ASSERT_TRUE(wait([&] { return scene->getState() == LiveScene::State::Ended; }));
    EXPECT_TRUE(row("mars").isValid());
    EXPECT_TRUE(model().data(row("mars"), Qt::ForegroundRole).isValid());
    const QString last = told.last();
    EXPECT_TRUE(last.contains("1 change.")) << last.toStdString();
    edit(shown, [&] { shown.setValue(2); });
    EXPECT_TRUE(wait([&] { return shown.getValue() == 8; }));
    EXPECT_EQ(services.undoStack().count(), 1);
    EXPECT_TRUE(told.last().contains("mars")) << told.last().toStdString();
    services.undoStack().undo();
    EXPECT_TRUE(wait([&] { return shown.getValue() == 8; }));
}

TEST_F(LiveWindow, MarksTheSelectionInTheProgramAndTakesTheMarkAlong)
{
    attach();
    ASSERT_TRUE(unfold("sky"));
    ASSERT_TRUE(select("mars"));
    ASSERT_TRUE(wait([&] { return !program.scene.marked.empty() && program.scene.marked.back() == 3; }));
    window.getLive().detach();
    EXPECT_TRUE(wait([&] { return program.scene.marked.back() == 0; }));
}

TEST_F(LiveWindow, SelectsWhatIsClickedInThePicture)
{
    program.scene.hit = {1, 2, 4};
    attach();
    LivePicture& picture = window.getLive().getPicture();
    ASSERT_TRUE(wait([&] { return picture.hasPicture(); }));
    const QRectF area = picture.pictureArea();
    QTest::mouseClick(&picture, Qt::LeftButton, {},
                      (area.topLeft() + QPointF(area.width() / 4, 10)).toPoint());
    ASSERT_TRUE(
        wait([&] { return services.selectedNode() && services.selectedNode()->getName() == "luna"; }));
    QTest::mouseClick(&picture, Qt::LeftButton, {},
                      (area.topLeft() + QPointF(area.width() * 0.75, 10)).toPoint());
    EXPECT_TRUE(wait([&] { return !services.selectedNode(); }));
}

TEST_F(LiveWindow, AsksForPicturesOnlyWhileTheyAreSeen)
{
    attach();
    ASSERT_TRUE(wait([&] { return program.scene.pictureWidth > 0; }));
    window.hide();
    program.scene.pictureWidth = 1;
    EXPECT_TRUE(wait([&] { return !window.getLive().getPicture().isVisible(); }));
}

TEST_F(LiveWindow, ShowsTheProgramsCountersAmongTheOthers)
{
    attach();
    const auto counter = [] {
        return SoPerfCounterManager::getInstance()->getCounter("orrery: Cull time (ms)");
    };
    ASSERT_TRUE(counter());
    EXPECT_TRUE(wait([&] { return counter()->getValue() == 2.5; }));
}

TEST_F(LiveWindow, MovesNodesInTheProgram)
{
    attach();
    ASSERT_TRUE(unfold("sky"));
    ASSERT_TRUE(select("mars"));
    QTest::keyClick(&window.getTree(), Qt::Key_Delete);
    ASSERT_TRUE(wait([&] { return program.scene.nodes[1].children == std::vector<NodeId>{2}; }));
    services.undoStack().undo();
    EXPECT_TRUE(wait([&] { return program.scene.nodes[1].children == std::vector<NodeId>{2, 3}; }));
    EXPECT_TRUE(row("mars").isValid());
}

TEST_F(LiveWindow, BringsNodesBackThatTheProgramKeeps)
{
    program.scene.refused.insert("children");
    attach();
    ASSERT_TRUE(unfold("sky"));
    ASSERT_TRUE(select("mars"));
    QTest::keyClick(&window.getTree(), Qt::Key_Delete);
    ASSERT_TRUE(wait([&] { return told.last().contains("It keeps its children."); }));
    EXPECT_TRUE(wait([&] { return row("mars").isValid(); }));
    EXPECT_EQ(model().rowCount(row("sky")), 2);
    EXPECT_FALSE(services.undoStack().canUndo());
}

TEST_F(LiveWindow, RefusesMovesWhereTheProgramOffersNone)
{
    program.scene.offers.structure = false;
    program.start();
    attach();
    ASSERT_TRUE(unfold("sky"));
    ASSERT_TRUE(select("mars"));
    QTest::keyClick(&window.getTree(), Qt::Key_Delete);
    settle();
    EXPECT_TRUE(row("mars").isValid());
    EXPECT_TRUE(told.last().contains("does not offer that")) << told.last().toStdString();
}

TEST_F(LiveWindow, TakesChangesBackWhenAsked)
{
    attach();
    ASSERT_TRUE(unfold("sky"));
    LiveNode* mars = select("mars");
    auto& shown = field<SoSFDouble>(*mars, "radius");
    edit(shown, [&] { shown.setValue(6); });
    ASSERT_TRUE(wait([&] { return radius() == 6; }));
    const LiveChanges& changes = window.getLive().getScene()->getEdits().getChanges();
    ASSERT_TRUE(wait([&] { return changes.getAll().size() == 1; }));
    window.getLive().takeBack();
    EXPECT_TRUE(wait([&] { return radius() == 3.5; }));
    EXPECT_TRUE(wait([&] { return window.getLive().getScene()->getEdits().getChanges().isEmpty(); }));
    services.undoStack().undo();
    EXPECT_TRUE(wait([&] { return radius() == 6; }));
}

TEST_F(LiveWindow, AppliesTheChangesOfTheLastRunToTheNextOne)
{
    attach();
    ASSERT_TRUE(unfold("sky"));
    LiveNode* mars = select("mars");
    auto& shown = field<SoSFDouble>(*mars, "radius");
    edit(shown, [&] { shown.setValue(9); });
    ASSERT_TRUE(wait([&] { return !window.getLive().getScene()->getEdits().getChanges().isEmpty(); }));
    const LiveChanges& changes = window.getLive().getScene()->getEdits().getChanges();
    EXPECT_NE(changes.toText().find("radius 9"), std::string::npos) << changes.toText();
    // In the next run another planet stands before it, and one place is gone.
    auto all = changes.getAll();
    all.push_back(all.front());
    all.back().way.back().name = "pluto";
    program.start();
    program.scene.change(3, "radius", number(3.5));
    program.scene.put(1, 6, "Planet", "venus");
    program.scene.nodes[1].children = {6, 2, 3};
    attach();
    auto* replay = new LiveReplay(*window.getLive().getScene(), services, all, LiveReplay::Which::After);
    int written = -1;
    QStringList missing;
    QObject::connect(replay, &LiveReplay::finished, [&](int count, const QStringList& paths) {
        written = count;
        missing = paths;
    });
    replay->start();
    EXPECT_TRUE(wait([&] { return radius() == 9; }));
    EXPECT_EQ(written, 1);
    EXPECT_EQ(missing.size(), 1);
    EXPECT_EQ(services.undoStack().count(), 1);
    services.undoStack().undo();
    EXPECT_TRUE(wait([&] { return radius() == 3.5; }));
}

TEST_F(LiveWindow, FindsInTheProgramAndUnfoldsWhatWasFound)
{
    attach();
    window.findInScene("luna");
    SceneFinder& finder = window.getScenePanel().getFinder();
    ASSERT_TRUE(wait([&] { return finder.isFinished() && finder.getFound().size() == 1; }));
    EXPECT_TRUE(row("luna").isValid());
    window.findInScene("nowhere");
    EXPECT_TRUE(wait([&] { return finder.isFinished() && finder.getFound().empty(); }));
}

TEST_F(LiveWindow, ShowsObjectsThatPropertiesReferToAsChildren)
{
    program.scene.nodes[7].info = {7, "Ring", "ring", 0, 1, false};
    program.scene.property(7, "dust", number(0.25));
    program.scene.property(2, "ring", live::packed(ValueKind::Object, NodeId(7)));
    attach();
    ASSERT_TRUE(unfold("sky"));
    ASSERT_TRUE(unfold("earth"));
    ASSERT_TRUE(wait([&] { return model().rowCount(row("earth")) == 2; }));
    EXPECT_EQ(row("ring").row(), 0);
    EXPECT_TRUE(select("ring"));
}

TEST_F(LiveWindow, CallsTypesAsTheProgramDoesEvenWhereOursAreCalledSo)
{
    program.scene.put(1, 8, "Sphere", "ball");
    attach();
    ASSERT_TRUE(unfold("sky"));
    const QModelIndex ball = row("ball");
    EXPECT_EQ(model().data(ball.siblingAtColumn(SceneTreeModel::TypeColumn)).toString(), "Sphere");
    EXPECT_FALSE(model().nodeAt(ball)->getTypeId().isDerivedFrom(SoType::fromName("Shape")));
}

TEST_F(LiveWindow, StandsScenesThatCannotBe)
{
    TestScene& scene = program.scene;
    scene.nodes[4].children = {1, 4};                   // above itself, and within itself
    scene.put(1, 9, "Ty\npe \"x\"", "na\"me\nof\t it"); // no word
    scene.property(3, "radius", number(1));             // twice
    scene.property(3, "a \"b\"\nc", number(2));
    scene.property(3, "gone", number(3));
    scene.nodes[3].values.erase("gone"); // listed, and not there
    scene.property(3, "other", number(4));
    scene.nodes[3].values["other"] = live::packedText("no number");
    scene.property(3, "self", live::packed(ValueKind::Object, NodeId(1)));
    scene.property(3, "nobody", live::packed(ValueKind::Object, NodeId(12345)));
    const std::uint32_t huge[3] = {0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF};
    scene.property(3, "picture", live::packed(ValueKind::Image, huge));
    scene.nodes[5].info.childCount = 0xFFFFFFFF;
    attach();
    ASSERT_TRUE(unfold("sky"));
    ASSERT_TRUE(unfold("earth"));
    const QPersistentModelIndex luna = row("luna");
    window.getTree().expand(luna); // there is another one in it
    EXPECT_TRUE(wait([&] { return model().rowCount(luna) == 2; }));
    LiveNode* mars = select("mars");
    ASSERT_TRUE(mars);
    EXPECT_TRUE(mars->getField("a \"b\" c"));
    EXPECT_FALSE(mars->remarkOn(*mars->getField("gone")).isEmpty());
    EXPECT_FALSE(mars->remarkOn(*mars->getField("other")).isEmpty());
    auto& shown = field<SoSFDouble>(*mars, "radius");
    edit(shown, [&] { shown.setValue(9); });
    EXPECT_TRUE(wait([&] { return radius() == 9; }));
}

TEST_F(LiveWindow, ShowsTheFirstOfManyChildrenAtOnce)
{
    TestScene& scene = program.scene;
    scene.put(0, 10, "Belt", "belt");
    for (NodeId id = 1000; id < 101'000; ++id)
        scene.put(10, id, "Stone");
    attach();
    EXPECT_LT(window.getLive().getScene()->getNodeCount(), 10U);
    ASSERT_TRUE(wait([&] { return row("belt").isValid(); }));
    window.getTree().expand(row("belt"));
    EXPECT_TRUE(wait([&] { return model().rowCount(row("belt")) > 0; }));
    EXPECT_LT(model().rowCount(row("belt")), 100'000);
    window.getLive().detach(); // and the rest does not come
    settle();
    const auto count = model().rowCount(row("belt"));
    settle();
    EXPECT_EQ(model().rowCount(row("belt")), count);
}

TEST_F(LiveWindow, SaysThatTheProgramDoesNotAnswer)
{
    attach();
    ASSERT_TRUE(unfold("sky"));
    LiveNode* mars = select("mars");
    ASSERT_TRUE(mars);
    LiveScene& scene = *window.getLive().getScene();
    scene.setSilent(true);
    EXPECT_TRUE(told.last().contains("has not answered")) << told.last().toStdString();
    auto& shown = field<SoSFDouble>(*mars, "radius");
    edit(shown, [&] { shown.setValue(9); });
    settle();
    EXPECT_EQ(shown.getValue(), 3.5);
    EXPECT_EQ(radius(), 3.5);
    scene.setSilent(false);
    edit(shown, [&] { shown.setValue(9); });
    EXPECT_TRUE(wait([&] { return radius() == 9; }));
}

TEST_F(LiveWindow, NoticesAProgramThatHangsAndOneThatGoesOn)
{
    attach();
    const LiveScene& scene = *window.getLive().getScene();
    program.frames.stop();
    EXPECT_TRUE(waitFor([&] { return scene.getState() == LiveScene::State::Silent; }));
    program.frames.start(0);
    EXPECT_TRUE(waitFor([&] { return scene.getState() == LiveScene::State::Attached; }));
}

TEST_F(LiveWindow, AttachesToWhatIsChosenFromTheListWithPictures)
{
    QTimer::singleShot(0, [this] {
        auto* dialog = window.findChild<AttachDialog*>();
        auto* list = dialog->findChild<QListWidget*>("livePrograms");
        ASSERT_EQ(list->count(), 1);
        EXPECT_TRUE(list->item(0)->text().startsWith("orrery")) << list->item(0)->text().toStdString();
        const auto isPainted = [list] {
            const QImage icon = list->item(0)->icon().pixmap(list->iconSize()).toImage();
            return icon.pixelColor(icon.rect().center()).alpha() > 0;
        };
        EXPECT_TRUE(waitFor(isPainted));
        QTest::keyClick(list, Qt::Key_Return);
    });
    window.getLive().askForProgram();
    ASSERT_TRUE(waitFor([this] { return !done.isEmpty(); }));
    EXPECT_TRUE(done.first());
    EXPECT_NE(window.getLive().getScene(), nullptr);
}

TEST_F(LiveWindow, SaysWhyItCannotAttach)
{
    window.openLive({{}, QStringLiteral("nothing of this name"), {}});
    ASSERT_TRUE(waitFor([this] { return !done.isEmpty(); }));
    EXPECT_FALSE(done.first());
    EXPECT_TRUE(told.last().contains("nothing of this name"));
    EXPECT_EQ(window.getLive().getScene(), nullptr);
}

TEST_F(LiveWindow, LetsGoOfTheProgramWhenAnotherSceneIsOpened)
{
    attach();
    ASSERT_TRUE(program.server->isAttached());
    window.getFiles().newScene();
    EXPECT_TRUE(wait([&] { return !program.server->isAttached(); }));
    EXPECT_EQ(window.getLive().getScene(), nullptr);
    EXPECT_FALSE(window.getLive().getPicture().isVisible());
}

TEST_F(LiveWindow, StandsBesideWhatIsOpen)
{
    window.getFiles().openInTab(QStringLiteral(SCOPIX_SOURCE_DIR "/data/scenes/showcase.xsg"));
    ASSERT_TRUE(wait([this] { return !done.isEmpty(); }));
    SoNode* scene = window.getScene();
    attach();
    ASSERT_EQ(window.getTabs().count(), 2);
    LiveScene* live = window.getLive().getScene();
    ASSERT_TRUE(live);
    EXPECT_TRUE(wait([this] { return program.scene.pictureWidth > 0; }));
    QTest::mouseClick(&window.getTabs(), Qt::LeftButton, {}, window.getTabs().tabRect(0).center());
    EXPECT_EQ(window.getScene(), scene);
    EXPECT_FALSE(window.getLive().getScene());
    EXPECT_FALSE(window.getLive().getPicture().isVisible());
    int answers = 0;
    for (int asked = 1; asked <= 20; ++asked) {
        live->getLink().node(0, [&answers](const std::optional<live::NodeInfo>&) { ++answers; });
        ASSERT_TRUE(wait([&] { return answers == asked; }));
        program.scene.pictureWidth = asked < 5 ? 0 : program.scene.pictureWidth;
    }
    EXPECT_EQ(program.scene.pictureWidth, 0U) << "what is hidden costs nothing";
    QTest::mouseClick(&window.getTabs(), Qt::LeftButton, {}, window.getTabs().tabRect(1).center());
    EXPECT_EQ(window.getLive().getScene(), live);
    EXPECT_TRUE(window.getLive().getPicture().isVisible());
    EXPECT_TRUE(unfold("sky"));
    window.getFiles().closeScene(window.getFiles().getScenes().getFront());
    settle();
    EXPECT_EQ(window.getScene(), scene);
    EXPECT_FALSE(window.getLive().getScene());
}

TEST_F(LiveWindow, AnswersComeToTheStepsOfTheirOwnProgram)
{
    window.getFiles().openInTab(QStringLiteral(SCOPIX_SOURCE_DIR "/data/scenes/showcase.xsg"));
    ASSERT_TRUE(wait([this] { return !done.isEmpty(); }));
    window.getTree().selectNode(window.getScene()->asGroup()->getChild(0));
    QTest::keyClick(&window.getTree(), Qt::Key_Delete);
    ASSERT_EQ(services.undoStack().index(), 1);
    program.scene.refused.insert("children");
    attach();
    ASSERT_TRUE(unfold("sky"));
    LiveNode* mars = select("mars");
    ASSERT_TRUE(mars);
    auto& shown = field<SoSFDouble>(*mars, "radius");
    program.frames.stop(); // it answers once another scene shows
    QTest::keyClick(&window.getTree(), Qt::Key_Delete);
    ASSERT_EQ(services.undoStack().index(), 1);
    window.getFiles().getScenes().bringToFront(*window.getFiles().getScenes().getAll().front());
    program.frames.start(0);
    EXPECT_TRUE(wait([&] { return told.last().contains("It keeps its children."); }));
    EXPECT_EQ(services.undoStack().index(), 1) << "the step is another scene’s";
    window.getFiles().getScenes().bringToFront(*window.getFiles().getScenes().getAll().back());
    EXPECT_TRUE(wait([&] { return row("mars").isValid(); }));
    EXPECT_FALSE(services.undoStack().canUndo());
    ASSERT_TRUE(select("mars"));
    edit(shown, [&] { shown.setValue(40); });
    window.getFiles().getScenes().bringToFront(*window.getFiles().getScenes().getAll().front());
    EXPECT_TRUE(wait([&] { return shown.getValue() == 10; })) << "as the program took it";
    window.getFiles().getScenes().bringToFront(*window.getFiles().getScenes().getAll().back());
    services.undoStack().undo();
    EXPECT_TRUE(wait([&] { return radius() == 3.5; }));
    services.undoStack().redo();
    EXPECT_EQ(shown.getValue(), 10);
}

} // namespace

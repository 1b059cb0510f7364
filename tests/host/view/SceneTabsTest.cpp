// SPDX-License-Identifier: MIT
// Several scenes in one window, each in a tab.
#include "SceneTabsFixture.h"

#include "structure/SceneStates.h"
#include "viewport/SceneView.h"
#include "window/ReloadBar.h"
#include "window/SceneChanges.h"

#include <algorithm>
#include <map>

TEST_F(Tabs, OneSceneShowsNone)
{
    EXPECT_TRUE(tabs().isHidden());
    const QRect before = program->window.getView().geometry();
    openInTab(makeFile("a"));
    EXPECT_EQ(scenes().getAll().size(), 1U) << "nothing was done in the first one";
    EXPECT_TRUE(tabs().isHidden());
    EXPECT_EQ(program->window.getView().geometry(), before);
    openInTab(makeFile("b"));
    EXPECT_FALSE(tabs().isHidden());
    ASSERT_EQ(tabs().count(), 2);
    EXPECT_EQ(tabs().tabText(0), "a.xsg");
    EXPECT_EQ(tabs().tabText(1), "b.xsg");
    EXPECT_EQ(tabs().currentIndex(), 1);
    const QRect withTabs = program->window.getView().geometry();
    clickTab(0);
    EXPECT_EQ(title(), "a.xsg");
    EXPECT_EQ(program->window.getView().geometry(), withTabs);
    files().closeScene(scenes().getFront());
    settle();
    EXPECT_TRUE(tabs().isHidden());
    EXPECT_EQ(program->window.getView().geometry(), before);
}

TEST_F(Tabs, WhatIsOpenAlreadyComesToTheFront)
{
    const QString path = makeFile("a");
    openInTab(path);
    openInTab(makeFile("b"));
    openInTab(path);
    EXPECT_EQ(scenes().getAll().size(), 2U);
    EXPECT_EQ(title(), "a.xsg");
    files().openInTab(home.filePath("none.xsg"));
    EXPECT_EQ(scenes().getAll().size(), 2U);
    EXPECT_EQ(title(), "a.xsg");
}

TEST_F(Tabs, EachHasItsOwnUndoSelectionAndLook)
{
    openInTab(makeFile("a"));
    openInTab(makeFile("b"));
    key(Qt::Key_Tab, Qt::ControlModifier);
    ASSERT_EQ(title(), "a.xsg");
    const std::string first = text();
    duplicate();
    const std::string edited = text();
    ASSERT_NE(edited, first);
    EXPECT_EQ(tabs().tabText(0), "a.xsg ●");
    const QList<SoPath> selected = program->services.getSelectedPaths();
    ASSERT_FALSE(selected.isEmpty());
    SoNode* hidden = selected.first().getTail();
    program->window.getStates().setHidden({hidden}, true);
    program->window.getView().turn(0.1F, 0.05F);
    const SbVec3f place = program->window.getView().getCamera().position.getValue();
    key(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_EQ(title(), "b.xsg");
    EXPECT_FALSE(program->services.undoStack().canUndo());
    EXPECT_FALSE(program->window.isWindowModified());
    EXPECT_TRUE(program->services.getSelectedNodes().isEmpty());
    EXPECT_TRUE(program->window.getStates().getHiding().isEmpty());
    EXPECT_NE(program->window.getView().getCamera().position.getValue(), place);
    key(Qt::Key_Z, Qt::ControlModifier);
    clickTab(0);
    EXPECT_EQ(text(), edited) << "undo in the other one has nothing to do here";
    EXPECT_TRUE(program->window.isWindowModified());
    EXPECT_TRUE(program->window.getStates().isHidden(hidden));
    EXPECT_EQ(program->window.getView().getCamera().position.getValue(), place);
    ASSERT_EQ(program->services.getSelectedPaths().size(), selected.size());
    EXPECT_EQ(program->services.getSelectedPaths().first().getTail(), hidden);
    EXPECT_FALSE(program->window.getChanges().takeChanges().empty());
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), first);
    EXPECT_EQ(tabs().tabText(0), "a.xsg");
    EXPECT_FALSE(program->window.isWindowModified());
}

TEST_F(Tabs, ClosingAsksForWhatIsUnsaved)
{
    openInTab(makeFile("a"));
    duplicate();
    openInTab(makeFile("b"));
    openInTab(makeFile("c"));
    {
        const Answers none("Cancel");
        key(Qt::Key_F4, Qt::ControlModifier);
        EXPECT_TRUE(none.texts().isEmpty());
    }
    EXPECT_EQ(scenes().getAll().size(), 2U);
    {
        const Answers cancel("Cancel");
        clickTab(0, Qt::MiddleButton);
        ASSERT_TRUE(waitFor([&] { return cancel.texts().size() == 1; }));
        EXPECT_TRUE(cancel.texts().first().contains("a.xsg"));
        clickTab(1);
        EXPECT_FALSE(program->window.close());
        EXPECT_EQ(cancel.texts().size(), 2);
    }
    EXPECT_EQ(scenes().getAll().size(), 2U);
    EXPECT_EQ(title(), "a.xsg");
    const Answers discard("Discard");
    clickTab(0, Qt::MiddleButton);
    EXPECT_TRUE(waitFor([&] { return scenes().getAll().size() == 1; }));
    EXPECT_EQ(title(), "b.xsg");
    EXPECT_EQ(text().find("painta"), std::string::npos);
    key(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_EQ(scenes().getAll().size(), 1U);
    EXPECT_EQ(title(), "Welcome");
    EXPECT_EQ(discard.texts().size(), 1);
}

TEST_F(Tabs, UnsavedEditsOfEachOutliveACrash)
{
    program->window.enterInteractiveMode();
    openInTab(makeFile("a"));
    duplicate();
    const std::string first = text();
    openInTab(makeFile("b"));
    duplicate();
    duplicate();
    const std::string second = text();
    ASSERT_TRUE(waitFor([this] { return kept().size() == 2; }));
    program.reset(); // as at the end of a session that could not ask
    program = std::make_unique<Program>();
    {
        const Answers recover("Recover");
        program->window.enterInteractiveMode();
        ASSERT_TRUE(waitFor([this] { return scenes().getAll().size() == 2; }));
        EXPECT_EQ(recover.texts().size(), 2);
    }
    std::map<QString, std::string> found;
    for (int i = 0; i < 2; ++i) {
        clickTab(i);
        found[title()] = text();
        EXPECT_TRUE(program->window.isWindowModified());
    }
    EXPECT_EQ(found["a.xsg"], first);
    EXPECT_EQ(found["b.xsg"], second);
    const Answers discard("Discard");
    EXPECT_TRUE(program->window.close());
    EXPECT_TRUE(kept().isEmpty());
}

TEST_F(Tabs, TheFileOfAHiddenOneIsWatched)
{
    program->window.enterInteractiveMode();
    const QString path = makeFile("a");
    openInTab(path);
    openInTab(makeFile("b"));
    auto* bar = program->window.findChild<ReloadBar*>("reloadBar");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write("# more\n");
    file.close();
    SceneDocument& hidden = scenes().getAll().front()->getDocument();
    ASSERT_TRUE(waitFor([&] { return hidden.getFileState() == SceneDocument::FileState::Changed; }));
    EXPECT_TRUE(bar->isHidden());
    clickTab(0);
    EXPECT_FALSE(bar->isHidden());
    clickTab(1);
    EXPECT_TRUE(bar->isHidden());
}

TEST_F(Tabs, WhatIsReadMeanwhileComesToItsOwnPlace)
{
    openInTab(makeFile("a"));
    openInTab(makeFile("b"));
    const std::string second = text();
    clickTab(0);
    QSignalSpy opened(&files(), &SceneFiles::opened);
    files().open(makeFile("c"));
    if (opened.isEmpty())
        clickTab(1);
    ASSERT_TRUE(waitFor([&] { return !opened.isEmpty(); }));
    EXPECT_EQ(tabs().tabText(0), "c.xsg");
    EXPECT_EQ(tabs().tabText(1), "b.xsg");
    clickTab(1);
    EXPECT_EQ(text(), second);
}

TEST_F(Tabs, SeveralFilesOpenInARow)
{
    QSignalSpy opened(&files(), &SceneFiles::opened);
    program->notifier.setAttended(false);
    program->window.openFiles(
        {home.filePath("missing.xsg"), makeFile("a"), home.filePath("b.nothing"), makeFile("c")});
    ASSERT_TRUE(waitFor([&] { return !opened.isEmpty(); }));
    program->notifier.setAttended(true);
    settle();
    EXPECT_EQ(opened.size(), 1);
    EXPECT_FALSE(opened.first().first().toBool()) << "not all of them are open";
    EXPECT_EQ(names(), (QStringList{"a.xsg", "c.xsg"}));
    EXPECT_EQ(title(), "a.xsg") << "the first";
    EXPECT_EQ(program->notifier.errorCount(), 2);
}

TEST_F(Tabs, APatchAmongFilesIsForTheSceneBeforeIt)
{
    QSignalSpy opened(&program->window, &HostWindow::openFinished);
    program->notifier.setAttended(false);
    program->window.openFiles({makePatch("first", "paintA0"), makeFile("A"), makeFile("B"),
                               makePatch("second", "paintB0"), home.filePath("missing.xsg"),
                               makePatch("third", "paintB1"), makeFile("C")});
    ASSERT_TRUE(waitFor([&] { return !opened.isEmpty(); }));
    program->notifier.setAttended(true);
    settle();
    EXPECT_EQ(opened.size(), 1);
    EXPECT_FALSE(opened.first().first().toBool());
    EXPECT_EQ(names(), (QStringList{"A.xsg ●", "B.xsg ●", "C.xsg"}));
    EXPECT_EQ(title(), "A.xsg") << "the first";
    EXPECT_NE(text().find("shininess: 0.75"), std::string::npos);
    clickTab(1);
    EXPECT_NE(text().find("shininess: 0.75"), std::string::npos);
    EXPECT_EQ(services().undoStack().count(), 1);
    EXPECT_EQ(program->notifier.errorCount(), 2);
    EXPECT_EQ(program->told.filter("which it was to change, is not open").size(), 1);
}

TEST_F(Tabs, WhereSomebodyCanAnswerEachPatchAmongFilesIsOffered)
{
    QSignalSpy opened(&program->window, &HostWindow::openFinished);
    const QStringList paths{makeFile("A"), makePatch("first", "paintA0"), makeFile("B"),
                            makePatch("second", "paintB0")};
    Answers answers("Apply");
    program->window.openFiles(paths);
    ASSERT_TRUE(waitFor([&] { return answers.texts().size() == 2; }));
    settle();
    EXPECT_EQ(opened.size(), 1);
    EXPECT_TRUE(opened.first().first().toBool());
    EXPECT_EQ(answers.texts(), (QStringList{"Apply the patch “first.xsgpatch” to “A.xsg”?",
                                            "Apply the patch “second.xsgpatch” to “B.xsg”?"}));
    EXPECT_TRUE(waitFor([&] {
        return names() == (QStringList{"A.xsg ●", "B.xsg ●"});
    })) << names().join(' ').toStdString();
}

TEST_F(Tabs, PatchesAloneAreForTheSceneThatIsOpen)
{
    openInTab(makeFile("A"));
    QSignalSpy opened(&program->window, &HostWindow::openFinished);
    program->notifier.setAttended(false);
    program->window.openFiles({makePatch("first", "paintA0"), makePatch("second", "paintA1")});
    program->notifier.setAttended(true);
    EXPECT_EQ(opened.size(), 1);
    EXPECT_TRUE(opened.first().first().toBool());
    EXPECT_EQ(services().undoStack().count(), 2);
}

TEST_F(Tabs, WhatIsDroppedWithCtrlOrIsSeveralGetsATab)
{
    openInTab(makeFile("a"));
    duplicate();
    drop({makeFile("b"), makeFile("c")}, {});
    EXPECT_EQ(names(), (QStringList{"a.xsg ●", "b.xsg", "c.xsg"}));
    EXPECT_EQ(title(), "b.xsg");
    drop({makeFile("d")}, Qt::ControlModifier);
    EXPECT_EQ(names(), (QStringList{"a.xsg ●", "b.xsg", "c.xsg", "d.xsg"}));
    drop({makeFile("e")}, {});
    EXPECT_EQ(names(), (QStringList{"a.xsg ●", "b.xsg", "c.xsg", "e.xsg"}));
}

TEST_F(Tabs, ARecentFileOpensInATabWithCtrlHeld)
{
    const QString first = makeFile("a");
    openInTab(first);
    const QString second = makeFile("b");
    files().getRecent().add(second);
    auto* menu = program->window.findChild<QMenu*>("recentFiles");
    ASSERT_TRUE(menu);
    menu->popup(program->window.mapToGlobal({})); // which fills it
    const QList<QAction*> entries = menu->actions();
    const auto entry = std::find_if(entries.begin(), entries.end(),
                                    [&](const QAction* each) { return each->data().toString() == second; });
    ASSERT_NE(entry, entries.end());
    QSignalSpy opened(&files(), &SceneFiles::opened);
    QTest::mouseClick(menu, Qt::LeftButton, Qt::ControlModifier, menu->actionGeometry(*entry).center());
    ASSERT_TRUE(waitFor([&] { return !opened.isEmpty(); }));
    settle();
    EXPECT_EQ(names(), (QStringList{"a.xsg", "b.xsg"}));
}

TEST_F(Tabs, TheCrossClosesItsTab)
{
    for (const char* name : {"a", "b", "c"})
        openInTab(makeFile(name));
    dragTab(0, 2);
    ASSERT_EQ(names(), (QStringList{"b.xsg", "c.xsg", "a.xsg"}));
    QWidget* cross = tabs().tabButton(1, QTabBar::RightSide);
    ASSERT_TRUE(cross);
    QTest::mouseClick(cross, Qt::LeftButton);
    settle();
    EXPECT_EQ(names(), (QStringList{"b.xsg", "a.xsg"}));
}

TEST_F(Tabs, NamesCanBeReadInANarrowWindow)
{
    for (const char* name : {"the-first-of-them", "the-second-of-them", "the-third-of-them", "x"})
        openInTab(makeFile(name));
    program->window.resize(600, 500);
    settle();
    ASSERT_LT(tabs().width(), 300);
    const int letter = tabs().fontMetrics().averageCharWidth();
    for (int i = 0; i < 3; ++i)
        EXPECT_GT(tabs().tabRect(i).width(), 14 * letter) << i;
    EXPECT_LT(tabs().tabRect(3).width(), tabs().tabRect(0).width()) << "no more than it needs";
}

TEST_F(Tabs, DraggingOneGivesItAnotherPlace)
{
    for (const char* name : {"a", "b", "c"})
        openInTab(makeFile(name));
    dragTab(0, 2);
    EXPECT_EQ(names(), (QStringList{"b.xsg", "c.xsg", "a.xsg"}));
    EXPECT_EQ(title(), "a.xsg") << "what was dragged";
    for (int i = 0; i < tabs().count(); ++i) {
        clickTab(i);
        EXPECT_EQ(tabs().tabText(i), title());
    }
    key(Qt::Key_PageUp, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(names(), (QStringList{"b.xsg", "a.xsg", "c.xsg"}));
    key(Qt::Key_PageDown, Qt::ControlModifier | Qt::ShiftModifier);
    key(Qt::Key_PageDown, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(names(), (QStringList{"b.xsg", "c.xsg", "a.xsg"})) << "the last one stays the last";
    duplicate();
    EXPECT_EQ(names(), (QStringList{"b.xsg", "c.xsg", "a.xsg ●"}));
    clickTab(0, Qt::MiddleButton);
    EXPECT_EQ(names(), (QStringList{"c.xsg", "a.xsg ●"}));
    EXPECT_EQ(title(), "c.xsg");
}

// Where SCOPIX_PICTURES names a folder, the picture of docs/start.md goes there.
TEST_F(Tabs, HaveAPicture)
{
    program->window.resize(1200, 800);
    for (const char* model : {"crate.gltf", "lighthouse.glb"})
        openInTab(QStringLiteral(SCOPIX_SOURCE_DIR "/data/models/") + QLatin1String(model));
    openInTab(QStringLiteral(SCOPIX_SOURCE_DIR "/data/scenes/showcase.xsg"));
    duplicate();
    clickTab(1);
    program->window.statusBar()->clearMessage();
    SoSensorQueue::getInstance().process();
    const QImage picture = program->window.grab().toImage();
    EXPECT_FALSE(picture.isNull());
    const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
    EXPECT_TRUE(folder.isEmpty() || picture.save(folder + QStringLiteral("/tabs.png")));
    key(Qt::Key_Tab, Qt::ControlModifier);
    key(Qt::Key_Z, Qt::ControlModifier); // nothing is asked about at the end
}

// SPDX-License-Identifier: MIT
// Several scenes in one window, each in a tab.
#include "window/SceneTabs.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "structure/SceneStates.h"
#include "support/UserNotifier.h"
#include "viewport/SceneView.h"
#include "window/MainWindow.h"
#include "window/ReloadBar.h"
#include "window/SceneChanges.h"

#include <support/Waiting.h>

#include <xsg/core/SoField.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <QtTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

using namespace scopix;

namespace
{

// Answers each question of the window by the button of this name, and counts them.
class Answers : public QObject
{
public:
    explicit Answers(QString button)
        : m_button(std::move(button))
    {
        startTimer(1);
    }
    QStringList texts() const { return m_texts; }

protected:
    void timerEvent(QTimerEvent* /*event*/) override
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || box == m_last)
            return;
        m_last = box;
        m_texts << box->text();
        for (QAbstractButton* each : box->buttons()) {
            if (each->text().remove('&') == m_button)
                return each->click();
        }
        ADD_FAILURE() << "no button " << qPrintable(m_button);
        box->reject();
    }

private:
    QString m_button;
    QPointer<QMessageBox> m_last;
    QStringList m_texts;
};

struct Program {
    Program()
    {
        QObject::connect(&notifier, &UserNotifier::told, [this](const QString& text) { told << text; });
        window.getFiles().getScenes().setPause(20, 50);
        window.show();
        EXPECT_TRUE(waitForActive(&window)); // else shortcuts do not act
    }

    UserNotifier notifier;
    HostServices services;
    MainWindow window{services, notifier};
    QStringList told;
};

class Tabs : public testing::Test
{
protected:
    Tabs()
    {
        qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
        program = std::make_unique<Program>();
    }
    ~Tabs() override
    {
        program.reset();
        qunsetenv("XDG_CONFIG_HOME");
    }

    // A scene with a few nodes that are called so.
    QString makeFile(const QString& name)
    {
        SoRef<SoSeparator> root(new SoSeparator);
        root->setName(SbName("root" + name.toStdString()));
        for (int i = 0; i < 3; ++i) {
            auto* group = new SoSeparator;
            root->addChild(group);
            auto* material = new SoMaterial;
            material->setName(SbName("paint" + name.toStdString() + std::to_string(i)));
            group->addChild(material);
            group->addChild(new SoCube);
        }
        const QString path = home.filePath(name + ".xsg");
        std::string error;
        EXPECT_TRUE(SoSceneFile::write(root.get(), path.toStdString(), error)) << error;
        return path;
    }
    void openInTab(const QString& path)
    {
        QSignalSpy opened(&files(), &SceneFiles::opened);
        files().openInTab(path);
        ASSERT_TRUE(waitFor([&] { return !opened.isEmpty(); }));
        EXPECT_TRUE(opened.first().first().toBool());
        settle();
    }
    void settle()
    {
        SoSensorQueue::getInstance().process();
        QCoreApplication::processEvents();
    }
    SceneFiles& files() { return program->window.getFiles(); }
    OpenScenes& scenes() { return files().getScenes(); }
    SceneTabs& tabs() { return program->window.getTabs(); }
    SceneTreeView& tree() { return program->window.getTree(); }
    QString title() { return files().getDocument().getTitle(); }
    std::string text() { return SoSceneFile::writeText(program->window.getScene()); }
    void clickTab(int index, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(&tabs(), button, {}, tabs().tabRect(index).center());
        settle();
    }
    void key(int key, Qt::KeyboardModifiers modifiers)
    {
        if (!program->window.isActiveWindow()) { // a dialog was
            program->window.activateWindow();
            ASSERT_TRUE(waitForActive(&program->window));
        }
        tree().setFocus();
        QTest::keyClick(&tree(), static_cast<Qt::Key>(key), modifiers);
        settle();
    }
    void clickRow(const QModelIndex& index)
    {
        tree().scrollTo(index);
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, tree().visualRect(index).center());
        settle();
    }
    void duplicate()
    {
        clickRow(tree().getModel().index(0, 0, tree().getModel().index(0, 0)));
        key(Qt::Key_D, Qt::ControlModifier);
    }
    QStringList names()
    {
        QStringList names;
        for (int i = 0; i < tabs().count(); ++i)
            names << tabs().tabText(i);
        return names;
    }
    void drop(const QStringList& paths, Qt::KeyboardModifiers modifiers)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls << QUrl::fromLocalFile(path);
        data.setUrls(urls);
        QSignalSpy opened(&files(), &SceneFiles::opened);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
        QApplication::sendEvent(&program->window, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
        QApplication::sendEvent(&program->window, &event);
        ASSERT_TRUE(waitFor([&] { return !opened.isEmpty(); }));
        settle();
    }
    void moveMouse(QPoint to)
    {
        QMouseEvent event(QEvent::MouseMove, to, tabs().mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&tabs(), &event);
    }
    // By the mouse, beyond the middle of the other one.
    void dragTab(int from, int to)
    {
        const QPoint start = tabs().tabRect(from).center();
        const QRect end = tabs().tabRect(to);
        const QPoint goal(from < to ? end.right() : end.left(), start.y());
        QTest::mousePress(&tabs(), Qt::LeftButton, {}, start);
        for (int step = 1; step <= 20; ++step)
            moveMouse(start + (goal - start) * step / 20);
        QTest::mouseRelease(&tabs(), Qt::LeftButton, {}, goal);
        settle();
    }
    QStringList kept() const { return QDir(home.filePath("scopix/recovery")).entryList({"*.xsg"}); }

    QTemporaryDir home;
    std::unique_ptr<Program> program;
};

} // namespace

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

namespace
{

int fromEnvironment(const char* name, int otherwise)
{
    bool isSet = false;
    const int value = qEnvironmentVariableIntValue(name, &isSet);
    return isSet ? value : otherwise;
}

// What each scene is known to hold, by its file.
struct Known {
    std::string first;
    std::string now;
};

class TabsWalk : public Tabs
{
protected:
    int below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    QString front() { return title(); }

    void openAny()
    {
        const QString name(QChar('a' + below(4)));
        openInTab(makeFileOnce(name));
        if (m_known.count(title()) == 0)
            m_known[title()] = {text(), text()};
    }
    QString makeFileOnce(const QString& name)
    {
        const QString path = home.filePath(name + ".xsg");
        return QFileInfo::exists(path) ? path : makeFile(name);
    }
    void selectAny()
    {
        QModelIndex index = tree().getModel().index(0, 0);
        for (int depth = 1 + below(2); depth > 0 && tree().getModel().rowCount(index) > 0; --depth) {
            tree().expand(index);
            index = tree().getModel().index(below(tree().getModel().rowCount(index)), 0, index);
        }
        clickRow(index);
    }
    void editAny()
    {
        selectAny();
        switch (below(4)) {
        case 0:
            return key(Qt::Key_D, Qt::ControlModifier);
        case 1:
            return key(Qt::Key_Delete, {});
        case 2:
            return key(Qt::Key_G, Qt::ControlModifier);
        default:
            key(Qt::Key_F2, {});
            if (QWidget* line = tree().viewport()->findChild<QLineEdit*>()) {
                QTest::keyClicks(line, "name");
                QTest::keyClicks(line, QString::number(below(100)));
                if (below(2) == 0)
                    QTest::keyClick(line, Qt::Key_Return); // else it is left to what comes next
            }
        }
    }
    void switchTab()
    {
        if (tabs().count() < 2)
            return;
        if (below(2) == 0)
            clickTab(below(tabs().count()));
        else
            key(Qt::Key_Tab, below(2) == 0 ? Qt::ControlModifier : Qt::ControlModifier | Qt::ShiftModifier);
    }
    void moveTab()
    {
        if (tabs().count() > 1)
            dragTab(below(tabs().count()), below(tabs().count()));
    }
    void closeTab()
    {
        if (tabs().count() < 3)
            return;
        m_known.erase(title());
        const Answers discard("Discard");
        key(Qt::Key_F4, Qt::ControlModifier);
    }
    void act()
    {
        switch (below(13)) {
        case 12:
            return moveTab();
        case 0:
            return openAny();
        case 1:
            return closeTab();
        case 2:
        case 3:
        case 4:
            return switchTab();
        case 5:
        case 6:
            return key(Qt::Key_Z, Qt::ControlModifier);
        case 7:
            return key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        default:
            return editAny();
        }
    }
    // The acts on what was in front before them may change only that.
    void check(const QString& acted)
    {
        for (const OpenScene* each : scenes().getAll()) {
            const SceneDocument& document = each->getDocument();
            const std::string now = SoSceneFile::writeText(document.getRoot());
            Known& known = m_known[document.getTitle()];
            if (document.getTitle() != acted && document.getTitle() != title()) {
                ASSERT_EQ(now, known.now) << qPrintable(document.getTitle());
            }
            known.now = now;
            EXPECT_TRUE(now == known.first || document.isModified())
                << qPrintable(document.getTitle()) << "\n"
                << known.first << "\n"
                << now;
        }
    }

    std::map<QString, Known> m_known;
    std::mt19937 m_random{unsigned(fromEnvironment("SCOPIX_WALK_SEED", 7))};
};

} // namespace

TEST_F(TabsWalk, NoStepLandsInAnotherScene)
{
    openAny();
    const int steps = fromEnvironment("SCOPIX_WALK_STEPS", 60);
    for (int i = 0; i < steps; ++i) {
        const QString before = title();
        act();
        check(before);
        if (HasFatalFailure() || HasNonfatalFailure())
            FAIL() << "at step " << i;
    }
    for (int i = 0; i < static_cast<int>(scenes().getAll().size()); ++i) {
        clickTab(i);
        for (int more = 0; more < 10000 && program->services.undoStack().canUndo(); ++more)
            key(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(text(), m_known[title()].first) << qPrintable(title());
    }
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

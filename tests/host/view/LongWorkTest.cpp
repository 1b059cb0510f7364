// SPDX-License-Identifier: MIT
// What takes long says how far it is and can be cancelled, and the window stays alive.
#include "support/LongWork.h"
#include "changes/ChangesPanel.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "support/FileAnswer.h"
#include "support/ProgressDialog.h"
#include "support/UserNotifier.h"
#include "window/BranchFiles.h"
#include "window/MainWindow.h"
#include "window/NodeEditing.h"
#include "window/PatchActs.h"
#include "window/SceneChanges.h"

#include <support/Waiting.h>

#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <QtTest>

#include <unistd.h>

using namespace scopix;

namespace
{

constexpr int Many = 50000; // nodes: more than one piece of writing

/// Clicks on Cancel as soon as a dialog says how far the work is, and counts these dialogs.
class Canceller : public QObject
{
public:
    Canceller() { qApp->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* dialog = qobject_cast<QProgressDialog*>(watched);
        const bool isShown = dialog && event->type() == QEvent::Show;
        if (isShown && dialog->objectName() == QStringLiteral("workProgress") && ++count > 0)
            click(*dialog->findChild<QPushButton*>());
        return false;
    }

private:
    static void click(QPushButton& button)
    {
        const QPointF at = button.rect().center();
        const auto post = [&](QEvent::Type type, Qt::MouseButtons buttons) {
            QCoreApplication::postEvent(&button, new QMouseEvent(type, at, button.mapToGlobal(at.toPoint()),
                                                                 Qt::LeftButton, buttons, {}));
        };
        post(QEvent::MouseButtonPress, Qt::LeftButton);
        post(QEvent::MouseButtonRelease, {});
    }
};

class LongWorkTest : public testing::Test
{
protected:
    LongWorkTest()
    {
        qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
        window = std::make_unique<MainWindow>(services, notifier);
        window->show();
        QObject::connect(&notifier, &UserNotifier::told, [this](const QString& text) { told << text; });
    }
    ~LongWorkTest() override
    {
        LongWork::setPatience(ProgressDialog::PatienceMs, 30);
        notifier.setAttended(false);
        window.reset();
        qunsetenv("XDG_CONFIG_HOME");
    }
    QProgressDialog* dialog() const
    {
        return window->findChild<QProgressDialog*>(QStringLiteral("workProgress"));
    }
    // Works until the user would see how far it is.
    QProgressDialog* workUntilDialog(double part = -1) const
    {
        while (!dialog())
            LongWork::goOn(part);
        return dialog();
    }
    void cancel() const { QTest::mouseClick(workUntilDialog()->findChild<QPushButton*>(), Qt::LeftButton); }
    // Begins work in which the user has cancelled already.
    bool runCancelled(const std::function<void()>& work) const
    {
        return LongWork::run(window.get(), QStringLiteral("Working…"), [&] {
            cancel();
            work();
        });
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    template <class Node>
    void show(int count)
    {
        const SoRef<SoSeparator> root(new SoSeparator);
        for (int i = 0; i < count; ++i)
            root->addChild(new Node);
        window->setScene(root.get(), QStringLiteral("some"));
    }

    // Counts how often what was posted is served.
    void postCount(int& served)
    {
        QMetaObject::invokeMethod(
            window.get(), [&served] { ++served; }, Qt::QueuedConnection);
    }
    // Works until events were looked at so often.
    void workFor(int looks)
    {
        int served = 0;
        while (served < looks) {
            const int before = served;
            postCount(served);
            while (served == before)
                LongWork::goOn();
        }
    }
    // A large scene with its root's first child selected, and the keys on the tree.
    void showForKeys()
    {
        show<SoTransform>(Many);
        window->getTree().setFocus();
        services.selectPaths({pathTo(0)});
        ASSERT_TRUE(waitForActive(window.get()));
    }
    SoPath pathTo(int child) const
    {
        SoPath path;
        path.append(window->getScene());
        path.append(window->getScene()->asGroup()->getChild(child));
        return path;
    }
    // All that the scene holds goes into one group of it, which is selected.
    void showGroupForKeys()
    {
        showForKeys();
        SoGroup* root = window->getScene()->asGroup();
        const SoRef<SoSeparator> group(new SoSeparator);
        for (int i = 0; i < Many; ++i)
            group->addChild(root->getChild(i));
        root->removeAllChildren();
        root->addChild(group.get());
        services.selectPaths({pathTo(0)});
        LongWork::setPatience(0, 0); // of a machine as slow as can be
    }
    void press(int key, Qt::KeyboardModifiers modifiers)
    {
        if (!window->isActiveWindow()) { // a dialog was
            window->activateWindow();
            ASSERT_TRUE(waitForActive(window.get()));
        }
        QTest::keyClick(&window->getTree(), static_cast<Qt::Key>(key), modifiers);
    }
    int childCount() const { return window->getScene()->asGroup()->getNumChildren(); }

    QTemporaryDir folder;
    UserNotifier notifier;
    HostServices services;
    std::unique_ptr<MainWindow> window;
    QStringList told;
};

TEST_F(LongWorkTest, SaysHowFarItIsAndCloses)
{
    bool wasVisible = false;
    EXPECT_TRUE(LongWork::run(window.get(), QStringLiteral("Working on <b>this</b>…"), [&] {
        QProgressDialog* shown = workUntilDialog(0.5);
        wasVisible = shown->isVisible();
        EXPECT_EQ(shown->labelText(), QStringLiteral("Working on <b>this</b>…"));
        EXPECT_EQ(shown->value() * 2, shown->maximum());
    }));
    EXPECT_TRUE(wasVisible);
    EXPECT_FALSE(dialog());
    LongWork::goOn(); // outside of any work
}

TEST_F(LongWorkTest, TheWindowIsAliveMeanwhileAndTakesNoInput)
{
    int events = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++events; });
    timer.start(0);
    LongWork::run(window.get(), QStringLiteral("Working…"), [&] {
        EXPECT_EQ(QApplication::activeModalWidget(), workUntilDialog());
        while (events < 10)
            LongWork::goOn();
    });
    EXPECT_GE(events, 10);
}

TEST_F(LongWorkTest, EndsWhereTheUserCancelsIt)
{
    bool isReached = false;
    EXPECT_FALSE(runCancelled([&] {
        LongWork::goOn();
        isReached = true;
    }));
    EXPECT_FALSE(isReached);
    EXPECT_FALSE(dialog());
}

TEST_F(LongWorkTest, InsideOtherWorkThatOneIsCancelled)
{
    EXPECT_FALSE(runCancelled([&] {
        LongWork::run(window.get(), QStringLiteral("Inside…"), [] { LongWork::goOn(); });
        ADD_FAILURE() << "went on";
    }));
}

TEST_F(LongWorkTest, ASaveThatIsCancelledLeavesTheFile)
{
    show<SoTransform>(Many); // which costs nothing to draw
    const QString path = folder.filePath(QStringLiteral("scene.xsg"));
    ASSERT_TRUE(window->getFiles().saveTo(path));
    const QByteArray before = contentOf(path);
    window->getScene()->asGroup()->addChild(new SoCube);
    EXPECT_FALSE(runCancelled([&] { window->getFiles().saveTo(path); }));
    EXPECT_EQ(contentOf(path), before);
    EXPECT_EQ(QDir(folder.path()).entryList({QStringLiteral("*scene.xsg*")}, QDir::AllEntries | QDir::Hidden),
              QStringList{QStringLiteral("scene.xsg")});
    EXPECT_TRUE(window->getFiles().saveTo(path));
    EXPECT_NE(contentOf(path), before);
}

TEST_F(LongWorkTest, AnExportThatIsCancelledWritesNothing)
{
    show<SoCube>(3);
    notifier.setAttended(false); // no question about what is lost
    for (const char* ending : {"glb", "obj", "ply", "stl"}) {
        const QString path = folder.filePath(QStringLiteral("out.") + QLatin1String(ending));
        EXPECT_FALSE(runCancelled([&] { window->getFiles().saveTo(path); })) << ending;
        EXPECT_FALSE(QFileInfo::exists(path)) << ending;
    }
}

TEST_F(LongWorkTest, NothingElseRunsWhileTheSceneIsToStandStill)
{
    show<SoCube>(1);
    int events = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++events; });
    timer.start(0);
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    ASSERT_EQ(write(ends[1], "x", 1), 1);
    QSocketNotifier socket(ends[0], QSocketNotifier::Read);
    QObject::connect(&socket, &QSocketNotifier::activated, [&] { ++events; });
    LongWork::setPatience(0, 0);
    EXPECT_TRUE(LongWork::runStill(window.get(), QStringLiteral("Working…"), window->getScene(), [&] {
        workFor(20);
        EXPECT_TRUE(dialog()->isVisible());
        EXPECT_EQ(dialog()->windowModality(), Qt::ApplicationModal);
    }));
    EXPECT_EQ(events, 0);
    timer.stop();
    EXPECT_TRUE(waitFor([&] { return events > 0; })) << "what has come in meanwhile is not lost";
    close(ends[0]);
    close(ends[1]);
}

TEST_F(LongWorkTest, StartsAgainWhereTheSceneChangesAllTheSame)
{
    show<SoCube>(1);
    LongWork::setPatience(0, 0);
    int begun = 0;
    int served = 0;
    EXPECT_TRUE(LongWork::runStill(window.get(), QStringLiteral("Working…"), window->getScene(), [&] {
        if (++begun == 2) {
            postCount(served);
            LongWork::goOn();
            EXPECT_EQ(served, 0) << "nothing can change any more";
            return;
        }
        QMetaObject::invokeMethod(
            window.get(), [&] { window->getScene()->asGroup()->addChild(new SoCube); }, Qt::QueuedConnection);
        workFor(1);
        ADD_FAILURE() << "went on with what is another scene by now";
    }));
    EXPECT_EQ(begun, 2);
}

TEST_F(LongWorkTest, CopiesOfBranchesCanBeCancelled)
{
    showGroupForKeys();
    QGuiApplication::clipboard()->setText(QStringLiteral("mine"));
    Canceller canceller;
    const std::pair<int, Qt::KeyboardModifier> keys[] = {
        {Qt::Key_D, Qt::ControlModifier}, {Qt::Key_C, Qt::ControlModifier}, {Qt::Key_X, Qt::ControlModifier}};
    int dialogs = 0;
    for (const auto& [key, modifier] : keys) {
        press(key, modifier);
        EXPECT_EQ(canceller.count, ++dialogs) << key;
        EXPECT_TRUE(told.last().startsWith(QStringLiteral("Copying was cancelled")))
            << qPrintable(told.last());
        EXPECT_EQ(childCount(), 1);
        EXPECT_EQ(services.undoStack().count(), 0);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("mine"));
    }
}

TEST_F(LongWorkTest, HandingOverWhatWasDraggedCanBeCancelled)
{
    showGroupForKeys();
    const std::unique_ptr<QMimeData> data(window->getTree().makeDragData());
    EXPECT_TRUE(data->hasText()) << "before anybody takes it";
    EXPECT_TRUE(told.isEmpty());
    {
        Canceller canceller;
        EXPECT_EQ(data->text(), QString());
        EXPECT_EQ(canceller.count, 1);
    }
    EXPECT_EQ(told.last(), QStringLiteral("Nothing was handed over to the other program: it was cancelled."));
    LongWork::setPatience(ProgressDialog::PatienceMs, 30);
    EXPECT_TRUE(data->text().startsWith(QStringLiteral("#Xsg")));
    window.reset();
    EXPECT_EQ(data->text(), QString()) << "the other program takes its time";
}

TEST_F(LongWorkTest, PastingCanBeCancelled)
{
    showGroupForKeys();
    press(Qt::Key_C, Qt::ControlModifier);
    ASSERT_EQ(told.last(), QStringLiteral("1 node(s) copied."));
    Canceller canceller;
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(canceller.count, 1);
    EXPECT_EQ(told.last(), QStringLiteral("Pasting was cancelled; nothing has changed."));
    EXPECT_EQ(childCount(), 1);
    EXPECT_EQ(services.undoStack().count(), 0);
}

TEST_F(LongWorkTest, WhatIsNotCancelledIsDone)
{
    showGroupForKeys();
    press(Qt::Key_D, Qt::ControlModifier);
    ASSERT_EQ(childCount(), 2);
    const SoGroup* root = window->getScene()->asGroup();
    EXPECT_EQ(SoSceneFile::writeText(root->getChild(0)), SoSceneFile::writeText(root->getChild(1)));
    EXPECT_EQ(services.undoStack().count(), 1);
    EXPECT_FALSE(dialog());
}

TEST_F(LongWorkTest, AComparisonThatIsCancelledLeavesTheList)
{
    showGroupForKeys();
    const QString path = folder.filePath(QStringLiteral("other.xsg"));
    std::string error;
    ASSERT_TRUE(SoSceneFile::write(window->getScene(), path.toStdString(), error)) << error;
    Canceller canceller;
    SceneChanges& changes = window->getChanges();
    changes.compareWith(path);
    ASSERT_TRUE(waitFor([&] { return !told.isEmpty(); }));
    EXPECT_EQ(told.last(), QStringLiteral("The comparison was cancelled; the list is as it was."));
    EXPECT_FALSE(changes.isComparing());
    EXPECT_EQ(changes.getPanel().getModel().getSource(), &changes.getEdits());
}

TEST_F(LongWorkTest, SavingAndCopyingChangesCanBeCancelled)
{
    showGroupForKeys();
    press(Qt::Key_D, Qt::ControlModifier);
    ASSERT_EQ(childCount(), 2);
    QGuiApplication::clipboard()->setText(QStringLiteral("mine"));
    const QString path = folder.filePath(QStringLiteral("part.xsgpatch"));
    PatchActs& patches = window->getChanges().getPatches();
    {
        Canceller canceller;
        EXPECT_FALSE(patches.save(path));
        EXPECT_EQ(told.last(), QStringLiteral("Saving “%1” was cancelled.").arg(path));
        for (const auto copy : {&PatchActs::copy, &PatchActs::copyScene}) {
            told.clear();
            (patches.*copy)();
            EXPECT_EQ(told, QStringList(QStringLiteral("Copying was cancelled; nothing has changed.")));
        }
        EXPECT_EQ(canceller.count, 3);
    }
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("mine"));
    EXPECT_TRUE(patches.save(path)) << "nothing is lost";
    EXPECT_TRUE(contentOf(path).contains("\ninsert ")) << contentOf(path).left(200).constData();
}

TEST_F(LongWorkTest, SavingABranchOrAScenePassedInCanBeCancelled)
{
    showGroupForKeys();
    const QString path = folder.filePath(QStringLiteral("part.xsg"));
    Canceller canceller;
    EXPECT_FALSE(window->getBranchFiles().save(pathTo(0).getTail(), path));
    EXPECT_EQ(told.last(), QStringLiteral("Saving “%1” was cancelled.").arg(path));
    const SoRef<SoSeparator> running(new SoSeparator);
    running->addChild(pathTo(0).getTail());
    ASSERT_TRUE(window->inspect(running.get(), QStringLiteral("Running")));
    EXPECT_TRUE(window->getFiles().getDocument().isExternal());
    EXPECT_FALSE(window->getFiles().saveTo(path));
    EXPECT_EQ(told.last(), QStringLiteral("Saving “%1” was cancelled.").arg(path));
    EXPECT_EQ(canceller.count, 2);
    EXPECT_TRUE(
        QDir(folder.path()).entryList({QStringLiteral("*part*")}, QDir::AllEntries | QDir::Hidden).isEmpty());
}

} // namespace

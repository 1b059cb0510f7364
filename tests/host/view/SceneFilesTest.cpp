// SPDX-License-Identifier: MIT
// What a user does with files, in the window.
#include "services/HostServices.h"
#include "support/FileAnswer.h"
#include "support/SetText.h"
#include "support/UserNotifier.h"
#include "viewport/SceneView.h"
#include "window/MainWindow.h"

#include <support/Waiting.h>

#include <xsg/core/SoField.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/sensors/SoSensorQueue.h>

using namespace scopix;

namespace
{

QString shipped(const char* name)
{
    return QStringLiteral(SCOPIX_SOURCE_DIR "/data/models/") + QLatin1String(name);
}

// Does something to the next modal dialog once it is there. The progress of a model that takes long to read
// asks nothing.
class WithDialog : public QObject
{
public:
    explicit WithDialog(std::function<void(QDialog&)> act)
        : m_act(std::move(act))
    {
        startTimer(1);
    }
    bool hasCome() const { return m_come; }
    QString text() const { return m_text; }

protected:
    void timerEvent(QTimerEvent* event) override
    {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || qobject_cast<QProgressDialog*>(dialog) || m_come)
            return;
        killTimer(event->timerId());
        m_come = true;
        if (auto* box = qobject_cast<QMessageBox*>(dialog))
            m_text = box->text();
        m_act(*dialog);
    }

private:
    std::function<void(QDialog&)> m_act;
    bool m_come = false;
    QString m_text;
};

auto answer(const QString& button)
{
    return [button](QDialog& dialog) {
        for (auto* each : dialog.findChildren<QPushButton*>()) {
            if (each->text().remove('&') == button)
                return each->click();
        }
        ADD_FAILURE() << "no button " << qPrintable(button);
        dialog.reject();
    };
}

// A program's window in an attended session, as HostApplication sets it up.
struct Program {
    Program()
    {
        QObject::connect(&notifier, &UserNotifier::told, [this](const QString& text) { told << text; });
        QObject::connect(&window, &HostWindow::openFinished, [this](bool good) { done << good; });
        window.getFiles().getAutosave().setPause(20);
        window.show();
    }
    ~Program() { closeBox(); }
    void closeBox()
    {
        for (auto* box : window.findChildren<QMessageBox*>())
            box->close();
    }
    SceneDocument& document() { return window.getFiles().getDocument(); }
    bool open(const QString& path)
    {
        done.clear();
        window.openFile(path);
        EXPECT_TRUE(waitFor([this] { return !done.isEmpty(); }));
        return done.value(0);
    }
    void edit(const QString& node, const char* field, const char* value)
    {
        ASSERT_TRUE(window.selectField(node, field));
        services.executeCommand(new SetText(services.selectedField(), value));
        SoSensorQueue::getInstance().process();
    }
    std::string value(const QString& node, const char* field)
    {
        SbString text;
        if (window.selectField(node, field))
            services.selectedField()->get(text);
        return text.str();
    }
    QAction* action(const QString& start)
    {
        for (QAction* each : window.findChildren<QAction*>()) {
            if (each->text().remove('&').startsWith(start))
                return each;
        }
        return nullptr;
    }

    UserNotifier notifier;
    HostServices services;
    MainWindow window{services, notifier};
    QStringList told;
    QList<bool> done;
};

class Files : public testing::Test
{
protected:
    Files()
    {
        qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
        program = std::make_unique<Program>();
    }
    ~Files() override
    {
        program.reset();
        qunsetenv("XDG_CONFIG_HOME");
    }
    // A scene file with the crate, open.
    QString openScene(const char* name = "scene.xsg")
    {
        const QString path = home.filePath(name);
        EXPECT_TRUE(program->open(shipped("crate.gltf")));
        EXPECT_TRUE(program->window.getFiles().saveTo(path));
        return path;
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList kept() const { return QDir(home.filePath("scopix/recovery")).entryList({"*.xsg"}); }
    bool waitUntilKept(const QByteArray& text)
    {
        return waitFor([&] {
            return !kept().isEmpty() &&
                   contentOf(home.filePath("scopix/recovery/") + kept()[0]).contains(text);
        });
    }
    QMenu* recentMenu()
    {
        auto* menu = program->window.findChild<QMenu*>("recentFiles");
        emit menu->aboutToShow();
        return menu;
    }

    QTemporaryDir home;
    std::unique_ptr<Program> program;
};

TEST_F(Files, TheTitleMarksUnsavedEdits)
{
    openScene();
    EXPECT_FALSE(program->window.isWindowModified());
    EXPECT_EQ(program->window.windowTitle(), "scene.xsg[*]");
    program->edit("Planks", "opacity", "0.5");
    EXPECT_TRUE(program->window.isWindowModified());
    program->services.undoStack().undo();
    EXPECT_FALSE(program->window.isWindowModified());
    program->services.undoStack().redo();
    program->action("Save")->trigger();
    EXPECT_FALSE(program->window.isWindowModified());
}

TEST_F(Files, CancelKeepsTheEditsAndWhatWasOpen)
{
    openScene();
    program->edit("Planks", "opacity", "0.5");
    SoNode* scene = program->window.getScene();
    for (const auto& act : std::initializer_list<std::function<void()>>{
             [this] { program->window.getFiles().openAnother(shipped("rainbow.ply")); },
             [this] { program->action("New")->trigger(); }, [this] { program->action("Open…")->trigger(); },
             [this] { EXPECT_FALSE(program->window.close()); }}) {
        WithDialog box(answer("Cancel"));
        act();
        EXPECT_TRUE(box.hasCome());
        EXPECT_TRUE(box.text().contains("scene.xsg")) << qPrintable(box.text());
        EXPECT_EQ(program->window.getScene(), scene);
        EXPECT_TRUE(program->window.isVisible());
        EXPECT_TRUE(program->window.isWindowModified());
    }
}

TEST_F(Files, EscapeIsCancel)
{
    openScene();
    program->edit("Planks", "opacity", "0.5");
    WithDialog box([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_FALSE(program->window.close());
    EXPECT_TRUE(box.hasCome());
}

TEST_F(Files, DiscardDropsTheEdits)
{
    const QString path = openScene();
    const QByteArray before = contentOf(path);
    program->edit("Planks", "opacity", "0.5");
    WithDialog box(answer("Discard"));
    program->done.clear();
    program->window.getFiles().openAnother(shipped("rainbow.ply"));
    EXPECT_TRUE(box.hasCome());
    ASSERT_TRUE(waitFor([this] { return !program->done.isEmpty(); }));
    EXPECT_EQ(program->done, QList<bool>{true}) << "and is asked once only";
    EXPECT_EQ(contentOf(path), before);
    EXPECT_FALSE(program->window.isWindowModified());
}

TEST_F(Files, SaveKeepsTheEditsAndContinues)
{
    const QString path = openScene();
    program->edit("Planks", "opacity", "0.5");
    WithDialog box(answer("Save"));
    program->action("New")->trigger();
    EXPECT_TRUE(box.hasCome());
    EXPECT_EQ(program->document().getTitle(), "Welcome");
    EXPECT_TRUE(contentOf(path).contains("opacity: 0.5"));
}

TEST_F(Files, AFailedSaveKeepsTheEdits)
{
    QDir(home.path()).mkdir("gone");
    openScene("gone/scene.xsg");
    program->edit("Planks", "opacity", "0.5");
    QDir(home.filePath("gone")).removeRecursively();
    WithDialog box(answer("Save"));
    EXPECT_FALSE(program->window.close());
    EXPECT_TRUE(box.hasCome());
    EXPECT_TRUE(program->told.last().contains("gone/scene.xsg")) << qPrintable(program->told.last());
    EXPECT_TRUE(program->window.isVisible());
    EXPECT_EQ(program->value("Planks", "opacity"), "0.5");
}

TEST_F(Files, AsksNothingWithoutEditsOrWhenUnattended)
{
    openScene();
    WithDialog none([](QDialog& dialog) { dialog.reject(); });
    program->action("New")->trigger();
    openScene();
    program->edit("Planks", "opacity", "0.5");
    program->notifier.setAttended(false);
    EXPECT_TRUE(program->window.close());
    QCoreApplication::processEvents();
    EXPECT_FALSE(none.hasCome()) << qPrintable(none.text());
}

TEST_F(Files, EditsMadeWhileAModelIsReadAreAskedAbout)
{
    openScene();
    program->done.clear();
    program->window.getFiles().openAnother(shipped("lighthouse.glb"));
    program->edit("Planks", "opacity", "0.5");
    WithDialog box(answer("Cancel"));
    ASSERT_TRUE(waitFor([this] { return !program->done.isEmpty(); }));
    EXPECT_TRUE(box.hasCome());
    EXPECT_EQ(program->done, QList<bool>{false});
    EXPECT_EQ(program->value("Planks", "opacity"), "0.5");
}

TEST_F(Files, AModelIsSavedUnderANewName)
{
    ASSERT_TRUE(program->open(shipped("crate.gltf")));
    program->edit("Planks", "opacity", "0.5");
    const QString path = home.filePath("mine");
    QString proposed;
    WithDialog dialog([&](QDialog& each) {
        auto& files = static_cast<QFileDialog&>(each);
        proposed = QFileInfo(files.selectedFiles().value(0)).fileName();
        files.findChild<QLineEdit*>("fileNameEdit")->setText(path);
        QMetaObject::invokeMethod(&files, "accept", Qt::QueuedConnection);
    });
    EXPECT_TRUE(program->window.getFiles().save());
    EXPECT_TRUE(dialog.hasCome());
    EXPECT_EQ(proposed, "crate.xsg");
    EXPECT_TRUE(contentOf(path + ".xsg").contains("opacity: 0.5"));
    EXPECT_EQ(program->document().getTitle(), "mine.xsg");
}

TEST_F(Files, CancellingTheNameSavesNothing)
{
    ASSERT_TRUE(program->open(shipped("crate.gltf")));
    program->edit("Planks", "opacity", "0.5");
    WithDialog dialog([](QDialog& each) { each.reject(); });
    EXPECT_FALSE(program->window.getFiles().save());
    EXPECT_TRUE(dialog.hasCome());
    EXPECT_TRUE(program->window.isWindowModified());
}

TEST_F(Files, TypingThatIsNotConfirmedYetIsSavedToo)
{
    const QString path = openScene();
    ASSERT_TRUE(program->window.selectField("Planks", "opacity"));
    auto* input = new QLineEdit;
    program->window.addToolBar("Input")->addWidget(input);
    QObject::connect(input, &QLineEdit::editingFinished, [&] {
        if (!input->isModified())
            return;
        input->setModified(false);
        program->services.executeCommand(
            new SetText(program->services.selectedField(), input->text().toUtf8().constData()));
    });
    program->window.activateWindow();
    ASSERT_TRUE(waitForActive(&program->window));
    ASSERT_TRUE(waitFor([&] { return input->isVisible(); }));
    input->setFocus();
    QTest::keyClicks(input, "0.625");
    program->action("Save")->trigger();
    EXPECT_TRUE(contentOf(path).contains("opacity: 0.625"));
    EXPECT_TRUE(input->hasFocus());
    QTest::keyClick(input, Qt::Key_Backspace);
    WithDialog box(answer("Cancel"));
    EXPECT_FALSE(program->window.close());
    EXPECT_TRUE(box.hasCome());
}

TEST_F(Files, RecentOnesAreOfferedAndOpened)
{
    EXPECT_EQ(recentMenu()->actions().size(), 1);
    EXPECT_FALSE(recentMenu()->actions().first()->isEnabled());
    const QString path = openScene();
    ASSERT_TRUE(program->open(shipped("rainbow.ply")));
    const QList<QAction*> entries = recentMenu()->actions();
    ASSERT_GE(entries.size(), 3);
    EXPECT_EQ(entries[0]->data(), shipped("rainbow.ply"));
    EXPECT_EQ(entries[1]->data(), path);
    entries[1]->trigger();
    EXPECT_EQ(program->document().getPath(), path);
    recentMenu()->actions().last()->trigger();
    EXPECT_TRUE(program->window.getFiles().getRecent().list().isEmpty());
}

TEST_F(Files, AMissingRecentFileIsReportedAndRemoved)
{
    const QString path = openScene();
    ASSERT_TRUE(program->open(shipped("rainbow.ply")));
    QFile::remove(path);
    recentMenu()->actions()[1]->trigger();
    EXPECT_TRUE(program->told.last().contains(path)) << qPrintable(program->told.last());
    EXPECT_EQ(program->document().getTitle(), "rainbow.ply");
    EXPECT_FALSE(program->window.getFiles().getRecent().list().contains(path));
}

TEST_F(Files, UnattendedSessionsRememberNothing)
{
    program->notifier.setAttended(false);
    openScene();
    EXPECT_TRUE(program->window.getFiles().getRecent().list().isEmpty());
}

TEST_F(Files, ACrashLosesNothing)
{
    const QString path = openScene();
    program->window.enterInteractiveMode();
    program->edit("Planks", "opacity", "0.5");
    ASSERT_TRUE(waitUntilKept("opacity: 0.5"));
    program.reset(); // nobody agreed to drop the edits
    ASSERT_EQ(kept().size(), 1);

    program = std::make_unique<Program>();
    WithDialog box(answer("Recover"));
    program->window.enterInteractiveMode();
    EXPECT_TRUE(box.hasCome());
    EXPECT_TRUE(box.text().contains("scene.xsg")) << qPrintable(box.text());
    EXPECT_EQ(program->value("Planks", "opacity"), "0.5");
    EXPECT_EQ(program->document().getPath(), path);
    EXPECT_EQ(program->window.windowTitle(), "scene.xsg[*]");
    EXPECT_TRUE(program->window.isWindowModified());
    QCoreApplication::processEvents();
    EXPECT_EQ(kept().size(), 1) << "a second crash loses nothing either";
    program->action("Save")->trigger();
    EXPECT_TRUE(contentOf(path).contains("opacity: 0.5"));
    EXPECT_TRUE(program->window.close());
    program.reset();
    EXPECT_FALSE(QFileInfo::exists(home.filePath("scopix/recovery")));
}

TEST_F(Files, OffersDiscardedEditsOfACrashOnlyOnce)
{
    openScene();
    program->window.enterInteractiveMode();
    program->edit("Planks", "opacity", "0.5");
    ASSERT_TRUE(waitUntilKept("opacity: 0.5"));
    program.reset();
    program = std::make_unique<Program>();
    {
        WithDialog box(answer("Discard"));
        program->window.enterInteractiveMode();
        EXPECT_TRUE(box.hasCome());
    }
    EXPECT_FALSE(program->window.isWindowModified());
    EXPECT_FALSE(QFileInfo::exists(home.filePath("scopix/recovery")));
    program = std::make_unique<Program>();
    WithDialog none([](QDialog& dialog) { dialog.reject(); });
    program->window.enterInteractiveMode();
    EXPECT_FALSE(none.hasCome());
}

TEST_F(Files, DoesNotOfferTheFilesOfARunningSession)
{
    openScene();
    program->window.enterInteractiveMode();
    program->edit("Planks", "opacity", "0.5");
    ASSERT_TRUE(waitUntilKept("opacity: 0.5"));
    Program second;
    WithDialog none([](QDialog& dialog) { dialog.reject(); });
    second.window.enterInteractiveMode();
    EXPECT_FALSE(none.hasCome());
    EXPECT_TRUE(second.window.close());
    EXPECT_EQ(kept().size(), 1);
}

TEST_F(Files, ACleanEndLeavesNothing)
{
    openScene();
    program->window.enterInteractiveMode();
    program->edit("Planks", "opacity", "0.5");
    ASSERT_TRUE(waitUntilKept("opacity: 0.5"));
    WithDialog box(answer("Discard"));
    EXPECT_TRUE(program->window.close());
    program.reset();
    EXPECT_FALSE(QFileInfo::exists(home.filePath("scopix/recovery")));
}

TEST_F(Files, WithoutASessionNothingIsKept)
{
    openScene();
    program->edit("Planks", "opacity", "0.5");
    EXPECT_FALSE(program->window.getFiles().getAutosave().findChild<QTimer*>("pause")->isActive());
}

// The picture of the view, drawn from the same place.
QImage pictureOf(Program& program)
{
    program.window.getView().viewAll();
    const QString path =
        QDir::temp().filePath(QStringLiteral("scopix-%1.png").arg(QCoreApplication::applicationPid()));
    program.services.clearSelection();
    EXPECT_TRUE(program.window.saveScreenshot(path));
    QImage picture(path);
    QFile::remove(path);
    const SceneView& view = program.window.getView();
    return picture.copy(QRect(view.mapTo(&program.window, QPoint()), view.size()));
}

TEST_F(Files, AModelThatWasTunedLooksTheSameWhenSavedAndOpenedAgain)
{
    const std::pair<const char*, const char*> models[] = {{"crate.gltf", "Planks"},
                                                          {"lighthouse.glb", "RoofRed"}};
    for (const auto& [model, material] : models) {
        ASSERT_TRUE(program->open(shipped(model)));
        const QImage untuned = pictureOf(*program);
        program->edit(material, "baseColor", "[ 0.1 0.7 0.3 ]");
        const QImage before = pictureOf(*program);
        ASSERT_FALSE(before.isNull());
        EXPECT_NE(before, untuned);
        const QString path = home.filePath("tuned.xsg");
        ASSERT_TRUE(program->window.getFiles().saveTo(path));
        ASSERT_TRUE(program->open(shipped("rainbow.ply")));
        ASSERT_TRUE(program->open(path));
        EXPECT_EQ(pictureOf(*program), before) << model;
    }
}

} // namespace

TEST_F(Files, AreExportedByTheirEndingAndStayUnsaved)
{
    openScene();
    program->edit("Planks", "opacity", "0.5");
    ASSERT_TRUE(program->document().isModified());
    const QString path = home.filePath("crate.stl");
    QString text;
    WithDialog question([&](QDialog& dialog) {
        text = static_cast<QMessageBox&>(dialog).informativeText();
        answer("Export")(dialog);
    });
    EXPECT_FALSE(program->window.getFiles().saveTo(path));
    EXPECT_TRUE(question.hasCome());
    EXPECT_TRUE(text.contains("materials")) << text.toStdString();
    EXPECT_EQ(program->told.last(), QString::fromUtf8("Exported “%1”.").arg(path));
    EXPECT_TRUE(program->document().isModified());
    EXPECT_EQ(program->document().getPath(), home.filePath("scene.xsg"));
    EXPECT_TRUE(program->open(path));
}

TEST_F(Files, AreNotExportedWhereTheUserWouldRatherNot)
{
    openScene();
    const QString path = home.filePath("crate.stl");
    WithDialog question(answer("Cancel"));
    EXPECT_FALSE(program->window.getFiles().saveTo(path));
    EXPECT_TRUE(question.hasCome());
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(Files, AreExportedFromTheMenu)
{
    openScene();
    const QString path = home.filePath("out.ply");
    {
        FileAnswer file(path);
        QTimer later;
        QObject::connect(&later, &QTimer::timeout, [] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                answer("Export")(*box);
        });
        later.start(1);
        program->action("Export")->trigger();
        EXPECT_EQ(file.caption, "Export Scene");
    }
    EXPECT_TRUE(QFile::exists(path));
}

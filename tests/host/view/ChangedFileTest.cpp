// SPDX-License-Identifier: MIT
// A file that another program changes while it is open.
#include "services/HostServices.h"
#include "support/SetText.h"
#include "support/UserNotifier.h"
#include "viewport/SceneView.h"
#include "window/MainWindow.h"

#include <support/Waiting.h>

#include <xsg/core/SoField.h>
#include <xsg/sensors/SoSensorQueue.h>

using namespace scopix;

namespace
{

const QByteArray Scene = "#Xsg V1.0 utf8\nSeparator {\n Material \"Paint\" { transparency: 0.25 }\n"
                         " Separator {\n Translation {}\n Cube { width: 3 }\n }\n}\n";

QByteArray withTransparency(const QByteArray& value)
{
    return QByteArray(Scene).replace("0.25", value);
}

// Presses this button of the box as soon as it is there, by the keyboard.
class Answer : public QObject
{
public:
    explicit Answer(QString button)
        : m_button(std::move(button))
    {
        startTimer(1);
    }
    QString text;
    QString lost;

protected:
    void timerEvent(QTimerEvent* event) override
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        killTimer(event->timerId());
        text = box->text();
        lost = box->informativeText();
        for (QAbstractButton* each : box->buttons()) {
            if (each->text().remove('&') == m_button) {
                each->setFocus();
                return QTest::keyClick(each, Qt::Key_Space);
            }
        }
        ADD_FAILURE() << "no button " << qPrintable(m_button);
        box->reject();
    }

private:
    QString m_button;
};

// Types this name into the file dialog as soon as it is there, and presses Enter before the dialog, which
// looks into the folder meanwhile, proposes another one.
class TypedName : public QObject
{
public:
    explicit TypedName(QString name)
        : m_name(std::move(name))
    {
        startTimer(1);
    }

protected:
    void timerEvent(QTimerEvent* event) override
    {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        killTimer(event->timerId());
        auto* input = dialog->findChild<QLineEdit*>("fileNameEdit");
        input->selectAll();
        QTest::keyClicks(input, m_name);
        QTest::keyClick(input, Qt::Key_Return);
    }

private:
    QString m_name;
};

class ChangedFile : public testing::Test
{
protected:
    ChangedFile()
    {
        qputenv("XDG_CONFIG_HOME", home.filePath("config").toLocal8Bit());
        window = std::make_unique<MainWindow>(services, notifier);
        QObject::connect(&notifier, &UserNotifier::told, [this](const QString& text) { told << text; });
        write(Scene);
        window->openFile(path());
        window->show();
        window->enterInteractiveMode();
    }
    ~ChangedFile() override
    {
        notifier.setAttended(false);
        window->close();
        window.reset();
        qunsetenv("XDG_CONFIG_HOME");
    }
    QString path() const { return home.filePath("scene.xsg"); }
    // As editors do it: another file takes the name.
    void write(const QByteArray& content) const
    {
        QFile file(home.filePath("new"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        ASSERT_EQ(rename(file.fileName().toLocal8Bit(), path().toLocal8Bit()), 0);
    }
    QByteArray content() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void edit(const char* value)
    {
        ASSERT_TRUE(window->selectField("Paint", "transparency"));
        services.executeCommand(new SetText(services.selectedField(), value));
        SoSensorQueue::getInstance().process();
    }
    std::string transparency()
    {
        SbString text;
        if (window->selectField("Paint", "transparency"))
            services.selectedField()->get(text);
        return text.str();
    }
    void save() { window->getFiles().save(); }
    SceneDocument& document() { return window->getFiles().getDocument(); }
    QWidget& bar() { return *window->findChild<QWidget*>("reloadBar"); }
    bool waitForBar(bool isShown = true)
    {
        return waitFor([&] { return bar().isVisible() == isShown; });
    }
    bool waitForState(SceneDocument::FileState state)
    {
        return waitFor([&] { return document().getFileState() == state; });
    }
    void press(const char* button)
    {
        QTest::mouseClick(bar().findChild<QPushButton*>(button), Qt::LeftButton);
    }

    QTemporaryDir home;
    UserNotifier notifier;
    HostServices services;
    std::unique_ptr<MainWindow> window;
    QStringList told;
};

TEST_F(ChangedFile, IsReplacedOnlyWhenTheUserSaysSo)
{
    edit("0.5");
    write(withTransparency("0.75"));
    {
        Answer cancel("Cancel");
        save();
        EXPECT_TRUE(cancel.text.contains("scene.xsg")) << qPrintable(cancel.text);
        EXPECT_TRUE(cancel.lost.contains("yours")) << qPrintable(cancel.lost);
    }
    EXPECT_EQ(content(), withTransparency("0.75"));
    EXPECT_TRUE(document().isModified());
    {
        Answer replace("Replace");
        save();
        EXPECT_FALSE(replace.text.isEmpty());
    }
    EXPECT_TRUE(content().contains("transparency: 0.5"));
    EXPECT_FALSE(document().isModified());
    edit("0.125");
    save(); // its own file now: no question
    EXPECT_TRUE(content().contains("transparency: 0.125"));
}

TEST_F(ChangedFile, IsReloadedInsteadOfSaved)
{
    edit("0.5");
    write(withTransparency("0.75"));
    Answer reload("Reload");
    save();
    EXPECT_EQ(transparency(), "0.75");
    EXPECT_FALSE(document().isModified());
    EXPECT_EQ(content(), withTransparency("0.75"));
}

TEST_F(ChangedFile, CanBeLeftAndTheSceneSavedElsewhere)
{
    edit("0.5");
    write(withTransparency("0.75"));
    const QString other = home.filePath("other.xsg");
    Answer elsewhere("Save As…");
    TypedName name(other);
    save();
    EXPECT_EQ(content(), withTransparency("0.75"));
    EXPECT_EQ(document().getPath(), other);
    EXPECT_FALSE(document().isModified());
}

TEST_F(ChangedFile, IsNotReplacedWithoutAUser)
{
    edit("0.5");
    write(withTransparency("0.75"));
    notifier.setAttended(false);
    EXPECT_FALSE(window->getFiles().save());
    EXPECT_TRUE(told.last().contains(path())) << qPrintable(told.last());
    EXPECT_EQ(content(), withTransparency("0.75"));
}

TEST_F(ChangedFile, IsOfferedForReloadingWhileNothingIsEdited)
{
    EXPECT_FALSE(bar().isVisible());
    ASSERT_TRUE(window->selectField("Cube", "width"));
    write(withTransparency("0.75"));
    ASSERT_TRUE(waitForBar());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    press("reload");
    EXPECT_FALSE(bar().isVisible());
    ASSERT_TRUE(services.selectedField());
    EXPECT_EQ(services.selectedField()->getName(), SbName("width")) << "still selected";
    EXPECT_EQ(services.selectedNode(), services.selectedField()->getContainer());
    EXPECT_EQ(transparency(), "0.75");
    write(Scene);
    EXPECT_TRUE(waitForBar()) << "the next time, too";
}

TEST_F(ChangedFile, IsNoCauseToInterruptAnEdit)
{
    edit("0.5");
    write(withTransparency("0.75"));
    ASSERT_TRUE(waitForState(SceneDocument::FileState::Changed));
    EXPECT_FALSE(bar().isVisible());
    services.undoStack().undo();
    EXPECT_TRUE(bar().isVisible()) << "nothing is edited any more";
    services.undoStack().redo();
    EXPECT_FALSE(bar().isVisible());
}

TEST_F(ChangedFile, CanBeIgnored)
{
    write(withTransparency("0.75"));
    ASSERT_TRUE(waitForBar());
    press("ignore");
    EXPECT_FALSE(bar().isVisible());
    EXPECT_EQ(transparency(), "0.25");
    write(Scene);
    EXPECT_TRUE(waitForState(SceneDocument::FileState::AsOpened)) << "as it was";
    write(withTransparency("0.5"));
    EXPECT_TRUE(waitForBar());
}

TEST_F(ChangedFile, ThatCannotBeReadStaysAway)
{
    write("half of");
    ASSERT_TRUE(waitForBar());
    press("reload");
    EXPECT_EQ(transparency(), "0.25") << "what was open";
    EXPECT_TRUE(told.last().contains(path())) << qPrintable(told.last());
}

TEST_F(ChangedFile, ThatIsDeletedIsNamedSoAndWrittenAgain)
{
    QFile::remove(path());
    ASSERT_TRUE(waitForState(SceneDocument::FileState::Deleted));
    EXPECT_EQ(window->windowTitle(), "scene.xsg (deleted)[*]");
    EXPECT_FALSE(bar().isVisible());
    edit("0.5");
    save();
    EXPECT_TRUE(content().contains("transparency: 0.5"));
    EXPECT_EQ(window->windowTitle(), "scene.xsg[*]");
}

TEST_F(ChangedFile, IsNotOneThatWasSavedHere)
{
    for (const char* value : {"0.5", "0.625"}) {
        edit(value);
        save();
        QTest::qWait(0);
        EXPECT_EQ(document().checkFile(), SceneDocument::FileState::AsOpened);
        EXPECT_FALSE(bar().isVisible());
    }
}

// Where the place has another type, nothing is selected.
TEST_F(ChangedFile, SelectsWhatIsStillThere)
{
    ASSERT_TRUE(window->selectField("Paint", "transparency"));
    write("#Xsg V1.0 utf8\nSeparator {\n Cube {}\n Separator {\n Material \"Paint\" {}\n }\n}\n");
    window->getFiles().reload();
    ASSERT_TRUE(services.selectedField()) << "by its name, wherever it is";
    EXPECT_EQ(services.selectedNode()->getName(), SbName("Paint"));
    ASSERT_TRUE(window->selectField("Cube", "width"));
    write("#Xsg V1.0 utf8\nSeparator {\n Sphere {}\n}\n");
    window->getFiles().reload();
    EXPECT_EQ(services.selectedNode(), nullptr);
}

} // namespace

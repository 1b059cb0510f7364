// SPDX-License-Identifier: MIT
// What a new user does first, by real events in the installed program: opens a model of his own, changes a
// colour, undoes it, compares, saves and exports. The pictures are those of docs/tutorial.md; with
// SCOPIX_PICTURES=FOLDER they are written there.
#include <scopix-host/HostApplication.h>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <vector>

namespace
{

constexpr int Patience = 60000; // milliseconds, of which a good run takes few

QString text(const char* latin)
{
    return QString::fromLatin1(latin);
}

bool isOther(QRgb one, QRgb other)
{
    constexpr int Tolerance = 64;
    return std::abs(qRed(one) - qRed(other)) > Tolerance ||
           std::abs(qGreen(one) - qGreen(other)) > Tolerance ||
           std::abs(qBlue(one) - qBlue(other)) > Tolerance;
}

int countOthers(const QImage& one, const QImage& other)
{
    int others = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            others += isOther(one.pixel(x, y), other.pixel(x, y)) ? 1 : 0;
    return others;
}

// The page shows the window as it is now: what has moved or come in it differs in more than edges of letters.
void expectCurrent(const QImage& picture, const QString& name)
{
    constexpr int OthersInThousand = 5;
    const QImage shown(text(PICTURES "/") + name);
    ASSERT_EQ(shown.size(), picture.size()) << qPrintable(name);
    const int others = countOthers(picture, shown);
    EXPECT_LE(others * 1000, OthersInThousand * picture.width() * picture.height())
        << qPrintable(name) << ": " << others
        << " pixels differ from docs/pictures/tutorial; if the window is to "
        << "look so, make the pictures again as the end of docs/tutorial.md says";
}

/// Answers the next file dialog with a name, as typed, and what is asked before it ends with its default.
class Answer : public QObject
{
public:
    explicit Answer(QString path)
        : m_path(std::move(path))
    {
        startTimer(1);
    }
    bool isGiven() const { return m_isGiven; }

protected:
    void timerEvent(QTimerEvent* /*event*/) override
    {
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            QTest::keyClick(box, Qt::Key_Return);
        } else if (auto* dialog = qobject_cast<QFileDialog*>(modal); dialog && !m_isGiven) {
            m_isGiven = true;
            auto* name = dialog->findChild<QLineEdit*>(text("fileNameEdit"));
            name->selectAll();
            QTest::keyClicks(name, m_path);
            QTest::keyClick(name, Qt::Key_Return);
        }
    }

private:
    const QString m_path;
    bool m_isGiven = false;
};

class FirstSteps : public ::testing::Test
{
protected:
    FirstSteps()
    {
        for (const char* file : {"crate.gltf", "crate.bin", "crate.png"})
            QFile::copy(text(MODELS "/") + text(file), m_folder.filePath(text(file)));
        m_host.start();
        window = mainWindow();
        if (!window)
            return;
        window->resize(1200, 760);
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window, Patience));
    }

    static QMainWindow* mainWindow()
    {
        for (QWidget* each : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<QMainWindow*>(each))
                return found;
        return nullptr;
    }
    template <class Widget>
    Widget* find(const char* name) const
    {
        return window->findChild<Widget*>(text(name));
    }
    static bool comes(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, Patience); }
    void press(int key, Qt::KeyboardModifiers modifiers) const
    {
        window->activateWindow(); // which a dialog leaves to the window system
        EXPECT_TRUE(QTest::qWaitForWindowActive(window, Patience));
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : window, Qt::Key(key), modifiers);
    }
    // The entry of the menus whose text begins so.
    QAction* entry(const char* begin) const
    {
        for (QAction* each : window->findChildren<QAction*>())
            if (each->text().remove(QLatin1Char('&')).startsWith(text(begin)))
                return each;
        return nullptr;
    }
    // The panel's row of the field, where it is in view.
    QWidget* row(const char* field) const
    {
        for (auto* each : window->findChildren<QWidget*>(text("row")))
            if (each->isVisible() && each->accessibleName().startsWith(text(field) + QLatin1Char(',')))
                return each;
        return nullptr;
    }
    QLineEdit* redOf(const char* field) const
    {
        QWidget* found = row(field);
        return found ? found->findChild<QLineEdit*>(text("number0")) : nullptr;
    }
    int changeCount() const
    {
        auto* list = find<QAbstractItemView>("changesList");
        return list && list->isVisible() ? list->model()->rowCount() : 0;
    }
    void keep(const char* name) const
    {
        window->statusBar()->clearMessage(); // which names a folder of this machine
        QCoreApplication::processEvents();
        const QImage picture = window->grab().toImage();
        EXPECT_FALSE(picture.isNull());
        const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
        EXPECT_TRUE(folder.isEmpty() || picture.save(folder + QLatin1Char('/') + text(name) + text(".png")));
        expectCurrent(picture, text(name) + text(".png"));
    }
    QString inFolder(const char* name) const { return m_folder.filePath(text(name)); }

    void open();
    void changeAColour();
    void undoAndRedo();
    void compare();
    void save();
    void exportIt();

    QMainWindow* window = nullptr;

private:
    QTemporaryDir m_folder;
    scopix::HostApplication m_host;
};

void FirstSteps::open()
{
    auto* page = find<QWidget>("startPage");
    ASSERT_TRUE(page && comes([&] { return page->isVisible(); }));
    const Answer answer(inFolder("crate.gltf"));
    press(Qt::Key_O, Qt::ControlModifier);
    ASSERT_TRUE(comes([&] { return window->windowTitle().startsWith(text("crate.gltf")); }));
    EXPECT_TRUE(answer.isGiven());
    EXPECT_FALSE(page->isVisible());
    keep("open");
}

void FirstSteps::changeAColour()
{
    auto* view = find<QWidget>("sceneView");
    QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, view->rect().center());
    auto* tree = find<QTreeView>("sceneTree");
    ASSERT_TRUE(comes([&] { return tree->currentIndex().data().toString() == text("CrateBox"); }));
    tree->expand(tree->currentIndex());
    const QModelIndex material = tree->model()->index(0, 0, tree->currentIndex());
    EXPECT_EQ(material.data().toString(), text("Planks"));
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, tree->visualRect(material).center());
    ASSERT_TRUE(comes([&] { return redOf("baseColor") != nullptr; }));
    QLineEdit* red = redOf("baseColor");
    QTest::mouseClick(red, Qt::LeftButton);
    red->selectAll();
    QTest::keyClicks(red, text("0.1"));
    QTest::keyClick(red, Qt::Key_Return);
    EXPECT_TRUE(comes([&] { return window->isWindowModified(); }));
    keep("tune");
}

void FirstSteps::undoAndRedo()
{
    find<QWidget>("sceneView")->setFocus();
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(comes([&] { return !window->isWindowModified(); }));
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(comes([&] { return window->isWindowModified(); }));
}

void FirstSteps::compare()
{
    const Answer answer(inFolder("crate.gltf"));
    ASSERT_TRUE(entry("Compare With") && entry("Back to What You Changed"));
    EXPECT_FALSE(entry("Back to What You Changed")->isVisible());
    entry("Compare With")->trigger();
    ASSERT_TRUE(comes([&] { return answer.isGiven() && entry("Back to What You Changed")->isVisible(); }));
    ASSERT_TRUE(comes([&] { return changeCount() > 0 && !QApplication::activeModalWidget(); }));
    keep("compare");
}

void FirstSteps::save()
{
    find<QWidget>("sceneView")->setFocus();
    const Answer answer(inFolder("mine.xsg"));
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(comes([&] { return !window->isWindowModified(); }));
    EXPECT_TRUE(QFileInfo::exists(inFolder("mine.xsg")));
    EXPECT_TRUE(window->windowTitle().startsWith(text("mine.xsg")));
}

void FirstSteps::exportIt()
{
    const Answer answer(inFolder("mine.glb"));
    press(Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(comes([&] { return QFileInfo::exists(inFolder("mine.glb")); }));
    keep("save");
}

TEST_F(FirstSteps, FromOpeningAModelToExportingIt)
{
    ASSERT_TRUE(window);
    const std::vector<std::function<void()>> steps{[this] { open(); },        [this] { changeAColour(); },
                                                   [this] { undoAndRedo(); }, [this] { compare(); },
                                                   [this] { save(); },        [this] { exportIt(); }};
    for (const auto& step : steps) {
        step();
        ASSERT_FALSE(HasFatalFailure());
    }
    // What was written is good for the program that is started next.
    EXPECT_EQ(QProcess::execute(text(SCOPIX_PROGRAM), {text("check"), inFolder("mine.glb")}), 0);
    QProcess find;
    find.start(text(SCOPIX_PROGRAM), {text("diff"), inFolder("crate.gltf"), inFolder("mine.xsg")});
    ASSERT_TRUE(find.waitForFinished(Patience));
    const QByteArray said = find.readAllStandardOutput();
    EXPECT_TRUE(said.contains("Color")) << said.toStdString();
}

} // namespace

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        qputenv(variable, home.path().toLocal8Bit());
    QApplication application(argc, argv);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setApplicationName(QStringLiteral("scopix"));
    return RUN_ALL_TESTS();
}

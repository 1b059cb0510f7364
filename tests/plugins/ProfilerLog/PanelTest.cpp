// SPDX-License-Identifier: MIT
// The dock "Log" in the real host, used as a user does. SCOPIX_PICTURES=FOLDER keeps its pictures.
#include "app/HostSession.h"
#include "theme/Theme.h"
#include "window/MainWindow.h"

#include <support/Session.h>
#include <support/Waiting.h>

#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoReadError.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoSphere.h>

#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QScrollBar>
#include <QSettings>
#include <QSpinBox>
#include <QToolButton>
#include <QTranslator>

#include <iostream>

namespace
{

class LogWidget : public testing::Test
{
protected:
    LogWidget()
        : session(([this] {
            qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
            return [](HostServices& services, UserNotifier& notifier) {
                return std::make_unique<MainWindow>(services, notifier);
            };
        })())
    {
        EXPECT_TRUE(session.host.plugins().loadPlugin(QStringLiteral(PROFILER_FILE)));
        window().resize(1400, 800);
        root->addChild(lamp);
        lamp->setName("Lamp");
        lamp->addChild(bulb);
        window().setScene(root.get(), "test");
        session.settle();
        dock = session.dock("Log");
        EXPECT_TRUE(dock && dock->isVisible());
        dock->raise();
        lines = dock->findChild<QListView*>("logLines");
        clear();
    }
    ~LogWidget() override
    {
        window().setScene(nullptr, "none");
        session.host.services().clearSelection();
        qunsetenv("XDG_CONFIG_HOME");
    }
    MainWindow& window() { return static_cast<MainWindow&>(session.host.window()); }
    template <class Widget>
    Widget* part(const char* name)
    {
        return dock->findChild<Widget*>(name);
    }
    void clear() { dock->findChild<QAction*>("logClear")->trigger(); }
    QStringList rows()
    {
        QStringList all;
        for (int row = 0; row < lines->model()->rowCount(); ++row)
            all += lines->model()->index(row, 0).data().toString();
        return all;
    }
    bool shows(const QStringList& wanted)
    {
        return waitFor([&] { return rows() == wanted; }) || (qWarning() << rows(), false);
    }
    void type(const char* input, const QString& text)
    {
        part<QLineEdit>(input)->setFocus();
        part<QLineEdit>(input)->clear();
        QTest::keyClicks(part<QLineEdit>(input), text);
    }
    QString current() { return lines->currentIndex().data().toString(); }
    QToolButton* badge() { return window().findChild<QToolButton*>("logBadge"); }
    void activate(int row)
    {
        lines->setCurrentIndex(lines->model()->index(row, 0));
        QTest::keyClick(lines, Qt::Key_Return);
        session.settle();
    }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(lines->viewport(), Qt::LeftButton, modifiers,
                          lines->visualRect(lines->model()->index(row, 0)).center());
    }

    QTemporaryDir settings;
    Session session;
    SoRef<SoSeparator> root{new SoSeparator};
    SoSeparator* lamp = new SoSeparator;
    SoSphere* bulb = new SoSphere;
    QDockWidget* dock = nullptr;
    QListView* lines = nullptr;
};

} // namespace

TEST_F(LogWidget, FiltersWithTheKeyboardAndComesBackToAllLines)
{
    std::cout << "loading\nwarn: shader\nwarn: picture\n";
    ASSERT_TRUE(shows({"loading", "warn: shader", "warn: picture"}));
    type("logFilter", "warn -shader");
    ASSERT_TRUE(shows({"warn: picture"}));
    EXPECT_TRUE(waitFor([&] { return part<QLabel>("logCounts")->text() == "1 of 3 lines"; }));
    QTest::keyClick(part<QLineEdit>("logFilter"), Qt::Key_Down);
    EXPECT_TRUE(lines->hasFocus());
    part<QSpinBox>("logContext")->setValue(1);
    ASSERT_TRUE(shows({"warn: shader", "warn: picture"}));
    part<QLineEdit>("logFilter")->clear();
    ASSERT_TRUE(shows({"loading", "warn: shader", "warn: picture"}));
}

TEST_F(LogWidget, FindsWithCtrlFWhereTheLogHasTheFocus)
{
    std::cout << "a red\nb\nc Red\nd\n";
    ASSERT_TRUE(shows({"a red", "b", "c Red", "d"}));
    lines->setFocus();
    QTest::keyClick(lines, Qt::Key_F, Qt::ControlModifier);
    auto* wanted = part<QLineEdit>("logFind");
    ASSERT_TRUE(wanted->hasFocus());
    QTest::keyClicks(wanted, "red");
    EXPECT_TRUE(waitFor([&] { return current() == "a red"; }));
    QTest::keyClick(wanted, Qt::Key_Return);
    EXPECT_TRUE(waitFor([&] { return current() == "c Red"; }));
    EXPECT_EQ(part<QLabel>("logFound")->text(), "2 of 2");
    QTest::keyClick(wanted, Qt::Key_Return);
    EXPECT_EQ(current(), "a red");
    QTest::keyClick(wanted, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(current(), "c Red");
    QTest::keyClicks(wanted, "x");
    EXPECT_TRUE(waitFor([&] { return part<QLabel>("logFound")->text() == "not found"; }));
    QTest::keyClick(wanted, Qt::Key_Escape);
    EXPECT_FALSE(wanted->isVisible());
    EXPECT_TRUE(lines->hasFocus());
}

TEST_F(LogWidget, CopiesTheSelectedLines)
{
    std::cout << "one\ntwo\tparts\nthree\nfour\n";
    ASSERT_TRUE(shows({"one", "two    parts", "three", "four"}));
    clickRow(1);
    clickRow(3, Qt::ControlModifier);
    QTest::keyClick(lines, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "two\tparts\nfour\n");
    clickRow(0);
    QTest::keyClick(lines, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(lines, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "one\ntwo\tparts\n");
    QTest::keyClick(lines, Qt::Key_End);
    EXPECT_EQ(current(), "four");
    QTest::keyClick(lines, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(lines->selectionModel()->selectedRows().size(), 4);
}

TEST_F(LogWidget, GoesToTheNodeTheFieldOrTheFileThatALineNames)
{
    const QString file = settings.filePath("other scene.xsg");
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write("#Xsg V1.0 utf8\nSeparator \"Other\" {\n}\n");
    out.close();
    std::cout << "the node Lamp is dark\nsee /Lamp/Sphere.radius, too large\nnothing here\n";
    std::cout << "“" + file.toStdString() + "”:2 is odd\n";
    ASSERT_TRUE(waitFor([&] { return rows().size() == 4; }));
    activate(0);
    EXPECT_EQ(session.host.services().selectedNode(), lamp);
    activate(1);
    EXPECT_EQ(session.host.services().selectedField(), &bulb->radius);
    activate(2);
    EXPECT_EQ(session.host.services().selectedField(), &bulb->radius);
    EXPECT_EQ(part<QLabel>("logCounts")->text(),
              "This line names no node of the scene and no file that there is.");
    bool isOpen = false;
    QObject::connect(&window(), &HostWindow::openFinished, [&](bool opened) { isOpen = opened; });
    activate(3);
    EXPECT_TRUE(waitFor([&] { return isOpen; })) << qPrintable(rows().last());
}

TEST_F(LogWidget, ABadgeCountsErrorsNamesTheFirstAndLeadsToIt)
{
    ASSERT_TRUE(badge());
    EXPECT_FALSE(badge()->isVisible());
    std::cout << "quiet\n";
    SoReadError::post("file.xsg", 3, "the <first> & worst");
    std::cerr << "another\n";
    ASSERT_TRUE(waitFor([&] { return badge()->isVisible() && rows().size() == 3; }));
    EXPECT_TRUE(badge()->text().startsWith("2 errors: ")) << qPrintable(badge()->text());
    EXPECT_TRUE(badge()->toolTip().contains("&lt;first&gt;")) << qPrintable(badge()->toolTip());
    type("logFilter", "quiet");
    ASSERT_TRUE(shows({"quiet"}));
    QTest::mouseClick(badge(), Qt::LeftButton);
    EXPECT_TRUE(waitFor([&] { return current().contains("<first>"); })) << qPrintable(current());
    EXPECT_FALSE(badge()->isVisible());
    EXPECT_FALSE(dock->visibleRegion().isEmpty());
}

TEST_F(LogWidget, TellsErrorsInTheUsersLanguage)
{
    class Loud : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char* context, const char* text, const char*, int) const override
        {
            return qstrcmp(context, "Sentence") == 0 ? QString::fromUtf8(text).toUpper() : QString();
        }
    };
    Loud language;
    QCoreApplication::installTranslator(&language);
    SoReadError::post("file.xsg", 3, 4, SbSentence("%1 is no number.", "wide"));
    SoReadError::post("file.xsg", 3, "as the program has it");
    QCoreApplication::removeTranslator(&language);
    EXPECT_TRUE(shows({"file.xsg:3: COLUMN 4: wide IS NO NUMBER.", "file.xsg:3: as the program has it"}));
}

TEST_F(LogWidget, StaysAtTheEndUnlessTheUserLooksElsewhere)
{
    const auto writeMany = [&](int rowsNow) {
        for (int i = 0; i < 500; ++i)
            std::cout << "line " + std::to_string(rowsNow + i) + '\n';
        ASSERT_TRUE(waitFor([&] { return rows().size() == rowsNow + 500; }));
    };
    QScrollBar* bar = lines->verticalScrollBar();
    writeMany(0);
    EXPECT_EQ(bar->value(), bar->maximum());
    EXPECT_GT(bar->maximum(), 400);
    bar->setValue(100);
    writeMany(500);
    EXPECT_EQ(bar->value(), 100);
    bar->setValue(bar->maximum());
    writeMany(1000);
    EXPECT_EQ(bar->value(), bar->maximum());
}

TEST_F(LogWidget, EveryPartHasANameAndIsReachedByTab)
{
    part<QListView>("logLines")->setFocus();
    QTest::keyClick(lines, Qt::Key_F, Qt::ControlModifier);
    for (auto* each : dock->widget()->findChildren<QWidget*>()) {
        const bool isInput = each->isVisible() && each->focusPolicy() & Qt::TabFocus && !each->focusProxy();
        if (!isInput)
            continue;
        QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(each);
        ASSERT_TRUE(seen);
        EXPECT_FALSE(seen->text(QAccessible::Name).isEmpty()) << qPrintable(each->objectName());
    }
    std::cerr << "read aloud\n";
    ASSERT_TRUE(shows({"read aloud"}));
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(lines);
    ASSERT_EQ(list->childCount(), 1);
    EXPECT_EQ(list->child(0)->text(QAccessible::Name), "error: read aloud");
}

// A row's text is drawn whole at each size of the font, in colours that stand out.
TEST_F(LogWidget, IsLegibleLargeAndSmallOnBothPalettes)
{
    const QByteArray folder = qgetenv("SCOPIX_PICTURES");
    const QFont before = QApplication::font();
    for (const auto& [theme, name] : {std::pair(Theme::Light, "light"), std::pair(Theme::Dark, "dark")}) {
        applyTheme(window(), theme);
        for (const int percent : {100, 200, 300}) {
            clear();
            QFont font = before;
            font.setPointSizeF(before.pointSizeF() * percent / 100);
            QApplication::setFont(font);
            std::cout << "frame 1: 1204 nodes drawn in 16.6 ms\n";
            for (int i = 0; i < 12; ++i)
                SoDebugError::postWarning("SoTexture2", "\"tiles.png\" is larger than 8192 pixels");
            std::cerr << "no connection to the tracker, trying again\n";
            SoReadError::post("harbour.xsg", 12, "\"SpereSet\" is no kind of node");
            SoDebugError::postInfo("SoSeparator", "1204 boxes are cached");
            ASSERT_TRUE(waitFor([&] { return rows().size() == 5; }));
            session.settle();
            for (int row = 0; row < 5; ++row) {
                const QRect place = lines->visualRect(lines->model()->index(row, 0));
                EXPECT_GE(place.height(), lines->fontMetrics().height());
            }
            window().resizeDocks({dock}, {260}, Qt::Vertical);
            session.settle();
            lines->scrollToBottom();
            const QImage bottom = lines->viewport()->grab().toImage();
            const int ground = qGray(bottom.pixel(bottom.width() - 2, bottom.height() - 2));
            for (int row = 0; row < 5; ++row) {
                lines->scrollTo(lines->model()->index(row, 0)); // a small screen has no room for all of them
                const QImage image = lines->viewport()->grab().toImage();
                const QRect place = lines->visualRect(lines->model()->index(row, 0)) & image.rect();
                int contrast = 0;
                for (int y = place.top(); y < place.bottom(); ++y) {
                    for (int x = place.left(); x < place.right(); ++x)
                        contrast = std::max(contrast, std::abs(qGray(image.pixel(x, y)) - ground));
                }
                EXPECT_GT(contrast, 100) << name << ' ' << percent << ' ' << row;
            }
            if (!folder.isEmpty() && percent == 100) {
                EXPECT_TRUE(dock->grab().save(QString::fromLocal8Bit(folder + "/log-" + name + ".png")));
            }
        }
    }
    QApplication::setFont(before);
}

TEST_F(LogWidget, RemembersTimeAndThreadAndFolding)
{
    dock->findChild<QAction*>("logTime")->trigger();
    dock->findChild<QAction*>("logFold2")->trigger();
    std::cout << "a\nb\na\n";
    ASSERT_TRUE(waitFor([&] { return rows().size() == 2; }));
    EXPECT_TRUE(rows().first().contains(':'));
    QSettings file(settings.filePath("scopix/profiler.ini"), QSettings::IniFormat);
    EXPECT_TRUE(file.value("log/time").toBool());
    EXPECT_EQ(file.value("log/fold").toInt(), 2);
}

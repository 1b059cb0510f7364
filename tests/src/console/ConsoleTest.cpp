// SPDX-License-Identifier: MIT
#include "ConsoleFixture.h"
#include "support/FileAnswer.h"

#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoErrorStack.h>
#include <xsg/errors/SoGLError.h>
#include <xsg/errors/SoMemoryError.h>
#include <xsg/errors/SoReadError.h>

#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>

#include <sys/stat.h>

namespace
{

using Log = TestHost::Log;

const QColor Red(Qt::darkRed);
const QColor Green(Qt::darkGreen);
const QColor Yellow(Qt::darkYellow);

void ignoreError(const SoError*, void*) {}

QByteArray contentOf(const QString& name)
{
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void fill(const QString& name, const QByteArray& content)
{
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

class Console : public ConsoleFixture
{
protected:
    // How many of the shown pixels are so.
    template <class Predicate>
    int pixels(Predicate isSo)
    {
        const QImage image = output().viewport()->grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += isSo(image.pixelColor(x, y));
        return count;
    }
};

} // namespace

TEST_F(Console, HasItsNames)
{
    EXPECT_EQ(m_console.getName(), "Console");
    EXPECT_EQ(m_console.getDescription(), "A console which prints the standard output and error.");
    EXPECT_EQ(m_console.getVendor(), "Arvex");
    EXPECT_EQ(m_console.getVersion(), "1.0.0");
}

TEST_F(Console, AttachesBeforeTheBaseAndDocksAtTheBottom)
{
    m_console.load();
    std::vector<std::string> order;
    QObject::connect(&m_console, &SpxExtension::activeChanged, [&](bool active) {
        order.push_back((active ? "active after " : "inactive after ") + std::to_string(m_host.log().size()));
    });
    QObject::connect(&m_console, &SpxExtension::shownChanged, [&](bool shown) {
        order.push_back((shown ? "shown after " : "hidden after ") + std::to_string(m_host.log().size()));
    });
    m_console.activate();
    EXPECT_EQ(m_host.takeLog(), (Log{"attachExtension \"Console\" true", "addDockWidget \"Console\" 8"}));
    EXPECT_EQ(order, (Log{"active after 1", "shown after 2"}));
    order.clear();
    m_console.deactivate();
    EXPECT_EQ(m_host.takeLog(), (Log{"removeDockWidget \"Console\"", "detachExtension \"Console\""}));
    EXPECT_EQ(order, (Log{"inactive after 0", "hidden after 1"}));
    m_console.unload();
}

TEST_F(Console, GivesItsTextAllTheRoomThatTheButtonsLeave)
{
    start();
    auto* dock = m_host.window().findChild<QDockWidget*>();
    EXPECT_EQ(dock->windowTitle(), "Console");
    EXPECT_EQ(m_host.window().dockWidgetArea(dock), Qt::BottomDockWidgetArea);
    EXPECT_TRUE(output().isReadOnly());
    const QSize text = output().size();
    const QSize button = this->button("m_errorsButton").size();
    m_host.window().resize(m_host.window().size() + QSize(300, 100));
    QCoreApplication::processEvents();
    EXPECT_EQ(output().size(), text + QSize(300, 100));
    EXPECT_EQ(this->button("m_errorsButton").size(), button);
}

TEST_F(Console, SaysWhatEachButtonDoes)
{
    start();
    const struct {
        const char* name;
        const char* toolTip;
        bool checkable;
    } buttons[] = {{"m_errorsButton", "Displays errors", true},
                   {"m_warningsButton", "Displays warnings", true},
                   {"m_infosButton", "Displays informations", true},
                   {"m_clearButton", "Clears the console", false},
                   {"m_saveButton", "Saves the content of the console", false}};
    for (const auto& expected : buttons) {
        const QPushButton& shown = button(expected.name);
        EXPECT_EQ(shown.toolTip(), expected.toolTip);
        EXPECT_EQ(shown.isCheckable(), expected.checkable) << expected.name;
        EXPECT_EQ(shown.isChecked(), expected.checkable) << expected.name;
        EXPECT_TRUE(shown.text().isEmpty()) << expected.name;
        EXPECT_TRUE(shown.isVisible()) << expected.name;
        EXPECT_FALSE(shown.icon().isNull()) << expected.name;
        EXPECT_EQ(shown.icon().availableSizes().value(0), shown.iconSize()) << expected.name;
    }
    // One image for each pixel density, none scaled.
    for (const char* icon : {"errors", "infos", "warnings", "save", "clear"}) {
        const QString name = QString(":/console_icons/Icons/%1%2.png").arg(icon);
        EXPECT_EQ(QImage(name.arg("")).width(), 24) << icon;
        EXPECT_EQ(QImage(name.arg("@2x")).width(), 48) << icon;
        EXPECT_EQ(QImage(name.arg("@3x")).width(), 72) << icon;
    }
}

TEST_F(Console, PrintsAStringAndTheEndOfItsLineApart)
{
    start();
    std::cout << "hello" << std::endl;
    EXPECT_EQ(lines(), (QStringList{"hello", ""}));
    EXPECT_EQ(colorOf(output().document()->firstBlock()), Green);
}

TEST_F(Console, CollectsSingleCharactersUntilTheNewline)
{
    start();
    for (const char c : std::string("abc"))
        std::cerr << c;
    EXPECT_EQ(text(), "");
    std::cerr << '\n';
    EXPECT_EQ(text(), "abc");
    EXPECT_EQ(colorOf(output().document()->firstBlock()), Red);
}

TEST_F(Console, PrintsABlockWithNewlinesInOnePiece)
{
    start();
    int changes = 0;
    QObject::connect(&output(), &QTextEdit::textChanged, [&] { ++changes; });
    std::cout << "one\ntwo\nthree";
    EXPECT_EQ(lines(), (QStringList{"one", "two", "three"}));
    EXPECT_EQ(changes, 1);
}

TEST_F(Console, ReadsWhatEndsWithoutNul)
{
    start();
    std::cout << 42;
    std::cout << 12345678 << 'x' << 1.5 << '\n';
    // Numbers are blocks; the character waits for its newline.
    EXPECT_EQ(lines(), (QStringList{"42", "12345678", "1.5", "x"}));
}

TEST_F(Console, ReadsABlockUpToItsFirstNul)
{
    start();
    std::cout.write("before\0after", 12);
    EXPECT_EQ(text(), "before");
    std::cout << 'a' << '\0' << 'b' << '\n';
    EXPECT_EQ(lines(), (QStringList{"before", "a"}));
}

TEST_F(Console, ShowsPlainTextNeverMarkup)
{
    start();
    std::cout << "a < b and <b>c</b> > d &amp;";
    EXPECT_EQ(text(), "a < b and <b>c</b> > d &amp;");
    EXPECT_EQ(colorOf(output().document()->firstBlock()), Green);
}

TEST_F(Console, ColoursByKind)
{
    start();
    m_console.printError("e");
    EXPECT_EQ(output().textColor(), Red);
    m_console.printWarning("w");
    m_console.printInfo("i");
    EXPECT_EQ(output().textColor(), Green);
    const QTextDocument& document = *output().document();
    EXPECT_EQ(lines(), (QStringList{"e", "w", "i"}));
    EXPECT_EQ(colorOf(document.findBlockByNumber(0)), Red);
    EXPECT_EQ(colorOf(document.findBlockByNumber(1)), Yellow);
    EXPECT_EQ(colorOf(document.findBlockByNumber(2)), Green);
}

TEST_F(Console, SwitchingErrorsOffAndOnPrintsNewErrorsOnly)
{
    start();
    std::cerr << "first";
    click("m_errorsButton");
    std::cerr << "dropped";
    std::cout << "info";
    click("m_errorsButton");
    std::cerr << "second";
    EXPECT_EQ(lines(), (QStringList{"first", "info", "second"}));
}

TEST_F(Console, EachToggleInvertsItsOwnKind)
{
    start();
    click("m_infosButton");
    click("m_warningsButton");
    m_console.printInfo("i");
    m_console.printWarning("w");
    m_console.printError("e");
    EXPECT_EQ(text(), "e");
    // The button's state is not looked at.
    m_console.outputInfos();
    m_console.printInfo("i");
    m_console.outputWarnings();
    m_console.printWarning("w");
    EXPECT_EQ(lines(), (QStringList{"e", "i", "w"}));
    EXPECT_FALSE(button("m_infosButton").isChecked());
}

TEST_F(Console, LoadingAgainShowsAllKinds)
{
    start();
    click("m_errorsButton");
    m_host.stop(m_console);
    start();
    std::cerr << "shown";
    EXPECT_EQ(text(), "shown");
}

TEST_F(Console, Clears)
{
    holdLines(2);
    start();
    std::cout << "a\nb\nc";
    click("m_clearButton");
    EXPECT_EQ(text(), "");
    std::cerr << "d\ne\nf";
    // Still as many lines as before.
    EXPECT_EQ(lines(), (QStringList{"e", "f"}));
    EXPECT_EQ(colorOf(output().document()->firstBlock()), Red);
}

TEST_F(Console, ShowsSceneGraphErrorsFromTheEventLoop)
{
    start();
    SoDebugError::postInfo("here", "just so");
    EXPECT_EQ(text(), "");
    m_host.pump();
    SoDebugError::postWarning("here", "careful");
    SoDebugError::post("here", "wrong");
    SoError::post("plain");
    SoReadError::post("file", 3, "odd");
    SoMemoryError::post("a texture", 7);
    SoGLError::post(0x0500, "glBegin");
    SoErrorStack::Builder stack;
    stack.add("cause");
    stack.post();
    m_host.pump();
    const QColor expected[] = {Green, Yellow, Red, Red, Red, Red, Red, Red};
    ASSERT_EQ(output().document()->blockCount(), 8) << text().toStdString();
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(colorOf(output().document()->findBlockByNumber(i)), expected[i]) << i;
    EXPECT_TRUE(lines()[0].contains("just so"));
    EXPECT_TRUE(lines()[7].contains("cause"));
}

TEST_F(Console, ShowsErrorsInUtf8OrElseByteByByte)
{
    start();
    SoError::post("\xE2\x80\x9C\xC3\xA9\xE2\x80\x9D");
    SoError::post("caf\xE9");
    m_host.pump();
    EXPECT_EQ(lines(), (QStringList{QString::fromUtf8("“é”"), QString::fromUtf8("café")}));
}

TEST_F(Console, TakesErrorsWhileInactive)
{
    start();
    m_console.deactivate();
    SoError::post("unseen");
    m_host.pump();
    m_console.activate();
    EXPECT_TRUE(text().contains("unseen"));
}

TEST_F(Console, PutsTheHandlersBack)
{
    int mine = 0;
    SoErrorCB* const before = SoReadError::getHandlerCallback();
    void* const dataBefore = SoReadError::getHandlerData();
    SoReadError::setHandlerCallback(ignoreError, &mine);
    SoErrorCB* const glBefore = SoGLError::getHandlerCallback();
    m_console.load();
    EXPECT_EQ(SoReadError::getHandlerCallback(), &SpxConsole::errorHandlerCB);
    EXPECT_EQ(SoReadError::getHandlerData(), &m_console);
    for (auto* get :
         {&SoDebugError::getHandlerCallback, &SoError::getHandlerCallback, &SoErrorStack::getHandlerCallback,
          &SoGLError::getHandlerCallback, &SoMemoryError::getHandlerCallback})
        EXPECT_EQ(get(), &SpxConsole::errorHandlerCB);
    m_console.unload();
    EXPECT_EQ(SoReadError::getHandlerCallback(), &ignoreError);
    EXPECT_EQ(SoReadError::getHandlerData(), &mine);
    EXPECT_EQ(SoGLError::getHandlerCallback(), glBefore);
    SoReadError::setHandlerCallback(before, dataBefore);
}

TEST_F(Console, GivesTheStreamsBack)
{
    start();
    EXPECT_NE(std::cout.rdbuf(), m_cout.buffer());
    EXPECT_NE(std::cerr.rdbuf(), m_cerr.buffer());
    m_console.deactivate();
    EXPECT_EQ(std::cout.rdbuf(), m_cout.buffer());
    EXPECT_EQ(std::cerr.rdbuf(), m_cerr.buffer());
    std::cout << "out" << std::endl;
    std::cerr << "err";
    EXPECT_EQ(m_cout.text(), "out\n");
    EXPECT_EQ(m_cerr.text(), "err");
    EXPECT_EQ(text(), "");
}

TEST_F(Console, HandsOverAnUnfinishedLineWhenDeactivated)
{
    start();
    std::cout << 'a' << 'b';
    m_console.deactivate();
    EXPECT_EQ(text(), "ab");
    EXPECT_EQ(m_cout.text(), "");
}

TEST_F(Console, TakesOnlyItsOwnEvents)
{
    start();
    QEvent stranger(QEvent::Type(1000));
    EXPECT_TRUE(QCoreApplication::sendEvent(&m_console, &stranger));
    EXPECT_EQ(text(), "");
    SpxConsole::ConsoleEvent own({"mine", ConsoleMessage::Warning});
    EXPECT_EQ(int(own.type()), 1000);
    EXPECT_TRUE(QCoreApplication::sendEvent(&m_console, &own));
    EXPECT_EQ(text(), "mine");
    EXPECT_EQ(colorOf(output().document()->firstBlock()), Yellow);
}

TEST_F(Console, IsShownAndHidden)
{
    start();
    auto* dock = m_host.window().findChild<QDockWidget*>();
    m_console.hide();
    EXPECT_FALSE(dock->isVisible());
    EXPECT_FALSE(dock->widget()->isVisible());
    m_console.show();
    EXPECT_TRUE(dock->isVisible());
    EXPECT_TRUE(dock->widget()->isVisible());
}

TEST_F(Console, LeavesTheSelectionAlone)
{
    start();
    std::cout << "first line";
    output().selectAll();
    std::cerr << "second line";
    EXPECT_EQ(output().textCursor().selectedText(), "first line");
    EXPECT_EQ(colorOf(output().document()->firstBlock()), Green);
    click("m_clearButton");
    std::cout << "third";
    output().selectAll();
    std::cout << "fourth";
    EXPECT_EQ(output().textCursor().selectedText(), "third");
}

TEST_F(Console, SelectsWhatTheMouseIsDraggedOver)
{
    start();
    std::cout << "first line\nsecond line";
    m_host.pump();
    QWidget* view = output().viewport();
    const QRect rect =
        output().document()->documentLayout()->blockBoundingRect(output().document()->lastBlock()).toRect();
    QTest::mousePress(view, Qt::LeftButton, {}, {0, rect.center().y()});
    QMouseEvent move(QEvent::MouseMove, QPoint(view->width() - 1, rect.center().y()), Qt::NoButton,
                     Qt::LeftButton, {});
    QCoreApplication::sendEvent(view, &move);
    QTest::mouseRelease(view, Qt::LeftButton, {}, {view->width() - 1, rect.center().y()});
    EXPECT_EQ(output().textCursor().selectedText(), "second line");
}

TEST_F(Console, PaintsItsLinesInTheirColours)
{
    start();
    std::cerr << "XXXXXXXXXX";
    std::cout << "XXXXXXXXXX";
    m_host.pump();
    EXPECT_GT(pixels([](const QColor& c) { return c.red() > c.green() + 60; }), 20);
    EXPECT_GT(pixels([](const QColor& c) { return c.green() > c.red() + 60; }), 20);
}

TEST_F(Console, PaintsItsColoursLightOnADarkBackground)
{
    start();
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(32, 34, 36));
    dark.setColor(QPalette::Highlight, Qt::blue);
    dark.setColor(QPalette::HighlightedText, Qt::white);
    output().setPalette(dark);
    std::cerr << "XXXXXXXXXX";
    std::cout << "XXXXXXXXXX";
    m_host.pump();
    const auto isLightRed = [](const QColor& c) { return c.red() > 200 && c.green() < 150; };
    const auto isLightGreen = [](const QColor& c) { return c.green() > 200 && c.red() < 150; };
    EXPECT_GT(pixels(isLightRed), 20);
    EXPECT_GT(pixels(isLightGreen), 20);
    // Of the text itself nothing changes, and a selection looks like any other.
    EXPECT_EQ(colorOf(output().document()->firstBlock()), Red);
    output().selectAll();
    EXPECT_EQ(pixels(isLightRed), 0);
    EXPECT_GT(pixels([](const QColor& c) { return c == QColor(Qt::white); }), 20);
}

TEST_F(Console, FollowsTheEndUntilTheUserScrollsAway)
{
    start();
    QScrollBar& bar = *output().verticalScrollBar();
    for (int i = 0; i < 200; ++i)
        std::cout << "line";
    ASSERT_TRUE(m_host.waitFor([&] { return bar.maximum() > 0 && bar.value() == bar.maximum(); }));
    QTest::keyClick(&bar, Qt::Key_Home);
    const int maximum = bar.maximum();
    std::cout << "more\nand more";
    ASSERT_TRUE(m_host.waitFor([&] { return bar.maximum() > maximum; }));
    EXPECT_EQ(bar.value(), 0);
    QTest::keyClick(&bar, Qt::Key_End);
    std::cout << "last";
    const int before = bar.maximum();
    ASSERT_TRUE(m_host.waitFor([&] { return bar.maximum() > before; }));
    EXPECT_EQ(bar.value(), bar.maximum());
}

TEST_F(Console, KeepsTheVisibleLinesInPlaceWhileOldOnesAreRemoved)
{
    holdLines(300);
    start();
    for (int i = 0; i < 300; ++i)
        std::cout << i;
    QScrollBar& bar = *output().verticalScrollBar();
    ASSERT_TRUE(m_host.waitFor([&] { return bar.maximum() > 0 && bar.value() == bar.maximum(); }));
    bar.setValue(bar.maximum() / 2);
    const QString top = output().cursorForPosition({2, 2}).block().text();
    for (int i = 0; i < 50; ++i)
        std::cout << "new";
    m_host.pump();
    EXPECT_EQ(output().cursorForPosition({2, 2}).block().text(), top);
}

TEST_F(Console, WrapsLongLinesToItsWidth)
{
    start();
    std::cout << QByteArray(600, 'x').constData();
    m_host.pump();
    const QTextBlock block = output().document()->firstBlock();
    const int rows = block.layout()->lineCount();
    EXPECT_GT(rows, 1);
    EXPECT_EQ(block.lineCount(), rows);
    m_host.window().resize(400, 500);
    ASSERT_TRUE(m_host.waitFor([&] { return block.lineCount() > rows; }));
    EXPECT_EQ(output().horizontalScrollBar()->maximum(), 0);
}

TEST_F(Console, SavesItsTextAsLatin1)
{
    start();
    std::cout << "caf\xe9\nend";
    m_console.printInfo(QString::fromUtf8("\xe2\x82\xac"));
    const QTemporaryDir folder;
    FileAnswer answer(folder.filePath("console.txt"));
    click("m_saveButton");
    EXPECT_EQ(contentOf(folder.filePath("console.txt")), "caf\xe9\nend\n?");
    EXPECT_EQ(answer.caption, "Save the content of the console");
    EXPECT_EQ(answer.filters, QStringList{"Console outputs (*.txt)"});
    EXPECT_EQ(answer.directory, QDir::currentPath());
    ASSERT_NE(answer.parent, nullptr);
    EXPECT_EQ(answer.parent->objectName(), "m_consoleFrame");
}

TEST_F(Console, SavingLeavesTheTailOfALongerFile)
{
    start();
    std::cout << "short";
    const QTemporaryDir folder;
    const QString name = folder.filePath("console.txt");
    fill(name, "0123456789");
    FileAnswer answer(name);
    click("m_saveButton");
    EXPECT_EQ(contentOf(name), "short56789");
}

TEST_F(Console, ACancelledOrImpossibleSaveWritesAndReportsNothing)
{
    start();
    std::cout << "text";
    {
        FileAnswer answer("");
        click("m_saveButton");
        EXPECT_FALSE(answer.caption.isEmpty());
    }
    FileAnswer answer("/proc/console.txt");
    click("m_saveButton");
    EXPECT_FALSE(answer.caption.isEmpty());
    EXPECT_EQ(text(), "text");
}

TEST_F(Console, WritesSilentlyOverNoFileOfAnotherKindAndNoneThatIsProtected)
{
    start();
    std::cout << "text";
    const QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe.txt");
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    const QString isProtected = folder.filePath("protected.txt");
    fill(isProtected, "precious");
    QFile::setPermissions(isProtected, QFile::ReadOwner);
    QStringList paths{pipe, isProtected};
    for (const char* name : {"new.xsg", "new.xml", "new.png", "new.glb"})
        paths += folder.filePath(name);
    for (const QString& path : paths) {
        FileAnswer answer(path);
        click("m_saveButton");
        EXPECT_FALSE(answer.caption.isEmpty());
    }
    EXPECT_EQ(contentOf(isProtected), "precious");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::System),
              (QStringList{"pipe.txt", "protected.txt"}));
    EXPECT_EQ(text(), "text");
}

TEST_F(Console, RefusesALimitThatIsNoNumberOfLines)
{
    holdLines(-5);
    start();
    m_host.pump();
    EXPECT_TRUE(text().contains("XSG_CONSOLE_MAX_LINES is -5")) << text().toStdString();
    EXPECT_EQ(colorOf(output().document()->firstBlock()), Yellow);
    EXPECT_EQ(output().document()->maximumBlockCount(), 100000);
}

TEST_F(Console, HoldsAHundredThousandLinesByDefault)
{
    start();
    EXPECT_EQ(output().document()->maximumBlockCount(), 100000);
}

TEST_F(Console, FreesItsWidgetsWhenUnloaded)
{
    start();
    const QPointer<QDockWidget> dock = m_host.window().findChild<QDockWidget*>();
    m_host.stop(m_console);
    EXPECT_TRUE(dock.isNull());
    EXPECT_TRUE(m_output.isNull());
}

TEST_F(Console, PrintsAnEventOfAnUnknownKindAsAnError)
{
    start();
    for (const int kind : {-1, 3, 1000}) {
        SpxConsole::ConsoleEvent event({QString("kind %1").arg(kind), kind});
        QCoreApplication::sendEvent(&m_console, &event);
        EXPECT_EQ(colorOf(output().document()->lastBlock()), Red) << kind;
    }
    EXPECT_EQ(lines(), (QStringList{"kind -1", "kind 3", "kind 1000"}));
}

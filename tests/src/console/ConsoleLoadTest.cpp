// SPDX-License-Identifier: MIT
// Lines that no layout likes, writes in answer to a print, and streams that are taken and given back while
// others write to them.
#include "ConsoleFixture.h"

#include <scopix/SpxPlugin.h>
#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoErrorStack.h>
#include <xsg/errors/SoGLError.h>
#include <xsg/errors/SoMemoryError.h>
#include <xsg/errors/SoReadError.h>

#include <QLibrary>

#include <atomic>
#include <thread>

namespace
{

std::string numbered(const std::string& who, int number)
{
    return who + ' ' + std::to_string(number);
}

// Counts the lines that reach it, from any thread.
class CountingBuffer : public std::streambuf
{
public:
    std::atomic<int> blocks{0};

protected:
    std::streamsize xsputn(const char*, std::streamsize length) override
    {
        ++blocks;
        return length;
    }
    int overflow(int c) override { return c; }
};

using Handler = std::pair<SoErrorCB*, void*>;

template <class... Errors>
std::vector<Handler> handlersOf()
{
    return {Handler(Errors::getHandlerCallback(), Errors::getHandlerData())...};
}

std::vector<Handler> handlers()
{
    return handlersOf<SoDebugError, SoError, SoErrorStack, SoGLError, SoMemoryError, SoReadError>();
}

class ConsoleLoad : public ConsoleFixture
{
protected:
    bool waitForText(const QString& wanted)
    {
        return m_host.waitFor([&] { return text().contains(wanted); });
    }
    QByteArray saved()
    {
        // What the save button writes, without its dialog.
        QString text;
        for (QTextBlock block = output().document()->begin(); block.isValid(); block = block.next())
            text += (block.userState() == 1 || block.blockNumber() == 0 ? "" : "\n") + block.text();
        return text.toLatin1();
    }
};

} // namespace

TEST_F(ConsoleLoad, CutsALineOfTenMegabytesAndKeepsItsText)
{
    start();
    const std::string line(10 * 1024 * 1024, 'x');
    std::cout << line;
    EXPECT_EQ(output().document()->blockCount(), int(line.size() / 1000) + 1);
    m_host.pump();
    m_host.window().resize(500, 500);
    m_host.pump();
    EXPECT_EQ(saved(), QByteArray::fromStdString(line));
    click("m_clearButton");
    std::thread([&line] { std::cerr << line; }).join();
    ASSERT_TRUE(m_host.waitFor([&] { return output().document()->blockCount() > 1; }));
    EXPECT_EQ(saved(), QByteArray::fromStdString(line));
}

TEST_F(ConsoleLoad, CutsNoLineEndAndNoPairOfSurrogates)
{
    start();
    const QString pair = QString::fromUcs4(U"\U0001F600", 1);
    m_console.printInfo(QString(999, 'a') + pair + "\r\n" + QString(1000, 'b') + "\n" + QString(1001, 'c'));
    EXPECT_EQ(lines(), (QStringList{QString(999, 'a'), pair, QString(1000, 'b'), QString(1000, 'c'), "c"}));
}

TEST_F(ConsoleLoad, ATextOfMoreLinesThanItHoldsLeavesTheLastOnes)
{
    holdLines(3);
    start();
    std::cout << std::string(200000, '\n') + "a\nb\nc";
    EXPECT_EQ(lines(), (QStringList{"a", "b", "c"}));
}

TEST_F(ConsoleLoad, ShowsEveryByteAndSavesIt)
{
    start();
    std::string bytes;
    for (int c = 1; c < 256; ++c)
        if (c != '\n' && c != '\r')
            bytes += char(c);
    bytes += "\xc3\x28 \xf0\x9f \xed\xa0\x80";
    std::cerr << bytes;
    m_host.pump();
    m_host.window().grab();
    EXPECT_EQ(saved(), QByteArray::fromStdString(bytes));
}

TEST_F(ConsoleLoad, AWriteInAnswerToAPrintDoesNotRecurse)
{
    start();
    int depth = 0;
    int deepest = 0;
    int answers = 0;
    QObject::connect(&output(), &QTextEdit::textChanged, [&] {
        deepest = std::max(deepest, ++depth);
        if (++answers <= 5) {
            std::cout << numbered("answer", answers);
            SoDebugError::postInfo("answer", "too");
        }
        --depth;
    });
    std::cerr << "question";
    EXPECT_EQ(text(), "question");
    ASSERT_TRUE(waitForText("answer 5"));
    EXPECT_EQ(deepest, 1);
    EXPECT_EQ(lines().filter("answer ").join(' '), "answer 1 answer 2 answer 3 answer 4 answer 5");
}

TEST_F(ConsoleLoad, AnAnswerToEveryPrintLeavesTheLoopTurning)
{
    start();
    QObject::connect(&output(), &QTextEdit::textChanged, [] { std::cout << "and again"; });
    std::cout << "once";
    for (int turn = 0; turn < 20; ++turn)
        QCoreApplication::processEvents();
    EXPECT_GT(output().document()->blockCount(), 1);
    QObject::disconnect(&output(), nullptr, nullptr, nullptr);
}

TEST_F(ConsoleLoad, LosesNothingWhileActivatedAndDeactivated)
{
    CountingBuffer outside;
    std::streambuf* const before = std::cout.rdbuf(&outside);
    std::atomic<bool> stop{false};
    std::atomic<int> written{0};
    std::vector<std::thread> threads;
    for (int worker = 0; worker < 3; ++worker)
        threads.emplace_back([&] {
            while (!stop) {
                std::cout << "line";
                ++written;
                std::this_thread::yield();
            }
        });
    int shown = 0;
    for (int round = 0; round < 100; ++round) {
        m_console.load();
        m_console.activate();
        EXPECT_NE(std::cout.rdbuf(), &outside);
        m_output = m_host.window().findChild<QTextEdit*>("m_consoleOutput");
        m_host.pump();
        m_console.deactivate();
        EXPECT_EQ(std::cout.rdbuf(), &outside);
        shown += text().count("line");
        m_console.unload();
    }
    stop = true;
    for (std::thread& thread : threads)
        thread.join();
    std::cout.rdbuf(before);
    EXPECT_EQ(shown + outside.blocks, written);
    EXPECT_TRUE(std::cout.good());
}

TEST_F(ConsoleLoad, ErrorsThatComeTooLateGoToStandardError)
{
    start();
    m_console.deactivate();
    testing::internal::CaptureStderr();
    SoReadError::post("file", 1, "late");
    m_console.unload();
    EXPECT_NE(testing::internal::GetCapturedStderr().find("late"), std::string::npos);
}

TEST_F(ConsoleLoad, TheLibraryLeavesStreamsAndHandlersWhole)
{
    const auto handlersBefore = handlers();
    for (int round = 0; round < 100; ++round) {
        QLibrary library(SCOPIX_PLUGIN);
        ASSERT_TRUE(library.load()) << library.errorString().toStdString();
        const auto loadPlugin = reinterpret_cast<SpxPlugin* (*)()>(library.resolve("loadPlugin"));
        const auto unloadPlugin = reinterpret_cast<void (*)()>(library.resolve("unloadPlugin"));
        SpxPlugin* plugin = loadPlugin();
        plugin->load();
        SpxExtension* console = plugin->getExtensions().at(1);
        ASSERT_EQ(console->getName(), "Console");
        console->load();
        console->activate();
        for (const auto& [callback, data] : handlers())
            EXPECT_EQ(data, console);
        std::cout << "seen";
        std::thread([] { std::cerr << "posted"; }).join();
        SoReadError::post("file", 1, "error");
        if (round % 2)
            m_host.pump();
        console->deactivate();
        EXPECT_EQ(std::cout.rdbuf(), m_cout.buffer());
        EXPECT_EQ(std::cerr.rdbuf(), m_cerr.buffer());
        console->unload();
        EXPECT_EQ(handlers(), handlersBefore);
        plugin->unload();
        unloadPlugin();
        ASSERT_TRUE(library.unload());
        m_host.pump();
        std::cout << "outside";
    }
    EXPECT_EQ(m_cout.text().size(), 100 * std::string("outside").size());
    EXPECT_EQ(m_cerr.text(), "");
}

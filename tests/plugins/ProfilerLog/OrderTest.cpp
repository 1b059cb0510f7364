// SPDX-License-Identifier: MIT
// The console and the log, as their real libraries, load and go in every order, with others that take the
// streams: nothing is lost, nothing comes twice, and all is given back.
#include "services/ProgramOutput.h"

#include <support/TestHost.h>

#include <scopix/SpxPlugin.h>
#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoReadError.h>

#include <QApplication>
#include <QLibrary>
#include <QListView>
#include <QTextEdit>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <iostream>
#include <mutex>
#include <set>
#include <streambuf>
#include <thread>

using namespace scopix;

namespace
{

/// Keeps the lines that reach it, from any thread.
class LineBuffer : public std::streambuf
{
public:
    int count(const std::string& line) const
    {
        const std::lock_guard lock(m_mutex);
        int found = 0;
        for (std::size_t at = m_text.find(line + '\n'); at != m_text.npos;
             at = m_text.find(line + '\n', at + 1))
            ++found;
        return found;
    }
    QString text() const
    {
        const std::lock_guard lock(m_mutex);
        return QString::fromStdString(m_text);
    }

protected:
    std::streamsize xsputn(const char* text, std::streamsize length) override
    {
        const std::lock_guard lock(m_mutex);
        m_text.append(text, std::size_t(length));
        return length;
    }
    int overflow(int c) override
    {
        const std::lock_guard lock(m_mutex);
        m_text += char(c);
        return c;
    }

private:
    mutable std::mutex m_mutex;
    std::string m_text;
};

/// Takes over std::cout and one error handler, keeps what comes, and hands it on or not.
class Taker
{
public:
    explicit Taker(bool handsOn)
        : m_buffer(handsOn ? std::cout.rdbuf() : nullptr)
        , m_previous(std::cout.rdbuf(&m_buffer))
        , m_callback(SoReadError::getHandlerCallback())
        , m_data(SoReadError::getHandlerData())
        , m_handsOn(handsOn)
    {
        SoReadError::setHandlerCallback(handle, this);
    }
    ~Taker()
    {
        std::cout.rdbuf(m_previous);
        SoReadError::setHandlerCallback(m_callback, m_data);
    }
    int count(const std::string& line) const { return m_buffer.count(line); }

private:
    class Buffer : public LineBuffer
    {
    public:
        explicit Buffer(std::streambuf* next)
            : m_next(next)
        {
        }

    protected:
        std::streamsize xsputn(const char* text, std::streamsize length) override
        {
            LineBuffer::xsputn(text, length);
            return m_next ? m_next->sputn(text, length) : length;
        }
        int overflow(int c) override
        {
            LineBuffer::overflow(c);
            return m_next ? m_next->sputc(char(c)) : c;
        }

    private:
        std::streambuf* m_next;
    };
    static void handle(const SoError* error, void* data)
    {
        auto& self = *static_cast<Taker*>(data);
        if (self.m_handsOn && self.m_callback)
            self.m_callback(error, self.m_data);
    }

    Buffer m_buffer;
    std::streambuf* m_previous;
    SoErrorCB* m_callback;
    void* m_data;
    bool m_handsOn;
};

/// One extension of a library, taken through its life step by step as the host does it.
class Life
{
public:
    Life(const char* file, const char* extension)
        : m_file(file)
        , m_name(extension)
    {
    }
    static constexpr int Steps = 4;
    int step() const { return m_step; }
    bool isLoaded() const { return m_step >= 1 && m_step <= 3; }
    bool isActive() const { return m_step == 2; }
    void goOn()
    {
        const OutputStep tracked;
        switch (m_step++) {
        case 0:
            return start();
        case 1:
            return m_extension->activate();
        case 2:
            return m_extension->deactivate();
        default:
            return stop();
        }
    }
    /// Whether the library stays when this life ends, which saves most of the time.
    void again(bool keepsLibrary = false)
    {
        m_step = 0;
        m_keepsLibrary = keepsLibrary;
    }

private:
    void start()
    {
        if (!m_plugin)
            loadLibrary();
        m_extension->load();
    }
    void loadLibrary()
    {
        m_library.setFileName(QString::fromUtf8(m_file));
        ASSERT_TRUE(m_library.load()) << qPrintable(m_library.errorString());
        m_plugin = reinterpret_cast<SpxPlugin* (*)()>(m_library.resolve("loadPlugin"))();
        m_plugin->load();
        for (SpxExtension* each : m_plugin->getExtensions()) {
            if (each->getName() == m_name)
                m_extension = each;
        }
        ASSERT_TRUE(m_extension);
    }
    void stop()
    {
        m_extension->unload();
        if (m_keepsLibrary)
            return;
        m_plugin->unload();
        reinterpret_cast<void (*)()>(m_library.resolve("unloadPlugin"))();
        m_plugin = nullptr;
        m_extension = nullptr;
        ASSERT_TRUE(m_library.unload());
    }

    const char* m_file;
    const char* m_name;
    QLibrary m_library;
    SpxPlugin* m_plugin = nullptr;
    SpxExtension* m_extension = nullptr;
    int m_step = 0;
    bool m_keepsLibrary = false;
};

/// Threads that write numbered lines, as many as they are let.
class Writers
{
public:
    Writers()
    {
        for (int worker = 0; worker < 3; ++worker)
            m_threads.emplace_back([this] { run(); });
    }
    ~Writers()
    {
        m_stop = true;
        for (std::thread& thread : m_threads)
            thread.join();
    }
    static std::string line(int number) { return "numbered " + std::to_string(number) + '.'; }
    void start(int lines) { m_let += lines; }
    /// The number of lines that stand.
    int finish() const
    {
        while (m_written < m_let)
            std::this_thread::yield();
        return m_written;
    }

private:
    void run()
    {
        while (!m_stop) {
            int next = m_taken;
            if (next < m_let && m_taken.compare_exchange_strong(next, next + 1)) {
                std::cout << line(next) + '\n';
                ++m_written;
            }
            std::this_thread::yield();
        }
    }

    std::atomic<bool> m_stop{false};
    std::atomic<int> m_let{0};
    std::atomic<int> m_taken{0};
    std::atomic<int> m_written{0};
    std::vector<std::thread> m_threads;
};

using Lines = std::multiset<QString>;

void addLines(Lines& lines, const QString& text)
{
    for (const QString& line : text.split('\n'))
        lines.insert(line.trimmed());
}

template <class Widget>
Widget* widgetNamed(const char* name)
{
    for (QWidget* each : QApplication::allWidgets()) {
        if (each->objectName() == QLatin1String(name))
            return qobject_cast<Widget*>(each);
    }
    return nullptr;
}

class LogOrder : public ::testing::Test
{
protected:
    LogOrder()
        : m_before(std::cout.rdbuf(&m_outside))
    {
        SoReadError::setHandlerCallback(outside, this);
    }
    ~LogOrder() override
    {
        std::cout.rdbuf(m_before);
        SoReadError::setHandlerCallback(SoError::defaultHandler, nullptr);
    }
    static void outside(const SoError* error, void* test)
    {
        std::ostream(&static_cast<LogOrder*>(test)->m_outsideErrors)
            << error->getDebugString().getString() << '\n';
    }

    int inLog(const std::string& line)
    {
        const auto* lines = widgetNamed<QListView>("logLines");
        int count = 0;
        for (int row = 0; lines && row < lines->model()->rowCount(); ++row)
            count += lines->model()->index(row, 0).data().toString().endsWith(QString::fromStdString(line));
        return count;
    }
    int inConsole(const std::string& line)
    {
        const auto* text = widgetNamed<QTextEdit>("m_consoleOutput");
        return text ? text->toPlainText().count(QString::fromStdString(line)) : 0;
    }
    /// Says something new on this thread and on another, and looks where it has arrived.
    void sayAndLook()
    {
        const std::string line = "line " + std::to_string(++m_number) + '.';
        const std::string other = "other " + std::to_string(m_number) + '.';
        const std::string error = "error " + std::to_string(m_number) + '.';
        std::cout << line + '\n';
        std::thread([&] { std::cout << other + '\n'; }).join();
        SoReadError::post("file", 1, error.c_str());
        TestHost::pump();
        if (m_log.isLoaded()) {
            EXPECT_TRUE(TestHost::waitFor([&] { return inLog(error) > 0; }));
            EXPECT_EQ(inLog(line), 1) << line;
            EXPECT_EQ(inLog(other), 1) << other;
            EXPECT_EQ(inLog(error), 1) << error;
        }
        const bool isActive = m_console.isActive();
        EXPECT_EQ(isActive ? inConsole(line) : 0, isActive) << line;
        EXPECT_EQ(isActive ? inConsole(other) : 0, isActive) << other;
        EXPECT_EQ(m_console.isLoaded() ? inConsole(error) : 0, m_console.isLoaded()) << error;
        EXPECT_EQ(m_outside.count(line), !isActive) << line;
        EXPECT_EQ(m_outside.count(other), !isActive) << other;
        EXPECT_EQ(m_outsideErrors.count(error), !m_console.isLoaded()) << error;
    }
    void expectWhole()
    {
        EXPECT_EQ(SoReadError::getHandlerCallback(), outside);
        EXPECT_EQ(std::cout.rdbuf(), &m_outside);
    }

    LineBuffer m_outside;
    LineBuffer m_outsideErrors;
    std::streambuf* m_before;
    TestHost m_host;
    std::unique_ptr<ProgramOutput> m_output{new ProgramOutput};
    Life m_console{SCOPIX_PLUGIN, "Console"};
    Life m_log{PROFILER_FILE, "Log"};
    std::unique_ptr<Taker> m_taker;
    int m_number = 0;
};

} // namespace

TEST_F(LogOrder, ConsoleAndLogComeAndGoInEveryOrder)
{
    std::string order = "CCCCLLLL";
    int orders = 0;
    do {
        const bool keepsLibraries = orders % 7 != 6; // not in the last one
        m_console.again(keepsLibraries);
        m_log.again(keepsLibraries);
        SCOPED_TRACE(order);
        for (const char each : order) {
            (each == 'C' ? m_console : m_log).goOn();
            sayAndLook();
        }
        ++orders;
    } while (std::next_permutation(order.begin(), order.end()) && !HasFailure());
    EXPECT_EQ(orders, 70);
    m_output.reset();
    expectWhole();
}

// In every order of coming and going, the log hears each line once, whoever is above or has gone from below.
TEST_F(LogOrder, OthersThatTakeTheStreamsComeAndGoBesides)
{
    m_log.goOn();
    int orders = 0;
    for (const bool handsOn : {false, true}) {
        std::string order = "CCCCTT";
        do {
            m_console.again(orders++ % 5 != 4);
            SCOPED_TRACE(order + (handsOn ? " handing on" : ""));
            for (const char each : order) {
                if (each == 'C') {
                    m_console.goOn();
                } else {
                    const OutputStep tracked;
                    m_taker.reset(m_taker ? nullptr : new Taker(handsOn));
                }
                const std::string line = "besides " + std::to_string(++m_number) + '.';
                std::cout << line + '\n';
                SoReadError::post("file", 1, line.c_str());
                EXPECT_TRUE(TestHost::waitFor([&] { return inLog(line) >= 2; })) << line;
                EXPECT_EQ(inLog(line), 2) << line; // written, and reported
                const bool isTaken = m_taker && (handsOn || !m_console.isActive());
                EXPECT_LE(m_taker ? m_taker->count(line) : 0, 1) << line;
                EXPECT_EQ(isTaken && !m_console.isActive() ? m_taker->count(line) : 1, 1) << line;
            }
        } while (std::next_permutation(order.begin(), order.end()) && !HasFailure());
    }
    m_log.goOn();
    m_log.goOn();
    m_log.goOn();
    m_output.reset();
    expectWhole();
}

// A line that another thread writes just when the console takes the stream may come to the console alone.
TEST_F(LogOrder, LosesNothingAndDoublesNothingWhileThreadsWrite)
{
    m_log.goOn();
    m_log.goOn();
    std::set<int> whileItChanged;
    int written = 0;
    Lines elsewhere;
    {
        Writers writers;
        const auto goOn = [&] {
            writers.start(20);
            m_console.goOn();
            const int before = std::exchange(written, writers.finish());
            for (int number = before; number < written; ++number)
                whileItChanged.insert(number);
            writers.start(20);
            written = writers.finish();
        };
        for (int round = 0; round < 20; ++round) {
            m_console.again();
            goOn();
            goOn();
            TestHost::pump();
            goOn();
            addLines(elsewhere, widgetNamed<QTextEdit>("m_consoleOutput")->toPlainText());
            goOn();
        }
    }
    addLines(elsewhere, m_outside.text());
    std::cout << "the end\n";
    ASSERT_TRUE(TestHost::waitFor([&] { return inLog("the end") > 0; }));
    Lines inLog;
    const auto* lines = widgetNamed<QListView>("logLines")->model();
    for (int row = 0; row < lines->rowCount(); ++row)
        inLog.insert(lines->index(row, 0).data().toString());
    for (int number = 0; number < written; ++number) {
        const QString line = QString::fromStdString(Writers::line(number));
        EXPECT_EQ(elsewhere.count(line), 1U) << qPrintable(line);
        EXPECT_LE(inLog.count(line), 1U) << qPrintable(line);
        EXPECT_TRUE(inLog.count(line) == 1 || whileItChanged.count(number)) << qPrintable(line);
    }
    m_log.goOn();
    m_log.goOn();
    m_output.reset();
    expectWhole();
}

TEST_F(LogOrder, AHandlerThatIsNotGivenBackIsGivenBackByTheHost)
{
    auto first = std::make_unique<Taker>(true);
    OutputTaps::getInstance().settle();
    Taker second(true);
    OutputTaps::getInstance().settle();
    first.reset(); // from below: would take the second one out
    OutputTaps::getInstance().settle();
    std::cout << "still\n";
    EXPECT_EQ(second.count("still"), 1);
    EXPECT_EQ(m_outside.count("still"), 1);
}

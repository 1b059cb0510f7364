// SPDX-License-Identifier: MIT
// The console under a flood of text from seven threads at once.
#include "ConsoleFixture.h"

#include "Flood.h"

#include <xsg/errors/SoReadError.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

#include <numeric>

namespace
{

// Sanitizers take their time: they see every kind of input, but not as often.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int LinesOfEach = 3000;
#else
constexpr int LinesOfEach = 1000000 / int(Flood::Writers.size()) + 1;
#endif

// What stands in a document, by writer and by kind.
struct Census {
    explicit Census(const QTextDocument& document)
    {
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            count(block.text());
    }

    std::map<QString, std::vector<int>> numbers; // of each writer's lines, as they stand
    std::array<int, Flood::OddKinds> odd{};
    qint64 longLines = 0; // characters

private:
    void count(const QString& line)
    {
        static const std::array<QString, Flood::OddKinds> ends{
            "NUL", QString::fromLatin1("controls \x01\x02\x07\b\t\v\f\x1b[31m\x7f"),
            QString::fromLatin1("no UTF-8 \xc3\x28 \xf0\x9f \xed\xa0\x80 \xff\xfe"), "b"};
        for (std::size_t kind = 0; kind < ends.size(); ++kind)
            odd[kind] += line.endsWith(ends[kind]);
        if (line.endsWith("xx"))
            longLines += line.count('x');
        const QVector<QStringRef> words = line.splitRef(' ');
        bool isNumber = false;
        const int number = words.last().toInt(&isNumber);
        if (isNumber && words.size() > 1)
            numbers[words[words.size() - 2].toString()].push_back(number);
    }
};

class CountingFilter : public QObject
{
public:
    explicit CountingFilter(QEvent::Type type)
        : m_type(type)
    {
    }
    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == m_type;
        return false;
    }

private:
    QEvent::Type m_type;
};

class ConsoleFlood : public ConsoleFixture
{
protected:
    QTextDocument& document() { return *output().document(); }
    // What comes last from another thread is shown last.
    bool waitForTheRest()
    {
        std::thread([] { SoReadError::post("flood", 1, "the end"); }).join();
        const auto ended = [&] { return document().lastBlock().text().endsWith("the end"); };
        for (int shown = -1; !ended() && shown != document().lastBlock().position();) {
            shown = document().lastBlock().position();
            m_host.waitFor([&] { return ended() || document().lastBlock().position() != shown; });
        }
        return ended();
    }
};

} // namespace

TEST_F(ConsoleFlood, OfAMillionLinesLosesNothingAndKeepsTheOrderOfEachThread)
{
    holdLines(3000000);
    start();
    Flood flood(LinesOfEach);
    for (int i = 0; i < LinesOfEach; ++i) {
        Flood::writeGuiLine(i);
        if (i % 100 == 0)
            m_host.pump();
    }
    while (!flood.isOver())
        m_host.pump();
    ASSERT_TRUE(waitForTheRest());

    const Census census(document());
    std::vector<int> expected(LinesOfEach);
    std::iota(expected.begin(), expected.end(), 0);
    for (const char* who : Flood::Writers)
        EXPECT_TRUE(census.numbers.at(who) == expected) << who << ' ' << census.numbers.at(who).size();
    const int writers = int(Flood::Writers.size());
    for (int kind = 0; kind < Flood::OddKinds; ++kind)
        EXPECT_EQ(census.odd[std::size_t(kind)], writers * Flood::timesOfOdd(kind, LinesOfEach)) << kind;
    EXPECT_EQ(census.longLines, qint64(writers) * Flood::LongLine);
}

TEST_F(ConsoleFlood, HoldsNoMoreThanTheNewestLines)
{
    constexpr int Held = 1000;
    holdLines(Held);
    start();
    int most = 0;
    QObject::connect(&output(), &QTextEdit::textChanged,
                     [&] { most = std::max(most, document().blockCount()); });
    Flood flood(LinesOfEach / 10);
    for (int i = 0; !flood.isOver(); ++i) {
        Flood::writeGuiLine(i);
        m_host.pump();
    }
    ASSERT_TRUE(waitForTheRest());
    EXPECT_EQ(most, Held);
    for (const auto& [who, numbers] : Census(document()).numbers)
        EXPECT_TRUE(std::is_sorted(numbers.begin(), numbers.end())) << who.toStdString();
}

TEST_F(ConsoleFlood, KeepsTheWindowResponsive)
{
    holdLines(1000);
    auto* name = new QLineEdit;
    m_host.window().setCentralWidget(name);
    start();
    CountingFilter paints(QEvent::Paint);
    output().viewport()->installEventFilter(&paints);
    int turns = 0;
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, [&] { ++turns; });
    beat.start(0);

    constexpr int Endless = 10'000'000; // far beyond what the waits below take; the end of this test stops it
    Flood flood(Endless);
    const QString word = "typed";
    for (const QChar letter : word) {
        const int typed = name->text().size();
        QCoreApplication::postEvent(name, new QKeyEvent(QEvent::KeyPress, Qt::Key_A, {}, QString(letter)));
        ASSERT_TRUE(m_host.waitFor([&] { return name->text().size() > typed; }));
    }
    click("m_errorsButton");
    const int before = turns;
    paints.count = 0;
    ASSERT_TRUE(m_host.waitFor([&] { return turns > before + 20 && paints.count > 5; }));
    EXPECT_FALSE(flood.isOver());
    EXPECT_EQ(name->text(), word);
    EXPECT_FALSE(button("m_errorsButton").isChecked());
}

TEST_F(ConsoleFlood, OfAHiddenKindDiscardsNoOtherLines)
{
    holdLines(100);
    start();
    click("m_infosButton");
    std::thread([] {
        SoReadError::post("file", 1, "keep me");
        for (int i = 0; i < 5000; ++i)
            std::cout << "line";
    }).join();
    EXPECT_TRUE(m_host.waitFor([&] { return text().contains("keep me"); }));
}

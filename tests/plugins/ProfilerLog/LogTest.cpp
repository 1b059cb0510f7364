// SPDX-License-Identifier: MIT
// Lines as they are taken, kept, filtered, folded and found.
#include "console/LogFind.h"
#include "console/LogModel.h"
#include "console/LogTargets.h"
#include "console/LogText.h"

#include <support/TestHost.h>

#include <xsg/errors/SoDebugError.h>

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <map>
#include <random>
#include <thread>

using namespace profiler;

namespace
{

class TellingError : public SoError
{
public:
    explicit TellingError(const char* text)
        : SoError(text)
    {
    }
};

class Log : public ::testing::Test
{
protected:
    void write(const std::string& text) { write(text, SpxOutputListener::Stream::Output); }
    void write(const std::string& text, SpxOutputListener::Stream stream)
    {
        model.getInbox().written(stream, text.data(), text.size());
    }
    void settle()
    {
        TestHost::pump();
        EXPECT_TRUE(TestHost::waitFor([this] { return model.isUpToDate(); }));
    }
    QStringList rows()
    {
        settle();
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row) {
            const LogRow& each = model.getRows()[row];
            texts += (each.isContext ? "~" : "") + model.textOf(row) +
                     (each.count > 1 ? QString(" x%1").arg(each.count) : QString());
        }
        return texts;
    }
    QStringList rows(const QString& filter, LogFold fold = LogFold::None, int context = 0)
    {
        LogRows::Rule rule;
        rule.filter = LogFilter(filter);
        rule.fold = fold;
        rule.context = context;
        model.setRule(rule);
        return rows();
    }

    LogModel model{nullptr, 25000};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(Log, JoinsWhatIsWrittenInPiecesToLines)
{
    write("a");
    write("b\nsecond\r\nthird");
    EXPECT_EQ(rows(), (QStringList{"ab", "second"}));
    write("\n\n");
    EXPECT_EQ(rows(), (QStringList{"ab", "second", "third", ""}));
}

TEST_F(Log, ShowsALineWithoutAnEndWhenNobodyGoesOn)
{
    write("Password: ");
    EXPECT_TRUE(TestHost::waitFor([this] { return rows() == QStringList{"Password: "}; }));
}

TEST_F(Log, KeepsTheLinesOfThreadsApart)
{
    write("of the ");
    std::thread([this] { write("of another\n"); }).join();
    write("first\n");
    EXPECT_EQ(rows(), (QStringList{"of another", "of the first"}));
    model.setShowsThread(true);
    EXPECT_EQ(model.prefixOf(0), "[2] ");
    EXPECT_FALSE(model.prefixOf(1).contains("2"));
    model.setShowsTime(true);
    EXPECT_TRUE(QRegularExpression("^\\d\\d:\\d\\d:\\d\\d\\.\\d{3} \\[2\\] of another$")
                    .match(model.copyOf(0))
                    .hasMatch())
        << qPrintable(model.copyOf(0));
}

TEST_F(Log, TellsErrorsWarningsInformationAndOutputApart)
{
    write("out\n");
    write("log\n", SpxOutputListener::Stream::Log);
    write("err\n", SpxOutputListener::Stream::Error);
    model.getInbox().reported(TellingError("broken\nin two lines"));
    settle();
    EXPECT_EQ(model.countOf(LogKind::Output), 2U);
    EXPECT_EQ(model.countOf(LogKind::Error), 3U);
    EXPECT_EQ(model.getFirstError(), "err");
    LogRows::Rule rule;
    rule.filter.setKind(LogKind::Output, false);
    model.setRule(rule);
    EXPECT_EQ(rows(), (QStringList{"err", "broken", "in two lines"}));
    EXPECT_EQ(model.data(model.index(0), Qt::AccessibleTextRole), "error: err");
    model.clearErrors();
    EXPECT_EQ(model.getNewErrors(), 0U);
    write("next\n", SpxOutputListener::Stream::Error);
    settle();
    EXPECT_EQ(model.getFirstError(), "next");
    EXPECT_EQ(model.getFirstErrorLine(), 5U);
}

TEST_F(Log, FiltersByWordsToHaveAndToLeaveOut)
{
    write("Warning: shader\nwarning: picture\nnote: shader\nwarn the \"big picture\" - now\n");
    EXPECT_EQ(rows("warn -shader"), (QStringList{"warning: picture", "warn the \"big picture\" - now"}));
    EXPECT_EQ(rows("SHADER"), (QStringList{"Warning: shader", "note: shader"}));
    EXPECT_EQ(rows("\"warning: p\""), (QStringList{"warning: picture"}));
    EXPECT_EQ(rows("-\"warning: p\" picture"), (QStringList{"warn the \"big picture\" - now"}));
    EXPECT_EQ(rows("-"), (QStringList{"warn the \"big picture\" - now"}));
    EXPECT_EQ(rows("- the"), (QStringList{"warn the \"big picture\" - now"}));
    EXPECT_EQ(rows("\"").size(), 4);
    EXPECT_EQ(rows("nowhere"), QStringList());
    write("a new warning\n");
    EXPECT_EQ(rows("new"), QStringList{"a new warning"});
}

TEST_F(Log, FoldsRepeatedLinesOrAllThatAreEqual)
{
    write("a\na\nb\na\na\na\n");
    EXPECT_EQ(rows("", LogFold::Runs), (QStringList{"a x2", "b", "a x3"}));
    EXPECT_EQ(rows("", LogFold::All), (QStringList{"a x5", "b"}));
    write("b\n");
    EXPECT_EQ(rows(), (QStringList{"a x5", "b x2"}));
    EXPECT_EQ(rows("", LogFold::None).size(), 7);
    write("b\n", SpxOutputListener::Stream::Error);
    EXPECT_EQ(rows("b", LogFold::All), (QStringList{"b x2", "b"})) << "another kind is another line";
    EXPECT_EQ(rows("-b", LogFold::Runs), QStringList{"a x5"}) << "what is filtered out does not part";
    EXPECT_EQ(model.data(model.index(0), Qt::AccessibleTextRole), "output: a, 5 times");
}

TEST_F(Log, ShowsTheLinesAroundThoseThatAreWanted)
{
    write("1\n2\n3 x\n4\n5\n6\n7\n8 x\n9 x\n10\n");
    EXPECT_EQ(rows("x", LogFold::None, 1), (QStringList{"~2", "3 x", "~4", "~7", "8 x", "9 x", "~10"}));
    EXPECT_EQ(rows("x", LogFold::None, 2),
              (QStringList{"~1", "~2", "3 x", "~4", "~5", "~6", "~7", "8 x", "9 x", "~10"}));
    write("11\n12\n");
    EXPECT_EQ(rows().last(), "~11");
}

// Against a filter that looks at each line on its own.
TEST_F(Log, FollowsAGrowingLogAsIfItHadComeAtOnce)
{
    std::mt19937 random(7);
    QStringList all;
    LogRows::Rule rule;
    rule.filter = LogFilter("A -c");
    rule.fold = LogFold::None;
    model.setRule(rule);
    for (int step = 0; step < 60; ++step) {
        std::string text;
        for (auto lines = random() % 700; lines > 0; --lines) {
            std::string line;
            for (auto length = random() % 40; length > 0; --length)
                line += "abcdefgh"[random() % 8];
            all += QString::fromStdString(line);
            text += line + '\n';
        }
        write(text);
        if (step % 3 == 0)
            settle();
    }
    QStringList wanted;
    for (const QString& line : all) {
        if (line.contains('a') && !line.contains('c'))
            wanted += line;
    }
    EXPECT_EQ(rows(), wanted);
    EXPECT_EQ(rows("a -c"), wanted);
    wanted.removeDuplicates();
    rows("a -c", LogFold::All);
    for (QString& line : wanted)
        line = line.section(' ', 0, 0);
    QStringList folded;
    for (int row = 0; row < model.rowCount(); ++row)
        folded += model.textOf(row);
    EXPECT_EQ(folded, wanted);
}

TEST_F(Log, KeepsTheNewestWithinItsBoundsAndSaysHowManyHaveGone)
{
    const auto count = 60000;
    LogFind find(model);
    find.setText("number 1");
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += "number " + std::to_string(i) + '\n';
        if (i % 12000 == 11999) {
            write(text);
            text.clear();
            settle();
        }
    }
    const LogStore& store = model.getStore();
    EXPECT_LE(store.end() - store.begin(), 25000U);
    EXPECT_GE(store.end() - store.begin(), 25000U - LogChunk::MostLines);
    EXPECT_EQ(store.getDropped(), store.begin());
    EXPECT_EQ(model.rowCount(), int(store.end() - store.begin()));
    EXPECT_EQ(model.textOf(model.rowCount() - 1), "number 59999");
    EXPECT_EQ(model.textOf(0), QString("number %1").arg(store.begin()));
    EXPECT_TRUE(TestHost::waitFor([&] { return find.isDone(); }));
    EXPECT_EQ(find.count(), 0);
    // All of it before the event loop ran once.
    model.clear();
    for (int i = 0; i < count; ++i)
        write("at once " + std::to_string(i) + '\n');
    settle();
    EXPECT_EQ(model.textOf(model.rowCount() - 1), "at once 59999");
    EXPECT_EQ(store.getDropped() + std::uint64_t(model.rowCount()), std::uint64_t(count));
}

TEST_F(Log, CutsALineOfMegabytesIntoPiecesAndLosesNoByte)
{
    std::string line;
    for (int i = 0; i < 300000; ++i)
        line += std::to_string(i);
    write(line);
    write("\nnext\n");
    settle();
    QString joined;
    for (int row = 0; row + 1 < model.rowCount(); ++row)
        joined += model.copyOf(row);
    EXPECT_EQ(joined.toStdString(), line);
    EXPECT_EQ(model.copyOf(model.rowCount() - 1), "next");
}

TEST_F(Log, ShowsAnyBytesHarmlessly)
{
    EXPECT_EQ(shownText("\x1b[31mred\x1b[0m"), QString::fromUtf8("␛[31mred␛[0m"));
    EXPECT_EQ(shownText(std::string_view("a\0b\tc\x7f", 6)), QString::fromUtf8("a␀b    c␡"));
    EXPECT_EQ(shownText("caf\xe9"), QString::fromUtf8("café"));
    EXPECT_EQ(shownText("gr\xc3\xbc\xc3\x9f"), QString::fromUtf8("grüß"));
    EXPECT_EQ(shownText("\xe2\x80\xaetxt.exe"), QString::fromUtf8("�txt.exe"));
    EXPECT_EQ(shownText(std::string(10240, 'x')).size(), 4001);
    EXPECT_EQ(shownText("<b>&amp;</b>"), "<b>&amp;</b>");
    std::mt19937 random(11);
    for (int round = 0; round < 80; ++round) {
        std::string bytes;
        for (auto length = random() % 10240; length > 0; --length)
            bytes += char(random());
        write(bytes + '\n', SpxOutputListener::Stream(random() % 3));
        const QString shown = shownText(bytes);
        for (const QChar c : shown)
            ASSERT_TRUE(c.unicode() >= 0x20 && (c.unicode() < 0x7f || c.unicode() >= 0xa0));
        LogTargets::candidatesIn(shown);
        rows(QString::fromLatin1(bytes.data(), int(random() % 8)), LogFold(random() % 3), int(random() % 4));
    }
    rows("");
    for (int row = 0; row < model.rowCount(); ++row)
        EXPECT_FALSE(model.data(model.index(row), Qt::AccessibleTextRole).toString().isEmpty());
}

TEST_F(Log, FindsForwardsAndBackwardsRoundTheEnds)
{
    LogFind find(model);
    int at = -1;
    QObject::connect(&find, &LogFind::found, [&](int row) { at = row; });
    write("one\ntwo\nthree\nTWO\n");
    settle();
    find.setText("two");
    find.goOnFrom(0, true);
    ASSERT_TRUE(TestHost::waitFor([&] { return find.isDone(); }));
    EXPECT_EQ(at, 1);
    EXPECT_EQ(find.count(), 2);
    EXPECT_EQ(find.numberOf(3), 2);
    EXPECT_EQ(find.numberOf(2), 0);
    find.goOnFrom(2, true);
    EXPECT_EQ(at, 3);
    find.goOnFrom(4, true);
    EXPECT_EQ(at, 1);
    find.goOnFrom(1, false);
    EXPECT_EQ(at, 3);
    find.goOnFrom(3, false);
    EXPECT_EQ(at, 1);
    write("two more\n");
    settle();
    ASSERT_TRUE(TestHost::waitFor([&] { return find.isDone(); }));
    EXPECT_EQ(find.count(), 3);
    rows("more");
    ASSERT_TRUE(TestHost::waitFor([&] { return find.isDone(); }));
    EXPECT_EQ(find.count(), 1);
    find.setText("");
    EXPECT_EQ(find.count(), 0);
}

TEST_F(Log, ManyThreadsLoseNothing)
{
    constexpr int Lines = 3000;
    std::vector<std::thread> threads;
    for (int worker = 0; worker < 6; ++worker) {
        threads.emplace_back([this, worker] {
            for (int i = 0; i < Lines; ++i) {
                write(std::to_string(worker) + ": ");
                write(std::to_string(i) + "\n");
            }
        });
    }
    EXPECT_TRUE(TestHost::waitFor([this] { return model.rowCount() == 6 * Lines; }));
    for (std::thread& thread : threads)
        thread.join();
    int next[6] = {};
    for (int row = 0; row < model.rowCount(); ++row) {
        const QString text = model.textOf(row);
        const int worker = text.section(": ", 0, 0).toInt();
        EXPECT_EQ(text.section(": ", 1).toInt(), next[worker]++);
    }
}

// Many rows of few hashes, while the first ones go.
TEST(RowsByHash, FindsTheRowThatIsWantedAmongThoseKept)
{
    constexpr std::int64_t Rows = 20000;
    constexpr std::int64_t Kept = 3000;
    constexpr std::int64_t Texts = 500;
    constexpr std::uint32_t Hashes[] = {0, 1, 0xffffffff, 0x80000000, 17};
    RowsByHash rows;
    std::map<std::int64_t, std::int64_t> added; // the last row of each text
    for (std::int64_t row = 0; row < Rows; ++row) {
        const std::int64_t text = row % Texts;
        const std::int64_t firstKept = std::max<std::int64_t>(0, row - Kept);
        const auto isEqual = [&](std::uint64_t other) {
            return std::int64_t(other) >= firstKept && std::int64_t(other) % Texts == text;
        };
        const std::uint32_t hash = Hashes[text % 5];
        rows.prefetch(hash);
        const std::int64_t found =
            rows.findOrAdd(hash, std::uint64_t(row), std::uint64_t(firstKept), isEqual);
        const bool isThere = added.count(text) > 0 && added[text] >= firstKept;
        ASSERT_EQ(found, isThere ? added[text] : -1) << row;
        if (!isThere)
            added[text] = row;
    }
    rows.clear();
    EXPECT_EQ(rows.findOrAdd(17, 0, 0, [](std::uint64_t) { return true; }), -1);
}

TEST(TextFinder, FindsWhatAPlainLoopFinds)
{
    std::mt19937 random(3);
    const auto make = [&](unsigned longest) {
        std::string text;
        for (auto length = random() % (longest + 1); length > 0; --length)
            text += "aAbB@`[{\xe9\xc9"[random() % 10];
        return text;
    };
    const auto lowered = [](std::string text) {
        for (char& c : text)
            c = c >= 'A' && c <= 'Z' ? char(c + 32) : c;
        return text;
    };
    for (int round = 0; round < 8000; ++round) {
        const std::string text = make(70);
        const std::string wanted = make(4);
        const std::size_t from = random() % (text.size() + 1);
        const std::size_t expected =
            wanted.empty() ? std::string::npos : lowered(text).find(lowered(wanted), from);
        ASSERT_EQ(TextFinder(wanted).find(text, from), expected) << text << " / " << wanted << " / " << from;
    }
}

TEST(LogTargetNames, AreWhatIsQuotedThenPathsThenWords)
{
    EXPECT_EQ(
        LogTargets::candidatesIn(QString::fromUtf8("“two words” is in (/a/b.xsg:12:3), see Lamp.radius!")),
        (QStringList{"two words", "/a/b.xsg:12:3", "Lamp.radius", "two", "words", "is", "in", "see"})
            .mid(0, 8));
    EXPECT_EQ(LogTargets::candidatesIn("/Lamp/Cube[2]:").first(), "/Lamp/Cube[2]");
    EXPECT_LE(LogTargets::candidatesIn(QString("a b c d ").repeated(500)).size(), 24);
}

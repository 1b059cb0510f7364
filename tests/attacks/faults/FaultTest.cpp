// SPDX-License-Identifier: MIT
// Every writer and reader of files, with its n-th system call failing: what was there is there still, or what
// was to be there is; nothing crashes, hangs or leaves a temporary file; and what could not be done is said
// in one sentence.
#include "FailingCalls.h"
#include "Operations.h"
#include "support/ChildProcess.h"

#include <xsg/files/SoSceneFile.h>

#include <gtest/gtest.h>

#include <QtCore>

#include <array>
#include <cerrno>
#include <csignal>
#include <unistd.h>

using failing::Fault;

void PrintTo(const Operation& operation, std::ostream* out)
{
    *out << operation.name;
}

namespace
{

using Files = QMap<QString, QByteArray>; // by their paths in the folder

constexpr std::chrono::seconds Patience{60}; // with a case

struct Case {
    const char* name;
    failing::Call call;
    int error;
    bool stays;
};

constexpr Case Cases[] = {
    {"open EIO", failing::Open, EIO, false},
    {"open ENOSPC", failing::Open, ENOSPC, true},
    {"open EINTR", failing::Open, EINTR, false},
    {"read EIO", failing::Read, EIO, false},
    {"read EIO always", failing::Read, EIO, true},
    {"read EINTR", failing::Read, EINTR, false},
    {"read short", failing::Read, 0, false},
    {"write ENOSPC", failing::Write, ENOSPC, true},
    {"write ENOSPC once", failing::Write, ENOSPC, false},
    {"write EIO", failing::Write, EIO, false},
    {"write EINTR", failing::Write, EINTR, false},
    {"write short", failing::Write, 0, false},
    {"fsync EIO", failing::Sync, EIO, true},
    {"fsync ENOSPC", failing::Sync, ENOSPC, false},
    {"fsync EINTR", failing::Sync, EINTR, false},
    {"rename EIO", failing::Rename, EIO, true},
    {"rename ENOSPC", failing::Rename, ENOSPC, false},
    {"close EIO", failing::Close, EIO, false},
    {"close EINTR", failing::Close, EINTR, false},
    {"mmap EIO", failing::Map, EIO, false},
    {"mmap ENOSPC", failing::Map, ENOSPC, true},
};

// All, where somebody has the time: tools/torture does.
int mostCalls()
{
    return qEnvironmentVariableIsSet("SCOPIX_ALL_FAULTS") ? 100000 : 50;
}

// Locks stay by design; they hold nothing.
Files filesIn(const QString& folder)
{
    Files files;
    QDirIterator all(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        QFile file(all.next());
        const QString name = QDir(folder).relativeFilePath(file.fileName());
        if (!name.endsWith(".lock") && file.open(QIODevice::ReadOnly))
            files.insert(name, file.readAll());
    }
    return files;
}

int openFiles()
{
    return QDir("/proc/self/fd").entryList(QDir::Files | QDir::System).size();
}

/// What a case came to, as its process tells.
struct Report {
    bool hasEnded = false; // by itself
    int signal = 0;
    Outcome outcome;
    int calls = 0;
    int leaked = 0; // descriptors
};

class Pipe
{
public:
    Pipe() { EXPECT_EQ(pipe(m_ends.data()), 0); }
    ~Pipe()
    {
        ::close(m_ends[0]);
        ::close(m_ends[1]);
    }
    void put(const QByteArray& bytes) const
    {
        for (int at = 0; at < bytes.size();) {
            const auto size = ::write(m_ends[1], bytes.constData() + at, size_t(bytes.size() - at));
            if (size <= 0)
                return;
            at += int(size);
        }
    }
    QByteArray takeAll()
    {
        ::close(m_ends[1]);
        m_ends[1] = -1;
        QByteArray all;
        std::array<char, 4096> part{};
        for (ssize_t size = 0; (size = ::read(m_ends[0], part.data(), part.size())) > 0;)
            all.append(part.data(), int(size));
        return all;
    }

private:
    std::array<int, 2> m_ends{};
};

class Faults : public ::testing::TestWithParam<Operation>
{
protected:
    /// In a process of its own, which is a copy of this one, so that nothing has to be set up again.
    Report run(const QString& folder, const Fault& fault)
    {
        Pipe pipe;
        ProcessCopy copy(Patience, [&] {
            runHere(folder, fault, pipe);
            return true;
        });
        const QByteArray said = pipe.takeAll();
        const ProcessEnd end = copy.waitForEnd();
        Report report;
        report.hasEnded = end.isGood();
        report.signal = end.signal;
        QDataStream in(said);
        in >> report.outcome.isDone >> report.outcome.sentence >> report.outcome.found >> report.calls >>
            report.leaked;
        return report;
    }

private:
    static void runHere(const QString& folder, const Fault& fault, const Pipe& pipe)
    {
        const int before = openFiles();
        const QByteArray path = QFile::encodeName(folder);
        // What the program itself has written to a private file a moment ago can be read; and dialogs read
        // much.
        const bool isOnlyBelow = fault.call == failing::Read || GetParam().kind == Operation::WritesInPlace;
        failing::failingBelow(isOnlyBelow ? path.constData() : nullptr);
        failing::failingSet(&fault);
        const Outcome outcome = GetParam().act(folder);
        failing::failingSet(nullptr);
        QByteArray said;
        QDataStream out(&said, QIODevice::WriteOnly);
        out << outcome.isDone << outcome.sentence << outcome.found << failing::failingCount(fault.call)
            << openFiles() - before;
        pipe.put(said);
    }
};

std::string describe(const Case& each, int nth, const Report& report)
{
    return std::string(each.name) + " at call " + std::to_string(nth) +
           (report.signal ? ": ended by " + std::string(strsignal(report.signal)) : std::string()) + ": " +
           (report.outcome.isDone ? "done" : "“" + report.outcome.sentence.toStdString() + "”");
}

void expectOneSentence(const QString& text)
{
    EXPECT_FALSE(text.isEmpty());
    EXPECT_EQ(text.count('\n'), 0);
    EXPECT_EQ(text.count(QChar(0)), 0);
}

bool isOneOf(const QByteArray& content, const Files& files, const QString& name)
{
    return files.contains(name) && files.value(name) == content;
}

// Names with random parts are compared by what they end in.
QString kindOf(const QString& name)
{
    const bool isRandom =
        name.startsWith("recovery/") || name.startsWith("plugins/") || name.startsWith("settings/");
    return isRandom ? name.section('.', -1) : name;
}

QSet<QString> kindsIn(const Files& files)
{
    QSet<QString> kinds;
    for (const QString& name : files.keys())
        kinds << kindOf(name);
    return kinds;
}

void expectScene(const QByteArray& text)
{
    std::string error;
    EXPECT_TRUE(SoSceneFile::readText(text.toStdString(), "scene", error)) << error;
}

void expectXml(const QByteArray& text)
{
    QXmlStreamReader reader(text);
    while (!reader.atEnd())
        reader.readNext();
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
}

// What the test has found wrong so far.
int countFailures()
{
    return ::testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

// As far as a writer came, whether it had emptied the file before or not.
bool isPartOf(const QByteArray& content, const QByteArray& before, const QByteArray& after)
{
    const auto end = std::mismatch(content.begin(), content.end(), after.begin(), after.end()).first;
    const int written = int(end - content.begin());
    return written == content.size() || content.mid(written) == before.mid(written);
}

void expectWhole(const Files& now, const Files& before, const Files& after, Operation::Kind kind, bool isDone)
{
    for (const QString& name : now.keys()) {
        if (kindOf(name) == QLatin1String("xsg"))
            expectScene(now[name]);
        if (kindOf(name) == QLatin1String("xml"))
            expectXml(now[name]);
        if (kindOf(name) == QLatin1String("json")) {
            EXPECT_TRUE(QJsonDocument::fromJson(now[name]).isObject()) << name.toStdString();
        }
        if (kindOf(name) != name)
            continue;
        const bool isBegun =
            kind == Operation::WritesInPlace && isPartOf(now[name], before[name], after[name]);
        EXPECT_TRUE(isBegun || isOneOf(now[name], before, name) || isOneOf(now[name], after, name))
            << name.toStdString() << " is neither the old one nor the new one, but "
            << now[name].left(200).toStdString() << "… of " << now[name].size() << " bytes";
        if (isDone) {
            EXPECT_TRUE(isOneOf(now[name], after, name)) << name.toStdString() << " was said to be done";
        }
    }
    for (const QString& kind : kindsIn(before))
        EXPECT_TRUE(kindsIn(now).contains(kind)) << kind.toStdString() << " is gone";
    const QSet<QString> left = kindsIn(now) - kindsIn(before) - kindsIn(after);
    EXPECT_TRUE(left.isEmpty()) << "left over: " << QStringList(left.values()).join(' ').toStdString();
}

} // namespace

TEST_P(Faults, LeaveTheOldOrTheNew)
{
    const Operation& operation = GetParam();
    QTemporaryDir first;
    operation.prepare(first.path());
    const Files before = filesIn(first.path());
    const Report good = run(first.path(), Fault{});
    ASSERT_TRUE(good.hasEnded);
    const Files after = filesIn(first.path());

    for (const Case& each : Cases) {
        int reached = 1;
        const int failures = countFailures();
        for (int nth = 1; nth <= mostCalls() && reached >= nth && countFailures() == failures; ++nth) {
            QTemporaryDir folder;
            operation.prepare(folder.path());
            const Report report = run(folder.path(), {each.call, nth, each.error, each.stays});
            SCOPED_TRACE(describe(each, nth, report));
            EXPECT_TRUE(report.hasEnded);
            EXPECT_LE(report.leaked, 0) << "descriptors";
            if (!report.outcome.isDone && operation.words == Operation::Speaks)
                expectOneSentence(report.outcome.sentence);
            const Files now = filesIn(folder.path());
            expectWhole(now, before, after, operation.kind,
                        report.outcome.isDone && operation.kind != Operation::Reads);
            if (operation.kind == Operation::Reads && report.outcome.isDone) {
                EXPECT_EQ(report.outcome.found, good.outcome.found);
            }
            reached = report.calls;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Of, Faults, ::testing::ValuesIn(allOperations()),
                         [](const auto& info) { return std::string(info.param.name); });

// Without its fault each operation does what the others are compared with.
TEST_P(Faults, WithoutAnyItIsDone)
{
    QTemporaryDir folder;
    GetParam().prepare(folder.path());
    const Report report = run(folder.path(), Fault{failing::Open, 1000000, EIO, false});
    EXPECT_TRUE(report.hasEnded);
    EXPECT_TRUE(report.outcome.isDone) << report.outcome.sentence.toStdString();
    EXPECT_GT(report.calls, 0) << "its calls do not go through the library that makes them fail";
}

// SPDX-License-Identifier: MIT
// Attacks the program at random: torture [SECONDS] [--seed N] [--only KIND] [--once].
#include "Rounds.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>
#include <random>

namespace
{

constexpr int StandardSeconds = 600;

void say(const QString& text)
{
    std::printf("%s\n", qPrintable(text));
    std::fflush(stdout);
}

bool isClean(const QString& kind, quint64 seed)
{
    torture::Round round(kind, seed);
    const QStringList wrong = round.run();
    if (wrong.isEmpty())
        return true;
    round.keepFolder();
    say(QStringLiteral("%1 with seed %2, in %3:").arg(kind).arg(seed).arg(round.folder()));
    for (const QString& each : wrong)
        say("    " + each);
    say(QStringLiteral("    again by: tools/torture --only %1 --seed %2 --once").arg(kind).arg(seed));
    return false;
}

class Torture
{
public:
    explicit Torture(const QCommandLineParser& line)
        : m_seconds(line.positionalArguments().value(0).toInt())
        , m_kinds(line.isSet("only") ? QStringList(line.value("only")) : torture::Round::kinds())
        , m_isOnce(line.isSet("once"))
        , m_seed(line.isSet("seed") ? line.value("seed").toULongLong() : std::random_device()())
    {
        if (m_seconds <= 0)
            m_seconds = StandardSeconds;
    }

    int run()
    {
        say(QStringLiteral("Seed %1.").arg(m_seed));
        QElapsedTimer clock;
        clock.start();
        int rounds = 0;
        int bad = 0;
        for (quint64 turn = 0; turn == 0 || (!m_isOnce && clock.elapsed() < m_seconds * qint64{1000});
             ++turn) {
            for (const QString& kind : m_kinds) {
                if (turn > 0 && (isExhaustive(kind) || clock.elapsed() >= m_seconds * qint64{1000}))
                    continue;
                ++rounds;
                bad += isClean(kind, m_seed + turn) ? 0 : 1;
            }
        }
        say(QStringLiteral("%1 rounds in %2 s, %3 of them not clean.")
                .arg(rounds)
                .arg(clock.elapsed() / 1000)
                .arg(bad));
        return bad > 0 ? 1 : 0;
    }

private:
    // It is the same whatever the seed.
    static bool isExhaustive(const QString& kind) { return kind.startsWith(QLatin1String("each-")); }

    int m_seconds;
    QStringList m_kinds;
    bool m_isOnce;
    quint64 m_seed;
};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser line;
    line.setApplicationDescription("Attacks Scopix at random for SECONDS, 600 where nothing else is said.");
    line.addHelpOption();
    line.addPositionalArgument("SECONDS", "How long.", "[SECONDS]");
    line.addOption({"seed", "Begin with this seed; it is printed, so that a run can be repeated.", "N"});
    line.addOption({"only", "Only this kind: " + torture::Round::kinds().join(", ") + ".", "KIND"});
    line.addOption({"once", "One round of each kind."});
    line.process(application);
    if (line.isSet("only") && !torture::Round::kinds().contains(line.value("only")))
        line.showHelp(2);
    torture::Process::adoptOrphans();
    return Torture(line).run();
}

// SPDX-License-Identifier: MIT
#include "attacks/faults/Operations.h"

#include "PerfCounter/CounterProfileFile.h"
#include "PerfCounter/OwedSaves.h"
#include "SpxConsole.h"
#include "attacks/calls/FailingCalls.h"
#include "support/FileAnswer.h"
#include "support/MessageBoxes.h"
#include "support/TestHost.h"

#include <QDomDocument>
#include <QtTest>

#include <iostream>

namespace
{

const QString Counters = QStringLiteral("/counters.xml");
const QString ConsoleText = QStringLiteral("/console.txt");

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(content);
}

QByteArray countersFile(int profiles)
{
    QByteArray text = "<perfCounterModule><customPC/><profiles>";
    for (int i = 0; i < profiles; ++i)
        text += "<profile name='" + QByteArray::number(i) + "'/>";
    return text + "</profiles></perfCounterModule>";
}

void prepareCounters(const QString& folder)
{
    write(folder + Counters, countersFile(300));
}

// What could not be written is written with the next save, when the disk does its work again.
Outcome saveCounters(const QString& folder)
{
    MessageBoxes boxes;
    QDomDocument document;
    document.setContent(countersFile(600));
    OwedSaves saves;
    OwedSaves::JoinedProfiles joined;
    Outcome outcome;
    outcome.isDone = saves.save(folder + Counters, document, nullptr, joined);
    outcome.sentence = boxes.take().join(QStringLiteral("; ")).replace('\n', ' ');
    if (outcome.isDone || outcome.sentence.isEmpty())
        return outcome;
    failing::failingSet(nullptr);
    saves.retry(nullptr);
    outcome.isDone = !saves.isOwed(folder + Counters);
    return outcome;
}

Outcome readCounters(const QString& folder)
{
    QDomDocument document;
    QString problem;
    QFile file(folder + Counters);
    problem = counterProfileFile::openToRead(file);
    const bool isRead = problem.isEmpty() && counterProfileFile::parse(&file, document, problem);
    return {isRead, problem.simplified(), isRead ? document.toByteArray() : QByteArray()};
}

void prepareConsoleText(const QString& folder)
{
    write(folder + ConsoleText, QByteArray(40000, '-'));
}

// It has no way of saying what it could not do.
Outcome saveConsole(const QString& folder)
{
    TestHost host;
    SpxConsole console;
    host.window().show();
    host.start(console);
    QByteArray text;
    for (int i = 0; i < 1500; ++i)
        text += "line " + QByteArray::number(i) + '\n';
    console.printInfo(QString::fromLatin1(text.trimmed()));
    FileAnswer answer(folder + ConsoleText);
    QTest::mouseClick(host.window().findChild<QPushButton*>(QStringLiteral("m_saveButton")), Qt::LeftButton);
    failing::failingSet(nullptr);
    host.stop(console);
    return {contentOf(folder + ConsoleText).startsWith(text.trimmed()), {}, {}};
}

} // namespace

std::vector<Operation> allOperations()
{
    return {
        {"SaveCounters", Operation::WritesInPlace, Operation::Speaks, prepareCounters, saveCounters},
        {"ReadCounters", Operation::Reads, Operation::Speaks, prepareCounters, readCounters},
        {"SaveConsole", Operation::WritesInPlace, Operation::IsSilent, prepareConsoleText, saveConsole},
    };
}

// SPDX-License-Identifier: MIT
// Plug-ins that would end the program or block it, and libraries that are not whole.
#include "PluginParts.h"

#include "plugins/PluginSearchPath.h"
#include "plugins/PluginTrial.h"
#include "plugins/TryAgainMenu.h"

#include <support/ChildProcess.h>
#include <support/Waiting.h>

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include <link.h>
#include <unistd.h>

using namespace scopix;

namespace
{

constexpr auto Found = PluginGuard::Asked::Found;
constexpr auto Named = PluginGuard::Asked::Named;

// Without what follows a beginning.
const ChildAct beginAndEnd("beginAndEnd", [](const ChildAct::Words& words) {
    const PluginRecords records(QString::fromStdString(words[0]));
    const auto start = records.begin(QString::fromStdString(words[1]));
    if (start)
        _exit(0);
    return false;
});

class PluginGuarded : public ::testing::Test
{
protected:
    PluginGuarded() { host.manager.setTriesFirst(true); }

    // A copy in a folder of the test's own, so that it may be changed.
    QString copy(const char* variant) const
    {
        const QString path = host.folder.filePath(QStringLiteral("lib%1.so").arg(QLatin1String(variant)));
        QFile::remove(path);
        EXPECT_TRUE(QFile::copy(testPlugin(variant), path));
        return path;
    }
    PluginRecords records() const { return PluginRecords(host.folder.filePath(QStringLiteral("plugins"))); }
    QString lastFailure() const { return host.failures.isEmpty() ? QString() : host.failures.last(); }
    // As a program that ends in the middle of loading it.
    void breakStart(const QString& library) const
    {
        const QString folder = host.folder.filePath(QStringLiteral("plugins"));
        EXPECT_TRUE(beginAndEnd.isDone({folder.toStdString(), library.toStdString()}));
    }

    PluginHost host;
};

struct Harm {
    const char* variant;
    const char* expected;
};

class PluginTrials : public PluginGuarded, public ::testing::WithParamInterface<Harm>
{
};

TEST_P(PluginTrials, WhatWouldEndTheProgramIsRefusedInASentence)
{
    const QString library = copy(GetParam().variant);
    EXPECT_FALSE(host.manager.loadPlugin(library));
    ASSERT_EQ(host.failures.size(), 1);
    EXPECT_TRUE(lastFailure().contains(library)) << lastFailure().toStdString();
    EXPECT_TRUE(lastFailure().contains(QString::fromUtf8(GetParam().expected)))
        << lastFailure().toStdString();
    EXPECT_EQ(lastFailure().count('\n'), 0);
}

INSTANTIATE_TEST_SUITE_P(Cases, PluginTrials,
                         ::testing::Values(Harm{"InitThrows", "no luck from the start"},
                                           Harm{"InitCrashes", "its code"}, Harm{"Crashes", "its code"},
                                           Harm{"Throws", "its loadPlugin failed: out of luck"},
                                           Harm{"NoEntry", "no entry point “loadPlugin”"}));

// As if all were well.
TEST_F(PluginGuarded, OneThatEndsTheProcessHasNotSucceeded)
{
    const PluginTrial::Outcome outcome = PluginTrial::run(copy("Ends"));
    EXPECT_TRUE(outcome.isHarmful);
    EXPECT_TRUE(outcome.reason.contains("its code ended the process")) << outcome.reason.toStdString();
}

TEST_F(PluginGuarded, AnEndlessLoopIsGivenUp)
{
    const PluginTrial::Outcome outcome = PluginTrial::run(copy("Endless"), 500);
    EXPECT_TRUE(outcome.isHarmful);
    EXPECT_TRUE(outcome.reason.contains("did not finish loading within 0.5 seconds"))
        << outcome.reason.toStdString();
}

TEST_F(PluginGuarded, AGoodOneIsTriedOnceAndThenKnown)
{
    const QString library = copy("Good");
    EXPECT_FALSE(records().find(library));
    EXPECT_TRUE(host.manager.loadPlugin(library));
    EXPECT_FALSE(records().find(library)) << "before the first turn of the event loop";
    EXPECT_TRUE(waitFor([&] { return records().find(library).has_value(); }));
    EXPECT_FALSE(records().find(library)->isQuarantined);
    EXPECT_EQ(QDir(host.folder.filePath("plugins")).entryList(QDir::Files).filter("starting"), QStringList());
    EXPECT_EQ(host.failures, QStringList());
}

// What is known is not run in a process of its own again.
TEST_F(PluginGuarded, AKnownOneIsNotTriedAgainUntilItsFileChanges)
{
    const QString library = copy("InitThrows");
    records().write(library, {});
    PluginGuard guard(records());
    guard.setTriesFirst(true);
    EXPECT_EQ(guard.enter(library, Found), QString());
    guard.leave(library, true);
    QFile file(library);
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write("\n");
    file.close();
    EXPECT_TRUE(guard.enter(library, Found).contains("no luck from the start"));
}

TEST_F(PluginGuarded, TheOneInWhichAStartEndedIsInQuarantine)
{
    const QString library = copy("Good");
    breakStart(library);
    EXPECT_FALSE(host.manager.loadPlugin(library));
    EXPECT_TRUE(lastFailure().contains("the program ended the last time")) << lastFailure().toStdString();
    EXPECT_EQ(host.manager.quarantined(), QStringList(library));
    // At each further start too.
    EXPECT_FALSE(host.manager.loadPlugin(library));
    EXPECT_EQ(host.failures.size(), 2);
    // Until the file is another one.
    EXPECT_TRUE(host.manager.loadPlugin(copy("Good")));
}

TEST_F(PluginGuarded, TheMenuTriesAgain)
{
    const QString library = copy("Good");
    QMenu tools;
    const TryAgainMenu menu(host.manager, tools);
    EXPECT_TRUE(tools.actions().isEmpty());
    breakStart(library);
    EXPECT_FALSE(host.manager.loadPlugin(library));
    ASSERT_EQ(tools.actions().size(), 1);
    EXPECT_EQ(tools.actions().first()->text(), "Try Again");
    ASSERT_EQ(menu.actions().size(), 1);
    EXPECT_EQ(menu.actions().first()->text(), "libGood.so");
    menu.actions().first()->trigger();
    EXPECT_TRUE(waitFor([&] { return host.manager.pluginNames().contains("Test"); }));
    EXPECT_TRUE(tools.actions().isEmpty());
    EXPECT_TRUE(waitFor([&] { return records().find(library).has_value(); }));
    EXPECT_FALSE(records().find(library)->isQuarantined);
}

// Whoever names a plug-in asks for it; but not at the very start after it has ended one.
TEST_F(PluginGuarded, OneThatIsNamedIsLoadedOutOfQuarantine)
{
    const QString library = copy("Good");
    breakStart(library);
    EXPECT_FALSE(host.manager.loadPlugin(library, Named));
    EXPECT_TRUE(host.manager.loadPlugin(library, Named));
}

TEST_F(PluginGuarded, TwoProgramsThatStartAtOnceDoNotAccuseEachOther)
{
    const QString library = copy("Good");
    const auto otherProgram = records().begin(library);
    ASSERT_TRUE(otherProgram);
    EXPECT_TRUE(host.manager.loadPlugin(library));
    EXPECT_EQ(host.failures, QStringList());
}

TEST_F(PluginGuarded, AnEmbeddingProgramStartsNoOtherProcess)
{
    PluginHost embedded;
    EXPECT_FALSE(embedded.manager.loadPlugin(testPlugin("Null")));
    PluginGuard guard{PluginRecords(host.folder.filePath("others"))};
    EXPECT_EQ(guard.enter(copy("InitCrashes"), Found), QString()) << "nothing has run it";
}

TEST_F(PluginGuarded, TheDefaultExtensionsAreNeitherTriedNorRemembered)
{
    breakStart(SCOPIX_PLUGIN);
    PluginGuard guard(records());
    guard.setTriesFirst(true);
    EXPECT_EQ(guard.enter(SCOPIX_PLUGIN, Found), QString());
    EXPECT_FALSE(PluginSearchPath().isShipped(copy("Good")));
}

TEST_F(PluginGuarded, ACorruptRecordIsNone)
{
    const QString library = copy("Good");
    records().write(library, {true, "a reason"});
    const QDir folder(host.folder.filePath("plugins"));
    ASSERT_EQ(folder.entryList({"*.json"}).size(), 1);
    QFile file(folder.filePath(folder.entryList({"*.json"}).first()));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("{\"identity\": 3");
    file.close();
    EXPECT_FALSE(records().find(library));
    EXPECT_TRUE(host.manager.loadPlugin(library));
}

TEST_F(PluginGuarded, AnExceptionWhileUnloadingIsNamed)
{
    const QString library = copy("UnloadThrows");
    ASSERT_TRUE(host.manager.loadPlugin(library));
    host.manager.unloadAll();
    const QString path = QFileInfo(library).canonicalFilePath();
    EXPECT_EQ(host.failures,
              (QStringList{"The plug-in “" + path + "” failed in unload(): not leaving.",
                           "The plug-in “" + path + "” failed in unloadPlugin(): not going."}));
}

// Files that are no whole library are refused before anything runs them.
class BrokenLibrary : public PluginGuarded
{
protected:
    BrokenLibrary()
    {
        QFile file(testPlugin("Good"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        whole = file.readAll();
        host.manager.setTriesFirst(false); // which would refuse them too
    }
    bool isRefused(const QByteArray& content)
    {
        const QString path = host.folder.filePath("libBroken.so");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
        file.close();
        return !PluginLibrary::whyNot(path).isEmpty();
    }
    template <class Struct>
    Struct& at(quint64 offset)
    {
        return *reinterpret_cast<Struct*>(whole.data() + offset);
    }

    QByteArray whole;
};

TEST_F(BrokenLibrary, OneThatIsCopiedInPartIsRefused)
{
    EXPECT_FALSE(isRefused(whole));
    for (int left = 0; left < whole.size(); left += 997)
        ASSERT_TRUE(isRefused(whole.left(left))) << left;
    EXPECT_TRUE(isRefused(whole.left(whole.size() - 1)));
}

TEST_F(BrokenLibrary, OneWhoseSecondHalfIsStillZerosIsRefused)
{
    EXPECT_TRUE(isRefused(whole.left(whole.size() / 2) + QByteArray(whole.size() - whole.size() / 2, '\0')));
}

TEST_F(BrokenLibrary, OneWhoseSegmentsContradictThemselvesIsRefused)
{
    const auto header = at<ElfW(Ehdr)>(0);
    for (int i = 0; i < header.e_phnum; ++i) {
        auto& segment = at<ElfW(Phdr)>(header.e_phoff + quint64(i) * sizeof(ElfW(Phdr)));
        if (segment.p_type == PT_LOAD)
            segment.p_memsz = segment.p_filesz / 2;
    }
    EXPECT_TRUE(isRefused(whole));
}

} // namespace

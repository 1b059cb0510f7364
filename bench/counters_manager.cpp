// SPDX-License-Identifier: MIT
// What the profile manager costs, and how that grows with the number of profiles: to open it, against bare
// tabs of the same labels, and to let it read a file again, as Cancel does while the window is still there.
// Then what long names cost.
#include "SoPerfCounterProfile.h"
#include "SoPerfCounterProfileManager.h"

#include "Ratios.h"

#include <xsg/counters/SoPerfCounterManager.h>

#include <QApplication>
#include <QDomDocument>
#include <QFile>
#include <QTabWidget>
#include <QTemporaryDir>

#include <memory>

namespace
{

constexpr int Few = 10;
constexpr int More = 100;
constexpr int Many = 1000;
constexpr int CountersOffered = 10;
constexpr int ShortName = 10;
constexpr int LongName = 4'000'000;

QTemporaryDir& folder()
{
    static QTemporaryDir made;
    return made;
}

QString nameOf(int profile, int length)
{
    return QStringLiteral("profile %1 ").arg(profile).leftJustified(length, QLatin1Char('x'));
}

QStringList counterNames()
{
    QStringList names;
    for (int i = 0; i < CountersOffered; ++i) {
        names.append(QStringLiteral("bench%1").arg(i));
        const SbName name(names.last().toLatin1().constData());
        auto* registry = SoPerfCounterManager::getInstance();
        if (!registry->getCounter(name))
            registry->registerCounter(new SoPerfAccumCounter(name, "feeds the benchmark", "Bench", 0));
    }
    return names;
}

// The profiles as the dock has them.
class Profiles
{
public:
    Profiles(int count, int nameLength)
    {
        const QStringList counters = counterNames();
        for (int i = 0; i < count; ++i) {
            m_list.append(new SoPerfCounterProfile(nameOf(i, nameLength)));
            *m_list.last()->getList() = counters;
        }
    }
    ~Profiles() { qDeleteAll(m_list); }
    QList<SoPerfCounterProfile*>* list() { return &m_list; }

private:
    QList<SoPerfCounterProfile*> m_list;
};

// A file with as many profiles; returns its name.
QString fileOf(int count)
{
    QByteArray text = "<perfCounterModule><profiles>";
    for (int i = 0; i < count; ++i) {
        text += "<profile name='" + nameOf(i, ShortName).toUtf8() + "'><listcounters>";
        for (const QString& counter : counterNames())
            text += "<pc>" + counter.toUtf8() + "</pc>";
        text += "</listcounters></profile>";
    }
    QFile file(folder().filePath(QStringLiteral("%1.xml").arg(count)));
    if (file.open(QIODevice::WriteOnly))
        file.write(text + "</profiles></perfCounterModule>");
    return file.fileName();
}

std::unique_ptr<SoPerfCounterProfileManager> shown(Profiles& profiles)
{
    auto manager = std::make_unique<SoPerfCounterProfileManager>();
    manager->setAttribute(Qt::WA_DeleteOnClose, false);
    manager->setDomDocument(QDomDocument(QStringLiteral("shared")));
    manager->recoveryListFromMainWindow(profiles.list(), 0);
    manager->show();
    QCoreApplication::processEvents();
    return manager;
}

void open(benchmark::State& state)
{
    Profiles profiles(int(state.range(0)), int(state.range(1)));
    for (auto _ : state) {
        auto manager = shown(profiles);
        state.PauseTiming();
        manager.reset();
        state.ResumeTiming();
    }
}

void openBareTabs(benchmark::State& state)
{
    for (auto _ : state) {
        auto tabs = std::make_unique<QTabWidget>();
        for (int i = 0; i < state.range(0); ++i)
            tabs->addTab(new QWidget, nameOf(i, ShortName));
        tabs->resize(760, 620);
        tabs->show();
        QCoreApplication::processEvents();
        state.PauseTiming();
        tabs.reset();
        state.ResumeTiming();
    }
}

void readAgain(benchmark::State& state)
{
    Profiles profiles(int(state.range(0)), ShortName);
    const QString file = fileOf(int(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        auto manager = shown(profiles);
        manager->setFilepathTemp(file);
        state.ResumeTiming();
        manager->cancelButtonAction();
        state.PauseTiming();
        manager.reset();
        state.ResumeTiming();
    }
}

void leaf(benchmark::State& state)
{
    Profiles profiles(int(state.range(0)), ShortName);
    auto manager = shown(profiles);
    int tab = 0;
    for (auto _ : state) {
        manager->m_tabProfile->setCurrentIndex(++tab % manager->m_tabProfile->count());
        QCoreApplication::processEvents();
    }
}

void create(benchmark::State& state)
{
    Profiles profiles(int(state.range(0)), ShortName);
    auto manager = shown(profiles);
    for (auto _ : state) {
        manager->createNewProfile(QStringLiteral("new"));
        QCoreApplication::processEvents();
        state.PauseTiming();
        manager->deleteProfile();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    using Function = void (*)(benchmark::State&);
    const auto add = [](const char* name, Function function, std::initializer_list<std::int64_t> counts) {
        for (const std::int64_t count : counts)
            benchmark::RegisterBenchmark(name, function)->Arg(count)->Unit(benchmark::kMillisecond);
    };
    for (const std::int64_t count : {Few, More, Many})
        benchmark::RegisterBenchmark("open", open)->Args({count, ShortName})->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("open", open)->Args({Few, LongName})->Unit(benchmark::kMillisecond);
    add("bare tabs", openBareTabs, {More, Many});
    add("read again", readAgain, {More, Many});
    add("leaf to the next tab", leaf, {More, Many});
    add("create a profile", create, {More, Many});
    return bench::run(
        argc, argv,
        {{"open 1000 profiles, over 100", "open/1000/10", "open/100/10", "aim: at most 10"},
         {"open 1000 profiles, over bare tabs", "open/1000/10", "bare tabs/1000", ""},
         {"read 1000 profiles again, over 100", "read again/1000", "read again/100", "aim: at most 10"},
         {"leaf among 1000 tabs, over 100", "leaf to the next tab/1000", "leaf to the next tab/100",
          "aim: at most 10"},
         {"create a profile beside 1000, over 100", "create a profile/1000", "create a profile/100",
          "aim: at most 10"},
         {"open 10 profiles with names of 4 MB, over short ones", "open/10/4000000", "open/10/10",
          "aim: at most 10"}});
}

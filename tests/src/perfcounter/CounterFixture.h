// SPDX-License-Identifier: MIT
#pragma once

#include "CustomCounter.h"
#include "SoPerfCounterDockWin.h"
#include "SoPerfCounterPcViewed.h"
#include "SoPerfCounterProfile.h"
#include "SoPerfCounterProfileManager.h"
#include "support/MessageBoxes.h"
#include "support/TestHost.h"

#include <xsg/counters/SoPerfCounterManager.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

inline SoPerfAccumCounter* accumCounter(const char* name)
{
    auto* registry = SoPerfCounterManager::getInstance();
    if (SoPerfCounter* known = registry->getCounter(name))
        return static_cast<SoPerfAccumCounter*>(known);
    auto* counter = new SoPerfAccumCounter(name, "for tests", "Tests", 0);
    registry->registerCounter(counter);
    return counter;
}

inline bool isRegistered(const char* name)
{
    return SoPerfCounterManager::getInstance()->getCounter(name) != nullptr;
}

/// A home folder with a profile file in it, counters of the test's own, and the dock on them.
class CounterHome : public testing::Test
{
protected:
    CounterHome()
    {
        a = accumCounter("testA");
        b = accumCounter("testB");
        c = accumCounter("testC");
        qputenv("XSGHOME", folder.path().toLocal8Bit());
    }
    ~CounterHome() override
    {
        dock.reset();
        qunsetenv("XSGHOME");
        auto* registry = SoPerfCounterManager::getInstance();
        for (const SoPerfCounter* counter : registry->getCounters()) {
            if (counter->isCustom())
                registry->disableCounter(counter->getName());
        }
        registry->removeDisabledCounters();
        for (SoPerfCounter* counter : {static_cast<SoPerfCounter*>(a), static_cast<SoPerfCounter*>(b),
                                       static_cast<SoPerfCounter*>(c)}) {
            counter->setScaleFactor(1);
            counter->reset();
        }
    }

    QString path() const { return folder.path() + QStringLiteral("/data/Scopix/PerfCounter.xml"); }
    void writeFile(const QByteArray& content) { writeFile(path(), content); }
    static void writeFile(const QString& where, const QByteArray& content)
    {
        QDir().mkpath(QFileInfo(where).path());
        QFile file(where);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    static QByteArray readFile(const QString& where)
    {
        QFile file(where);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// Two profiles, the second one on screen, and one custom counter.
    void writeExample()
    {
        writeFile(
            "<?xml version='1.0' encoding='UTF-8'?>\n"
            "<perfCounterModule>\n"
            " <customPC>\n"
            "  <counter name=\"perFrame\" type=\"A\"><description>d</description><module>m</module>"
            "<level>2</level><firstparent>testA</firstparent><secondparent>testB</secondparent>"
            "<operation>/</operation></counter>\n"
            "  <counter name=\"odd\" type=\"X\"/>\n"
            "  <counter name=\"testA\" type=\"A\"><description>taken</description></counter>\n"
            " </customPC>\n"
            " <profiles>\n"
            "  <profile name=\"first\"><listcounters><pc>testA</pc></listcounters><listview/></profile>\n"
            "  <profile "
            "name=\"second\"><listcounters><pc>testC</pc><pc>testA</pc><pc>testB</pc></listcounters>"
            "<listview><pcviewed>testB</pcviewed></listview></profile>\n"
            " </profiles>\n"
            " <profileview name=\"second\"/>\n"
            "</perfCounterModule>\n");
    }
    SoPerfCounterDockWin& open()
    {
        dock = std::make_unique<SoPerfCounterDockWin>();
        dock->show();
        QCoreApplication::processEvents();
        return *dock;
    }
    QStringList profileNames() const
    {
        QStringList names;
        for (const SoPerfCounterProfile* profile : dock->getProfiles())
            names.append(profile->getName());
        return names;
    }
    QStringList offered() const
    {
        QStringList names;
        for (int i = 0; i < dock->m_preSelectedListView->count(); ++i)
            names.append(dock->m_preSelectedListView->item(i)->text());
        return names;
    }
    QStringList viewed() const
    {
        QStringList names;
        for (const SoPerfCounterPcViewed* v : *dock->m_viewer->getViewed())
            names.append(v->getName());
        return names;
    }
    SoPerfCounterProfileManager* openManager()
    {
        dock->openProfileManager();
        QCoreApplication::processEvents();
        return dock->findChild<SoPerfCounterProfileManager*>();
    }

    QTemporaryDir folder;
    MessageBoxes boxes;
    std::unique_ptr<SoPerfCounterDockWin> dock;
    SoPerfAccumCounter* a = nullptr;
    SoPerfAccumCounter* b = nullptr;
    SoPerfAccumCounter* c = nullptr;
};

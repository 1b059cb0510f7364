// SPDX-License-Identifier: MIT
#pragma once

#include "app/HostSession.h"
#include "window/MainWindow.h"
#include "window/PaletteActs.h"
#include "window/SettingsActs.h"

#include <support/Settling.h>
#include <support/Waiting.h>

#include <xsg/sensors/SoSensorQueue.h>

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>

/// The window as it is installed: with all plug-ins, and settings of its own.
class WholeWindow : public testing::Test
{
protected:
    enum class Later { No, Yes };

    /// Later: the test makes the window.
    explicit WholeWindow(Later later = Later::No)
    {
        qputenv("XDG_CONFIG_HOME", m_folder.path().toUtf8());
        qputenv("XDG_DATA_HOME", m_folder.path().toUtf8());
        if (later == Later::No)
            make();
    }
    ~WholeWindow() override { end(); }

    void end() { m_session.reset(); }

    void make()
    {
        using namespace scopix;
        m_session = std::make_unique<HostSession>(
            [this](HostServices& services, UserNotifier& notifier) {
                auto made = std::make_unique<MainWindow>(services, notifier);
                window = made.get();
                return made;
            },
            ProfileFile(m_folder.filePath(QStringLiteral("profiles.json"))));
        m_session->notifier().setAttended(false); // no box waits for anybody
        for (const char* file : {SCOPIX_PLUGIN, INSPECTOR_FILE, PROFILER_FILE})
            EXPECT_TRUE(m_session->plugins().loadPlugin(QString::fromUtf8(file)));
        window->resize(1600, 1000);
        window->show();
        window->activateWindow();
        EXPECT_TRUE(waitForActive(window));
        window->enterInteractiveMode();
        settle();
    }
    static void settle() { settleHost(); }
    scopix::HostSession& session() { return *m_session; }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<scopix::HostSession> m_session;

protected:
    scopix::MainWindow* window = nullptr;
};

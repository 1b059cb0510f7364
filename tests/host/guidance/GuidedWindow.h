// SPDX-License-Identifier: MIT
#pragma once

#include "services/HostServices.h"
#include "support/UserNotifier.h"
#include "window/MainWindow.h"
#include "window/PaletteActs.h"
#include "window/SettingsActs.h"
#include "window/Welcome.h"

#include <support/Settling.h>
#include <support/Waiting.h>

#include <xsg/sensors/SoSensorQueue.h>

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>

/// A window as a user has it, with settings of its own.
class GuidedWindow : public testing::Test
{
protected:
    GuidedWindow()
    {
        qputenv("XDG_CONFIG_HOME", m_folder.path().toUtf8());
        notifier.setAttended(false); // no box waits for anybody
        window = make();
    }
    ~GuidedWindow() override { window.reset(); }

    std::unique_ptr<scopix::MainWindow> make()
    {
        auto made = std::make_unique<scopix::MainWindow>(services, notifier);
        made->show();
        made->activateWindow();
        EXPECT_TRUE(waitForActive(made.get()));
        return made;
    }
    /// A user who comes back: what was set is read again.
    void startAgain()
    {
        window.reset();
        window = make();
        window->enterInteractiveMode();
    }
    bool open(const QString& path)
    {
        bool isDone = false;
        bool isOpened = false;
        const auto connection = QObject::connect(window.get(), &scopix::HostWindow::openFinished,
                                                 [&](bool opened) { isDone = true, isOpened = opened; });
        window->openFile(path);
        const bool came = waitFor([&] { return isDone; });
        QObject::disconnect(connection);
        return came && isOpened;
    }
    QAction* act(const char* name) { return window->findChild<QAction*>(QString::fromLatin1(name)); }
    static void settle() { settleHost(); }

private:
    QTemporaryDir m_folder;

protected:
    scopix::UserNotifier notifier;
    scopix::HostServices services;
    std::unique_ptr<scopix::MainWindow> window;
};

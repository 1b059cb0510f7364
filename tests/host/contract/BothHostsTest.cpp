// SPDX-License-Identifier: MIT
// What an extension may rely on, in the real host and in the one that stands in for it in tests.
#include "plugins/HostPluginsManager.h"
#include "services/HostServices.h"
#include "shell/HostShell.h"

#include <support/TestHost.h>
#include <xsg/fields/SoSFFloat.h>

#include <QDockWidget>
#include <QTemporaryDir>
#include <QToolBar>

#include <gtest/gtest.h>

using namespace scopix;

namespace
{

class RealHost
{
public:
    RealHost() { m_plugins.profiles().read(); }

    QMainWindow& window() { return m_window; }
    void select(SoField* field) { m_services.select(field); }
    bool undo() { return act(m_services.undoStack().canUndo(), &QUndoStack::undo); }
    bool redo() { return act(m_services.undoStack().canRedo(), &QUndoStack::redo); }
    static SpxProfile* profile(const char* name)
    {
        for (SpxProfile* profile : SpxPluginsManager::getInstance()->getProfilesList()) {
            if (profile->getName() == SbString(name))
                return profile;
        }
        return nullptr;
    }

private:
    bool act(bool can, void (QUndoStack::*what)())
    {
        (m_services.undoStack().*what)();
        return can;
    }

    QTemporaryDir m_folder;
    HostServices m_services;
    QMainWindow m_window;
    HostShell m_shell{m_window};
    HostPluginsManager m_plugins{m_services, m_shell, ProfileFile(m_folder.filePath("profiles.json"))};
};

class StandIn
{
public:
    StandIn() { m_host.addProfile("Edit"); }

    QMainWindow& window() { return m_host.window(); }
    void select(SoField* field) { m_host.select(field); }
    bool undo() { return m_host.undo(); }
    bool redo() { return m_host.redo(); }
    static SpxProfile* profile(const char* name) { return RealHost::profile(name); }

private:
    TestHost m_host;
};

template <class Host>
class BothHosts : public testing::Test
{
protected:
    SpxServices& services() { return *SpxServices::getInstance(); }
    SpxShell& shell() { return *SpxShell::getInstance(); }
    SpxPluginsManager& manager() { return *SpxPluginsManager::getInstance(); }

    // Longer than the commands that count in them.
    std::string trace;
    int alive = 0;

    Host host;
};

class Add : public SpxCommand
{
public:
    Add(std::string& trace, int& alive)
        : m_trace(trace)
        , m_alive(alive)
    {
        ++m_alive;
    }
    ~Add() override { --m_alive; }
    void execute() override { m_trace += "execute "; }
    void undo() override { m_trace += "undo "; }
    void redo() override { m_trace += "redo "; }

private:
    std::string& m_trace;
    int& m_alive;
};

using Hosts = testing::Types<RealHost, StandIn>;

} // namespace

TYPED_TEST_SUITE(BothHosts, Hosts);

TYPED_TEST(BothHosts, RunUndoRedoAndDeleteCommands)
{
    const auto add = [this] { this->services().executeCommand(new Add(this->trace, this->alive)); };
    add();
    EXPECT_FALSE(this->host.redo());
    EXPECT_TRUE(this->host.undo());
    EXPECT_FALSE(this->host.undo());
    EXPECT_TRUE(this->host.redo());
    EXPECT_EQ(this->trace, "execute undo redo ");
    add();
    EXPECT_EQ(this->alive, 2);
    this->host.undo();
    this->host.undo();
    add(); // drops what was undone
    EXPECT_EQ(this->alive, 1);
    EXPECT_FALSE(this->host.redo());
}

TYPED_TEST(BothHosts, GiveWidgetsBackWithoutAParent)
{
    QDockWidget dock;
    QToolBar bar;
    this->shell().addDockWidget(&dock, Qt::BottomDockWidgetArea);
    this->shell().addToolBar(&bar, Qt::TopToolBarArea);
    EXPECT_EQ(this->host.window().dockWidgetArea(&dock), Qt::BottomDockWidgetArea);
    EXPECT_EQ(this->host.window().toolBarArea(&bar), Qt::TopToolBarArea);
    this->shell().removeDockWidget(&dock);
    this->shell().removeToolBar(&bar);
    EXPECT_FALSE(dock.parentWidget());
    EXPECT_FALSE(bar.parentWidget());
}

TYPED_TEST(BothHosts, ReportASelectionEachTime)
{
    std::vector<SoField*> reported;
    QObject::connect(&this->services(), &SpxServices::selectedFieldChanged,
                     [&](SoField* field) { reported.push_back(field); });
    SoSFFloat field;
    this->host.select(&field);
    this->host.select(&field);
    EXPECT_EQ(reported, (std::vector<SoField*>{&field, &field}));
    this->host.select(nullptr);
}

TYPED_TEST(BothHosts, ChangeTheActiveProfileAtOnce)
{
    SpxProfile* edit = this->host.profile("Edit");
    ASSERT_TRUE(edit);
    EXPECT_EQ(this->manager().getActiveProfile(), this->host.profile("Default"));
    this->manager().setActiveProfile(edit);
    EXPECT_EQ(this->manager().getActiveProfile(), edit);
}

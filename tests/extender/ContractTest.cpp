// SPDX-License-Identifier: MIT
// What the classes of the contract keep by themselves, and how the test host keeps its side.
#include <support/TestHost.h>

#include <scopix/SpxPlugin.h>
#include <xsg/fields/SoSFFloat.h>

#include <QDockWidget>
#include <QSignalSpy>
#include <QToolBar>

#include <gtest/gtest.h>

#include <type_traits>

static_assert(int(Qt::RightDockWidgetArea) == 2);
static_assert(int(Qt::BottomDockWidgetArea) == 8);
static_assert(int(Qt::TopToolBarArea) == 4);
static_assert(std::is_base_of_v<QObject, SpxExtension>);
static_assert(!std::is_base_of_v<QObject, SpxPlugin>);
static_assert(!std::is_base_of_v<QObject, SpxCommand>);
static_assert(std::has_virtual_destructor_v<SpxCommand>);
static_assert(std::has_virtual_destructor_v<SpxPlugin>);

namespace
{

class Tool : public SpxExtension
{
public:
    Tool()
    {
        setName("Tool");
        setDescription("A tool.");
        setVendor("Maker");
        setVersion("2.0");
    }
    void load() override {}
    void unload() override {}
};

class Editor : public SpxEditor
{
public:
    Editor()
    {
        setHandledType(SoSFFloat::getClassTypeId());
        setWidget(&m_top);
    }
    void load() override {}
    void unload() override {}

    QWidget m_top;
};

class PlugIn : public SpxPlugin
{
public:
    PlugIn()
    {
        setName("PlugIn");
        setCopyright("Somebody");
        setHomepage("example.org");
    }
};

class Add : public SpxCommand
{
public:
    explicit Add(std::string& trace, int& alive)
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

} // namespace

TEST(Extension, KeepsItsFourTexts)
{
    const Tool tool;
    EXPECT_EQ(tool.getName(), SbString("Tool"));
    EXPECT_EQ(tool.getDescription(), SbString("A tool."));
    EXPECT_EQ(tool.getVendor(), SbString("Maker"));
    EXPECT_EQ(tool.getVersion(), SbString("2.0"));
}

TEST(Extension, TellsOnceOfEachChangeOfItsState)
{
    Tool tool;
    QSignalSpy active(&tool, &SpxExtension::activeChanged);
    QSignalSpy shown(&tool, &SpxExtension::shownChanged);
    tool.activate();
    tool.activate();
    tool.show();
    tool.show();
    EXPECT_TRUE(tool.isActive());
    EXPECT_TRUE(tool.isShown());
    tool.hide();
    tool.hide();
    tool.deactivate();
    EXPECT_FALSE(tool.isActive());
    EXPECT_FALSE(tool.isShown());
    EXPECT_EQ(active.count(), 2);
    EXPECT_EQ(shown.count(), 2);
}

TEST(Extension, AlwaysHasAProfileSetting)
{
    Tool tool;
    ASSERT_TRUE(tool.getProfileSetting());
    EXPECT_TRUE(tool.getProfileSetting()->getControlledExtensions().isEmpty());
    TestHost host;
    host.control({&tool});
    EXPECT_EQ(tool.getProfileSetting()->getControlledExtensions(), QList<SpxExtension*>{&tool});
}

TEST(EditorExtension, KeepsTypeObjectAndWidget)
{
    Editor editor;
    EXPECT_EQ(editor.getHandledType(), SoSFFloat::getClassTypeId());
    EXPECT_EQ(editor.getWidget(), &editor.m_top);
    EXPECT_FALSE(editor.getEditedObject());
    SoSFFloat field;
    editor.setEditedObject(&field);
    EXPECT_EQ(editor.getEditedObject(), &field);
    editor.setEditedObject(nullptr);
    EXPECT_FALSE(editor.getEditedObject());
}

TEST(PlugInBase, KeepsSixTextsAndItsExtensionsInOrder)
{
    PlugIn plugin;
    EXPECT_EQ(plugin.getName(), SbString("PlugIn"));
    EXPECT_EQ(plugin.getCopyright(), SbString("Somebody"));
    EXPECT_EQ(plugin.getHomepage(), SbString("example.org"));
    EXPECT_EQ(plugin.getVendor().getLength(), 0);
    Tool first;
    Tool second;
    plugin.addExtension(&first);
    plugin.addExtension(nullptr);
    plugin.addExtension(&second);
    EXPECT_EQ(plugin.getExtensions(), (QList<SpxExtension*>{&first, &second}));
    EXPECT_TRUE(plugin.load());
    plugin.unload();
    EXPECT_TRUE(plugin.getExtensions().isEmpty());
}

TEST(Singletons, LiveAsLongAsTheHost)
{
    EXPECT_FALSE(SpxServices::getInstance());
    EXPECT_FALSE(SpxShell::getInstance());
    EXPECT_FALSE(SpxPluginsManager::getInstance());
    {
        TestHost host;
        EXPECT_EQ(SpxServices::getInstance(), &host);
        EXPECT_EQ(SpxShell::getInstance(), &host);
        EXPECT_EQ(SpxPluginsManager::getInstance(), &host);
    }
    EXPECT_FALSE(SpxServices::getInstance());
    EXPECT_FALSE(SpxShell::getInstance());
    EXPECT_FALSE(SpxPluginsManager::getInstance());
}

// --- The test host's side

TEST(TestHost, RunsUndoesRedoesAndDeletesCommands)
{
    std::string trace;
    int alive = 0;
    {
        TestHost host;
        host.executeCommand(new Add(trace, alive));
        EXPECT_FALSE(host.redo());
        EXPECT_TRUE(host.undo());
        EXPECT_FALSE(host.undo());
        EXPECT_TRUE(host.redo());
        EXPECT_EQ(trace, "execute undo redo ");
        host.executeCommand(new Add(trace, alive));
        EXPECT_EQ(alive, 2);
        host.undo();
        host.undo();
        EXPECT_EQ(host.redoCount(), 2);
        host.executeCommand(new Add(trace, alive)); // drops what was undone
        EXPECT_EQ(alive, 1);
        EXPECT_EQ(host.undoCount(), 1);
        EXPECT_EQ(host.redoCount(), 0);
    }
    EXPECT_EQ(alive, 0);
}

TEST(TestHost, GivesWidgetsBackWithoutAParent)
{
    TestHost host;
    QDockWidget dock;
    QToolBar bar;
    host.addDockWidget(&dock, Qt::BottomDockWidgetArea);
    host.addToolBar(&bar, Qt::TopToolBarArea);
    EXPECT_EQ(dock.parentWidget(), &host.window());
    EXPECT_EQ(bar.parentWidget(), &host.window());
    host.removeDockWidget(&dock);
    host.removeToolBar(&bar);
    EXPECT_FALSE(dock.parentWidget());
    EXPECT_FALSE(bar.parentWidget());
    EXPECT_EQ(host.takeLog(), (TestHost::Log{"addDockWidget \"\" 8", "addToolBar \"\" 4",
                                             "removeDockWidget \"\"", "removeToolBar \"\""}));
}

TEST(TestHost, TellsOfSelectionsEachTime)
{
    TestHost host;
    std::vector<SoField*> told;
    QObject::connect(&host, &SpxServices::selectedFieldChanged,
                     [&](SoField* field) { told.push_back(field); });
    SoSFFloat field;
    host.select(&field);
    host.select(&field);
    EXPECT_EQ(told, (std::vector<SoField*>{&field, &field}));
}

TEST(TestHost, ChangesTheProfileAtOnce)
{
    TestHost host;
    SpxProfile* other = host.addProfile("Other");
    EXPECT_EQ(host.getProfilesList().size(), 2);
    EXPECT_EQ(host.getActiveProfile()->getName(), SbString("Default"));
    host.setActiveProfile(other);
    EXPECT_EQ(host.getActiveProfile(), other);
    EXPECT_EQ(host.takeLog(), (TestHost::Log{"setActiveProfile Other"}));
}

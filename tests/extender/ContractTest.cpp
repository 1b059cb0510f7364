// SPDX-License-Identifier: MIT
// What the classes of the contract keep by themselves.
#include <support/TestHost.h>

#include <scopix/SpxPlugin.h>
#include <xsg/fields/SoSFFloat.h>

#include <QSignalSpy>

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

} // namespace

TEST(Extension, KeepsItsFourTexts)
{
    const Tool tool;
    EXPECT_EQ(tool.getName(), SbString("Tool"));
    EXPECT_EQ(tool.getDescription(), SbString("A tool."));
    EXPECT_EQ(tool.getVendor(), SbString("Maker"));
    EXPECT_EQ(tool.getVersion(), SbString("2.0"));
}

TEST(Extension, ReportsEachChangeOfItsStateOnce)
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

// SPDX-License-Identifier: MIT
// The plug-in as the host gets it: a library loaded by name.
#include <support/TestHost.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <scopix/SpxPlugin.h>

#include <QApplication>
#include <QDockWidget>
#include <QFile>
#include <QLibrary>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace
{

std::size_t s_failingSize = 0;

} // namespace

// Lets a test make one allocation fail, chosen by its size.
void* operator new(std::size_t size)
{
    if (s_failingSize > 0 && size == s_failingSize)
        throw std::bad_alloc();
    if (void* memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return std::malloc(size > 0 ? size : 1);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

extern "C" SpxPlugin* loadPlugin();
extern "C" void unloadPlugin();

namespace
{

class Library
{
public:
    Library()
        : m_library(QStringLiteral(SCOPIX_PLUGIN))
    {
        EXPECT_TRUE(m_library.load()) << m_library.errorString().toStdString();
        m_load = reinterpret_cast<SpxPlugin* (*)()>(m_library.resolve("loadPlugin"));
        m_unload = reinterpret_cast<void (*)()>(m_library.resolve("unloadPlugin"));
        EXPECT_TRUE(m_load);
        EXPECT_TRUE(m_unload);
    }
    ~Library()
    {
        unload();
        EXPECT_TRUE(m_library.unload());
    }
    SpxPlugin* load() { return m_load(); }
    void unload() { m_unload(); }

private:
    QLibrary m_library;
    SpxPlugin* (*m_load)() = nullptr;
    void (*m_unload)() = nullptr;
};

bool isMapped()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    EXPECT_TRUE(maps.open(QIODevice::ReadOnly));
    return maps.readAll().contains("libSpxDefaults");
}

TestHost::Log namesOf(const SpxPlugin& plugin)
{
    TestHost::Log names;
    for (const SpxExtension* extension : plugin.getExtensions())
        names.push_back(extension->getName().str());
    return names;
}

// Every name in the order in which the host is to see it.
const TestHost::Log Registration = {
    "Profile Selector", "Console",  "PerfCounter",  "MFColor",    "MField",     "MFDouble",
    "SFFilePathString", "MFFloat",  "MFInt32",      "MFMatrix",   "MFPlane",    "MFRotation",
    "MFShort",          "MFString", "MFUInt32",     "MFUShort",   "MFVec2f",    "MFVec2i32",
    "MFVec2s",          "MFVec3f",  "MFVec4f",      "SFBitMask",  "SFBool",     "SFBox3s",
    "SFColor",          "SFEnum",   "SFDouble",     "SFFloat",    "SFImage",    "SFInt32",
    "SField",           "SFMatrix", "SFName",       "SFPlane",    "SFRotation", "SFShort",
    "SFString",         "SFUInt32", "SFUShort",     "SFVec2f",    "SFVec2i32",  "SFVec2s",
    "SFVec3f",          "SFVec4f",  "Field Editor", "Node Editor"};

} // namespace

TEST(PlugIn, NamesItsMaker)
{
    Library library;
    const SpxPlugin* plugin = library.load();
    ASSERT_TRUE(plugin);
    EXPECT_EQ(plugin->getName(), SbString("SpxDefaults"));
    EXPECT_EQ(plugin->getDescription(), SbString("Plug-in which loads Scopix default extensions."));
    EXPECT_EQ(plugin->getVendor(), SbString("Arvex"));
    EXPECT_EQ(plugin->getVersion(), SbString("1.0.0"));
    EXPECT_EQ(plugin->getCopyright().getLength(), 0);
    EXPECT_EQ(plugin->getHomepage().getLength(), 0);
}

TEST(PlugIn, RegistersItsExtensionsInTheStatedOrder)
{
    Library library;
    SpxPlugin* plugin = library.load();
    EXPECT_TRUE(plugin->getExtensions().isEmpty());
    EXPECT_TRUE(plugin->load());
    EXPECT_EQ(namesOf(*plugin), Registration);
    EXPECT_EQ(plugin->getExtensions().size(), 46);
}

TEST(PlugIn, NamesTheMakerOfEveryExtension)
{
    Library library;
    SpxPlugin* plugin = library.load();
    plugin->load();
    for (const SpxExtension* extension : plugin->getExtensions()) {
        EXPECT_GT(extension->getDescription().getLength(), 0) << extension->getName().str();
        EXPECT_EQ(extension->getVendor(), SbString("Arvex")) << extension->getName().str();
        EXPECT_EQ(extension->getVersion(), SbString("1.0.0")) << extension->getName().str();
    }
}

TEST(PlugIn, GivesEveryEditorItsTypeAndWidget)
{
    Library library;
    SpxPlugin* plugin = library.load();
    plugin->load();
    for (SpxExtension* extension : plugin->getExtensions()) {
        auto* editor = dynamic_cast<SpxEditor*>(extension);
        if (!editor)
            continue;
        EXPECT_EQ(editor->getHandledType(), SoType::fromName(editor->getName())) << editor->getName().str();
        EXPECT_TRUE(editor->getWidget()) << editor->getName().str();
    }
}

TEST(PlugIn, UnloadsNothingWhereNothingIsLoaded)
{
    Library library;
    library.unload();
    library.unload();
    ASSERT_TRUE(library.load());
    library.unload();
    library.unload();
}

TEST(PlugIn, MakesAFreshInstanceEachTime)
{
    Library library;
    SpxPlugin* first = library.load();
    first->load();
    const auto count = first->getExtensions().size();
    first->unload();
    EXPECT_TRUE(first->getExtensions().isEmpty());
    library.unload();
    SpxPlugin* second = library.load();
    EXPECT_TRUE(second->getExtensions().isEmpty());
    second->load();
    EXPECT_EQ(second->getExtensions().size(), count);
}

TEST(PlugIn, LeavesNoWidgetBehind)
{
    const auto before = QApplication::allWidgets().size();
    {
        Library library;
        ASSERT_TRUE(library.load());
    }
    EXPECT_EQ(QApplication::allWidgets().size(), before);
}

// All that a host does with a plug-in, three times over, with the library really unloaded in between.
TEST(PlugIn, CanBeLoadedRepeatedly)
{
    for (int round = 0; round < 3; ++round) {
        TestHost host;
        host.window().show();
        {
            Library library;
            SpxPlugin* plugin = library.load();
            ASSERT_TRUE(plugin->load());
            const auto extensions = plugin->getExtensions();
            host.control(extensions);
            for (SpxExtension* extension : extensions) {
                if (dynamic_cast<SpxEditor*>(extension))
                    extension->load();
                else
                    host.start(*extension);
            }
            const SoRef<SoMaterial> material(new SoMaterial);
            auto* node = static_cast<SoFieldContainer*>(material.get());
            host.select(node);
            for (int i = 0; i < node->getFieldData()->getNumFields(); ++i) {
                host.select(node->getFieldData()->getField(node, i));
                TestHost::pump();
            }
            host.select(static_cast<SoField*>(nullptr));
            host.select(static_cast<SoFieldContainer*>(nullptr));
            for (SpxExtension* extension : extensions) {
                if (dynamic_cast<SpxEditor*>(extension))
                    extension->unload();
                else
                    host.stop(*extension);
            }
            plugin->unload();
            host.clearUndo();
            TestHost::pump();
            EXPECT_TRUE(isMapped());
        }
        EXPECT_FALSE(isMapped());
        TestHost::pump();
    }
}

TEST(PlugIn, ShowsNoNodeEditorOfItsOwn)
{
    TestHost host;
    host.window().show();
    Library library;
    SpxPlugin* plugin = library.load();
    plugin->load();
    host.control(plugin->getExtensions());
    SpxExtension* nodes = plugin->getExtensions().last();
    ASSERT_EQ(nodes->getName(), SbString("Node Editor"));
    host.start(*nodes);
    const SoRef<SoMaterial> material(new SoMaterial);
    host.select(static_cast<SoFieldContainer*>(material.get()));
    EXPECT_FALSE(nodes->isShown());
    host.stop(*nodes);
}

// The description is set when every member exists; running out of memory there unwinds them all.
TEST(PlugIn, LeavesNothingBehindWhenItCannotBeMade)
{
    const auto before = QApplication::allWidgets().size();
    s_failingSize = sizeof "Plug-in which loads Scopix default extensions.";
    bool thrown = false;
    try {
        loadPlugin();
    } catch (const std::bad_alloc&) {
        thrown = true;
    }
    s_failingSize = 0;
    EXPECT_TRUE(thrown);
    EXPECT_EQ(QApplication::allWidgets().size(), before);
    unloadPlugin(); // no instance
    ASSERT_TRUE(loadPlugin());
    unloadPlugin();
}

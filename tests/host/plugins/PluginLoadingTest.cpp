// SPDX-License-Identifier: MIT
#include "PluginParts.h"

#include <scopix/SpxCommand.h>
#include <scopix/SpxExtension.h>
#include <scopix/SpxVersion.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include <fstream>
#include <string>
#include <sys/stat.h>

using namespace scopix;

namespace
{

bool isMapped(const QString& path)
{
    if (!QFileInfo(path).isFile())
        return false;
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        if (line.find(QFileInfo(path).canonicalFilePath().toStdString()) != std::string::npos)
            return true;
    }
    return false;
}

TEST(PluginLoading, LoadsEveryExtensionAndActivatesThoseThatAreNoEditors)
{
    PluginHost host;
    EXPECT_TRUE(host.manager.loadPlugin(testPlugin("Good")));
    EXPECT_EQ(takePluginLog(),
              (QStringList{"First load", "Editor load", "Second load", "First activate", "First show",
                           "Second activate", "Second show", "First selected", "Second selected"}));
    EXPECT_EQ(host.manager.pluginNames(), QStringList{"Test"});
    EXPECT_EQ(host.failures, QStringList());
}

TEST(PluginLoading, TheSameLibraryIsLoadedOnce)
{
    PluginHost host;
    EXPECT_TRUE(host.manager.loadPlugin(testPlugin("Good")));
    takePluginLog();
    EXPECT_TRUE(host.manager.loadPlugin(QStringLiteral(TEST_PLUGINS "../plugins/TestPluginGood.so")));
    EXPECT_EQ(takePluginLog(), QStringList());
}

TEST(PluginLoading, UnloadsInReverseWithDeferredDeletionsDelivered)
{
    PluginHost host;
    host.manager.loadPlugin(testPlugin("Good"));
    host.manager.loadPlugin(testPlugin("Other"));
    ASSERT_TRUE(isMapped(testPlugin("Good")));
    const QPointer<QDockWidget> dock = host.window.findChild<QDockWidget*>("First");
    ASSERT_TRUE(dock);
    takePluginLog();
    host.manager.unloadAll();
    EXPECT_EQ(takePluginLog(), (QStringList{"Third deactivate", "Second deactivate", "First deactivate",
                                            "Third unload", "Second unload", "Editor unload", "First unload",
                                            "Other destroyed", "Test destroyed"}));
    EXPECT_FALSE(dock);
    EXPECT_FALSE(isMapped(testPlugin("Good")));
    EXPECT_FALSE(isMapped(testPlugin("Other")));
}

TEST(PluginLoading, ClearsTheUndoStackWhileThePluginIsThere)
{
    struct Command : SpxCommand {
        ~Command() override { gone = isMapped(testPlugin("Good")) ? "before" : "after"; }
        explicit Command(std::string& gone)
            : gone(gone)
        {
        }
        void execute() override {}
        void undo() override {}
        void redo() override {}
        std::string& gone;
    };
    PluginHost host;
    host.manager.loadPlugin(testPlugin("Good"));
    std::string gone = "never";
    host.services.executeCommand(new Command(gone));
    host.manager.unloadAll();
    EXPECT_EQ(gone, "before");
    EXPECT_EQ(host.services.undoStack().count(), 0);
}

TEST(PluginLoading, LoadsAndUnloadsAgainAndAgain)
{
    PluginHost host;
    for (int i = 0; i < 20; ++i) {
        ASSERT_TRUE(host.manager.loadPlugin(testPlugin("Good")));
        EXPECT_EQ(host.window.findChildren<QDockWidget*>().size(), 2);
        host.manager.unloadAll();
        EXPECT_EQ(host.window.findChildren<QDockWidget*>().size(), 0);
        EXPECT_EQ(host.window.findChildren<QToolBar*>().size(), 0);
        ASSERT_FALSE(isMapped(testPlugin("Good")));
    }
}

TEST(PluginLoading, TheManagersEndUnloads)
{
    {
        PluginHost host;
        host.manager.loadPlugin(testPlugin("Good"));
    }
    EXPECT_EQ(takePluginLog().last(), "Test destroyed");
    EXPECT_FALSE(isMapped(testPlugin("Good")));
}

struct BadPlugin {
    QString path;
    const char* expected;
};

class BadPlugins : public ::testing::TestWithParam<BadPlugin>
{
};

TEST_P(BadPlugins, IsReportedInOneSentenceAndTheOthersAreLoaded)
{
    PluginHost host;
    host.manager.loadPlugin(testPlugin("Other"));
    EXPECT_FALSE(host.manager.loadPlugin(GetParam().path));
    ASSERT_EQ(host.failures.size(), 1);
    const QString sentence = host.failures.first();
    EXPECT_TRUE(sentence.contains(GetParam().path)) << sentence.toStdString();
    EXPECT_TRUE(sentence.contains(QString::fromUtf8(GetParam().expected))) << sentence.toStdString();
    EXPECT_EQ(sentence.count('\n'), 0);
    EXPECT_EQ(host.manager.pluginNames(), QStringList{"Other"});
    EXPECT_FALSE(isMapped(GetParam().path));
}

INSTANTIATE_TEST_SUITE_P(Cases, BadPlugins,
                         ::testing::Values(BadPlugin{"/nowhere/libSpx.so", "no such file"},
                                           BadPlugin{TEST_PLUGINS, "a folder"},
                                           BadPlugin{SCOPIX_SOURCE_DIR "/README.md", "no library"},
                                           BadPlugin{testPlugin("NoEntry"), "no entry point “loadPlugin”"},
                                           BadPlugin{testPlugin("NoUnload"), "no entry point “unloadPlugin”"},
                                           BadPlugin{testPlugin("Throws"), "loadPlugin failed: out of luck"},
                                           BadPlugin{testPlugin("ThrowsNothing"), "unknown type"},
                                           BadPlugin{testPlugin("Null"), "returned no plug-in"},
                                           BadPlugin{testPlugin("LoadFalse"), "cannot be used"},
                                           BadPlugin{testPlugin("LoadThrows"), "no licence"}));

TEST(PluginLoading, APipeIsRefusedWithoutWaiting)
{
    PluginHost host;
    const QString pipe = host.folder.filePath("libPipe.so");
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    EXPECT_FALSE(host.manager.loadPlugin(pipe));
    ASSERT_EQ(host.failures.size(), 1);
    EXPECT_TRUE(host.failures[0].contains("no regular file")) << qPrintable(host.failures[0]);
}

TEST(PluginForAnotherVersion, IsRefusedBeforeItsCodeRuns)
{
    PluginHost host;
    qunsetenv("TEST_PLUGIN_RAN");
    EXPECT_FALSE(host.manager.loadPlugin(testPlugin("OtherContract")));
    EXPECT_FALSE(qEnvironmentVariableIsSet("TEST_PLUGIN_RAN"));
    EXPECT_EQ(host.failures,
              QStringList("The plug-in “" + testPlugin("OtherContract") +
                          "” was not loaded: it was made for version 9 of the plug-in interface, this "
                          "program has version " +
                          QString(SPX_CONTRACT_VERSION).section('.', 0, 0) + "."));
    EXPECT_TRUE(host.manager.loadPlugin(testPlugin("Other")));
    EXPECT_TRUE(qEnvironmentVariableIsSet("TEST_PLUGIN_RAN")) << "a trace that nothing leaves shows nothing";
}

TEST(BadExtensions, AreReportedOneByOneAndLeaveNothingBehind)
{
    PluginHost host;
    EXPECT_TRUE(host.manager.loadPlugin(testPlugin("BadExtensions")));
    ASSERT_EQ(host.failures.size(), 2);
    EXPECT_TRUE(host.failures.at(0).contains("“Test/InLoad” failed in load(): broken in load"));
    EXPECT_TRUE(host.failures.at(1).contains("“Test/InActivate” failed in activate()"));
    EXPECT_FALSE(host.window.findChild<QDockWidget*>("InActivate"));

    SpxExtension* inHide = nullptr;
    for (SpxExtension* extension : host.shell.extensions()) {
        if (extension->getName() == SbString("InHide"))
            inHide = extension;
    }
    ASSERT_TRUE(inHide);
    host.shell.setShown(inHide, false);
    EXPECT_EQ(host.failures.size(), 3);

    host.manager.unloadAll();
    EXPECT_EQ(host.failures.size(), 5);
    EXPECT_FALSE(host.window.findChild<QDockWidget*>("InDeactivate"));
    EXPECT_FALSE(isMapped(testPlugin("BadExtensions")));
}

} // namespace

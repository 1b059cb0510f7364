// SPDX-License-Identifier: MIT
#include <scopix-host/CommandLine.h>

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

using namespace scopix;

namespace
{

CommandLine parse(QStringList arguments)
{
    arguments.prepend("scopix");
    return CommandLine::parse(arguments);
}

TEST(CommandLine, TakesEveryOption)
{
    const CommandLine line =
        parse({"model.glb", "--plugin", "a.so", "--plugin", "b.so", "--profile", "Edit", "--select",
               "My.Material.transparency", "--screenshot", "out.png", "--quit", "--counters"});
    EXPECT_EQ(line.error, "");
    EXPECT_EQ(line.file, "model.glb");
    EXPECT_EQ(line.plugins, (QStringList{"a.so", "b.so"}));
    EXPECT_EQ(line.profile, "Edit");
    EXPECT_EQ(line.selectNode, "My.Material");
    EXPECT_EQ(line.selectField, "transparency");
    EXPECT_EQ(line.screenshot, "out.png");
    EXPECT_TRUE(line.quit);
    EXPECT_TRUE(line.counters);
    EXPECT_TRUE(line.isUnattended());
}

TEST(CommandLine, HasNoOptionsByDefault)
{
    const CommandLine line = parse({});
    EXPECT_EQ(line.error, "");
    EXPECT_FALSE(line.isUnattended() || line.counters || line.help || line.version);
}

TEST(CommandLine, HelpListsEveryOption)
{
    for (const char* option : {"--plugin <PATH>", "--profile <NAME>", "--select <NODE.FIELD>",
                               "--screenshot <OUT.png>", "--quit", "--counters", "--help", "--version"})
        EXPECT_TRUE(CommandLine::helpText().contains(QLatin1String(option))) << option;
    EXPECT_TRUE(CommandLine::versionText().contains(QRegularExpression("^scopix \\d+\\.\\d+\\.\\d+\n$")));
    EXPECT_TRUE(parse({"--help"}).help);
    EXPECT_TRUE(parse({"--version"}).version);
}

TEST(CommandLine, IgnoresTheOptionsOfQt)
{
    const CommandLine line = parse({"-platform", "offscreen", "model.glb", "-style", "fusion"});
    EXPECT_EQ(line.error, "");
    EXPECT_EQ(line.file, "model.glb");
}

struct Bad {
    QStringList arguments;
    const char* expected;
};

class BadCommandLine : public ::testing::TestWithParam<Bad>
{
};

TEST_P(BadCommandLine, IsReportedInOneSentence)
{
    const CommandLine line = parse(GetParam().arguments);
    EXPECT_TRUE(line.error.contains(QLatin1String(GetParam().expected))) << line.error.toStdString();
    EXPECT_EQ(line.error.count('\n'), 0);
}

INSTANTIATE_TEST_SUITE_P(Cases, BadCommandLine,
                         ::testing::Values(Bad{{"--nonsense"}, "nonsense"}, Bad{{"--plugin"}, "plugin"},
                                           Bad{{"--plugin="}, "--plugin"}, Bad{{"a.glb", "b.glb"}, "b.glb"},
                                           Bad{{""}, "FILE"}, Bad{{"--select", "Material"}, "NODE.FIELD"},
                                           Bad{{"--select", ".x"}, "NODE.FIELD"},
                                           Bad{{"--select", "Material."}, "NODE.FIELD"},
                                           Bad{{"--screenshot", ""}, "--screenshot"},
                                           Bad{{"--quit=7"}, "quit"}));

} // namespace

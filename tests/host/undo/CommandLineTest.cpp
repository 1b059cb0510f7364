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

TEST(CommandLine, TakesHowAPictureIsMade)
{
    const CommandLine line =
        parse({"a.glb", "--picture", "out.png", "--size", "640x480", "--transparent", "--turntable", "12"});
    EXPECT_EQ(line.error, "");
    EXPECT_EQ(line.picture, "out.png");
    EXPECT_EQ(line.pictureSize, QSize(640, 480));
    EXPECT_TRUE(line.transparent);
    EXPECT_EQ(line.turntable, 12);
    EXPECT_TRUE(line.isUnattended());
    EXPECT_EQ(parse({"--picture", "out.png"}).turntable, 1);
    EXPECT_EQ(parse({"a.glb", "--tone-mapping", "filmic"}).toneMapping, "filmic");
    EXPECT_EQ(parse({"a.glb"}).toneMapping, "");
}

TEST(CommandLine, TakesSeveralFiles)
{
    const CommandLine line = parse({"a.glb", "--counters", "b.obj", "c.xsg"});
    EXPECT_EQ(line.error, "");
    EXPECT_EQ(line.file, "a.glb");
    EXPECT_EQ(line.others, (QStringList{"b.obj", "c.xsg"}));
    EXPECT_TRUE(CommandLine::helpText().contains("[FILE...]"));
}

TEST(CommandLine, TakesTheFileToSaveTo)
{
    const CommandLine line = parse({"a.glb", "--save", "b.obj"});
    EXPECT_EQ(line.error, "");
    EXPECT_EQ(line.save, "b.obj");
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
    for (const char* option :
         {"--plugin <PATH>", "--profile <NAME>", "--select <NODE.FIELD>", "--screenshot <OUT.png>",
          "--picture <OUT.png>", "--size <WIDTHxHEIGHT>", "--transparent", "--turntable <NUMBER>",
          "--tone-mapping <KIND>", "--save <OUT>", "--quit", "--counters", "--attach", "--launch",
          "--list-live", "--help", "--version"})
        EXPECT_TRUE(CommandLine::helpText().contains(QLatin1String(option))) << option;
    EXPECT_TRUE(CommandLine::versionText().contains(QRegularExpression("^scopix \\d+\\.\\d+\\.\\d+\n$")));
    EXPECT_TRUE(parse({"--help"}).help);
    EXPECT_TRUE(parse({"--version"}).version);
}

TEST(CommandLine, TakesARunningProgram)
{
    EXPECT_FALSE(parse({}).isLive());
    EXPECT_TRUE(parse({"--attach"}).isLive());
    EXPECT_EQ(parse({"--attach", "viewer", "--counters"}).attach, "viewer");
    EXPECT_EQ(parse({"--attach=viewer"}).attach, "viewer");
    const CommandLine only = parse({"--attach", "--counters"});
    EXPECT_EQ(only.attach, "");
    EXPECT_TRUE(only.counters);
    const CommandLine launch = parse({"--counters", "--launch", "viewer", "--quit", "-style", "a.osg"});
    EXPECT_EQ(launch.error, "");
    EXPECT_EQ(launch.launch, (QStringList{"viewer", "--quit", "-style", "a.osg"}));
    EXPECT_TRUE(launch.counters);
    EXPECT_FALSE(launch.quit);
    EXPECT_TRUE(parse({"--list-live"}).listsLive);
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

INSTANTIATE_TEST_SUITE_P(
    Cases, BadCommandLine,
    ::testing::Values(Bad{{"--nonsense"}, "nonsense"}, Bad{{"--plugin"}, "plugin"},
                      Bad{{"--plugin="}, "--plugin"}, Bad{{"a.glb", "b.glb", "--save", "c.obj"}, "b.glb"},
                      Bad{{""}, "FILE"}, Bad{{"a.glb", ""}, "FILE"},
                      Bad{{"--select", "Material"}, "NODE.FIELD"}, Bad{{"--select", ".x"}, "NODE.FIELD"},
                      Bad{{"--select", "Material."}, "NODE.FIELD"}, Bad{{"--screenshot", ""}, "--screenshot"},
                      Bad{{"--picture", "a.png", "--size", "640"}, "WIDTHxHEIGHT"},
                      Bad{{"--picture", "a.png", "--size", "-1x5"}, "WIDTHxHEIGHT"},
                      Bad{{"--picture", "a.png", "--turntable", "1"}, "2 or more"},
                      Bad{{"--tone-mapping", "loud"}, "none, neutral or filmic"},
                      Bad{{"--transparent"}, "--picture OUT.png is missing"},
                      Bad{{"--size", "4x4"}, "--picture OUT.png is missing"},
                      Bad{{"--save", "b.glb"}, "no FILE"}, Bad{{"a.glb", "--save", ""}, "--save"},
                      Bad{{"a.glb", "--save", "b.glb", "--picture", "c.png"}, "--picture"},
                      Bad{{"--quit=7"}, "quit"}, Bad{{"--launch"}, "--launch"},
                      Bad{{"a.glb", "--attach"}, "more than one"},
                      Bad{{"--attach", "a", "--launch", "b"}, "more than one"}));

} // namespace

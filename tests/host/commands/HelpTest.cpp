// SPDX-License-Identifier: MIT
// One table says how commands are called; --help, the page on them and what really happens agree with it.
#include "CommandRun.h"

#include "commands/CommandTable.h"

namespace
{

class Help : public CommandRun, public testing::WithParamInterface<const char*>
{
protected:
    const scopix::Command& command() const { return *scopix::findCommand(GetParam()); }
};

QByteArray page()
{
    QFile file(SCOPIX_SOURCE_DIR "/docs/commands.md");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST_P(Help, IsWhatTheTableSays)
{
    const Outcome outcome = run({GetParam(), "--help"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out.toStdString(), scopix::helpOf(command()));
}

TEST_P(Help, StandsInThePageOnCommands)
{
    EXPECT_TRUE(page().contains(QByteArray::fromStdString("```\n" + scopix::helpOf(command()) + "```\n")))
        << scopix::helpOf(command());
}

TEST_P(Help, HasExamplesThatWork)
{
    QFile::copy(model("lighthouse.glb"), folder.filePath("lighthouse.glb"));
    write("spare.xsgpatch", run({"diff", "lamp.xsg", "spare.xsg"}).out);
    ASSERT_FALSE(command().examples.empty());
    for (const scopix::Command::Example& example : command().examples) {
        const Outcome outcome = start("/bin/sh", {"-c", example.line});
        // Files differ, and a busy machine may measure as slower.
        const bool mayDiffer = GetParam() == QByteArray("diff") || GetParam() == QByteArray("measure");
        EXPECT_LE(outcome.status, mayDiffer ? 1 : 0) << example.line;
        EXPECT_EQ(outcome.said, "") << example.line;
    }
}

INSTANTIATE_TEST_SUITE_P(Commands, Help,
                         testing::Values("print", "set", "find", "diff", "apply", "convert", "picture",
                                         "check", "stats", "measure"),
                         [](const auto& info) { return std::string(info.param); });

TEST_F(CommandRun, TheProgramsHelpNamesThem)
{
    const QByteArray help = run({"--help"}).out;
    for (const scopix::Command& command : scopix::allCommands())
        EXPECT_TRUE(help.contains((std::string("  ") + command.name + " " + command.usage).c_str()))
            << command.name;
}

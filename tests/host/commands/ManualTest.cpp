// SPDX-License-Identifier: MIT
#include "commands/Manual.h"
#include "app/WindowCommand.h"
#include "commands/CommandTable.h"

#include <scopix-host/CommandLine.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace scopix;

namespace
{

const Manual& manual()
{
    static const Manual s_manual(windowCommand(), allCommands(), "9.8.7");
    return s_manual;
}

// As man shows it: dashes are escaped in its files.
std::string plain(std::string page)
{
    for (std::size_t at = 0; (at = page.find("\\-", at)) != std::string::npos; ++at)
        page.erase(at, 1);
    return page;
}

bool has(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

void expectPageOf(const Command& command)
{
    const std::string page = plain(manual().page(command));
    EXPECT_TRUE(has(page, "Scopix 9.8.7"));
    EXPECT_TRUE(has(page, ".SH NAME\n" + Manual::name(command) + " - ")) << page;
    EXPECT_TRUE(has(page, command.summary)) << command.name;
    for (const Command::Option& option : command.options)
        EXPECT_TRUE(has(page, ".B " + dashed(option.name))) << command.name << ' ' << option.name;
    for (const Command::Example& example : command.examples)
        EXPECT_TRUE(has(page, example.line)) << example.line;
    EXPECT_FALSE(has(page, "\n'")) << command.name; // man would take it for one of its own requests
}

QStringList completed(const QStringList& words)
{
    QTemporaryDir folder;
    QFile script(folder.filePath(QStringLiteral("scopix.bash")));
    EXPECT_TRUE(script.open(QIODevice::WriteOnly));
    script.write(manual().bashCompletion().c_str());
    script.close();
    QProcess bash;
    bash.setWorkingDirectory(folder.path());
    const QString run = QStringLiteral("source ./scopix.bash; COMP_WORDS=(scopix \"$@\"); COMP_CWORD=$#; "
                                       "_scopix; printf '%s\\n' \"${COMPREPLY[@]}\"");
    bash.start(QStringLiteral("bash"),
               QStringList{QStringLiteral("--norc"), QStringLiteral("-c"), run, QStringLiteral("bash")} +
                   words);
    EXPECT_TRUE(bash.waitForFinished(120000));
    EXPECT_EQ(bash.readAllStandardError(), QByteArray());
    return QString::fromUtf8(bash.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

TEST(ManualTest, HasAPageForTheProgramAndEachCommand)
{
    expectPageOf(windowCommand());
    for (const Command& command : allCommands()) {
        expectPageOf(command);
        EXPECT_TRUE(has(plain(manual().page(windowCommand())), std::string("scopix ") + command.name));
        EXPECT_TRUE(has(plain(manual().page(windowCommand())), ".BR scopix-" + std::string(command.name)));
    }
}

TEST(ManualTest, SaysWhatHelpSays)
{
    const QString help = CommandLine::helpText().simplified();
    for (const Command::Option& option : windowCommand().options) {
        EXPECT_TRUE(help.contains(QString::fromLatin1(option.help).left(20))) << option.name;
        EXPECT_TRUE(help.contains(QLatin1String("--") + QLatin1String(option.name))) << option.name;
    }
}

TEST(ManualTest, BashCompletesCommandsFilesAndOptions)
{
    EXPECT_EQ(completed({"pri"}), QStringList{"print"});
    EXPECT_TRUE(completed({""}).contains("convert"));
    EXPECT_TRUE(completed({"scopix.b"}).contains("scopix.bash"));
    EXPECT_EQ(completed({"print", "--j"}), QStringList{"--json"});
    EXPECT_EQ(completed({"picture", "a", "b", "--fr"}), QStringList{"--frames"});
    EXPECT_EQ(completed({"--plu"}), QStringList{"--plugin"});
    EXPECT_EQ(completed({"picture", "--size", "--"}), QStringList()); // a value is expected
}

TEST(ManualTest, EveryShellNamesEveryOption)
{
    for (const std::string& script :
         {manual().bashCompletion(), manual().zshCompletion(), manual().fishCompletion()})
        for (const Command& command : allCommands()) {
            EXPECT_TRUE(has(script, command.name));
            for (const Command::Option& option : command.options)
                EXPECT_TRUE(has(script, option.name)) << command.name << ' ' << option.name;
        }
}

} // namespace

// SPDX-License-Identifier: MIT
// What tables say of fields and commands is translated as soon as it is shown: a row that is not marked for
// translation stays in English, and fails here.
#include "app/WindowCommand.h"
#include "commands/CommandTable.h"
#include "language/Languages.h"

#include <scopix/editing/descriptions/SpxFieldDescription.h>

#include <gtest/gtest.h>

#include <QCoreApplication>

using namespace scopix;

namespace
{

class Tables : public testing::Test
{
protected:
    Tables()
    {
        qputenv("SCOPIX_LANGUAGE", "qps");
        Languages::begin();
        qunsetenv("SCOPIX_LANGUAGE");
    }
    ~Tables() override { delete Languages::instance(); }

    static void expectTranslated(const char* context, const std::string& text)
    {
        const QString shown = QCoreApplication::translate(context, text.c_str());
        EXPECT_TRUE(text.empty() || shown.startsWith('[')) << text;
    }
    static void expectTranslated(const Command& command)
    {
        expectTranslated("Command", command.summary);
        for (const Command::Option& each : command.options)
            expectTranslated("Command", each.help);
        for (const Command::Example& each : command.examples)
            expectTranslated("Command", each.help);
        const bool isNumber = std::string(command.status).size() == 1;
        expectTranslated("Command", isNumber ? "" : command.status);
    }
};

} // namespace

TEST_F(Tables, OfFieldsAreTranslated)
{
    ASSERT_GT(SpxFieldDescription::getAll().size(), 100U);
    for (const SpxFieldDescription& each : SpxFieldDescription::getAll()) {
        for (const auto text : {each.heading, each.unit, each.meaning})
            expectTranslated("Field", std::string(text));
    }
}

TEST_F(Tables, OfCommandsAreTranslated)
{
    expectTranslated(windowCommand());
    ASSERT_GT(allCommands().size(), 8U);
    for (const Command& each : allCommands())
        expectTranslated(each);
}

TEST_F(Tables, HelpIsInTheUsersLanguage)
{
    Languages::instance()->speak("de");
    const QString help = QString::fromStdString(helpOf(*findCommand("find")));
    EXPECT_TRUE(help.startsWith("Aufruf: scopix find FILE QUERY\nGibt die Pfade der Knoten aus"))
        << qPrintable(help);
    EXPECT_TRUE(help.contains("\n\nOptionen:\n") && help.contains("\n\nBeispiele:\n")) << qPrintable(help);
    EXPECT_TRUE(help.contains("Rückgabewert: 0, wenn etwas gefunden wurde, 1, wenn nicht; 2, wenn"))
        << qPrintable(help);
}

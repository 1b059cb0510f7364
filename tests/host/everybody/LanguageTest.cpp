// SPDX-License-Identifier: MIT
// The window in other languages: what is shown, and what is shown anew when the language changes.
#include "WholeWindow.h"

#include "ShownEverywhere.h"

#include "language/Languages.h"
#include "language/ShownTexts.h"
#include "palette/CommandPalette.h"
#include "preferences/PreferencesDialog.h"
#include "window/SettingsActs.h"

#include <xsg/core/SoFieldData.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <QComboBox>
#include <QMenuBar>

using namespace scopix;

namespace
{

class Spoken : public WholeWindow
{
protected:
    explicit Spoken(const char* language = "en")
        : WholeWindow(Later::Yes)
    {
        qputenv("SCOPIX_LANGUAGE", language);
        Languages::begin();
        qunsetenv("SCOPIX_LANGUAGE");
        make();
    }
    ~Spoken() override
    {
        end();
        delete Languages::instance();
    }
    QStringList menus()
    {
        QStringList titles;
        for (QAction* each : window->menuBar()->actions())
            titles << each->text();
        return titles;
    }
};

class PseudoLanguage : public Spoken
{
protected:
    PseudoLanguage()
        : Spoken("qps")
    {
    }
    // What stands outside of all brackets: without words where the text was not put together of parts, but
    // for the items of a list and for whole sentences.
    static QString outside(const QString& text)
    {
        QString rest;
        int depth = 0;
        for (const QChar each : text) {
            depth += each == '[' ? 1 : 0;
            if (depth == 0)
                rest += each;
            else if (each == ']' && --depth == 0)
                rest += QChar(0x25a1); // for what is translated
        }
        return rest;
    }
    static bool isWhole(const ShownText& shown)
    {
        const QString rest = outside(QString(shown.text).remove("[*]")); // where Qt marks what is changed
        static const QRegularExpression Glued("\\x{25a1}\\s*\\x{25a1}");
        return !rest.contains(Glued) && isOfThisSystem({rest, shown.where, shown.isPrescribed});
    }
};

} // namespace

TEST_F(PseudoLanguage, ShowsNoTextThatIsNotTranslatedOrPutTogether)
{
    window->selectField("Glass", "diffuseColor");
    settle();
    window->getSettings().open();
    window->getPalette().getPalette().open();
    settle();
    int translated = 0;
    for (const ShownText& each : textsShown(*window)) {
        if (isOfThisSystem(each))
            continue;
        ++translated;
        EXPECT_TRUE(isWhole(each)) << each.where.toStdString() << ": " << each.text.toStdString();
    }
    EXPECT_GT(translated, 400);
}

TEST_F(Spoken, ChangesWhileTheWindowIsOpen)
{
    window->selectField("Glass", "diffuseColor");
    settle();
    const auto english = textsShown(*window);
    ASSERT_TRUE(menus().contains("&File"));
    window->getSettings().open("language");
    auto* dialog = window->findChild<PreferencesDialog*>();
    auto* combo = dialog->findChild<QComboBox*>("language");
    ASSERT_TRUE(combo);
    const auto choose = [&](const char* language) {
        combo->setFocus();
        const int row = combo->findData(language);
        while (combo->currentIndex() != row)
            QTest::keyClick(combo, combo->currentIndex() < row ? Qt::Key_Down : Qt::Key_Up);
        settle();
    };
    choose("de");
    EXPECT_TRUE(menus().contains("&Datei"));
    EXPECT_EQ(dialog->windowTitle(), "Einstellungen");
    EXPECT_TRUE(window->findChild<QDockWidget*>("sceneDock")->windowTitle() == "Szene");
    choose("en");
    delete dialog;
    QSet<QString> again;
    for (const ShownText& each : textsShown(*window))
        again.insert(each.where + each.text);
    EXPECT_GT(english.size(), 800U);
    for (const ShownText& each : english)
        EXPECT_TRUE(again.contains(each.where + each.text)) << (each.where + each.text).toStdString();
}

TEST_F(Spoken, WhatTheUserChoseIsSpokenNextTime)
{
    window->getSettings().open("language");
    for (const Setting& each : window->getSettings().settings()) {
        if (each.key == QLatin1String("language")) {
            EXPECT_EQ(each.set("de"), QString());
        }
    }
    end();
    delete Languages::instance();
    Languages::begin();
    EXPECT_EQ(Languages::instance()->current(), "de");
    make();
    EXPECT_TRUE(menus().contains("&Datei"));
    EXPECT_FALSE(menus().contains("&File"));
}

TEST_F(Spoken, ALanguageThatIsNotShippedIsEnglish)
{
    Languages::instance()->speak("tlh");
    EXPECT_TRUE(menus().contains("&File"));
}

TEST_F(Spoken, ATextWithArgumentsKeepsThem)
{
    Languages& languages = *Languages::instance();
    languages.translate("scopix::SceneFiles", "Opened “%1”.");
    const ShownTexts shown(languages.said());
    languages.speak("de");
    EXPECT_EQ(shown.again("Opened “a %1 [b].obj”.", languages), "„a %1 [b].obj“ ist geöffnet.");
    EXPECT_EQ(shown.again("A name of the user", languages), "A name of the user");
}

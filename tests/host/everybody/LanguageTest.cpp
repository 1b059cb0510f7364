// SPDX-License-Identifier: MIT
// The window in other languages: what is shown, and what is shown anew when the language changes.
#include "WholeWindow.h"

#include "ShownEverywhere.h"

#include "language/Languages.h"
#include "language/ShownTexts.h"
#include "palette/CommandPalette.h"
#include "preferences/PreferencesDialog.h"
#include "structure/StructureActs.h"
#include "window/FurtherWindows.h"
#include "window/SettingsActs.h"

#include <xsg/core/SoFieldData.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <QComboBox>
#include <QLabel>
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

// What is read out of the rows of the panel.
QStringList meaningsTold(QWidget& window)
{
    QStringList told;
    for (const QWidget* row : window.findChildren<QWidget*>("row"))
        told << row->accessibleDescription();
    return told;
}

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
    window->getFurtherWindows().open();
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

TEST_F(PseudoLanguage, SaysWhatNodesAndFieldsMean)
{
    window->selectField("Glass", "diffuseColor");
    settle();
    auto* title = window->findChild<QLabel*>("nodeTitle");
    ASSERT_TRUE(title);
    EXPECT_TRUE(title->toolTip().contains("<br>[")) << title->toolTip().toStdString();
    const QStringList told = meaningsTold(*window);
    ASSERT_GT(told.size(), 3);
    for (const QString& each : told)
        EXPECT_TRUE(each.endsWith(']')) << each.toStdString();
}

TEST_F(PseudoLanguage, NamesStepsAsWholeSentences)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    const SoPath path = extended({}, root.get());
    using structure::Deed;
    for (const Deed deed : {Deed::Delete, Deed::Cut, Deed::Duplicate, Deed::Paste, Deed::Ungroup, Deed::Group,
                            Deed::MakeUnique, Deed::Move, Deed::Copy, Deed::Share}) {
        EXPECT_EQ(outside(structure::nameOf(deed, {path})), QString(QChar(0x25a1)));
        EXPECT_EQ(outside(structure::nameOf(deed, {path, path})), QString(QChar(0x25a1)));
    }
}

TEST_F(Spoken, ShowsMeaningsAnewInAnotherLanguage)
{
    window->selectField("Glass", "diffuseColor");
    settle();
    const QStringList english = meaningsTold(*window);
    ASSERT_GT(english.size(), 3);
    Languages::instance()->speak("de");
    settle();
    EXPECT_FALSE(meaningsTold(*window).filter("von 0 deckend bis 1 unsichtbar").isEmpty())
        << meaningsTold(*window).join("\n").toStdString();
    Languages::instance()->speak("en");
    settle();
    EXPECT_EQ(meaningsTold(*window), english);
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

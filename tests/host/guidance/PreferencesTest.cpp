// SPDX-License-Identifier: MIT
#include "GuidedWindow.h"

#include "acts/KeyBindings.h"
#include "preferences/PreferencesDialog.h"
#include "preferences/SettingRow.h"
#include "settings/Preferences.h"
#include "viewport/SceneView.h"

#include <xsg/core/SoPreferences.h>

#include <QAction>
#include <QComboBox>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTreeWidget>

using namespace scopix;

namespace
{

class PreferencesTest : public GuidedWindow
{
protected:
    PreferencesTest() { window->enterInteractiveMode(); }
    ~PreferencesTest() override { SoPreferences::setValue("SCOPIX_UNDO_MEMORY", "256"); }

    PreferencesDialog& dialog()
    {
        if (!window->findChild<PreferencesDialog*>())
            act("preferencesAction")->trigger();
        return *window->findChild<PreferencesDialog*>();
    }
    template <class Input>
    Input& input(const char* key)
    {
        return *dialog().findChild<Input*>(QString::fromLatin1(key));
    }
    QStringList shownPages()
    {
        QStringList pages;
        const auto& list = input<QListWidget>("preferencePages");
        for (int row = 0; row < list.count(); ++row)
            if (!list.item(row)->isHidden())
                pages += list.item(row)->text();
        return pages;
    }
    void choose(const char* key, const QString& value)
    {
        auto& box = input<QComboBox>(key);
        box.setCurrentIndex(box.findData(value));
        emit box.activated(box.currentIndex());
    }
};

TEST_F(PreferencesTest, NamesItsPagesAsAWhole)
{
    auto& list = input<QListWidget>("preferencePages");
    EXPECT_LE(list.sizeHintForColumn(0), list.viewport()->width());
}

TEST_F(PreferencesTest, FindsASettingByAnyOfItsWords)
{
    const QStringList all = shownPages();
    EXPECT_GE(all.size(), 5);
    QTest::keyClicks(&dialog().getSearch(), "undo mem");
    EXPECT_EQ(shownPages(), QStringList{"Memory and Files"});
    EXPECT_TRUE(input<QSpinBox>("SCOPIX_UNDO_MEMORY").isVisible());
    EXPECT_FALSE(input<QSpinBox>("XSG_CREASE_ANGLE").isVisible());
    dialog().getSearch().setText(QStringLiteral("shortcut"));
    EXPECT_EQ(shownPages(), QStringList{"Keys"});
    dialog().getSearch().setText(QStringLiteral("nothing like it"));
    EXPECT_EQ(shownPages(), QStringList());
    dialog().getSearch().clear();
    EXPECT_EQ(shownPages(), all);
}

TEST_F(PreferencesTest, SettingsHoldAtOnceAndAfterTheNextStart)
{
    const int usual = window->font().pointSize();
    input<QSpinBox>("fontSize").setValue(usual + 5);
    EXPECT_EQ(window->font().pointSize(), usual + 5);
    EXPECT_EQ(dialog().font().pointSize(), usual + 5);
    input<QSpinBox>("SCOPIX_UNDO_MEMORY").setValue(64);
    EXPECT_EQ(services.history().memoryLimit(), 64U << 20);
    choose("mouse", QStringLiteral("maya"));
    EXPECT_EQ(window->getView().getMouseScheme(), MouseScheme::Maya);
    choose("palette", QStringLiteral("dark"));
    const QColor dark = window->palette().color(QPalette::Window);

    startAgain();
    EXPECT_EQ(window->font().pointSize(), usual + 5);
    EXPECT_EQ(window->getView().getMouseScheme(), MouseScheme::Maya);
    EXPECT_EQ(window->palette().color(QPalette::Window), dark);
    SoPreferences::setValue("SCOPIX_UNDO_MEMORY", "1");
    Preferences::feed();
    EXPECT_EQ(Preferences::undoMemory(), 64U << 20);
    EXPECT_EQ(input<QSpinBox>("fontSize").value(), usual + 5);
}

TEST_F(PreferencesTest, APageIsResetAsAWhole)
{
    choose("mouse", QStringLiteral("blender"));
    auto& pages = input<QListWidget>("preferencePages");
    for (int row = 0; row < pages.count(); ++row)
        if (pages.item(row)->text() == QLatin1String("3D View"))
            pages.setCurrentRow(row);
    for (auto* button : dialog().findChildren<QPushButton*>())
        if (button->text().contains(QLatin1String("Reset This Page")))
            QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(window->getView().getMouseScheme(), MouseScheme::Scopix);
    EXPECT_EQ(input<QComboBox>("mouse").currentData().toString(), QStringLiteral("scopix"));
}

TEST_F(PreferencesTest, AnActGetsTheKeyThatIsSetAndItsRivalLosesIt)
{
    QAction* palette = act("paletteAction");
    QAction* find = act("findAction");
    auto& list = input<QTreeWidget>("keyList");
    for (int row = 0; row < list.topLevelItemCount(); ++row)
        if (list.topLevelItem(row)->text(0).endsWith(QStringLiteral("Find Anything…")))
            list.setCurrentItem(list.topLevelItem(row));
    input<QKeySequenceEdit>("newKey").setKeySequence(QKeySequence::Find);
    for (auto* button : dialog().findChildren<QPushButton*>())
        if (button->text() == QLatin1String("&Set"))
            button->click();
    EXPECT_EQ(palette->shortcut(), QKeySequence(QKeySequence::Find));
    EXPECT_TRUE(find->shortcut().isEmpty());

    startAgain();
    EXPECT_EQ(act("paletteAction")->shortcut(), QKeySequence(QKeySequence::Find));
    EXPECT_TRUE(act("findAction")->shortcut().isEmpty());
    window->getSettings().getKeys().resetAll();
    EXPECT_EQ(act("paletteAction")->shortcut(), QKeySequence(Qt::CTRL + Qt::Key_K));
    EXPECT_EQ(act("findAction")->shortcut(), QKeySequence(QKeySequence::Find));
}

TEST_F(PreferencesTest, NoPresetGivesTwoActsOneKey)
{
    KeyBindings& keys = window->getSettings().getKeys();
    for (const QString& preset : KeyBindings::presets()) {
        EXPECT_EQ(keys.usePreset(preset), QString());
        for (const MenuAct& each : keys.acts())
            EXPECT_EQ(keys.rival(*each.action, each.action->shortcut()), nullptr)
                << preset.toStdString() << ": " << each.text.toStdString() << ", "
                << each.action->shortcut().toString().toStdString();
    }
}

TEST_F(PreferencesTest, TheMouseMovesTheViewAsInTheProgramThatIsChosen)
{
    struct Row {
        MouseScheme scheme;
        Qt::MouseButton button;
        Qt::KeyboardModifiers modifiers;
        bool moves;
    };
    const Row rows[] = {{MouseScheme::Scopix, Qt::LeftButton, {}, true},
                        {MouseScheme::Blender, Qt::LeftButton, {}, false},
                        {MouseScheme::Blender, Qt::MiddleButton, {}, true},
                        {MouseScheme::Blender, Qt::MiddleButton, Qt::ControlModifier, true},
                        {MouseScheme::Maya, Qt::LeftButton, {}, false},
                        {MouseScheme::Maya, Qt::LeftButton, Qt::AltModifier, true},
                        {MouseScheme::Maya, Qt::RightButton, Qt::AltModifier, true}};
    SceneView& view = window->getView();
    QTest::keyClick(window->focusWidget(), Qt::Key_Escape); // the start page
    for (const Row& row : rows) {
        view.setMouseScheme(row.scheme);
        view.goHome();
        const SbVec3f before = view.getCamera().position.getValue();
        const QPoint from = view.rect().center() + QPoint(-60, 90);
        QTest::mousePress(&view, row.button, row.modifiers, from);
        for (int step = 1; step <= 4; ++step) {
            QMouseEvent move(QEvent::MouseMove, from + QPoint(0, -20 * step), Qt::NoButton, row.button,
                             row.modifiers);
            QApplication::sendEvent(&view, &move);
        }
        QTest::mouseRelease(&view, row.button, row.modifiers, from + QPoint(0, -80));
        EXPECT_EQ(view.getCamera().position.getValue() != before, row.moves)
            << int(row.scheme) << ' ' << int(row.button) << ' ' << int(row.modifiers);
    }
}

} // namespace

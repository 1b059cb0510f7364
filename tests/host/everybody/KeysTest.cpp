// SPDX-License-Identifier: MIT
// Every act has a key and is in a menu, and no key means two things.
#include "WholeWindow.h"

#include "acts/KeyBindings.h"
#include "acts/MenuActs.h"
#include "panels/SceneTreeView.h"
#include "viewport/SceneView.h"

#include <QAction>
#include <QMenuBar>
#include <QToolBar>

using namespace scopix;

namespace
{

class EveryAct : public WholeWindow
{
protected:
    std::vector<MenuAct> acts() { return findActs(*window->menuBar()); }
    // A window's key and that of one of its widgets are both found while the widget has the focus.
    void expectNoRivals(const std::string& preset)
    {
        const std::vector<MenuAct> all = acts();
        for (std::size_t i = 0; i < all.size(); ++i) {
            for (std::size_t j = 0; j < all.size(); ++j) {
                for (const QKeySequence& key : all[i].action->shortcuts())
                    for (const QKeySequence& other : all[j].action->shortcuts())
                        EXPECT_TRUE(i == j || key.matches(other) == QKeySequence::NoMatch)
                            << preset << ": " << nameOf(all[i]) << " and " << nameOf(all[j]) << " share "
                            << key.toString().toStdString();
            }
        }
    }
    static std::string nameOf(const MenuAct& act)
    {
        return (act.place + QStringLiteral(" ▸ ") + act.text).toStdString();
    }
};

} // namespace

TEST_F(EveryAct, HasAKey)
{
    EXPECT_GT(acts().size(), 80U);
    for (const MenuAct& each : acts())
        EXPECT_FALSE(each.action->shortcut().isEmpty()) << nameOf(each);
}

TEST_F(EveryAct, HasAKeyOfItsOwnWithTheKeysOfEachPreset)
{
    KeyBindings keys(*window->menuBar());
    keys.restore();
    for (const QString& preset : KeyBindings::presets()) {
        EXPECT_EQ(keys.usePreset(preset), QString());
        expectNoRivals(preset.toStdString());
    }
}

TEST_F(EveryAct, OfABarOrTheViewIsInAMenu)
{
    QSet<QAction*> known;
    for (const MenuAct& each : findActs(*window->menuBar(), true))
        known.insert(each.action);
    QList<QAction*> acts = window->findChild<QToolBar*>("mainToolBar")->actions();
    acts += window->getView().actions() + window->getTree().actions();
    EXPECT_GT(acts.size(), 40);
    for (const QAction* each : qAsConst(acts)) {
        if (!each->isSeparator() && !each->text().isEmpty()) {
            EXPECT_TRUE(known.contains(const_cast<QAction*>(each))) << each->text().toStdString();
        }
    }
}

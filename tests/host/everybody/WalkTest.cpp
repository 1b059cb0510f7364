// SPDX-License-Identifier: MIT
// Each window and dialog: what is read out, reached by Tab, seen and legible.
#include "WholeWindow.h"

#include "acts/MenuActs.h"
#include "language/Languages.h"
#include "palette/CommandPalette.h"
#include "preferences/PreferencesDialog.h"
#include "services/HostServices.h"
#include "theme/Theme.h"
#include "viewport/SceneView.h"
#include "window/FurtherWindows.h"

#include <support/Waiting.h>
#include <support/WidgetWalk.h>

#include <xsg/nodes/base/SoNode.h>
#include <xsg/types/SoType.h>

#include <QtWidgets>

#include <functional>
#include <map>

using namespace scopix;

namespace
{

std::string pathOf(const QWidget& widget)
{
    QStringList parts;
    for (const QObject* each = &widget; each && parts.size() < 5; each = each->parent())
        parts.prepend(QString(each->metaObject()->className()) + '#' + each->objectName());
    return parts.join(" > ").toStdString();
}

// The reasons stand in decisions.md: default-widgets, parts-of-qt.
bool isExcepted(const QWidget& widget)
{
    static const QStringList Default{"Console", "Performance Counter", "Field Editor", "Profile Selector"};
    for (const QWidget* each = &widget; each; each = each->parentWidget()) {
        const auto* bar = qobject_cast<const QToolBar*>(each);
        if (Default.contains(each->windowTitle()) || (bar && bar->objectName() != "mainToolBar"))
            return true;
        if (each->objectName().startsWith("qt_dockwidget_") || qobject_cast<const QFileDialog*>(each) ||
            each->inherits("QColorDialog"))
            return true;
    }
    return widget.objectName().startsWith("qt_") || widget.objectName().startsWith("Scroll");
}

bool isReached(const QWidget& widget)
{
    return widget.isVisible() && widget.isEnabled() && widget.focusPolicy() & Qt::TabFocus &&
           !widget.focusProxy() && !isExcepted(widget);
}

using Check = std::function<void(QWidget&)>;

class EveryWidget : public WholeWindow
{
protected:
    explicit EveryWidget(Later later = Later::No)
        : WholeWindow(later)
    {
        if (later == Later::Yes)
            return;
        window->selectField("Glass", "diffuseColor");
        settle();
    }
    void forEachWindow(const Check& check)
    {
        checkStartPage(check);
        forEachDock(check);
        forEachWindowOfItsOwn(check);
        forEachDialog(check);
    }
    void forEachDock(const Check& check)
    {
        for (auto* dock : window->findChildren<QDockWidget*>()) {
            if (isExcepted(*dock) || !dock->widget())
                continue;
            dock->show();
            dock->raise();
            settle();
            check(*dock->widget());
        }
    }
    void forEachWindowOfItsOwn(const Check& check)
    {
        window->getSettings().open();
        auto* preferences = window->findChild<PreferencesDialog*>();
        settle();
        for (int page = 0; page < preferences->findChild<QListWidget*>("preferencePages")->count(); ++page) {
            preferences->findChild<QListWidget*>("preferencePages")->setCurrentRow(page);
            settle();
            check(*preferences);
        }
        delete preferences;
        CommandPalette& palette = window->getPalette().getPalette();
        palette.open();
        settle();
        check(palette);
        palette.hide();
        checkFurtherWindow(check);
        window->showHelp("nodes", {});
        settle();
        for (QWidget* each : QApplication::topLevelWidgets()) {
            if (each->inherits("scopix::HelpWindow") && each->isVisible()) {
                check(*each);
                each->close();
            }
        }
    }
    void checkFurtherWindow(const Check& check)
    {
        FurtherWindow& further = window->getFurtherWindows().open();
        further.resize(window->size());
        EXPECT_TRUE(waitForActive(&further));
        settle();
        check(further);
        further.close();
        settle();
    }
    void checkStartPage(const Check& check)
    {
        auto* act = window->findChild<QAction*>("startPageAction");
        auto* page = window->findChild<QWidget*>("startPage");
        ASSERT_TRUE(act && page);
        act->trigger();
        settle();
        EXPECT_TRUE(page->isVisible());
        check(*page);
        QTest::mouseClick(page->findChild<QPushButton*>("closeStart"), Qt::LeftButton);
        EXPECT_FALSE(page->isVisible());
        settle();
    }
    // What the key for menus opens there; false where that is nothing. Some wait until it is closed.
    static bool openMenu(QWidget& widget, const std::function<void(QMenu&)>& check)
    {
        bool isOpened = false;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
                look.stop();
                isOpened = true;
                check(*menu);
                menu->close();
            }
        });
        look.start(0);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, widget.rect().center(),
                                widget.mapToGlobal(widget.rect().center()));
        QApplication::sendEvent(&widget, &event);
        settle();
        return isOpened;
    }
    // What an act opens, and waits for.
    void forEachDialog(const Check& check)
    {
        for (const MenuAct& act : findActs(*window->menuBar())) {
            const bool opens = act.text.endsWith(QChar(0x2026)) || act.place == "Help";
            if (!opens || !act.action->isEnabled())
                continue;
            QTimer look;
            QObject::connect(&look, &QTimer::timeout, [&] {
                if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                    look.stop();
                    settle();
                    check(*dialog);
                    dialog->reject();
                }
            });
            look.start(0);
            act.action->trigger();
            settle();
            for (QWidget* each : QApplication::topLevelWidgets()) {
                if (each != window && each->isVisible() && qobject_cast<QDialog*>(each)) {
                    if (!isExcepted(*each))
                        check(*each);
                    each->close();
                }
            }
            settle();
        }
    }
    static QList<QWidget*> inputsOf(QWidget& root)
    {
        QList<QWidget*> inputs;
        for (auto* each : root.findChildren<QWidget*>())
            if (isReached(*each) && each->window() == root.window())
                inputs += each;
        const auto placeOf = [&](QWidget* input) {
            const QPoint place = input->mapTo(&root, QPoint());
            return std::make_pair(place.y(), place.x());
        };
        std::sort(inputs.begin(), inputs.end(),
                  [&](QWidget* a, QWidget* b) { return placeOf(a) < placeOf(b); });
        return inputs;
    }
    // By Tab, or where that types, by Ctrl+Tab.
    static void goOn()
    {
        QWidget* before = QApplication::focusWidget();
        if (!before)
            return;
        QTest::keyPress(before, Qt::Key_Tab);
        if (QApplication::focusWidget() == before)
            QTest::keyClick(before, Qt::Key_Tab, Qt::ControlModifier);
    }
    static void walk(QWidget& root, const std::function<void(QWidget&)>& meet)
    {
        QList<QWidget*> wanted = inputsOf(root);
        if (wanted.isEmpty())
            return;
        root.window()->activateWindow();
        EXPECT_TRUE(waitForActive(root.window()));
        wanted.first()->clearFocus(); // where it has it already, it was not brought by keys
        wanted.first()->setFocus(Qt::ShortcutFocusReason);
        std::string way; // that Tab went
        const int most = 40 + 4 * inputsOf(*root.window()).size();
        for (int step = 0; step < most && !wanted.isEmpty(); ++step) {
            QWidget* here = QApplication::focusWidget();
            if (!here)
                break;
            way += "\n  after " + pathOf(*here);
            if (wanted.removeOne(here))
                meet(*here);
            goOn();
            EXPECT_NE(QApplication::focusWidget(), inputsOf(*root.window()).size() > 1 ? here : nullptr)
                << "Tab goes no further than " << pathOf(*here);
            if (QApplication::focusWidget() == here)
                break;
        }
        for (const QWidget* each : qAsConst(wanted))
            ADD_FAILURE() << "not reached by Tab: " << pathOf(*each) << way;
    }
    static QImage look(const QWidget& widget)
    {
        QWidget& whole = *widget.window();
        const QRect place(widget.mapTo(&whole, QPoint()), widget.size());
        return whole.grab(place.adjusted(-4, -4, 4, 4)).toImage();
    }
};

} // namespace

TEST_F(EveryWidget, IsReadOut)
{
    int count = 0;
    forEachWindow([&](QWidget& root) {
        for (auto* each : root.findChildren<QWidget*>()) {
            if (!each->isVisible() || each->focusPolicy() == Qt::NoFocus || each->focusProxy() ||
                isExcepted(*each))
                continue;
            const QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(each);
            ASSERT_TRUE(reader) << pathOf(*each);
            ++count;
            EXPECT_FALSE(reader->text(QAccessible::Name).isEmpty()) << "without a name: " << pathOf(*each);
            EXPECT_NE(reader->role(), QAccessible::NoRole) << pathOf(*each);
        }
    });
    EXPECT_GT(count, 100);
}

TEST_F(EveryWidget, IsReachedByTabAndShowsThat)
{
    int count = 0;
    forEachWindow([&](QWidget& root) {
        walk(root, [&](QWidget& widget) {
            ++count;
            settle();
            const QImage with = look(widget);
            widget.clearFocus();
            settle();
            const QImage without = look(widget);
            widget.setFocus(Qt::ShortcutFocusReason);
            EXPECT_NE(with, without) << "no visible focus: " << pathOf(widget);
        });
    });
    EXPECT_GT(count, 80);
}

TEST_F(EveryWidget, IsReachedInReadingOrder)
{
    forEachWindow([&](QWidget& root) {
        QPointer<QWidget> before;
        walk(root, [&](QWidget& widget) {
            if (before && before->parentWidget() == widget.parentWidget()) {
                const bool isBelow = widget.geometry().top() >= before->geometry().bottom();
                const bool isAbove = widget.geometry().bottom() <= before->geometry().top();
                const bool isBehind = widget.geometry().left() >= before->geometry().left();
                EXPECT_TRUE(isBelow || (!isAbove && isBehind))
                    << pathOf(widget) << " comes after " << pathOf(*before);
            }
            before = &widget;
        });
    });
}

namespace
{

// No letter chooses two entries.
void expectLetters(const QMenu& menu)
{
    std::map<QString, const QAction*> known;
    for (const QAction* act : menu.actions()) {
        const QString letter = QKeySequence::mnemonic(act->text()).toString();
        if (act->isSeparator() || !act->isVisible() || letter.isEmpty())
            continue;
        const auto [other, isNew] = known.emplace(letter, act);
        EXPECT_TRUE(isNew) << pathOf(menu) << ": " << act->text().toStdString() << " and "
                           << other->second->text().toStdString() << " share " << letter.toStdString();
    }
}

void expectReadable(QMenu& menu)
{
    EXPECT_TRUE(menu.screen()->geometry().contains(menu.geometry())) << pathOf(menu);
    EXPECT_FALSE(menu.actions().isEmpty()) << pathOf(menu);
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&menu);
    ASSERT_TRUE(reader);
    for (int i = 0; i < menu.actions().size(); ++i) {
        const QAction* act = menu.actions().at(i);
        if (act->isSeparator() || !act->isVisible())
            continue;
        EXPECT_FALSE(reader->child(i)->text(QAccessible::Name).isEmpty()) << pathOf(menu) << " entry " << i;
    }
    expectLetters(menu);
}

} // namespace

TEST_F(EveryWidget, HasAMenuThatIsReadOutAndOnTheScreen)
{
    int menus = 0;
    forEachDock([&](QWidget& root) {
        for (auto* each : root.findChildren<QWidget*>())
            if (each->isVisible() && each->contextMenuPolicy() == Qt::CustomContextMenu && !isExcepted(*each))
                menus += openMenu(*each, expectReadable) ? 1 : 0;
    });
    EXPECT_GE(menus, 3);
}

namespace
{

class RowMenus : public EveryWidget
{
protected:
    using EveryWidget::EveryWidget;

    // Wherever the focus is in a row, so that what its mark does has a key too.
    void walkRowsOfEachKind()
    {
        QSet<QString> kinds;
        for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId())) {
            if (!type.canCreateInstance())
                continue;
            const SoRef<SoNode> node(static_cast<SoNode*>(type.createInstance()));
            session().services().select(node.get());
            settle();
            for (auto* row : window->findChildren<QWidget*>("row")) {
                const int known = kinds.size();
                if (row->isVisible())
                    kinds.insert(row->metaObject()->className());
                if (kinds.size() > known)
                    walkRow(*row);
            }
            session().services().clearSelection();
        }
        EXPECT_GE(kinds.size(), 8) << qPrintable(kinds.values().join(' '));
    }

private:
    static void walkRow(QWidget& row)
    {
        for (auto* each : row.findChildren<QWidget*>()) {
            if (!isReached(*each))
                continue;
            const bool isOpened = openMenu(*each, [&](QMenu& menu) {
                EXPECT_EQ(menu.objectName().toStdString(), "rowMenu") << pathOf(*each);
                expectReadable(menu);
            });
            EXPECT_TRUE(isOpened) << pathOf(*each);
        }
    }
};

class GermanRowMenus : public RowMenus
{
protected:
    GermanRowMenus()
        : RowMenus(Later::Yes)
    {
        Languages::begin();
        Languages::instance()->speak("de");
        make();
    }
    ~GermanRowMenus() override
    {
        end();
        delete Languages::instance();
    }
};

} // namespace

TEST_F(RowMenus, OpenFromEachInput)
{
    walkRowsOfEachKind();
}

TEST_F(GermanRowMenus, OpenFromEachInput)
{
    walkRowsOfEachKind();
}

TEST_F(EveryWidget, OfThePanelOutsideOfItsRowsOpensTheMenuOfTheNode)
{
    auto* only = window->findChild<QCheckBox*>("onlyChanged");
    ASSERT_TRUE(only);
    EXPECT_TRUE(isReached(*only));
    EXPECT_TRUE(openMenu(*only, [](QMenu& menu) {
        EXPECT_EQ(menu.objectName().toStdString(), "nodeMenu");
        expectReadable(menu);
    }));
}

TEST_F(EveryWidget, OfTheViewHasTheMenuOfWhatIsSelected)
{
    SceneView& view = window->getView();
    const bool isOpened = openMenu(view, [&](QMenu& menu) {
        const QList<QAction*> acts = menu.actions();
        const QList<QAction*> ofView = view.actions();
        const auto isInMenu = [&](QAction* act) { return acts.contains(act); };
        EXPECT_TRUE(std::any_of(ofView.begin(), ofView.end(), isInMenu));
        expectReadable(menu);
    });
    EXPECT_TRUE(isOpened);
}

TEST_F(EveryWidget, OfTheViewListsWhatIsUnderThePointer)
{
    SceneView& view = window->getView();
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Left, Qt::ControlModifier); // the crosshair, in the middle
    QTest::keyClick(&view, Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(&view, Qt::Key_Return, Qt::AltModifier);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->objectName(), "underPointer");
    EXPECT_TRUE(menu->activeAction());
    expectReadable(*menu);
    menu->close();
}

namespace
{

struct Look {
    Theme theme;
    double font; // times the usual size
    Qt::LayoutDirection direction;
};

class EveryText : public EveryWidget, public testing::WithParamInterface<Look>
{
protected:
    EveryText()
    {
        applyTheme(*window, GetParam().theme);
        QFont font = window->font();
        font.setPointSizeF(font.pointSizeF() * GetParam().font);
        window->setFont(font);
        window->setLayoutDirection(GetParam().direction);
        window->resize(int(1600 * GetParam().font), int(1000 * GetParam().font));
        settle();
    }
    static void expectWhole(QWidget& widget)
    {
        const auto* label = qobject_cast<QLabel*>(&widget);
        const QString text = shownText(widget);
        const bool isOneLine =
            !(label && label->wordWrap()) && !text.contains('\n') && !Qt::mightBeRichText(text);
        if (text.isEmpty() || !isOneLine || widget.fontMetrics().horizontalAdvance(text) <= roomFor(widget))
            return;
        EXPECT_TRUE(toolTipOf(widget).contains(text.toHtmlEscaped()) || toolTipOf(widget).contains(text))
            << pathOf(widget) << " cuts " << text.toStdString();
    }
};

} // namespace

TEST_P(EveryText, IsWholeAndStandsOut)
{
    forEachWindow([&](QWidget& root) {
        for (auto* each : root.findChildren<QWidget*>()) {
            if (!each->isVisible() || isExcepted(*each))
                continue;
            if (each->isEnabled() && showsText(*each)) {
                EXPECT_GE(textContrast(*each), 4.5) << pathOf(*each);
            }
            if (shownText(*each).isEmpty())
                continue;
            expectWhole(*each);
            EXPECT_GE(each->height(), each->fontMetrics().height()) << pathOf(*each);
        }
    });
}

INSTANTIATE_TEST_SUITE_P(All, EveryText,
                         testing::Values(Look{Theme::Light, 1, Qt::LeftToRight},
                                         Look{Theme::Light, 1, Qt::RightToLeft},
                                         Look{Theme::Light, 168 / 96.0, Qt::RightToLeft},
                                         Look{Theme::Light, 3, Qt::RightToLeft},
                                         Look{Theme::Dark, 3, Qt::LeftToRight}));

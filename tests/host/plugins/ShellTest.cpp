// SPDX-License-Identifier: MIT
#include "PluginParts.h"

#include "shell/ToolsMenu.h"

#include <support/Waiting.h>

#include <scopix/SpxContextMenus.h>
#include <scopix/SpxEditor.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include <stdexcept>

using namespace scopix;

namespace
{

class Panel : public SpxExtension
{
public:
    explicit Panel(const char* name) { setName(name); }
    void load() override {}
    void unload() override {}
    void activate() override
    {
        SpxExtension::activate();
        m_shell->addDockWidget(&m_dock, Qt::RightDockWidgetArea);
        m_shell->attachExtension(this, true);
        show();
    }
    void deactivate() override
    {
        SpxExtension::deactivate();
        m_shell->removeDockWidget(&m_dock);
        m_shell->detachExtension(this);
    }
    void show() override
    {
        SpxExtension::show();
        m_dock.show();
    }
    void hide() override
    {
        SpxExtension::hide();
        m_dock.hide();
    }
    void start(HostShell& shell)
    {
        m_shell = &shell;
        shell.setActivating(this);
        activate();
        shell.setActivating(nullptr);
    }

    HostShell* m_shell = nullptr;
    QDockWidget m_dock;
};

class PanelEditor : public SpxEditor
{
public:
    void load() override {}
    void unload() override {}
};

class Shell : public ::testing::Test
{
protected:
    Shell()
    {
        m_window.resize(900, 600);
        m_window.setCentralWidget(new QWidget);
        m_window.show();
    }
    Qt::DockWidgetArea areaOf(const Panel& panel) const
    {
        return m_window.dockWidgetArea(const_cast<QDockWidget*>(&panel.m_dock));
    }

    QMainWindow m_window;
    HostShell m_shell{m_window};
    Panel m_one{"One"};
    Panel m_two{"Two"};
};

TEST_F(Shell, NamesEveryDockAndToolBarDifferently)
{
    m_one.start(m_shell);
    QDockWidget same("One");
    QDockWidget nameless;
    QToolBar bar("Bar");
    m_shell.addDockWidget(&same, Qt::LeftDockWidgetArea);
    m_shell.addDockWidget(&nameless, Qt::LeftDockWidgetArea);
    m_shell.addToolBar(&bar, Qt::TopToolBarArea);
    QSet<QString> names;
    for (const QObject* each : std::initializer_list<QObject*>{&m_one.m_dock, &same, &nameless, &bar})
        names.insert(each->objectName());
    EXPECT_EQ(names.size(), 4);
    EXPECT_FALSE(names.contains(QString()));
    m_shell.removeDockWidget(&same);
    m_shell.removeDockWidget(&nameless);
    m_shell.removeToolBar(&bar);
    m_one.deactivate();
}

TEST_F(Shell, HandsWidgetsBackWithoutAParent)
{
    m_one.start(m_shell);
    QToolBar bar("Bar");
    m_shell.addToolBar(&bar, Qt::TopToolBarArea);
    m_shell.removeToolBar(&bar);
    m_one.deactivate();
    EXPECT_EQ(m_one.m_dock.parent(), nullptr);
    EXPECT_EQ(bar.parent(), nullptr);
    EXPECT_FALSE(m_one.m_dock.isVisible());
}

TEST_F(Shell, KeepsAnExplicitlyHiddenDockHidden)
{
    QDockWidget dock("Field Editor");
    dock.setVisible(false);
    m_shell.addDockWidget(&dock, Qt::RightDockWidgetArea);
    EXPECT_TRUE(dock.isHidden());
    m_shell.removeDockWidget(&dock);
    m_shell.addDockWidget(&dock, Qt::RightDockWidgetArea);
    EXPECT_TRUE(dock.isHidden());
    m_shell.removeDockWidget(&dock);
}

TEST_F(Shell, ADockComesBackWhereItWas)
{
    m_one.start(m_shell);
    m_two.start(m_shell);
    m_window.addDockWidget(Qt::LeftDockWidgetArea, &m_one.m_dock);
    m_window.tabifyDockWidget(&m_one.m_dock, &m_two.m_dock);
    m_two.deactivate();
    m_one.deactivate();
    m_one.start(m_shell);
    m_two.start(m_shell);
    EXPECT_EQ(areaOf(m_one), Qt::LeftDockWidgetArea);
    EXPECT_EQ(areaOf(m_two), Qt::LeftDockWidgetArea);
    EXPECT_EQ(m_window.tabifiedDockWidgets(&m_one.m_dock), QList<QDockWidget*>{&m_two.m_dock});
    m_one.m_dock.setFloating(true);
    m_one.deactivate();
    m_one.start(m_shell);
    EXPECT_TRUE(m_one.m_dock.isFloating());
    m_two.deactivate();
    m_one.deactivate();
}

TEST_F(Shell, AToolBarComesBackWhereItWas)
{
    QToolBar bar("Bar");
    m_shell.addToolBar(&bar, Qt::TopToolBarArea);
    m_window.addToolBar(Qt::LeftToolBarArea, &bar);
    m_shell.removeToolBar(&bar);
    m_shell.addToolBar(&bar, Qt::TopToolBarArea);
    EXPECT_EQ(m_window.toolBarArea(&bar), Qt::LeftToolBarArea);
    EXPECT_TRUE(bar.isVisible());
    m_shell.removeToolBar(&bar);
}

TEST_F(Shell, SavesAndRestoresPlacesAndWhatTheUserHid)
{
    m_one.start(m_shell);
    m_two.start(m_shell);
    m_window.addDockWidget(Qt::BottomDockWidgetArea, &m_one.m_dock);
    m_shell.setShown(&m_two, false);
    const QByteArray layout = m_shell.saveLayout();
    m_shell.setShown(&m_two, true);
    m_window.addDockWidget(Qt::LeftDockWidgetArea, &m_one.m_dock);

    EXPECT_TRUE(m_shell.restoreLayout(layout));
    EXPECT_EQ(areaOf(m_one), Qt::BottomDockWidgetArea);
    EXPECT_TRUE(m_one.m_dock.isVisible());
    EXPECT_FALSE(m_two.isShown());
    EXPECT_FALSE(m_two.m_dock.isVisible());
    EXPECT_TRUE(m_shell.isHiddenByPerson(&m_two));
    m_two.deactivate();
    m_one.deactivate();
}

TEST_F(Shell, AWaitingExtensionStaysHiddenUntilTheUserShowsIt)
{
    m_shell.keepHiddenAtFirst("Two");
    m_one.start(m_shell);
    m_two.start(m_shell);
    EXPECT_FALSE(m_shell.comesUpHidden(&m_one));
    EXPECT_TRUE(m_shell.comesUpHidden(&m_two));
    EXPECT_FALSE(m_shell.isHiddenByPerson(&m_two)) << "no layout remembers it";
    m_shell.setShown(&m_two, true);
    EXPECT_FALSE(m_shell.comesUpHidden(&m_two));
    m_two.deactivate();
    m_one.deactivate();
}

TEST_F(Shell, AnInvalidLayoutChangesNothing)
{
    m_one.start(m_shell);
    for (const QByteArray& text :
         {QByteArray(), QByteArray("nonsense"), QByteArray(1000, '\xff'), m_shell.saveLayout().left(20),
          QByteArray("\0\0\0\1\0\0\0\4abcd\0\0\0\0", 16)})
        EXPECT_FALSE(m_shell.restoreLayout(text));
    EXPECT_EQ(areaOf(m_one), Qt::RightDockWidgetArea);
    EXPECT_TRUE(m_one.m_dock.isVisible());
    m_one.deactivate();
}

TEST_F(Shell, ClosingADockHidesItsExtension)
{
    m_one.start(m_shell);
    m_one.m_dock.close();
    runLoop();
    EXPECT_FALSE(m_one.isShown());
    EXPECT_TRUE(m_shell.isHiddenByPerson(&m_one));
    m_one.deactivate();
}

TEST_F(Shell, TheWindowsOwnMenuKeepsTheExtensionInformed)
{
    m_one.start(m_shell);
    m_one.m_dock.toggleViewAction()->trigger();
    runLoop();
    EXPECT_FALSE(m_one.isShown());
    m_one.m_dock.toggleViewAction()->trigger();
    runLoop();
    EXPECT_TRUE(m_one.isShown());
    EXPECT_TRUE(m_one.m_dock.isVisible());
    m_one.deactivate();
}

TEST_F(Shell, TheViewMenuShowsAndHidesExtensionsButEditors)
{
    QMenu menu;
    QAction* before = menu.addAction("Something else");
    new ToolsMenu(m_shell, menu);
    PanelEditor editor;
    m_shell.attachExtension(&editor, true);
    m_one.start(m_shell);
    m_two.start(m_shell);
    ASSERT_EQ(menu.actions().size(), 3);
    EXPECT_EQ(menu.actions().at(0), before);
    QAction* one = menu.actions().at(1);
    EXPECT_EQ(one->text(), "One");
    EXPECT_TRUE(one->isChecked());
    one->trigger();
    EXPECT_FALSE(m_one.isShown());
    EXPECT_FALSE(one->isChecked());
    m_one.show();
    EXPECT_TRUE(one->isChecked());
    m_one.deactivate();
    EXPECT_EQ(menu.actions().size(), 2);
    m_two.deactivate();
    m_shell.detachExtension(&editor);
    EXPECT_EQ(menu.actions().size(), 1);
}

} // namespace

TEST_F(Shell, WhatIsHiddenAtFirstShowsWhenAskedForOrWhenTheFirstLookIsForgotten)
{
    m_shell.hideAtFirst("One");
    m_shell.hideAtFirst("Two");
    m_one.start(m_shell);
    m_two.start(m_shell);
    EXPECT_TRUE(m_shell.comesUpHidden(&m_one));
    m_shell.setShown(&m_one, true);
    EXPECT_FALSE(m_shell.comesUpHidden(&m_one));
    m_shell.setShown(&m_one, false);
    m_shell.forgetFirstLook();
    EXPECT_TRUE(m_shell.comesUpHidden(&m_one)); // by the user
    EXPECT_FALSE(m_shell.comesUpHidden(&m_two));
}

TEST_F(Shell, PutsEntriesIntoTheMenusAndTakesThemOut)
{
    QMenu edit;
    QMenu view;
    m_shell.setMenus(&edit, &view);
    EXPECT_EQ(SpxShellMenus::getInstance(), &m_shell);
    QAction filter("Filter");
    auto gone = std::make_unique<QAction>("Gone");
    SpxShellMenus& menus = m_shell;
    menus.addMenuAction(SpxShellMenus::Menu::Edit, &filter);
    menus.addMenuAction(SpxShellMenus::Menu::View, gone.get());
    EXPECT_EQ(edit.actions(), QList<QAction*>{&filter});
    EXPECT_EQ(view.actions(), QList<QAction*>{gone.get()});
    EXPECT_TRUE(m_window.actions().contains(&filter));
    gone.reset();
    EXPECT_TRUE(view.isEmpty());
    menus.removeMenuAction(&filter);
    EXPECT_TRUE(edit.isEmpty());
    EXPECT_FALSE(m_window.actions().contains(&filter));
}

TEST_F(Shell, ADockThatShowsItselfStaysBehindTheOneWithTheFocus)
{
    m_one.m_dock.setWidget(new QLineEdit);
    m_two.m_dock.setWidget(new QLineEdit);
    m_one.start(m_shell);
    m_two.start(m_shell);
    ASSERT_EQ(m_window.tabifiedDockWidgets(&m_one.m_dock).size(), 1);
    m_two.hide();
    m_window.activateWindow();
    ASSERT_TRUE(waitForActive(&m_window));
    m_one.m_dock.widget()->setFocus();
    m_two.show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(m_one.m_dock.widget()->isVisible());
    EXPECT_TRUE(m_one.m_dock.widget()->visibleRegion().boundingRect().isValid());
    EXPECT_TRUE(m_two.m_dock.widget()->visibleRegion().isEmpty());

    EXPECT_FALSE(m_shell.raiseDocksOf("Three"));
    EXPECT_TRUE(m_shell.raiseDocksOf("Two"));
    QCoreApplication::processEvents();
    EXPECT_FALSE(m_two.m_dock.widget()->visibleRegion().isEmpty());
}

namespace
{

class Entries : public SpxContextMenuProvider
{
public:
    explicit Entries(const QString& text)
        : m_text(text)
    {
    }
    void addNodeEntries(QMenu& menu, const QList<SoFieldContainer*>& nodes) override
    {
        menu.addAction(m_text + QString::number(nodes.size()));
    }
    void addFieldEntries(QMenu& menu, SoField& field) override
    {
        menu.addAction(m_text + field.getName().getString());
    }

private:
    QString m_text;
};

class Throwing : public SpxContextMenuProvider
{
    void addFieldEntries(QMenu& /*menu*/, SoField& /*field*/) override
    {
        throw std::runtime_error("no menu");
    }
};

QStringList textsOf(const QMenu& menu)
{
    QStringList texts;
    for (const QAction* action : menu.actions()) {
        if (!action->isSeparator())
            texts += action->text();
    }
    return texts;
}

} // namespace

TEST_F(Shell, PlugInsAddEntriesToContextMenus)
{
    SpxContextMenus* menus = SpxContextMenus::getInstance();
    ASSERT_EQ(menus, &m_shell);
    const SoRef<SoMaterial> material(new SoMaterial);
    QMenu menu;
    QString failure;
    QObject::connect(&m_shell, &HostShell::failed, [&](const QString& sentence) { failure = sentence; });
    auto first = std::make_unique<Entries>("first ");
    Throwing throwing;
    Entries second("second ");
    for (SpxContextMenuProvider* each :
         {static_cast<SpxContextMenuProvider*>(first.get()), static_cast<SpxContextMenuProvider*>(&throwing),
          static_cast<SpxContextMenuProvider*>(&second), static_cast<SpxContextMenuProvider*>(&second)})
        menus->addProvider(each);
    menus->addProvider(nullptr);
    menus->fillNodeMenu(menu, {material.get()});
    EXPECT_EQ(textsOf(menu), (QStringList{"first 1", "second 1"}));
    menu.clear();
    menus->fillNodeMenu(menu, {});
    EXPECT_TRUE(menu.isEmpty());
    menus->fillFieldMenu(menu, material->shininess, &second);
    EXPECT_EQ(textsOf(menu), QStringList{"first shininess"});
    EXPECT_TRUE(failure.contains("no menu")) << qPrintable(failure);
    first.reset();
    menu.clear();
    menus->fillFieldMenu(menu, material->shininess);
    EXPECT_EQ(textsOf(menu), QStringList{"second shininess"});
}

TEST_F(Shell, AFoldedDockShowsItsTitleUntilItHasSomethingToSay)
{
    auto* text = new QPlainTextEdit;
    auto* content = new QWidget;
    (new QVBoxLayout(content))->addWidget(text);
    m_one.m_dock.setWidget(content);
    m_window.resize(600, 500);
    m_window.show();
    m_shell.foldAtFirst("One");
    m_one.start(m_shell);
    m_window.addDockWidget(Qt::BottomDockWidgetArea, &m_one.m_dock);
    runLoop();
    content->setVisible(true); // as a tool does that comes up
    EXPECT_EQ(content->height(), 0);
    EXPECT_FALSE(text->isEnabled()) << "Tab would reach it";
    EXPECT_GT(m_one.m_dock.width(), 400) << "its title is cut";
    EXPECT_LT(m_one.m_dock.height(), 3 * m_one.m_dock.fontMetrics().height());
    EXPECT_EQ(m_shell.foldedDocks(), QStringList{"One"});
    text->setPlainText("something");
    runLoop();
    EXPECT_GT(content->height(), 0);
    EXPECT_GT(m_one.m_dock.height(), 3 * m_one.m_dock.fontMetrics().height());
    EXPECT_TRUE(m_shell.foldedDocks().isEmpty());

    m_shell.setBottomFolded(true);
    runLoop();
    EXPECT_EQ(content->height(), 0);
    QTest::mouseClick(&m_one.m_dock, Qt::LeftButton, {}, {5, 5});
    runLoop();
    EXPECT_GT(content->height(), 0);

    m_shell.setBottomFolded(true);
    m_shell.forgetFirstLook();
    runLoop();
    EXPECT_GT(content->height(), 0);
    EXPECT_TRUE(text->isEnabled());
    m_one.deactivate();
}

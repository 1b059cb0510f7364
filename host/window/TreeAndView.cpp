// SPDX-License-Identifier: MIT
#include "window/TreeAndView.h"

#include "handles/HandleActions.h"
#include "handles/HandleTool.h"
#include "panels/EmptyHint.h"
#include "panels/ScenePanel.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "structure/SceneStates.h"
#include "support/UserNotifier.h"
#include "theme/SvgIcon.h"
#include "viewport/SceneView.h"
#include "window/SelectionLink.h"
#include "window/TreeColumns.h"
#include "window/ViewActions.h"
#include "window/ViewActs.h"
#include "window/ViewPoints.h"

#include <xsg/nodes/base/SoNode.h>

#include <QMainWindow>
#include <QMenu>
#include <QShortcut>

#include <algorithm>

namespace scopix
{

namespace
{

// A single key that the view has by itself; what is typed into a name stays there.
void addTreeKey(SceneTreeView& tree, Qt::Key key, QAction& action)
{
    auto* shortcut = new QShortcut(key, &tree);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &action, &QAction::trigger);
}

} // namespace

TreeAndView::TreeAndView(const Parts& parts)
    : m_parts(parts)
    , m_panel(new ScenePanel)
    , m_tree(&m_panel->getTree())
    , m_view(new SceneView)
    , m_points(std::make_unique<ViewPoints>(parts.services, *m_view))
    , m_handles(std::make_unique<HandleTool>(parts.services, *m_view))
{
    m_tree->setAccessibleName(tr("Scene"));
    m_view->setAccessibleName(tr("3D View"));
    m_tree->setStates(&parts.states);
    m_view->setStates(&parts.states);
    m_handles->setStates(&parts.states);
    connect(m_handles.get(), &HandleTool::said, &parts.notifier, &UserNotifier::info);
    new EmptyHint(*m_tree, tr("Nothing is open. Open a scene or model, or drop one here."));
}

TreeAndView::~TreeAndView() = default;

void TreeAndView::addActsOf(const QMenu& menu)
{
    for (QAction* act : menu.actions()) {
        if (!act->isSeparator())
            m_acts.append(act);
        if (act->menu())
            addActsOf(*act->menu());
    }
}

void TreeAndView::fillHandleMenu(QMenu& menu)
{
    m_handleActions = new HandleActions(*m_handles, m_parts.window, {m_view, m_tree});
    menu.addActions(m_handleActions->getModes());
    menu.addAction(m_handleActions->getOwnAxes());
    addActsOf(menu);
}

void TreeAndView::fillViewMenu(QMenu& menu)
{
    addFramingActs(menu);
    m_viewActions = std::make_unique<ViewActions>(*m_view, m_parts.services, m_parts.notifier, menu,
                                                  QList<QWidget*>{m_view, m_tree});
    menu.addSeparator();
    addDisplayActs(menu);
    m_viewActs = std::make_unique<ViewActs>(menu, *m_view, *m_tree, m_parts.services, m_parts.notifier);
    addActsOf(menu);
}

void TreeAndView::addFramingActs(QMenu& menu)
{
    m_viewAll = menu.addAction(tr("View &All"), m_view, &SceneView::viewAll, Qt::CTRL + Qt::Key_0);
    m_viewAll->setIcon(svgIcon(QStringLiteral("action-view-all"), &m_parts.window));
    m_viewSelected =
        menu.addAction(tr("View &Selected"), this, &TreeAndView::viewSelected, Qt::CTRL + Qt::Key_Period);
    m_viewSelected->setIcon(svgIcon(QStringLiteral("action-view-selected"), &m_parts.window));
    connect(m_view, &SceneView::viewSelectedRequested, m_viewSelected, &QAction::trigger);
    addTreeKey(*m_tree, Qt::Key_A, *m_viewAll);
    addTreeKey(*m_tree, Qt::Key_F, *m_viewSelected);
    menu.addAction(tr("&Home"), m_view, &SceneView::goHome, Qt::ALT + Qt::Key_Home);
}

void TreeAndView::addDisplayActs(QMenu& menu)
{
    const auto add = [&](const QString& icon, const QString& text, int key) {
        QAction* toggle = menu.addAction(svgIcon(icon, &m_parts.window), text);
        toggle->setShortcut(key);
        toggle->setCheckable(true);
        return toggle;
    };
    m_wireframe = add(QStringLiteral("action-wireframe"), tr("&Wireframe"), Qt::Key_F3);
    m_statistics = add(QStringLiteral("action-statistics"), tr("S&tatistics"), Qt::Key_F4);
    connect(m_wireframe, &QAction::toggled, m_view, &SceneView::setWireframe);
    connect(m_statistics, &QAction::toggled, m_view, &SceneView::setShowsStatistics);
}

void TreeAndView::fillColumnMenu(QMenu& menu)
{
    m_columns = new TreeColumns(menu, *m_tree, m_parts.notifier, m_parts.name);
    addActsOf(menu);
}

void TreeAndView::viewSelected()
{
    m_view->viewNode(dynamic_cast<SoNode*>(m_parts.services.selectedNode()));
}

void TreeAndView::linkSelection()
{
    m_link = std::make_unique<SelectionLink>(m_parts.services, *m_tree, *m_view);
}

void TreeAndView::followKeys(QAction& act, const QAction& other)
{
    const auto follow = [&act, &other] {
        if (act.shortcuts() != other.shortcuts())
            act.setShortcuts(other.shortcuts());
    };
    connect(&other, &QAction::changed, &act, follow);
    follow();
}

void TreeAndView::follow(const TreeAndView& other)
{
    for (int i = 0; i < std::min(m_acts.size(), other.m_acts.size()); ++i)
        followKeys(*m_acts[i], *other.m_acts[i]);
    const auto join = [this](const HandleTool& from, HandleTool& to) {
        const auto follow = [&from, &to] {
            to.setMode(from.getMode());
            to.setOfWorld(from.isOfWorld());
        };
        connect(&from, &HandleTool::modeChanged, &to, follow);
        connect(&from, &HandleTool::ofWorldChanged, &to, follow);
        follow();
    };
    join(other.getHandles(), *m_handles);
    join(*m_handles, other.getHandles());
}

} // namespace scopix

// SPDX-License-Identifier: MIT
#include "window/ViewActions.h"

#include "services/HostServices.h"
#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"
#include "support/UserNotifier.h"
#include "text/NodeText.h"
#include "viewport/SceneView.h"
#include "window/KeptCameras.h"

#include <scopix/SpxCommand.h>

#include <QAction>
#include <QMenu>

namespace scopix
{

ViewActions::ViewActions(SceneView& view, HostServices& services, UserNotifier& notifier, QMenu& menu,
                         const QList<QWidget*>& widgets)
    : m_view(view)
    , m_services(services)
    , m_notifier(notifier)
    , m_widgets(widgets)
    , m_grid(view)
    , m_cube(view)
    , m_walk(view)
{
    for (ViewTool* tool : std::initializer_list<ViewTool*>{&m_walk, &m_cube, &m_grid})
        view.addTool(tool);
    QMenu& sides = *menu.addMenu(tr("Look &From"));
    addSide(sides, tr("&Front"), Qt::Key_1, {0, 0, 1});
    addSide(sides, tr("&Right"), Qt::Key_3, {1, 0, 0});
    addSide(sides, tr("&Top"), Qt::Key_7, {0, 1, 0});
    addSide(sides, tr("&Back"), Qt::CTRL + Qt::Key_1, {0, 0, -1});
    addSide(sides, tr("&Left"), Qt::CTRL + Qt::Key_3, {-1, 0, 0});
    addSide(sides, tr("B&ottom"), Qt::CTRL + Qt::Key_7, {0, -1, 0});
    QAction* parallel = add(menu, tr("&Orthographic"), Qt::Key_5);
    parallel->setCheckable(true);
    connect(parallel, &QAction::triggered, &view, &SceneView::setParallel);
    connect(&view, &SceneView::parallelChanged, parallel, &QAction::setChecked);
    QAction* walk = add(menu, tr("Wal&k"), Qt::SHIFT + Qt::Key_W);
    walk->setCheckable(true);
    connect(walk, &QAction::triggered, &m_walk, &WalkTool::setOn);
    connect(&m_walk, &WalkTool::toggled, walk, &QAction::setChecked);
    m_cameras = menu.addMenu(tr("Look Throu&gh"));
    connect(m_cameras, &QMenu::aboutToShow, this, &ViewActions::listCameras);
    menu.addAction(tr("Keep This View as a &Camera"), this, &ViewActions::keepView,
                   QStringLiteral("Ctrl+J, K"));
    menu.addSeparator();
    addToggle(menu, tr("G&rid"), QStringLiteral("viewGrid"), "Ctrl+J, G", false,
              [this](bool on) { m_grid.setGrid(on); });
    addToggle(menu, tr("A&xes"), QStringLiteral("viewAxes"), "Ctrl+J, A", false,
              [this](bool on) { m_grid.setAxes(on); });
    addToggle(menu, tr("Orientation C&ube"), QStringLiteral("viewCube"), "Ctrl+J, C", true,
              [this](bool on) { m_cube.setShown(on); });
}

ViewActions::~ViewActions()
{
    for (ViewTool* tool : std::initializer_list<ViewTool*>{&m_walk, &m_cube, &m_grid})
        m_view.removeTool(tool);
}

QAction* ViewActions::add(QMenu& menu, const QString& text, const QKeySequence& key)
{
    QAction* action = menu.addAction(text);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    for (QWidget* widget : m_widgets)
        widget->addAction(action);
    return action;
}

void ViewActions::addSide(QMenu& menu, const QString& text, const QKeySequence& key, const SbVec3f& side)
{
    connect(add(menu, text, key), &QAction::triggered, &m_view, [this, side] { m_view.lookFrom(side); });
}

template <class Set>
void ViewActions::addToggle(QMenu& menu, const QString& text, const QString& setting, const char* key,
                            bool isOnAtFirst, Set set)
{
    const QVariant known = SettingsFile(UserSettings::windowFile()).value(setting);
    const bool isOn = known.isValid() ? known.toBool() : isOnAtFirst;
    QAction* action = menu.addAction(text);
    action->setObjectName(setting);
    action->setShortcut(QKeySequence(key));
    action->setCheckable(true);
    action->setChecked(isOn);
    set(isOn);
    connect(action, &QAction::toggled, this, [this, setting, set](bool on) {
        set(on);
        const QString problem = SettingsFile(UserSettings::windowFile()).setValue(setting, on);
        if (!problem.isEmpty())
            m_notifier.error(problem);
    });
}

void ViewActions::keepView()
{
    SoNode* root = m_services.getSceneRoot();
    SoGroup* group = root ? root->asGroup() : nullptr;
    if (!group) {
        m_notifier.error(tr("The view cannot be kept: what is open is a single node, and has no place for a "
                            "camera; put it into a group first."));
        return;
    }
    m_services.executeCommand(makeKeepCamera(*group, m_view.getCamera()).release(),
                              tr("Keep a View as a Camera"));
    SoGroup* choice = group->getChild(group->getNumChildren() - 1)->asGroup();
    m_notifier.info(tr("This view is kept as the camera “%1”.").arg(nodeText(*choice->getChild(0))));
}

void ViewActions::listCameras()
{
    m_cameras->clear();
    for (const SoPath& path : findCameras(m_services.getSceneRoot())) {
        QString text = nodeText(*path.getTail());
        connect(m_cameras->addAction(text.replace(QLatin1Char('&'), QStringLiteral("&&"))),
                &QAction::triggered, &m_view, [this, path] { m_view.lookThrough(cameraAt(path)); });
    }
    if (m_cameras->isEmpty())
        m_cameras->addAction(tr("No Cameras in This Scene"))->setEnabled(false);
}

} // namespace scopix

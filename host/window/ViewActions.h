// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/OrientationCube.h"
#include "viewport/ViewGrid.h"
#include "viewport/WalkTool.h"

#include <QList>
#include <QObject>

class QAction;
class QMenu;

namespace scopix
{

class HostServices;
class UserNotifier;

/// Ways to look at the scene: from the sides, in parallel, through its cameras, walking, with a grid. Their
/// single keys act while one of the widgets has the focus. GUI thread only.
class ViewActions : public QObject
{
    Q_OBJECT

public:
    /// All must outlive it. Adds its entries to the menu.
    ViewActions(SceneView& view, HostServices& services, UserNotifier& notifier, QMenu& menu,
                const QList<QWidget*>& widgets);
    ~ViewActions() override;

    OrientationCube& getCube() { return m_cube; }
    WalkTool& getWalk() { return m_walk; }

private:
    QAction* add(QMenu& menu, const QString& text, const QKeySequence& key);
    void addSide(QMenu& menu, const QString& text, const QKeySequence& key, const SbVec3f& side);
    template <class Set>
    void addToggle(QMenu& menu, const QString& text, const QString& setting, const char* key,
                   bool isOnAtFirst, Set set);
    void keepView();
    void listCameras();

    SceneView& m_view;
    HostServices& m_services;
    UserNotifier& m_notifier;
    QList<QWidget*> m_widgets;
    ViewGrid m_grid;
    OrientationCube m_cube;
    WalkTool m_walk;
    QMenu* m_cameras = nullptr;
};

} // namespace scopix

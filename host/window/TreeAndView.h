// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

#include <memory>

class QAction;
class QMainWindow;
class QMenu;

namespace scopix
{

class HandleActions;
class HandleTool;
class HostServices;
class ScenePanel;
class SceneStates;
class SceneTreeView;
class SceneView;
class SelectionLink;
class TreeColumns;
class UserNotifier;
class ViewActions;
class ViewActs;
class ViewPoints;

/// A tree and a 3D view of the scene in front with all that is done in them: selecting, handles, measuring,
/// and looking at the scene in other ways. The main window has one, and so has each further window. GUI
/// thread only.
class TreeAndView : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        QMainWindow& window;
        HostServices& services;
        UserNotifier& notifier;
        SceneStates& states;
        QString name = {}; // of the window in the settings; empty for the main one
    };

    /// All must outlive it. The caller puts panel and view into the window, and destroys this before them.
    explicit TreeAndView(const Parts& parts);
    ~TreeAndView() override;

    ScenePanel& getPanel() const { return *m_panel; }
    SceneTreeView& getTree() const { return *m_tree; }
    SceneView& getView() const { return *m_view; }
    ViewPoints& getPoints() const { return *m_points; }
    HandleTool& getHandles() const { return *m_handles; }
    HandleActions& getHandleActions() const { return *m_handleActions; }
    ViewActions& getViewActions() const { return *m_viewActions; }
    TreeColumns& getColumns() const { return *m_columns; }

    /// Their entries, each once, and in this order.
    void fillHandleMenu(QMenu& menu);
    void fillViewMenu(QMenu& menu);
    void fillColumnMenu(QMenu& menu);
    /// All of them; their order is the same for each.
    const QList<QAction*>& getActs() const { return m_acts; }
    /// View All and View Selected; Wireframe and Statistics.
    QList<QAction*> getFramingActs() const { return {m_viewAll, m_viewSelected}; }
    QList<QAction*> getDisplayActs() const { return {m_wireframe, m_statistics}; }

    /// From now on the tree and the view select, and show what is selected.
    void linkSelection();
    /// Its acts have the keys of the other's, and the handles are of one kind in both.
    void follow(const TreeAndView& other);

private:
    void addActsOf(const QMenu& menu);
    void addFramingActs(QMenu& menu);
    void addDisplayActs(QMenu& menu);
    void followKeys(QAction& act, const QAction& other);
    void viewSelected();

    Parts m_parts;
    ScenePanel* m_panel;
    SceneTreeView* m_tree;
    SceneView* m_view;
    std::unique_ptr<ViewPoints> m_points; // they go before the view
    std::unique_ptr<HandleTool> m_handles;
    std::unique_ptr<ViewActions> m_viewActions;
    std::unique_ptr<ViewActs> m_viewActs;
    std::unique_ptr<SelectionLink> m_link;
    HandleActions* m_handleActions = nullptr; // the window's
    TreeColumns* m_columns = nullptr;         // the menu's
    QList<QAction*> m_acts;
    QAction* m_viewAll = nullptr;
    QAction* m_viewSelected = nullptr;
    QAction* m_wireframe = nullptr;
    QAction* m_statistics = nullptr;
};

} // namespace scopix

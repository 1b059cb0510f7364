// SPDX-License-Identifier: MIT
#pragma once

#include "window/HostWindow.h"
#include "window/SceneFiles.h"

#include <xsg/nodes/base/SoNode.h>

#include <QPointer>

#include <memory>

class SoField;

namespace scopix
{

class BranchFiles;
class CommandPalette;
class FieldListView;
class FurtherWindows;
class HandleTool;
class HelpMenu;
class LiveActs;
class SceneChanges;
class PaletteActs;
class PatchesAmongFiles;
class PictureActs;
class SettingsActs;
class Welcome;
class HostServices;
class NodeEditing;
class NodeMenu;
class SceneStates;
class UserNotifier;
class PlaybackActs;
class ViewActions;
class ScenePanel;
class SceneTabs;
class SceneTreeView;
class SceneView;
class TreeAndView;
class ViewDisplay;
class ViewPoints;

/// The program's window: scene tree and field list at the left, the 3D view in the middle, tools of the
/// extensions around it. Opens scenes and models. GUI thread only.
class MainWindow : public HostWindow
{
    Q_OBJECT

public:
    /// Both must outlive the window. Starts with the welcome scene.
    MainWindow(HostServices& services, UserNotifier& notifier);
    ~MainWindow() override;

    /// Replaces the scene by one that comes from no file; `title` names it.
    void setScene(SoNode* root, const QString& title);
    /// Shows a scene that belongs to the application around the window; null: the shipped scene. False when
    /// the user does not want to lose unsaved edits of what is open.
    bool inspect(SoNode* root, const QString& title);
    SoNode* getScene() const { return m_files.getDocument().getRoot(); }
    SceneFiles& getFiles() { return m_files; }

    QMenu* viewMenu() override { return m_toolsMenu; }
    QMenu* profilesMenu() override { return m_profilesMenu; }
    QMenu* editMenu() override { return m_editMenu; }
    QString emptyHint() const override;
    QMenu* appearanceMenu() override { return m_appearanceMenu; }
    void findInScene(const QString& query) override;
    bool showHelp(const QString& page, const QString& section) override;
    SoNode* sceneRoot() const override { return getScene(); }
    SoPath selectedPath() const override;
    SoPath pathTo(const SoNode* node) const override;
    void setMarkedPoints(const void* owner, const SoPath& place, const std::vector<SbVec3f>& points) override;
    std::pair<const SoCamera*, QSize> viewLook() const override;
    SpxSceneDisplay* display() override;
    void setTreeColumns(const QList<SpxTreeColumnProvider*>& providers) override;
    void updateTreeColumns() override;
    void openFile(const QString& path) override;
    void openFiles(const QStringList& paths) override;
    void openAnother(const QString& path) override;
    void openLive(const LiveOrder& order) override;
    bool selectField(const QString& node, const QString& field) override;
    bool saveScreenshot(const QString& path) override;
    bool savePictures(const PictureOrder& order) override;
    void enterInteractiveMode() override;
    void setPluginStates(PluginStates states) override { m_pluginStates = std::move(states); }

    ScenePanel& getScenePanel() { return *m_scenePanel; }
    SceneTreeView& getTree() { return *m_tree; }
    FieldListView& getFields() { return *m_fields; }
    SceneView& getView() { return *m_view; }
    SceneTabs& getTabs() { return *m_tabs; }
    ViewPoints& getViewPoints();
    HandleTool& getHandles();
    NodeEditing& getEditing() { return *m_editing; }
    BranchFiles& getBranchFiles() { return *m_branchFiles; }
    LiveActs& getLive() { return *m_live; }
    SceneStates& getStates() { return *m_states; }
    SceneChanges& getChanges() { return *m_changes; }
    ViewActions& getViewActions();
    Welcome& getWelcome() { return *m_welcome; }
    SettingsActs& getSettings() { return *m_settings; }
    PaletteActs& getPalette() { return *m_palette; }
    FurtherWindows& getFurtherWindows() { return *m_further; }

    QSize sizeHint() const override { return {1280, 800}; }

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QSize firstSize() const;
    void makeCentre();
    void makeDocks();
    void makeFileMenu();
    void makeEditMenu();
    void makeNodeMenu();
    void makeViewMenu();
    void makeGuidance();
    void makeToolBar();
    void connectSelection();
    void makeFurtherWindows();
    void openFurtherAgain();
    QDockWidget* addDock(QWidget* content, const QString& title, const QString& name,
                         Qt::DockWidgetArea area);

    void openPatch(const QString& path);
    void openDropped(QStringList paths, bool inTabs);
    void showTitle();
    void askForScreenshot();
    void find();
    void showFinder();
    TreeAndView& paneInUse() const;
    std::vector<PluginState> pluginStates() const;

    HostServices& m_services;
    UserNotifier& m_notifier;
    SceneFiles m_files;
    QPointer<OpenScene> m_inspected; // is of the application around the window
    SceneStates* m_states;
    std::unique_ptr<TreeAndView> m_pane; // goes before its widgets
    ScenePanel* m_scenePanel;            // they are the pane's
    SceneTreeView* m_tree;
    SceneView* m_view;
    FieldListView* m_fields;
    SceneTabs* m_tabs = nullptr;
    std::unique_ptr<ViewDisplay> m_display;
    NodeMenu* m_nodeMenu = nullptr;
    QMenu* m_columnMenu = nullptr;
    NodeEditing* m_editing = nullptr;
    BranchFiles* m_branchFiles = nullptr;
    SettingsActs* m_settings = nullptr;
    PaletteActs* m_palette = nullptr;
    Welcome* m_welcome = nullptr;
    PluginStates m_pluginStates;
    QMenu* m_helpMenu = nullptr;
    QMenu* m_themeMenu = nullptr;
    HelpMenu* m_help = nullptr;
    QDockWidget* m_treeDock = nullptr;
    QDockWidget* m_fieldsDock = nullptr;
    QDockWidget* m_historyDock = nullptr;
    QDockWidget* m_changesDock = nullptr;
    SceneChanges* m_changes = nullptr;
    PatchesAmongFiles* m_amongFiles = nullptr;
    QMenu* m_editMenu = nullptr;
    QMenu* m_appearanceMenu = nullptr;
    QMenu* m_toolsMenu = nullptr;
    QMenu* m_profilesMenu = nullptr;
    PictureActs* m_pictures = nullptr;
    PlaybackActs* m_playback = nullptr;
    std::unique_ptr<LiveActs> m_live;          // goes before the view
    std::unique_ptr<FurtherWindows> m_further; // go before all that they share
    QAction* m_openAction = nullptr;
    QAction* m_undoAction = nullptr;
    QAction* m_redoAction = nullptr;
};

} // namespace scopix

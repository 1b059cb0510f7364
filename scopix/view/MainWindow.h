// The program's window: scene tree and field list at the left, the 3D view in the middle, tools of the
// extensions around it. Opens scenes and models. GUI thread only.
#pragma once

#include "HostWindow.h"
#include "view/Colors.h"

#include <xsg/nodes/SoSeparator.h>

#include <QPointer>

class FieldListView;
class HostServices;
class Messages;
class ModelImport;
class SceneTreeView;
class SceneView;
class SoField;

class MainWindow : public HostWindow
{
    Q_OBJECT

public:
    // Both must outlive the window. Starts with the shipped scene.
    MainWindow(HostServices& services, Messages& messages);
    ~MainWindow() override;

    // Shows this scene instead of the one before; `title` names it.
    void setScene(SoNode* root, const QString& title);
    SoNode* getScene() const { return m_scene.get(); }

    QMenu* viewMenu() override { return m_toolsMenu; }
    QMenu* profilesMenu() override { return m_profilesMenu; }
    void openFile(const QString& path) override;
    bool selectField(const QString& node, const QString& field) override;
    bool saveScreenshot(const QString& path) override;
    // As a scene file. False when it cannot be written, which is told through Messages.
    bool saveScene(const QString& path);

    SceneTreeView& getTree() { return *m_tree; }
    FieldListView& getFields() { return *m_fields; }
    SceneView& getView() { return *m_view; }

    QSize sizeHint() const override { return {1280, 800}; }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void makeDocks();
    void makeFileMenu();
    void makeEditMenu();
    void makeViewMenu();
    void makeThemeMenu(QMenu& menu);
    void makeHelpMenu();
    void makeToolBar();
    void connectSelection();
    QDockWidget* addDock(QWidget* content, const QString& title, const QString& name,
                         Qt::DockWidgetArea area);

    void openScene(const QString& path);
    void importModel(const QString& path);
    void askWhereToSave();
    void opened(SoNode* root, const QString& path);
    void refuse(const QString& sentence);
    void askForFile();
    void askForScreenshot();
    void showAbout();
    void viewSelected();
    void showNode(SoFieldContainer* node);
    void showField(SoField* field);
    void setTheme(scopix::Theme theme);

    HostServices& m_services;
    Messages& m_messages;
    SoRef<SoNode> m_scene;
    QPointer<ModelImport> m_import;
    SceneTreeView* m_tree;
    FieldListView* m_fields;
    SceneView* m_view;
    QDockWidget* m_treeDock = nullptr;
    QDockWidget* m_fieldsDock = nullptr;
    QDockWidget* m_historyDock = nullptr;
    QMenu* m_toolsMenu = nullptr;
    QMenu* m_profilesMenu = nullptr;
    QAction* m_openAction = nullptr;
    QAction* m_undoAction = nullptr;
    QAction* m_redoAction = nullptr;
    QAction* m_viewAllAction = nullptr;
    QAction* m_viewSelectedAction = nullptr;
};

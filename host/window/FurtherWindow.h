// SPDX-License-Identifier: MIT
#pragma once

#include "window/PaneLooks.h"

#include <QMainWindow>

#include <functional>
#include <memory>

class QLabel;
class QMenu;
class QSplitter;

namespace scopix
{

class HostServices;
class NodeMenu;
class OpenScenes;
class SceneChanges;
class SceneStates;
class TreeAndView;
class UserNotifier;

/// One more window with a tree and a 3D view of the scene that is in front in the main window. Selection,
/// undo, what is hidden and all acts on the scene are the main window's; from where the scene is looked at,
/// how it is drawn, what is unfolded and what is looked for are its own. Time passes in the main window's
/// view alone, whose pictures the log of frames has. GUI thread only.
class FurtherWindow : public QMainWindow
{
    Q_OBJECT

public:
    struct Parts {
        QMainWindow& main;
        TreeAndView& pane; // the main window's
        OpenScenes& scenes;
        HostServices& services;
        UserNotifier& notifier;
        SceneStates& states;
        SceneChanges& changes;
        NodeMenu& nodes;
        QMenu& viewMenu; // of which it has entries of its own for what is the view's
        QMenu& columnMenu;
    };

    /// `number` is 2 for the first. All must outlive it; the main window is its parent.
    FurtherWindow(const Parts& parts, int number);
    ~FurtherWindow() override;

    int getNumber() const { return m_number; }
    TreeAndView& getPane() const { return *m_pane; }
    /// Puts the focus where the user types what to find.
    void startFinding();
    /// Where it was when it was closed last, with these screens; and keeps where it is.
    void restoreLayout();
    void keepLayout();

    QSize sizeHint() const override { return {960, 640}; }

signals:
    /// It goes, and has kept its layout.
    void closing(FurtherWindow* window);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void makeMenus();
    void makeViewMenu();
    void shareKeys();
    void followScenes();
    void showScene(SoNode* root);
    void showTitle();

    Parts m_parts;
    int m_number;
    std::unique_ptr<TreeAndView> m_pane;
    PaneLooks m_looks;
    QSplitter* m_splitter;
    QLabel* m_elsewhere; // says where the picture of a running program is
};

} // namespace scopix

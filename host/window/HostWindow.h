// SPDX-License-Identifier: MIT
#pragma once

#include "services/SceneSource.h"
#include "start/PluginState.h"
#include "viewport/PictureSeries.h"

#include <QMainWindow>

class QMenu;
class SoCamera;
class SpxSceneDisplay;
class SpxTreeColumnProvider;

namespace scopix
{

/// A running program to attach to: one to start, with its arguments, or by part of its name, its number or
/// the path of its socket; where both are empty, the only one there is.
struct LiveOrder {
    QStringList launch;
    QString attach;
    QString node; // is to be there when it is attached, by its name or its type; empty: none
};

/// What the host needs of its main window, whatever else the window shows. GUI thread only.
class HostWindow : public QMainWindow, public SceneSource
{
    Q_OBJECT

public:
    using QMainWindow::QMainWindow;

    /// Where the host puts the entries of the extensions, and the profiles. Owned by the window.
    virtual QMenu* viewMenu() = 0;
    virtual QMenu* profilesMenu() = 0;
    /// Where entries of extensions go that act on the selection, or set how things are shown; null for none.
    virtual QMenu* editMenu() { return nullptr; }
    /// What stands at the right while no dock does; empty for nothing.
    virtual QString emptyHint() const { return {}; }
    virtual QMenu* appearanceMenu() { return nullptr; }
    /// As if the user had typed it where the window finds.
    virtual void findInScene(const QString& /*query*/) {}
    /// As SpxGuide::showHelp().
    virtual bool showHelp(const QString& /*page*/, const QString& /*section*/) { return false; }

    /// Where the window learns what it says of plug-ins.
    virtual void setPluginStates(PluginStates /*states*/) {}

    /// The 3D view's camera, and its size in pixels of the screen; null and none without a view.
    virtual std::pair<const SoCamera*, QSize> viewLook() const { return {}; }
    /// What shows the scene; null without a view.
    virtual SpxSceneDisplay* display() { return nullptr; }
    /// Further columns of the scene tree, in place of those given before; and their values are others now.
    virtual void setTreeColumns(const QList<SpxTreeColumnProvider*>& /*providers*/) {}
    virtual void updateTreeColumns() {}

    /// Opens a scene or model, perhaps in the background; openFinished() follows, once, possibly before this
    /// returns. What was open stays open when it fails. Problems are reported through UserNotifier.
    virtual void openFile(const QString& path) = 0;
    /// The same for several, each in a tab; the first that can be opened ends up in front, and openFinished()
    /// says whether all are. A patch among them is for the scene before it. A window without tabs opens the
    /// first.
    virtual void openFiles(const QStringList& paths) { openFile(paths.first()); }
    /// The same for a user who works with the window, who is asked for what is not saved.
    virtual void openAnother(const QString& path) { openFile(path); }
    /// Attaches to a running program; as openFile().
    virtual void openLive(const LiveOrder& /*order*/) {}
    /// Selects a field by its node's name or type. False when there is none, which is reported.
    virtual bool selectField(const QString& node, const QString& field) = 0;
    /// Writes a picture of the window. False when it cannot be written, which is
    /// reported.
    virtual bool saveScreenshot(const QString& path) = 0;
    /// Writes pictures of the 3D view alone. False when they cannot be written, which is reported.
    virtual bool savePictures(const PictureOrder& /*order*/) { return false; }
    /// What the command line asks for has been done, and the user works with the window from now on.
    virtual void enterInteractiveMode() {}

signals:
    void openFinished(bool opened);
    /// The user has closed the window; it may be shown again.
    void closed();
};

} // namespace scopix

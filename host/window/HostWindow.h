// SPDX-License-Identifier: MIT
#pragma once

#include "services/SceneSource.h"
#include "start/PluginState.h"
#include "viewport/PictureSeries.h"

#include <QMainWindow>

class QMenu;

namespace scopix
{

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

    /// Opens a scene or model, perhaps in the background; openFinished() follows, once, possibly before this
    /// returns. What was open stays open when it fails. Problems are reported through UserNotifier.
    virtual void openFile(const QString& path) = 0;
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

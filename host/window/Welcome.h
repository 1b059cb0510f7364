// SPDX-License-Identifier: MIT
#pragma once

#include "start/FilePictures.h"

#include <QObject>
#include <QTimer>

class QMainWindow;
class QMenu;

namespace scopix
{

class HostServices;
class SceneFiles;
class SceneView;
class StartPage;
class Tour;

/// What meets a user who has opened nothing yet: the start page, the tour, and the pictures of recent files,
/// which are taken while they are open. Owned by the window. GUI thread only.
class Welcome : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        QMainWindow& window;
        SceneView& view;
        QWidget& tree;
        SceneFiles& files;
        HostServices& services;
    };

    /// `begin` are the acts that the start page offers first.
    Welcome(const Parts& parts, const QList<QAction*>& begin);

    void addTo(QMenu& menu);
    /// A user works with the window from now on.
    void enterInteractiveMode();

    StartPage& page() { return *m_page; }
    Tour& tour() { return *m_tour; }

private:
    void makeTour();
    void watchTour();
    void beginTour();
    void openPage();
    void pathChanged();
    void takePicture();

    Parts m_parts;
    FilePictures m_pictures;
    StartPage* m_page;
    Tour* m_tour = nullptr;
    QAction* m_tourAction;
    QAction* m_pageAction;
    QString m_pictured; // the path that has its picture, or will
    QTimer m_picture;   // until the open file has been drawn
    bool m_isInteractive = false;
};

} // namespace scopix

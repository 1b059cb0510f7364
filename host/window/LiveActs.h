// SPDX-License-Identifier: MIT
#pragma once

#include "live/LiveChanges.h"
#include "live/LiveLaunch.h"
#include "live/LivePicture.h"
#include "window/LaunchDialog.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <memory>

class QAction;
class QMenu;
class SoFieldContainer;
class SoNode;
class SoPath;

namespace scopix
{

class FieldListView;
class HostServices;
class LiveCounters;
class LiveLink;
class LiveScene;
class SceneFiles;
class SceneTreeView;
class SceneView;
class UserNotifier;

/// What the user does with running programs: attaching, launching, detaching. An attached program takes the
/// place of the scene that was open, as opening a file does, and what it shows takes the place of the 3D
/// view. GUI thread only.
class LiveActs : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        QWidget& window;
        SceneFiles& files;
        HostServices& services;
        SceneView& view;
        SceneTreeView& tree;
        FieldListView& fields;
        UserNotifier& notifier;
    };

    /// All must outlive it. Puts its entries into the menu.
    LiveActs(QMenu& menu, const Parts& parts);
    ~LiveActs() override;
    QAction* getAttachAction() const { return m_attach; }

    /// By part of a name, a number or the path of a socket; by nothing, the only program there is.
    void attach(const QString& word);
    void launch(const LaunchOrder& order);
    void launch(const QStringList& command) { launch(LaunchOrder{command, {}}); }
    /// Once more what was launched last, which may have ended.
    void launchAgain();
    /// The user says what.
    void askForLaunch();
    /// The next attached() waits for this node and its values.
    void wantNode(const QString& text) { m_wanted = text; }
    void attachTo(const QString& socketPath) { attachTo(socketPath, {}); }
    /// The user chooses.
    void askForProgram();
    void detach();
    /// Gives everything that was edited in the program the value that it had at first.
    void takeBack();

    /// Null where no program is shown.
    LiveScene* getScene() const { return m_scene.get(); }
    LivePicture& getPicture() const { return *m_picture; }
    /// The user looks for something: false where the scene is not a program's.
    bool find(const QString& query, const std::function<void(const std::vector<SoNode*>&)>& found);

signals:
    /// The nodes at the top are there, and a first picture where the program offers them; or it failed, which
    /// is reported.
    void attached(bool good);

private:
    using Changes = std::vector<LiveChanges::Change>;

    void attachTo(const QString& socketPath, const LaunchOrder& launched);
    void show(std::unique_ptr<LiveLink> link);
    void addActions(QMenu& menu);
    void showFramesWhereWanted();
    void inserted(const QList<SoPath>& paths);
    void connectScene();
    void ready();
    void findWanted();
    void showWanted(const std::vector<SoNode*>& found, const QString& text);
    void fail(const QString& sentence);
    void rootChanged(const SoNode* root);
    void leave();
    void stateChanged();
    void showEnd();
    void keepChanges();
    void offerChanges();
    void apply(const Changes& changes, bool isBefore);
    void checkPulse();
    void pick(const QPointF& place);
    void lookAtSelected();
    void fieldsCame(SoFieldContainer* node);
    void updateActions();

    Parts m_parts;
    std::unique_ptr<LiveScene> m_scene;
    std::unique_ptr<LiveCounters> m_counters;
    QPointer<LivePicture> m_picture;
    QPointer<LiveLaunch> m_launch;
    QTimer m_pulse;
    LaunchOrder m_launched;     // the latest one
    bool m_isLaunched = false;  // what is attached is that
    bool m_showsFrames = false; // of the program, to whoever looks at frames here
    bool m_isReady = true;
    QString m_wanted;
    Changes m_kept; // of a program that has ended
    QString m_keptName;
    qint64 m_keptProcess = 0;
    QAction* m_attach;
    QAction* m_launchAgain;
    QAction* m_detach;
    QAction* m_takeBack;
    QAction* m_look;
};

} // namespace scopix

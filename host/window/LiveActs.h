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
#include <map>
#include <memory>
#include <vector>

class QAction;
class QMenu;
class SoFieldContainer;
class SoNode;
class SoPath;

namespace scopix
{

class FieldListView;
class HostServices;
class LiveLink;
class LiveScene;
class OpenScene;
class SceneFiles;
class SceneTreeView;
class SceneView;
class UserNotifier;

/// What the user does with running programs: attaching, launching, detaching. Each attached program is open
/// beside what else is, and while it is in front, what it shows takes the place of the 3D view. GUI thread
/// only.
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
    LiveScene* getScene() const;
    LivePicture& getPicture() const { return *m_picture; }
    using Found = std::function<void(const std::vector<SoNode*>&)>;
    /// The user looks for something: false where the scene is not a program's. What was found is told only
    /// while that program is shown.
    bool find(const QString& query, const Found& found);

signals:
    /// The nodes at the top are there, and a first picture where the program offers them; or it failed, which
    /// is reported.
    void attached(bool good);

private:
    using Changes = std::vector<LiveChanges::Change>;
    struct Attached;
    struct Kept {
        Changes changes;
        qint64 process = 0;
    };

    void attachTo(const QString& socketPath, const LaunchOrder& launched);
    void show(std::unique_ptr<LiveLink> link, bool isLaunched);
    OpenScene& placeForAnother();
    Attached* findAttached(const OpenScene& scene) const;
    Attached* findAttached(const LiveScene* scene) const;
    bool isFront(const Attached& attached) const { return m_front == &attached; }
    void addActions(QMenu& menu);
    void showFramesWhereWanted(Attached& attached);
    void inserted(const QList<SoPath>& paths);
    void connectScene(Attached& attached);
    void unfolded(Attached& attached);
    void showPicture();
    void showState(const Attached& attached);
    void ready(Attached& attached);
    static bool findIn(LiveScene& in, const QString& query, const Found& found);
    void findWanted(LiveScene& scene);
    void showWanted(LiveScene& scene, const std::vector<SoNode*>& found, const QString& text);
    void fail(const QString& sentence);
    void rootChanged(const SoNode* root);
    void rest();
    void leave(const Attached& attached);
    void stateChanged(Attached& attached);
    void showSilence(Attached& attached);
    void showEnd(Attached& attached);
    void keepChanges(const Attached& attached);
    void offerChanges(LiveScene& scene);
    void apply(LiveScene& scene, const Changes& changes, bool isBefore);
    void checkPulse();
    void pick(const QPointF& place);
    void lookAtSelected();
    void fieldsCame(SoFieldContainer* node);
    void updateActions();

    Parts m_parts;
    std::vector<std::unique_ptr<Attached>> m_all;
    Attached* m_front = nullptr; // null: a scene is in front
    QPointer<LivePicture> m_picture;
    QPointer<LiveLaunch> m_launch;
    QTimer m_pulse;
    LaunchOrder m_launched; // the latest one
    QString m_wanted;
    std::map<QString, Kept> m_kept; // of programs that have ended, by their names
    QAction* m_attach;
    QAction* m_launchAgain;
    QAction* m_detach;
    QAction* m_takeBack;
    QAction* m_look;
};

} // namespace scopix

// SPDX-License-Identifier: MIT
#pragma once

#include "window/OpenScene.h"

#include <memory>
#include <vector>

namespace scopix
{

class UserNotifier;

/// What is open in the window; there is always one, in front of any others. The selection, the undo history
/// and the services are those of the one in front, and what views show is. GUI thread only.
class OpenScenes : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive it.
    OpenScenes(HostServices& services, UserNotifier& notifier);
    ~OpenScenes() override;

    OpenScene& getFront() const { return *m_front; }
    /// In the order in which they were opened, or the user has put them.
    std::vector<OpenScene*> getAll() const;
    /// A new one, in front; a scene is opened in it before anything else happens. The one in front where
    /// that is untouched.
    OpenScene& add();
    void bringToFront(OpenScene& scene);
    /// Gives the one at this place in the order another place.
    void move(int from, int to);
    /// Closes it, which must not be the only one, and asks nobody. Another one comes to the front first.
    void remove(OpenScene& scene);
    /// Of those that are there, and of those to come.
    void startKeeping();
    /// As of Autosave.
    void setPause(int pauseMs, int limitMs);

signals:
    /// Another one is about to come to the front; what is selected still is.
    void aboutToLeave(OpenScene& scene);
    /// The views are to show this root: a scene was opened, or another one came to the front. Nothing is
    /// selected.
    void rootChanged(SoNode* root);
    /// Another one is in front, and its root shows.
    void entered(OpenScene& scene);
    void aboutToRemove(OpenScene& scene);
    /// As of the document in front, and when another one is.
    void stateChanged();
    void edited();
    /// Which there are, which is in front, or the state of one of them.
    void listChanged();

private:
    OpenScene& make();
    void leaveFront();
    bool isFront(const OpenScene& scene) const { return m_front == &scene; }

    HostServices& m_services;
    UserNotifier& m_notifier;
    std::vector<std::unique_ptr<OpenScene>> m_all;
    int m_pauseMs = 0; // 0: as usual
    int m_limitMs = 0;
    bool m_isKeeping = false;
    OpenScene* m_front;
};

} // namespace scopix

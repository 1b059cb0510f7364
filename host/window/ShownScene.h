// SPDX-License-Identifier: MIT
#pragma once

#include "structure/SceneStates.h"
#include "window/PaneLooks.h"

#include <QObject>

#include <map>
#include <memory>

namespace scopix
{

class OpenScene;
class OpenScenes;
class Playback;
class PointMarks;
class ScenePanel;
class SceneView;
class UserNotifier;

/// Shows the scene in front in the tree and in the 3D view, and keeps of the others how they were shown:
/// from where they were looked at, what was unfolded, hidden and locked, and what played, which rests
/// meanwhile. GUI thread only.
class ShownScene : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        OpenScenes& scenes;
        UserNotifier& notifier;
        SceneStates& states;
        ScenePanel& panel;
        SceneView& view;
        Playback& playback;
        PointMarks& marks;
    };

    /// All must outlive it.
    ShownScene(const Parts& parts, QObject* parent);
    ~ShownScene() override;

private:
    struct Look {
        SceneStates states;
        int choice = 0;
        bool wasPlaying = false;
    };

    void keepLook(const OpenScene& scene);
    void show(SoNode* root);
    void showAgain(Look& look);

    Parts m_parts;
    PaneLooks m_pane;
    std::map<const OpenScene*, std::unique_ptr<Look>> m_looks;
};

} // namespace scopix

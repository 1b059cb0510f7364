// SPDX-License-Identifier: MIT
#include "window/ShownScene.h"

#include "panels/ScenePanel.h"
#include "panels/SceneTreeView.h"
#include "support/UserNotifier.h"
#include "viewport/Playback.h"
#include "viewport/PointMarks.h"
#include "viewport/SceneView.h"
#include "window/OpenScenes.h"

namespace scopix
{

ShownScene::ShownScene(const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
{
    connect(&parts.scenes, &OpenScenes::aboutToLeave, this, &ShownScene::keepLook);
    connect(&parts.scenes, &OpenScenes::rootChanged, this, &ShownScene::show);
    connect(&parts.scenes, &OpenScenes::aboutToRemove, this,
            [this](const OpenScene& scene) { m_looks.erase(&scene); });
}

ShownScene::~ShownScene() = default;

void ShownScene::keepLook(const OpenScene& scene)
{
    auto look = std::make_unique<Look>();
    Playback& playback = m_parts.playback;
    look->choice = playback.getChoice();
    look->wasPlaying = playback.isPlaying();
    if (look->wasPlaying)
        playback.togglePlaying();
    look->place = m_parts.view.getPlace();
    look->expanded = m_parts.panel.getTree().expandedPaths();
    m_parts.states.swap(look->states);
    m_looks[&scene] = std::move(look);
}

void ShownScene::show(SoNode* root)
{
    const SceneDocument& document = m_parts.scenes.getFront().getDocument();
    const auto known = m_looks.extract(&m_parts.scenes.getFront());
    Look* look = known ? known.mapped().get() : nullptr;
    if (look)
        m_parts.states.swap(look->states);
    else
        m_parts.states.clear();
    m_parts.view.setShapeColors({});
    m_parts.view.setOverdrawShown(false);
    m_parts.panel.setScene(root);
    // Pictures made by a script are the same each time; and time in an application's scene is the
    // application's.
    m_parts.view.setAnimated(m_parts.notifier.isAttended() && !document.isExternal());
    if (look)
        m_parts.view.setScene(root, look->place);
    else
        m_parts.view.setScene(root);
    m_parts.playback.setScene(document.isExternal() ? nullptr : root);
    m_parts.marks.setScene(root);
    if (look)
        showAgain(*look);
}

void ShownScene::showAgain(Look& look)
{
    m_parts.panel.getTree().expandPaths(look.expanded);
    m_parts.playback.choose(look.choice);
    if (look.wasPlaying)
        m_parts.playback.togglePlaying();
}

} // namespace scopix

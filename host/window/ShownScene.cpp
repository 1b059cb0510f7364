// SPDX-License-Identifier: MIT
#include "window/ShownScene.h"

#include "panels/ScenePanel.h"
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
    , m_pane(parts.panel, parts.view)
{
    connect(&parts.scenes, &OpenScenes::aboutToLeave, this, &ShownScene::keepLook);
    connect(&parts.scenes, &OpenScenes::rootChanged, this, &ShownScene::show);
    connect(&parts.scenes, &OpenScenes::aboutToRemove, this, [this](const OpenScene& scene) {
        m_looks.erase(&scene);
        m_pane.drop(scene);
    });
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
    m_pane.keep(scene);
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
    // Pictures made by a script are the same each time; and time in an application's scene is the
    // application's.
    m_parts.view.setAnimated(m_parts.notifier.isAttended() && !document.isExternal());
    m_pane.show(m_parts.scenes.getFront(), root);
    m_parts.playback.setScene(document.isExternal() ? nullptr : root);
    m_parts.marks.setScene(root);
    if (look)
        showAgain(*look);
}

void ShownScene::showAgain(Look& look)
{
    m_parts.playback.choose(look.choice);
    if (look.wasPlaying)
        m_parts.playback.togglePlaying();
}

} // namespace scopix

// SPDX-License-Identifier: MIT
#include "viewport/SelectionMeasure.h"

#include "viewport/SceneParts.h"
#include "viewport/SceneView.h"

#include <algorithm>

namespace scopix
{

namespace
{

constexpr std::chrono::milliseconds Slice(8);

bool isBelow(const SoPath& path, const SoPath& above)
{
    return above.getLength() < path.getLength() && isSamePath(pathUpTo(path, above.getLength() - 1), above);
}

// Looking for those above takes long where there are many, and counts little.
QList<SoPath> topmost(const QList<SoPath>& paths)
{
    constexpr int Many = 1000;
    QList<SoPath> top;
    for (const SoPath& path : paths) {
        const auto holdsIt = [&](const SoPath& other) { return isBelow(path, other); };
        if (!path.isEmpty() && (paths.size() > Many || std::none_of(paths.begin(), paths.end(), holdsIt)))
            top.append(path);
    }
    return top;
}

} // namespace

SelectionMeasure::SelectionMeasure(SceneView& view, Selected selected)
    : m_view(view)
    , m_selected(std::move(selected))
{
}

void SelectionMeasure::want(bool on)
{
    m_wanted += on ? 1 : -1;
    restart();
}

std::uint64_t SelectionMeasure::sceneNow() const
{
    const SoNode* scene = m_view.getScene();
    return scene ? (scene->getNodeId() << 32) + scene->getChangeCount() : 0;
}

void SelectionMeasure::refresh()
{
    if (m_wanted > 0 && sceneNow() != m_scene)
        restart();
}

void SelectionMeasure::restart()
{
    m_sum = {};
    m_current = -1;
    m_isReady = false;
    m_scene = sceneNow();
    m_timer.stop();
    m_paths.clear();
    m_action.forget();
    if (m_wanted > 0) {
        m_paths = topmost(m_selected());
        next();
        m_timer.start(0, this);
    }
}

void SelectionMeasure::next()
{
    if (++m_current < m_paths.size())
        m_action.begin(m_paths.at(m_current));
}

void SelectionMeasure::timerEvent(QTimerEvent* /*event*/)
{
    if (sceneNow() != m_scene)
        return restart();
    const auto until = std::chrono::steady_clock::now() + Slice;
    while (m_current < m_paths.size()) {
        if (!m_action.advance(until))
            return;
        m_sum.add(m_action.getSum());
        next();
    }
    m_timer.stop();
    m_paths.clear();
    m_action.forget();
    m_isReady = true;
    emit ready();
}

} // namespace scopix

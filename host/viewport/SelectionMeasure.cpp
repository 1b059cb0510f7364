// SPDX-License-Identifier: MIT
#include "viewport/SelectionMeasure.h"

#include "viewport/SceneParts.h"

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

} // namespace

void SelectionMeasure::setSelected(const QList<SoPath>& paths)
{
    m_paths.clear();
    for (const SoPath& path : paths) {
        const auto holdsIt = [&](const SoPath& other) { return isBelow(path, other); };
        if (!path.isEmpty() && (paths.size() > 1000 || std::none_of(paths.begin(), paths.end(), holdsIt)))
            m_paths.append(path);
    }
    restart();
}

void SelectionMeasure::want(bool on)
{
    m_wanted += on ? 1 : -1;
    restart();
}

std::uint32_t SelectionMeasure::sceneNow() const
{
    return m_paths.isEmpty() ? 0 : m_paths.first().getHead()->getChangeCount();
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
    if (m_wanted > 0) {
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
    m_isReady = true;
    emit ready();
}

} // namespace scopix

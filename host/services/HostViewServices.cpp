// SPDX-License-Identifier: MIT
// What the host offers around its 3D view.
#include "services/HostServices.h"

#include <algorithm>

namespace scopix
{

void HostServices::setMarkedPoints(const void* owner, const SoPath& place, const std::vector<SbVec3f>& points)
{
    if (m_source)
        m_source->setMarkedPoints(owner, place, points);
}

void HostServices::addPickListener(SpxPickListener* listener)
{
    m_pickListeners.push_back(listener);
}

void HostServices::removePickListener(SpxPickListener* listener)
{
    m_pickListeners.erase(std::remove(m_pickListeners.begin(), m_pickListeners.end(), listener),
                          m_pickListeners.end());
}

// A listener may add and remove listeners while it hears of it.
bool HostServices::offerPick(const SpxPickedPoint& picked)
{
    const std::vector<SpxPickListener*> listeners = m_pickListeners;
    bool isTaken = false;
    for (SpxPickListener* listener : listeners) {
        const auto& present = m_pickListeners;
        if (std::find(present.begin(), present.end(), listener) != present.end())
            isTaken = listener->pointPicked(picked) || isTaken;
    }
    return isTaken;
}

} // namespace scopix

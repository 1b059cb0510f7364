// SPDX-License-Identifier: MIT
#include <xsg/nodes/transforms/SoSpin.h>

#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/types/SoTypedImpl.h>
#include <xsg/values/SbRotation.h>

#include <algorithm>
#include <cmath>
#include <unordered_set>

template class SoTyped<SoSpin, SoTransformation>;

namespace
{

std::unordered_set<SoSpin*>& allSpins()
{
    static auto& spins = *new std::unordered_set<SoSpin*>;
    return spins;
}

} // namespace

SoSpin::SoSpin()
{
    allSpins().insert(this);
}

SoSpin::~SoSpin()
{
    allSpins().erase(this);
}

SbMatrix SoSpin::getMatrix() const
{
    // The whole turns are taken off while the number is still exact to the last digit.
    const double turns =
        std::remainder(time.getValue().getValue() * static_cast<double>(turnsPerSecond.getValue()), 1.0);
    return SbMatrix::rotation(SbRotation(axis.getValue(), static_cast<float>(turns * 6.283185307179586)));
}

bool SoSpin::isTurning(const SoNode* root) const
{
    // One that stands in no scene turns nothing.
    if (!on.getValue() || turnsPerSecond.getValue() == 0 || getParents().empty())
        return false;
    std::vector<const SoNode*> above(getParents().begin(), getParents().end());
    std::unordered_set<const SoNode*> seen;
    while (root && !above.empty() && above.back() != root) {
        const SoNode* node = above.back();
        above.pop_back();
        if (seen.insert(node).second)
            above.insert(above.end(), node->getParents().begin(), node->getParents().end());
    }
    return !above.empty();
}

bool SoSpin::isAnyTurning(const SoNode* root)
{
    const auto& spins = allSpins();
    return std::any_of(spins.begin(), spins.end(), [&](const SoSpin* spin) { return spin->isTurning(root); });
}

bool SoSpin::advanceAll(SbTime elapsed, const SoNode* root)
{
    bool any = false;
    for (SoSpin* spin : std::vector<SoSpin*>(allSpins().begin(), allSpins().end())) {
        if (!spin->isTurning(root))
            continue;
        spin->time.setValue(spin->time.getValue().getValue() + elapsed.getValue());
        any = true;
    }
    return any;
}

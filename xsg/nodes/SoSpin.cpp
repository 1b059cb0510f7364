#include <xsg/nodes/SoSpin.h>

#include <xsg/base/SbRotation.h>
#include <xsg/core/SoTypedImpl.h>

template class SoTyped<SoSpin, SoTransformation>;

namespace
{

std::vector<SoSpin*>& allSpins()
{
    static auto& spins = *new std::vector<SoSpin*>;
    return spins;
}

} // namespace

SoSpin::SoSpin()
{
    allSpins().push_back(this);
}

SoSpin::~SoSpin()
{
    auto& spins = allSpins();
    spins.erase(std::find(spins.begin(), spins.end(), this));
}

SbMatrix SoSpin::getMatrix() const
{
    // The whole turns are taken off while the number is still exact to the last digit.
    const double turns =
        std::remainder(time.getValue().getValue() * static_cast<double>(turnsPerSecond.getValue()), 1.0);
    return SbMatrix::rotation(SbRotation(axis.getValue(), static_cast<float>(turns * 6.283185307179586)));
}

bool SoSpin::advanceAll(SbTime elapsed)
{
    bool any = false;
    for (SoSpin* spin : std::vector<SoSpin*>(allSpins())) {
        // One that stands in no scene turns nothing.
        if (!spin->on.getValue() || spin->getParents().empty())
            continue;
        spin->time.setValue(spin->time.getValue().getValue() + elapsed.getValue());
        any = true;
    }
    return any;
}

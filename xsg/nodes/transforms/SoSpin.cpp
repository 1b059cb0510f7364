// SPDX-License-Identifier: MIT
#include <xsg/nodes/transforms/SoSpin.h>

#include <xsg/types/SoTypedImpl.h>
#include <xsg/values/SbRotation.h>

#include <cmath>

template class SoTyped<SoSpin, SoTransformation>;

SoSpin::SoSpin()
    : SoTimeSource::Subscriber(static_cast<const SoNode&>(*this))
{
}

SoSpin::~SoSpin() = default;

SbMatrix SoSpin::getMatrix() const
{
    // The whole turns are taken off while the number is still exact to the last digit.
    const double turns =
        std::remainder(time.getValue().getValue() * static_cast<double>(turnsPerSecond.getValue()), 1.0);
    return SbMatrix::rotation(SbRotation(axis.getValue(), static_cast<float>(turns * 6.283185307179586)));
}

bool SoSpin::isMoving() const
{
    return on.getValue() && turnsPerSecond.getValue() != 0;
}

void SoSpin::advance(SbTime elapsed)
{
    time.setValue(time.getValue().getValue() + elapsed.getValue());
}

// SPDX-License-Identifier: MIT
#include <xsg/nodes/groups/SoSwitch.h>

#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoSwitch, SoGroup>;

SoChildRange SoSwitch::getChosenChildren(const SoState& /*state*/) const
{
    const int which = whichChild.getValue();
    if (which == All)
        return {0, getNumChildren()};
    if (which < 0 || which >= getNumChildren())
        return {0, 0};
    return {which, which + 1};
}

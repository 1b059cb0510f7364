// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoDrawingCallback.h>

#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoDrawingCallback, SoShape>;

void SoDrawingCallback::setCallback(Callback callback)
{
    m_callback = std::move(callback);
    box.touch();
}

void SoDrawingCallback::generate(const SoState& /*state*/, SoGeometry& /*geometry*/) const {}

SoGeometryKey SoDrawingCallback::getGeometryKey(const SoState& /*state*/) const
{
    SoGeometryKey key;
    key.add(getNodeId(), 0);
    return key;
}

SbBox3f SoDrawingCallback::getBox(const SoState& /*state*/) const
{
    return box.getValue();
}

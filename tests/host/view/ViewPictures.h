// SPDX-License-Identifier: MIT
// Helps tests to look at what a 3D view shows.
#pragma once

#include "viewport/SceneView.h"

#include <xsg/sensors/SoSensorQueue.h>

#include <QTest>

#include <gtest/gtest.h>

using namespace scopix;

/// As it is once all changes have been delivered.
inline QImage pictureOf(SceneView& view)
{
    SoSensorQueue::getInstance().process();
    QCoreApplication::processEvents();
    return view.grab().toImage();
}

/// The smallest part of the picture that has everything that differs from its corner's ground.
inline QRect partOf(const QImage& picture)
{
    const QRgb ground = picture.pixel(0, 0);
    QRect part;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != ground)
                part |= QRect(x, y, 1, 1);
        }
    }
    return part;
}

/// Where a camera sees a point.
inline QPoint placeOf(SceneView& view, const SbVec3f& point)
{
    const float aspect = float(view.width()) / float(view.height());
    const SbMatrix toPicture =
        view.getCamera().getViewMatrix() * view.getCamera().getProjectionMatrix(aspect);
    const SbVec3f p = toPicture.multPoint(point);
    return {int((p[0] + 1) / 2 * float(view.width())), int((1 - p[1]) / 2 * float(view.height()))};
}

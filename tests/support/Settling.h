// SPDX-License-Identifier: MIT
#pragma once

#include <support/Waiting.h>

#include <xsg/sensors/SoSensorQueue.h>

#include <QCoreApplication>
#include <QEvent>

#include <gtest/gtest.h>

/// Until what is posted and queued has run, by the host's own means. GUI thread.
inline void settleHost()
{
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::processEvents();
        EXPECT_TRUE(waitFor([] { return SoSensorQueue::getInstance().isEmpty(); }));
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

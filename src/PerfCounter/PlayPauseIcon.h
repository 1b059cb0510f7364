// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

class QTimer;

/// An icon that is asked of the timer whenever it is drawn: pause while it runs, play while it does not.
/// Whoever shows it has only to draw it anew.
QIcon playPauseIcon(const QTimer& timer);

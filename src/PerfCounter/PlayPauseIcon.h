// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

class QTimer;

/// An icon that asks the timer whenever it is drawn: pause while it runs, play while it does not. A widget
/// that shows it is up to date as soon as it is repainted.
QIcon playPauseIcon(const QTimer& timer);

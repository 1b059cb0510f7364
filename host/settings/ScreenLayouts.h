// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

class QSettings;

namespace scopix
{

/// Where the window and its docks were, for each arrangement of screens: at the desk with two of them, and
/// with the notebook's own alone. GUI thread only.
namespace ScreenLayouts
{

struct Layout {
    QByteArray geometry; // of the window
    QByteArray docks;
};

/// Names the arrangement of screens as it is now, whatever their order.
QString currentScreens();

/// For these screens, or else the one that was saved last; empty where there is none.
Layout find(const QString& screens);
/// For the screens of now. Those of the screens that were not used for the longest time are dropped.
void save(QSettings& settings, const Layout& layout);

} // namespace ScreenLayouts

} // namespace scopix

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
    QByteArray docks;    // or of what else divides it
};

/// Names the arrangement of screens as it is now, whatever their order.
QString currentScreens();

/// For these screens, or else the one that was saved last; empty where there is none. `window` names a window
/// beside the main one.
Layout find(const QString& screens, const QString& window = {});
/// For the screens of now. Those of the screens that were not used for the longest time are dropped.
void save(QSettings& settings, const Layout& layout, const QString& window = {});

} // namespace ScreenLayouts

} // namespace scopix

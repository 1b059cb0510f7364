// SPDX-License-Identifier: MIT
// The icons of the tool bar, readable on light and dark grounds.
#pragma once

class QIcon;

namespace scopix
{

QIcon openIcon();
QIcon undoIcon();
QIcon redoIcon();
QIcon viewAllIcon();
QIcon viewSelectedIcon();
QIcon wireframeIcon();
QIcon statisticsIcon();

} // namespace scopix

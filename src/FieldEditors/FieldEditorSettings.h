// SPDX-License-Identifier: MIT
// The layout metrics of the field editors: margins, spacings and sizes in pixels, and a font size in points.
// GUI thread only.
#pragma once

class QString;

/// 0 for an unknown key; keys are case-sensitive.
int xsgsettings_fieldEditor(const QString& key);

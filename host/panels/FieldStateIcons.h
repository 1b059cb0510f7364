// SPDX-License-Identifier: MIT
// The icons in a field's row.
#pragma once

#include <QIcon>

class QWidget;
class SoField;

namespace scopix
{

/// A ring for the default value, a filled dot for a changed one, a struck ring for an ignored field, an arrow
/// for a connected one. `surface` as for svgIcon().
QIcon fieldStateIcon(const SoField& field, const QWidget* surface);
/// A patch of the colour, for fields that hold one; null for others.
QIcon valueSwatch(const SoField& field, const QWidget* surface);

} // namespace scopix

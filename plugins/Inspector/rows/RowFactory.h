// SPDX-License-Identifier: MIT
#pragma once

class QWidget;
class SoField;

namespace inspector
{

class Row;

/// The row for a field, by its kind; never null.
Row* makeRow(SoField* field, QWidget* parent);

} // namespace inspector

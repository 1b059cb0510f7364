// SPDX-License-Identifier: MIT
#pragma once

#include "fields/FieldKind.h"

#include <scopix/editing/SpxFieldPointer.h>

#include <vector>

class QWidget;
class SoField;

namespace inspector
{

class Row;

/// The row for a field, and for the same one of other nodes, that is edited in this way; never null.
Row* makeRow(SoField* field, std::vector<SpxFieldPointer> others, FieldKind kind, QWidget* parent);

} // namespace inspector

// SPDX-License-Identifier: MIT
// The range that the sliders of a field of reals start with.
#pragma once

#include "EdRangeComponent.h"

class SoField;

/// By the type of the field's node; `defaultField` names the row of "DefaultNode" for all nodes without one
/// of their own, and for a field that stands alone.
EdRangeComponent rangeOfField(const SoField& field, const char* defaultField);

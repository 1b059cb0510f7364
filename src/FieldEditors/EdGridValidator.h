// SPDX-License-Identifier: MIT
// The validators of the grids in which popups edit boxes and matrices.
#pragma once

class QLineEdit;

/// kind 0: none; 1: -32768 to 32767; 2: every int; 3: every float, 6 decimals; 4: every double. Others change
/// nothing.
void setGridValidator(QLineEdit& edit, int kind);
/// Whether the numbers of this kind are reals.
bool isRealGrid(int kind);

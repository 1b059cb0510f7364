// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxEditingExport.h>
#include <xsg/values/SbName.h>
#include <xsg/values/SbString.h>

#include <QString>

class SoField;

/// Texts between the scene graph and Qt, and values out of them. Numbers are always those of the C locale,
/// whatever the process or Qt uses.
namespace SpxText
{

SPX_EDITING_API QString toQString(const SbString& text);
/// Names are Latin-1.
SPX_EDITING_API QString toQString(SbName name);
SPX_EDITING_API SbString toSbString(const QString& text);

/// The field's value as text, as scene files have it; SpxFieldEdit::setText() reads it back to the same bits.
SPX_EDITING_API QString ofField(const SoField& field);
/// The shortest text that reads back to the same number.
SPX_EDITING_API QString ofNumber(float number);
SPX_EDITING_API QString ofNumber(double number);

/// 0 for a text that is no number, and for one that the type cannot hold.
SPX_EDITING_API float toFloatOr0(const QString& text);
SPX_EDITING_API double toDoubleOr0(const QString& text);

} // namespace SpxText

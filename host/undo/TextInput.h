// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace scopix
{

/// What the host knows of the inputs that a person types into, whoever made them.
namespace TextInput
{

/// A line edit, text edit, spin box or editable combo box that takes typing.
bool isTextInput(const QWidget* widget);

/// True when the input holds typing that nobody has applied: its modified mark is on. Who applies it takes
/// the mark off.
bool hasPendingEdit(const QWidget* widget);

} // namespace TextInput

} // namespace scopix

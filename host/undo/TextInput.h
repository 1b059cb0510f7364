// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace scopix
{

/// What the host knows of text inputs, whoever made them.
namespace TextInput
{

/// A line edit, text edit, spin box or editable combo box that takes typing.
bool isTextInput(const QWidget* widget);

/// One of these that is, or holds, a line edit.
bool isSingleLine(const QWidget* widget);

/// True when the input holds typing that has not been applied: its modified flag is set. Code that applies it
/// clears the flag.
bool hasPendingEdit(const QWidget* widget);

/// What is typed where the focus is, and not yet applied, is: editors do so when their input loses focus.
void applyPendingEdit();

} // namespace TextInput

} // namespace scopix

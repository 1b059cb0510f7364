// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class SoField;

namespace scopix
{

/// Takes the value from a text as wholeValueText() writes it. False, and nothing changes, where it is none.
bool setFromText(SoField& field, const QString& text);

} // namespace scopix

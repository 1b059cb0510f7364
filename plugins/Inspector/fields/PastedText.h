// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class SoField;

namespace inspector
{

/// What a field's value is for other programs: a string or a name bare, every other value as scene files have
/// it.
QString plainText(const SoField& field);
/// A field's value out of the text of another program, as one undo step: as this one copies it; numbers with
/// commas, semicolons, tabs or brackets between them; rows of a table, into lists; a bare text, into strings.
/// False, and the field stays as it is, where it is none of these.
bool pasteText(SoField* field, const QString& text);

} // namespace inspector

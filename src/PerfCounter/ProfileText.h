// SPDX-License-Identifier: MIT
// Which texts a profile file holds, and which names of counters come back from it and from a drag as they
// were.
#pragma once

#include <QString>

namespace profileText
{

/// The first character that XML has no way to hold, as "U+000C"; empty where there is none.
QString unsavableCharacter(const QString& text);
/// Why a text cannot be saved, in a sentence that begins with `what` the text is, such as "The name"; empty
/// where it can.
QString refusal(const QString& what, const QString& text);
/// The same for a name that stands in an element of its own, where spaces alone are lost.
QString listedNameRefusal(const QString& what, const QString& name);
/// The same for the name of a new counter, which is also a key of the registry and a part of what a drag
/// carries.
QString counterNameRefusal(const QString& what, const QString& name);

} // namespace profileText

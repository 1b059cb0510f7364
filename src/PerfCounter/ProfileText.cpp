// SPDX-License-Identifier: MIT
#include "ProfileText.h"

#include "CustomCounter.h"

#include <QCoreApplication>

namespace profileText
{
namespace
{

QString translated(const char* text)
{
    return QCoreApplication::translate("PerfCounter", text);
}

// What XML 1.0 has no way to hold: most control characters, and two that are no characters.
bool isUnsavable(QChar character)
{
    const ushort code = character.unicode();
    return (code < ' ' && code != '\t' && code != '\n' && code != '\r') || code == 0xFFFE || code == 0xFFFF;
}

bool isPairAt(const QString& text, int index)
{
    return text[index].isHighSurrogate() && index + 1 < text.size() && text[index + 1].isLowSurrogate();
}

QString codeOf(QChar character)
{
    return QStringLiteral("U+%1").arg(uint(character.unicode()), 4, 16, QLatin1Char('0')).toUpper();
}

// What is dragged is names, each followed by this.
bool isSafeToDrag(const QString& name)
{
    return !name.contains(QLatin1String("##")) && !name.endsWith(QLatin1Char('#'));
}

} // namespace

QString unsavableCharacter(const QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (isPairAt(text, i))
            ++i;
        else if (text[i].isSurrogate() || isUnsavable(text[i]))
            return codeOf(text[i]);
    }
    return {};
}

QString refusal(const QString& what, const QString& text)
{
    const QString character = unsavableCharacter(text);
    if (character.isEmpty())
        return {};
    return translated("%1 contains the character %2, which cannot be saved. Please remove it.")
        .arg(what, character);
}

QString listedNameRefusal(const QString& what, const QString& name)
{
    if (!name.isEmpty() && name.trimmed().isEmpty())
        return translated("%1 consists of spaces only, which cannot be saved. Please rename it.").arg(what);
    return refusal(what, name);
}

QString counterNameRefusal(const QString& what, const QString& name)
{
    if (!isCounterName(name))
        return translated(
                   "%1 contains characters beyond Latin-1, which names of counters cannot have. Please "
                   "rename it.")
            .arg(what);
    if (!isSafeToDrag(name))
        return translated(
                   "%1 contains \"##\" or ends with \"#\", which separates names while they are dragged. "
                   "Please rename it.")
            .arg(what);
    return listedNameRefusal(what, name);
}

} // namespace profileText

// SPDX-License-Identifier: MIT
#include "console/LogText.h"

namespace profiler
{

namespace
{

constexpr std::size_t MostShown = 4000;

bool turnsDirection(ushort code)
{
    return (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069) || code == 0x200e ||
           code == 0x200f || code == 0x061c;
}

QChar harmless(QChar c)
{
    const ushort code = c.unicode();
    if (code < 0x20)
        return QChar(0x2400 + code);
    if (code == 0x7f)
        return QChar(0x2421);
    const bool isBad =
        (code >= 0x80 && code < 0xa0) || turnsDirection(code) || code == 0x2028 || code == 0x2029;
    return isBad ? QChar(QChar::ReplacementCharacter) : c;
}

} // namespace

QString decoded(std::string_view bytes)
{
    const QString text = QString::fromUtf8(bytes.data(), int(bytes.size()));
    return text.contains(QChar::ReplacementCharacter) ? QString::fromLatin1(bytes.data(), int(bytes.size()))
                                                      : text;
}

QString shownText(std::string_view bytes)
{
    // Before it is cut, which may be in the middle of a character.
    QString text = decoded(bytes);
    const bool isLong = text.size() > int(MostShown);
    text.truncate(int(MostShown));
    text.replace(QLatin1Char('\t'), QLatin1String("    "));
    for (QChar& c : text)
        c = harmless(c);
    return isLong ? text + QChar(0x2026) : text;
}

} // namespace profiler

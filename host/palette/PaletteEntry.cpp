// SPDX-License-Identifier: MIT
#include "palette/PaletteEntry.h"

#include <algorithm>

namespace scopix
{

namespace
{

constexpr int Most = 1000;
constexpr int PerWordStart = 12;
constexpr int PerNeighbour = 8;
constexpr int PerLetter = 2;

bool beginsWord(const QString& text, int at)
{
    return at == 0 || !text[at - 1].isLetterOrNumber() || (text[at].isUpper() && text[at - 1].isLower());
}

// Where the letter comes next: at the beginning of a word if it does so anywhere, unless it follows at once.
int next(const QString& text, QChar letter, int from)
{
    int first = -1;
    for (int at = from; at < text.size(); ++at) {
        if (text[at].toLower() != letter)
            continue;
        if (at == from || beginsWord(text, at))
            return at;
        first = first < 0 ? at : first;
    }
    return first;
}

int fitInOrder(const QString& text, const QString& typed)
{
    int fit = 0;
    int from = 0;
    for (const QChar letter : typed) {
        if (letter.isSpace())
            continue;
        const int at = next(text, letter.toLower(), from);
        if (at < 0)
            return 0;
        fit += beginsWord(text, at) ? PerWordStart : at == from ? PerNeighbour : PerLetter;
        from = at + 1;
    }
    return fit;
}

} // namespace

int fitOf(const QString& text, const QString& typed)
{
    const QString wanted = typed.simplified();
    if (wanted.isEmpty())
        return 1;
    if (text.compare(wanted, Qt::CaseInsensitive) == 0)
        return 2 * Most;
    const int whole = text.indexOf(wanted, 0, Qt::CaseInsensitive);
    if (whole >= 0)
        return (beginsWord(text, whole) ? Most : Most / 2) - std::min(text.size(), Most / 4);
    return std::min(fitInOrder(text, wanted), Most / 4);
}

} // namespace scopix

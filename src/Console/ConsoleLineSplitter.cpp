// SPDX-License-Identifier: MIT
#include "ConsoleLineSplitter.h"

#include <algorithm>

namespace console
{

namespace
{

qsizetype pieceLength(QStringView text)
{
    const qsizetype limit = std::min(text.size(), PieceLength);
    const qsizetype end = std::find_if(text.begin(), text.begin() + limit, isLineEnd) - text.begin();
    const bool splitsPair =
        end > 1 && end < text.size() && text[end].isLowSurrogate() && text[end - 1].isHighSurrogate();
    return splitsPair ? end - 1 : end;
}

} // namespace

// What a text document takes for the end of a paragraph.
bool isLineEnd(QChar c)
{
    const ushort code = c.unicode();
    return code == '\n' || code == '\r' || code == QChar::ParagraphSeparator || code == 0xfdd0 ||
           code == 0xfdd1;
}

Piece PieceReader::next()
{
    const qsizetype length = pieceLength(m_rest);
    const Piece piece{m_rest.left(length), m_continues};
    m_rest = m_rest.mid(length);
    m_atEnd = m_rest.isEmpty();
    m_continues = !m_atEnd && !isLineEnd(m_rest.front());
    if (!m_atEnd && !m_continues)
        skipLineEnd();
    return piece;
}

void PieceReader::skipLineEnd()
{
    const bool two = m_rest.startsWith(QStringView(u"\r\n"));
    m_rest = m_rest.mid(two ? 2 : 1);
}

int countPieces(QStringView text)
{
    PieceReader reader(text);
    int count = 0;
    for (; !reader.atEnd(); ++count)
        reader.next();
    return count;
}

} // namespace console

// SPDX-License-Identifier: MIT
// Cuts a text into the paragraphs that the console shows: at its line ends, and lines that are too long for a
// text layout into pieces.
#pragma once

#include <QStringView>

namespace console
{

/// UTF-16 units; a longer line is shown in pieces.
constexpr qsizetype PieceLength = 1000;

struct Piece {
    QStringView text;
    bool continues; // the line that the piece before began
};

bool isLineEnd(QChar c);

/// The piece at the start of rest, which loses it and the line end after it. atEnd: no piece is left.
class PieceReader
{
public:
    explicit PieceReader(QStringView text)
        : m_rest(text)
    {
    }

    bool atEnd() const { return m_atEnd; }
    Piece next();

private:
    void skipLineEnd();

    QStringView m_rest;
    bool m_atEnd = false; // an empty text is one empty piece
    bool m_continues = false;
};

int countPieces(QStringView text);

} // namespace console

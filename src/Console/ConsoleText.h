// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>
#include <QVector>

class ConsoleTextLayout;
class QTextCursor;
class QTextEdit;
class AutoScroller;

/// What the console's text edit holds: paragraphs of plain text in the colour of their kind, the newest
/// maxLines of them. Leaves the user's selection alone, and what the user looks at in its place. GUI
/// thread only.
class ConsoleText
{
public:
    struct Paragraphs {
        QString text;
        QColor color;
    };

    /// The edit outlives this object. A piece of a line that is too long to be shown in one counts as a line.
    ConsoleText(QTextEdit& edit, int maxLines);

    void append(const QVector<Paragraphs>& texts);
    void clear();
    /// With the pieces of long lines joined again.
    QString plainText() const;

private:
    void setTextColor(const QColor& color);
    void holdView(int newPieces);
    void insertParagraphs(QTextCursor& cursor, const Paragraphs& paragraphs);

    QTextEdit& m_edit;
    ConsoleTextLayout* m_layout; // the document's
    AutoScroller* m_follower;    // the scroll bar's
    int m_maxLines;
};

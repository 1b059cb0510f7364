// SPDX-License-Identifier: MIT
#include "ConsoleText.h"

#include "AutoScroller.h"
#include "ConsoleLineSplitter.h"
#include "ConsoleTextLayout.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>

namespace
{

constexpr int ContinuesLine = 1; // user state of a block

QFont fixedFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    // Not every window system knows one.
    if (!QFontInfo(font).fixedPitch())
        // Qt keeps the names of fonts for as long as the program runs: a literal would go with the plug-in.
        font.setFamily(QString::fromLatin1("monospace"));
    return font;
}

bool continuesLine(const QTextBlock& block)
{
    return block.isValid() && block.userState() == ContinuesLine;
}

void insert(QTextCursor& cursor, const console::Piece& piece, const QTextCharFormat& format, bool newBlock)
{
    if (newBlock) {
        cursor.insertBlock(QTextBlockFormat(), format);
    } else {
        cursor.setBlockCharFormat(format);
    }
    if (piece.continues)
        cursor.block().setUserState(ContinuesLine);
    cursor.insertText(piece.text.toString(), format);
}

// A selection that reaches the end of the text would grow with it.
class SelectionKeeper
{
public:
    explicit SelectionKeeper(QTextEdit& edit)
        : m_edit(edit)
        , m_anchor(edit.document())
        , m_position(edit.document())
    {
        const QTextCursor selection = edit.textCursor();
        m_atEnd =
            selection.hasSelection() && selection.selectionEnd() == edit.document()->characterCount() - 1;
        if (m_atEnd) {
            mark(m_anchor, selection.anchor());
            mark(m_position, selection.position());
        }
    }
    SelectionKeeper(const SelectionKeeper&) = delete;
    SelectionKeeper& operator=(const SelectionKeeper&) = delete;
    ~SelectionKeeper()
    {
        if (m_atEnd)
            select();
    }

private:
    static void mark(QTextCursor& cursor, int position)
    {
        cursor.setPosition(position);
        cursor.setKeepPositionOnInsert(true);
    }

    void select()
    {
        QTextCursor selection = m_edit.textCursor();
        selection.setPosition(m_anchor.position());
        selection.setPosition(m_position.position(), QTextCursor::KeepAnchor);
        // The edit scrolls to a selection that it is given.
        QScrollBar* bar = m_edit.verticalScrollBar();
        const int scrolled = bar->value();
        m_edit.setTextCursor(selection);
        bar->setValue(scrolled);
    }

    QTextEdit& m_edit;
    QTextCursor m_anchor;
    QTextCursor m_position;
    bool m_atEnd;
};

} // namespace

ConsoleText::ConsoleText(QTextEdit& edit, int maxLines)
    : m_edit(edit)
    , m_layout(new ConsoleTextLayout(edit.document()))
    , m_follower(new AutoScroller(edit.verticalScrollBar()))
    , m_maxLines(maxLines)
{
    m_edit.document()->setDocumentLayout(m_layout);
    m_edit.document()->setMaximumBlockCount(maxLines);
    m_edit.setFont(fixedFont());
}

void ConsoleText::append(const QVector<Paragraphs>& texts)
{
    if (texts.isEmpty())
        return;
    int pieces = 0;
    for (const Paragraphs& paragraphs : texts)
        pieces += console::countPieces(paragraphs.text);
    holdView(pieces);

    const SelectionKeeper selection(m_edit);
    QTextCursor cursor(m_edit.document());
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::End);
    for (const Paragraphs& paragraphs : texts)
        insertParagraphs(cursor, paragraphs);
    cursor.endEditBlock();
    setTextColor(texts.last().color);
}

void ConsoleText::clear()
{
    m_edit.clear();
}

QString ConsoleText::plainText() const
{
    const QString shown = m_edit.toPlainText();
    QString text;
    text.reserve(shown.size());
    for (QTextBlock block = m_edit.document()->begin(); block.isValid(); block = block.next()) {
        text += QStringView(shown).mid(block.position(), block.length() - 1);
        if (block.next().isValid() && !continuesLine(block.next()))
            text += QLatin1Char('\n');
    }
    return text;
}

// An edit lets the view forget its colour. QTextEdit::setTextColor would colour what is selected.
void ConsoleText::setTextColor(const QColor& color)
{
    if (!m_edit.textCursor().hasSelection())
        m_edit.setTextColor(color);
}

// Scrolls with the text when lines above the view are about to be dropped.
void ConsoleText::holdView(int newPieces)
{
    const QTextDocument& document = *m_edit.document();
    const int dropped = document.blockCount() + newPieces - m_maxLines;
    if (m_follower->isFollowing() || dropped <= 0)
        return;
    const QTextBlock first = document.findBlockByNumber(dropped);
    const int rows = first.isValid() ? first.firstLineNumber() : document.lineCount();
    QScrollBar* bar = m_edit.verticalScrollBar();
    bar->setValue(bar->value() - qRound(rows * m_layout->rowHeight()));
}

void ConsoleText::insertParagraphs(QTextCursor& cursor, const Paragraphs& paragraphs)
{
    QTextCharFormat format;
    format.setForeground(paragraphs.color);
    console::PieceReader reader(paragraphs.text);
    // More than the console holds would be dropped anyway, after it had taken the memory.
    for (int skip = console::countPieces(paragraphs.text) - m_maxLines; skip > 0; --skip)
        reader.next();
    // As QTextEdit::append: the first text of an empty edit begins no new paragraph.
    bool newBlock = !m_edit.document()->isEmpty();
    for (; !reader.atEnd(); newBlock = true)
        insert(cursor, reader.next(), format, newBlock);
}

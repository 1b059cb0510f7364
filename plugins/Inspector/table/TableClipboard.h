// SPDX-License-Identifier: MIT
#pragma once

#include "table/BlockText.h"
#include "table/TableSession.h"

namespace inspector
{

/// Copies selected cells as text that every spreadsheet takes, and takes theirs. All or nothing.
class TableClipboard : public QObject
{
    Q_OBJECT

public:
    explicit TableClipboard(TableSession& session);

    bool copy();
    /// The cells that are cut become the type's initial value: true where they were copied.
    bool cut() { return copy(); }
    /// From the selection's first cell on; one cell fills the selection, and a block is repeated in a
    /// selection that is a multiple of it. Rows beyond the end are added.
    void paste();
    /// As new rows before the current one.
    void pasteRows();

private:
    struct Target {
        CellRange cells; // rows as shown; beyond the end for what is added
        int growth = 0;
    };

    bool readBlock(BlockText::Rows& block);
    bool parse(const QString& text, BlockText::Rows& block);
    bool splitWholeValues(BlockText::Rows& block);
    bool findTarget(int blockRows, int blockColumns, Target& target);
    void say(const QString& sentence) { emit m_session.said(sentence); }
    void sayNoValue(const BlockText::Rows& block, int row, int column);

    TableSession& m_session;
};

} // namespace inspector

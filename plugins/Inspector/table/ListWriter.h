// SPDX-License-Identifier: MIT
#pragma once

#include "table/ListChange.h"
#include "table/TableRows.h"

#include <QCoreApplication>

#include <functional>

class QWidget;

namespace inspector
{

/// The edits of a table: each is one command, recorded with what changed, and all or nothing. Bands are of
/// elements of the list, ascending. False where nothing was written; failure() then says why, in a sentence,
/// or nothing where the user cancelled.
class ListWriter
{
    Q_DECLARE_TR_FUNCTIONS(ListWriter)

public:
    /// `parent` is where the progress of long edits is shown.
    ListWriter(TableRows& rows, ListChangeObserver& observer, QWidget* parent);

    /// Writes one cell of a copy, at row `at`, for the list's `element`; false where it cannot be.
    using WriteCell = std::function<bool(SoMField& values, int at, int element, int column)>;
    /// `growth` more elements are added at the end, and written in the columns of the last band.
    bool writeCells(std::vector<RowBand> bands, const WriteCell& write, int growth = 0);

    bool insertRows(int start, int count);
    bool removeRows(const std::vector<RowBand>& bands);
    /// Each band is repeated behind itself.
    bool duplicateRows(const std::vector<RowBand>& bands);
    /// To before the element `gap`; false, without a failure, where they are there already.
    bool moveRows(const std::vector<RowBand>& bands, int gap);
    /// `removed` elements give way to the values of another list of the same type.
    bool replaceRows(int start, int removed, const SoMField& by);

    const QString& failure() const { return m_failure; }
    /// The cell that could not be written.
    TableCell failedCell() const { return m_failedCell; }

private:
    bool begin();
    bool commit(ListChange change);
    bool fail(const QString& why);
    bool writeAll(ListChange& change, const std::vector<RowBand>& bands, const WriteCell& write);

    TableRows& m_rows;
    ListChangeObserver& m_observer;
    QWidget* m_parent;
    QString m_failure;
    TableCell m_failedCell;
};

} // namespace inspector

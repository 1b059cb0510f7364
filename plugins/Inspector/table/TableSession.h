// SPDX-License-Identifier: MIT
#pragma once

#include "table/ListTableView.h"
#include "table/ListWriter.h"

namespace inspector
{

/// What the parts of a table work with: its view, the gate of its edits, and the line in which it answers.
class TableSession : public QObject
{
    Q_OBJECT

public:
    TableSession(ListTableView& view, QObject* parent)
        : QObject(parent)
        , view(view)
        , writer(view.rows(), observer, &view)
    {
    }

    TableRows& rows() const { return view.rows(); }
    SoMField* list() const { return view.rows().list(); }
    const ListAccess& access() const { return view.rows().access(); }
    /// The selected cells, as elements of the list.
    std::vector<RowBand> selectedElements() const { return view.rows().elementsOf(view.selection().bands()); }
    /// Says why an edit failed, where it did.
    bool report(bool isDone)
    {
        if (!isDone && !writer.failure().isEmpty())
            emit said(writer.failure());
        return isDone;
    }

    ListTableView& view;
    ListChangeObserver observer;
    ListWriter writer;

signals:
    /// A sentence for the user; empty takes the last one away.
    void said(const QString& sentence);
};

} // namespace inspector

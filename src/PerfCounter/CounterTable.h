// SPDX-License-Identifier: MIT
// What the tables of counters have in common, and the rows of those in the profile manager: one per counter,
// sorted by name.
#pragma once

#include <QStringList>

#include <vector>

class QAbstractItemView;
class QTableWidget;
class SoPerfCounter;

namespace counterTable
{

/// Replaces the rows, and fits the columns to what they hold.
void fill(QTableWidget& table, const std::vector<const SoPerfCounter*>& counters);
/// Makes an item only where there is none yet.
void setText(QTableWidget& table, int row, int column, const QString& text);
/// To what is seen of their contents, none wider than a window. One that stretches takes the rest.
void fitColumns(QTableWidget& table);
/// The names of the selected rows.
QStringList selectedNames(const QTableWidget& table);
/// Makes a view show of each text no more than its beginning.
void showBeginnings(QAbstractItemView& view);

} // namespace counterTable

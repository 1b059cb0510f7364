// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoMField.h>

#include <QColor>
#include <QString>
#include <QStringList>

#include <vector>

namespace inspector
{

/// How a table sees the values of one type of list: as cells in columns, read and written without a detour
/// over the text of the value. Stateless; one object serves all lists of a type. Rows have to exist.
class ListAccess
{
public:
    enum class Kind { Number, Truth, Text, Choice, Flags, Node };

    ListAccess() = default;
    ListAccess(const ListAccess&) = delete;
    ListAccess& operator=(const ListAccess&) = delete;
    virtual ~ListAccess();

    /// For a list of exactly this type or of one derived from it; null for a type without one.
    static const ListAccess* of(const SoMField& list);
    /// The types that have one.
    static std::vector<SoType> types();

    virtual Kind kind() const = 0;
    /// One per column.
    virtual QStringList headings() const = 0;
    /// The same in full, for tool tips and screen readers.
    virtual QStringList longHeadings() const { return headings(); }
    int columnCount() const { return int(headings().size()); }

    /// A cell as text that setText() reads back to the same bits.
    virtual QString text(const SoMField& list, int row, int column) const = 0;
    /// False, and nothing is written, for a text that is no value of the cell. `list` is a copy of rows that
    /// nobody watches: no listener is notified.
    virtual bool setText(SoMField& list, int row, int column, const QString& text) const = 0;

    /// Whether cells are numbers to calculate with, or to count as such.
    bool hasNumbers() const { return kind() == Kind::Number || kind() == Kind::Truth; }
    /// `count` cells of a column from `row` on; cells that are no numbers give NaN.
    virtual void readNumbers(const SoMField& list, int row, int column, int count, double* out) const;
    double number(const SoMField& list, int row, int column) const;
    /// False where the cell cannot hold the number; an integer cell rounds. Otherwise as setText().
    virtual bool setNumber(SoMField& list, int row, int column, double number) const;

    /// A text to look at: of a number at most so many digits, of a text the beginning.
    virtual QString shortText(const SoMField& list, int row, int column, int digits) const;
    /// The colour to show beside a row; invalid where the values are no colours.
    virtual QColor swatch(const SoMField& list, int row) const;
    /// What can be chosen for a cell; empty where there is no such set.
    virtual QStringList choices(const SoMField& list) const;

    /// Less, by number or by text, for sorting; NaN comes last.
    virtual bool isLess(const SoMField& list, int row, int other, int column) const = 0;
};

} // namespace inspector

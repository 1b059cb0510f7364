// SPDX-License-Identifier: MIT
#pragma once

#include "table/ListAccess.h"

#include <scopix/SpxSentence.h>
#include <scopix/editing/expression/SpxExpression.h>

#include <QString>

#include <vector>

namespace inspector
{

/// A formula that is calculated for many cells: x is the cell's own value, row its element's index, n their
/// number, and c1, c2, ... are the cells of its row.
class CellFormula
{
public:
    /// A leading "=" is read as in a spreadsheet.
    CellFormula(const QString& text, const SoMField& list, const ListAccess& access);

    bool isValid() const { return m_expression.isValid(); }
    /// A sentence.
    QString error() const { return SpxSentence::translated(m_expression.getError().sentence); }
    /// `values` holds the element at row `at`.
    double evaluate(const SoMField& values, int at, int element, int column);

private:
    const ListAccess& m_access;
    SpxExpression m_expression;
    std::vector<double> m_variables;
};

/// A condition on the rows of a list, as in "x > 3 && y < 0", "nan", "inf": the columns by their headings
/// (x alone where there is one), row, n, c1, c2, ...; for lists of texts, a part of the text.
class RowCondition
{
public:
    RowCondition(const QString& text, const SoMField& list, const ListAccess& access);

    bool isValid() const { return m_kind != Kind::Formula || m_expression.isValid(); }
    QString error() const { return SpxSentence::translated(m_expression.getError().sentence); }
    bool holds(const SoMField& list, int element);

private:
    enum class Kind { Formula, NotANumber, Infinite, Contains };

    bool holdsForAny(const SoMField& list, int element) const;

    const ListAccess& m_access;
    const int m_columns;
    Kind m_kind = Kind::Formula;
    QString m_part;
    SpxExpression m_expression;
    std::vector<double> m_variables;
};

} // namespace inspector

// SPDX-License-Identifier: MIT
#include "table/CellFormula.h"

#include <cmath>

namespace inspector
{

namespace
{

enum Variable { Value, Row, Count, FirstCell };

QString withoutEqualsSign(const QString& text)
{
    const QString trimmed = text.trimmed();
    const bool isFormula = trimmed.startsWith('=') && !trimmed.startsWith(QLatin1String("=="));
    return isFormula ? trimmed.mid(1) : trimmed;
}

void addCells(std::vector<std::string>& names, int columns)
{
    for (int column = 1; column <= columns; ++column)
        names.push_back("c" + std::to_string(column));
}

SpxExpression compile(const QString& text, std::vector<std::string> names)
{
    SpxExpressionSettings settings;
    settings.variables = std::move(names);
    return SpxExpression(text.toStdString(), settings);
}

std::vector<std::string> cellNames(int columns)
{
    std::vector<std::string> names{"x", "row", "n"};
    addCells(names, columns);
    return names;
}

// The cells by their headings first, then as c1, c2, ...
std::vector<std::string> rowNames(const QStringList& headings)
{
    std::vector<std::string> names;
    for (QString heading : headings)
        names.push_back(headings.size() == 1 ? "x" : heading.remove(' ').toStdString());
    names.emplace_back("row");
    names.emplace_back("n");
    addCells(names, headings.size());
    return names;
}

} // namespace

CellFormula::CellFormula(const QString& text, const SoMField& list, const ListAccess& access)
    : m_access(access)
    , m_expression(compile(withoutEqualsSign(text), cellNames(access.columnCount())))
    , m_variables(std::size_t(FirstCell + access.columnCount()))
{
    m_variables[Count] = list.getNum();
}

double CellFormula::evaluate(const SoMField& values, int at, int element, int column)
{
    for (std::size_t cell = FirstCell; cell < m_variables.size(); ++cell)
        m_variables[cell] = m_access.number(values, at, int(cell) - FirstCell);
    m_variables[Value] = m_variables[std::size_t(FirstCell + column)];
    m_variables[Row] = element;
    return m_expression.evaluate(m_variables.data());
}

RowCondition::RowCondition(const QString& text, const SoMField& list, const ListAccess& access)
    : m_access(access)
    , m_columns(access.columnCount())
    , m_part(text.trimmed())
    , m_variables(std::size_t(2 * m_columns + 2))
{
    if (!access.hasNumbers())
        m_kind = Kind::Contains;
    else if (m_part.compare(QLatin1String("nan"), Qt::CaseInsensitive) == 0)
        m_kind = Kind::NotANumber;
    else if (m_part.compare(QLatin1String("inf"), Qt::CaseInsensitive) == 0)
        m_kind = Kind::Infinite;
    else
        m_expression = compile(withoutEqualsSign(text), rowNames(access.headings()));
    m_variables[std::size_t(m_columns) + 1] = list.getNum();
}

bool RowCondition::holds(const SoMField& list, int element)
{
    if (m_kind != Kind::Formula)
        return holdsForAny(list, element);
    for (int column = 0; column < m_columns; ++column) {
        const double number = m_access.number(list, element, column);
        m_variables[std::size_t(column)] = m_variables[std::size_t(m_columns + 2 + column)] = number;
    }
    m_variables[std::size_t(m_columns)] = element;
    const double result = m_expression.evaluate(m_variables.data());
    return result != 0 && !std::isnan(result);
}

bool RowCondition::holdsForAny(const SoMField& list, int element) const
{
    for (int column = 0; column < m_columns; ++column) {
        if (m_kind == Kind::Contains) {
            if (m_access.text(list, element, column).contains(m_part, Qt::CaseInsensitive))
                return true;
            continue;
        }
        const double number = m_access.number(list, element, column);
        if (m_kind == Kind::NotANumber ? std::isnan(number) : std::isinf(number))
            return true;
    }
    return false;
}

} // namespace inspector

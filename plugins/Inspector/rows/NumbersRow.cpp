// SPDX-License-Identifier: MIT
#include "rows/NumbersRow.h"

#include "fields/NumberAccess.h"

#include <xsg/core/SoField.h>
#include <xsg/fields/SoSFPlane.h>

#include <QGridLayout>

namespace inspector
{

namespace
{

constexpr int InALine = 3;

QStringList partNames(const SoField& field, int count)
{
    if (field.getTypeId().isDerivedFrom(SoSFPlane::getClassTypeId()))
        return {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("d")};
    if (count == 6)
        return {QObject::tr("x from"), QObject::tr("y from"), QObject::tr("z from"),
                QObject::tr("x to"),   QObject::tr("y to"),   QObject::tr("z to")};
    return QStringList{QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("w")}
        .mid(0, count);
}

} // namespace

NumbersRow::NumbersRow(SoField* field)
    : NumberInputsRow(field)
    , m_access(NumberAccess::of(*field))
{
}

void NumbersRow::build()
{
    NumberFormat format = formatOf(*field());
    m_unit = ShownUnit::of(format.quantity);
    for (double* limit : {&format.softLow, &format.softHigh, &format.hardLow, &format.hardHigh})
        *limit /= m_unit.size;
    format.unit = m_unit.size;
    auto* grid = new QGridLayout(editor());
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(3);
    const int count = m_access->count;
    const QStringList names = count > 1 ? partNames(*field(), count) : QStringList{QString()};
    const int columns = count > InALine ? count / 2 : count;
    for (int i = 0; i < count; ++i) {
        format.prefix = names[i].left(1);
        grid->addWidget(addNumber(format, names[i]), i / columns, i % columns);
        grid->setColumnStretch(i % columns, 1);
    }
}

double NumbersRow::shownNumber(int which) const
{
    return m_access->get(*field(), which) / m_unit.size;
}

QString NumbersRow::shownText(int which) const
{
    return m_unit.isThatOfTheField() ? numberText(m_access->get(*field(), which))
                                     : m_unit.textOf(shownNumber(which));
}

void NumbersRow::writeNumber(int which, double number)
{
    m_access->set(*field(), which, number * m_unit.size);
}

NumberEdit* NumbersRow::draggedByCaption() const
{
    return m_access->count == 1 ? numbers().first() : nullptr;
}

} // namespace inspector

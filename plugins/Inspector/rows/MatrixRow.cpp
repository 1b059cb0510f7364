// SPDX-License-Identifier: MIT
#include "rows/MatrixRow.h"

#include "fields/NumberAccess.h"

#include <xsg/core/SoField.h>

#include <QGridLayout>

namespace inspector
{

MatrixRow::MatrixRow(SoField* field)
    : NumberInputsRow(field)
{
}

void MatrixRow::build()
{
    auto* grid = new QGridLayout(editor());
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(3);
    for (int i = 0; i < 16; ++i) {
        const QString place = tr("row %1, column %2").arg(i / 4 + 1).arg(i % 4 + 1);
        grid->addWidget(addNumber(formatOf(*field()), place), i / 4, i % 4);
    }
}

double MatrixRow::shownNumber(int which) const
{
    return NumberAccess::of(*field())->get(*field(), which);
}

QString MatrixRow::shownText(int which) const
{
    return numberText(*field(), shownNumber(which));
}

void MatrixRow::writeNumber(int which, double number)
{
    NumberAccess::of(*field())->set(*field(), which, number);
}

} // namespace inspector

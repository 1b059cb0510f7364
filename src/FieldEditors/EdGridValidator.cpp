// SPDX-License-Identifier: MIT
#include "EdGridValidator.h"

#include "EdValidators.h"

#include <QLineEdit>

#include <limits>

void setGridValidator(QLineEdit& edit, int kind)
{
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    constexpr int StockDecimals = 1000;
    switch (kind) {
    case 0:
        edit.setValidator(nullptr);
        break;
    case 1:
        edit.setValidator(new EdIntValidator(-32768, 32767, &edit));
        break;
    case 2:
        edit.setValidator(new EdIntValidator(&edit));
        break;
    case 3:
        edit.setValidator(EdRealValidator::forFloat(&edit));
        break;
    case 4:
        edit.setValidator(new EdRealValidator(-Infinity, Infinity, StockDecimals, &edit));
        break;
    default:
        break;
    }
}

bool isRealGrid(int kind)
{
    return kind == 3 || kind == 4;
}

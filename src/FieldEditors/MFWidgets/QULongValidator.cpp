// SPDX-License-Identifier: MIT
#include "QULongValidator.h"

#include <limits>

QULongValidator::QULongValidator(QObject* parent)
    : UnsignedValidator(parent, std::numeric_limits<quint64>::max())
{
}

QULongValidator::~QULongValidator() = default;

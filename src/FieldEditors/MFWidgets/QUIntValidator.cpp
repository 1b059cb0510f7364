// SPDX-License-Identifier: MIT
#include "QUIntValidator.h"

#include <limits>

QUIntValidator::QUIntValidator(QObject* parent)
    : UnsignedValidator(parent, std::numeric_limits<quint32>::max())
{
}

QUIntValidator::~QUIntValidator() = default;

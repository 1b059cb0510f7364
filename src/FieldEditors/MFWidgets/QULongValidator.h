// SPDX-License-Identifier: MIT
#pragma once

#include "QUIntValidator.h"

/// The validator of unsigned 64-bit ranges; see UnsignedValidator for what it still refuses.
class QULongValidator : public UnsignedValidator<quint64>
{
    Q_OBJECT

public:
    explicit QULongValidator(QObject* parent = nullptr);
    ~QULongValidator() override;
};

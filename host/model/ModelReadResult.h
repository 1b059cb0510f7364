// SPDX-License-Identifier: MIT
#pragma once

#include "model/ModelData.h"

#include <QStringList>

namespace scopix
{

/// What reading a model file gave.
struct ModelReadResult {
    ModelData data;
    QString error;     // one sentence, or empty
    QStringList notes; // one sentence for each kind of thing in the file that the data has not
};

} // namespace scopix

// SPDX-License-Identifier: MIT
#pragma once

#include "model/ModelData.h"

#include <QStringList>

namespace scopix
{

/// What reading a model file gave.
struct ModelReadResult {
    ModelData data;
    QString error;                  // one sentence, or empty
    std::vector<std::string> notes; // sentences about what is left out, or not as it is in the file
};

} // namespace scopix

// What reading a model file gave.
#pragma once

#include "import/ModelData.h"

#include <QString>

namespace scopix
{

struct ModelReadResult {
    ModelData data;
    QString error; // one sentence, or empty
};

} // namespace scopix

// SPDX-License-Identifier: MIT
// A model's plain data as a binary file, in which the process that reads models hands it over. The format is
// that of this machine and this version only; the file is removed once it has been read.
#pragma once

#include "model/ModelData.h"

class QIODevice;

namespace scopix
{

struct ModelReadResult;

/// False where it cannot be written.
bool writeModelFile(const ModelReadResult& model, QIODevice& file);
/// Reads the file to its end. False, and a model of no use, where it is not what was written.
bool readModelFile(QIODevice& file, ModelReadResult& model);

} // namespace scopix

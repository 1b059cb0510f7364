// SPDX-License-Identifier: MIT
// A model's plain data as a file of bytes, in which the process that reads models hands it over. Of this
// machine and this version only, and gone once it has been taken in.
#pragma once

#include "model/ModelData.h"

class QIODevice;

namespace scopix
{

struct ModelReadResult;

/// False where it cannot be written.
bool writeModelFile(const ModelReadResult& model, QIODevice& file);
/// Takes `size` bytes apart. False, and a model of no use, where they are not what was written.
bool readModelFile(const char* bytes, std::size_t size, ModelReadResult& model);

} // namespace scopix

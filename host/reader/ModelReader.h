// SPDX-License-Identifier: MIT
// Reads a model file into plain data. Needs no event loop and touches no node. The importer underneath may
// crash, hang or end the process on a bad file: let a process of its own read (see ModelImport).
#pragma once

#include "model/ModelReadResult.h"

#include <functional>

namespace scopix
{

/// How far the reading is, 0 to 1.
using ReadProgress = std::function<void(float done)>;

ModelReadResult readModel(const QString& path, const ReadProgress& progress = {});

} // namespace scopix

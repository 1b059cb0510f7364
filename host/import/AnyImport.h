// SPDX-License-Identifier: MIT
#pragma once

#include "import/FileImport.h"

#include <xsg/nodes/base/SoNode.h>

#include <functional>

namespace scopix
{

/// What reads this file, a scene or else a model; `finished` is called once it is read. Not started yet.
FileImport* makeImport(const QString& path, QWidget* window, QObject* parent,
                       std::function<void(const SoRef<SoNode>&)> finished);

} // namespace scopix

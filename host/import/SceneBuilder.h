// SPDX-License-Identifier: MIT
// Makes nodes out of a model's plain data. A mesh or material that is used several times becomes one shared
// node.
#pragma once

#include "model/ModelData.h"

#include <xsg/nodes/groups/SoSeparator.h>

namespace scopix
{

/// Takes the model's lists over, so that nothing big is copied.
SoRef<SoSeparator> buildScene(ModelData model, const std::string& name);

} // namespace scopix

// SPDX-License-Identifier: MIT
#include "SpxEditedConnections.h"

SpxEditedConnections::SpxEditedConnections() = default;
SpxEditedConnections::~SpxEditedConnections() = default;

// SPDX-License-Identifier: MIT
#include "SpxEditedFields.h"

SpxEditedFields::SpxEditedFields() = default;
SpxEditedFields::~SpxEditedFields() = default;

std::vector<SoFieldContainer*> SpxEditedFields::editedContainers() const
{
    return {};
}

bool SpxEditedFields::isWithoutEffect() const
{
    return false;
}

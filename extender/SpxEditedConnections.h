// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

#include <vector>

class SoField;

/// What a command can say about the connections of fields: derive the command from both, and from
/// SpxEditedFields. The host finds it by dynamic_cast, and lists what the user has connected and
/// disconnected. It asks before execute() and each undo and redo, so the command must not have done it before
/// it is handed over. GUI thread only.
class SPX_API SpxEditedConnections
{
public:
    SpxEditedConnections();
    SpxEditedConnections(const SpxEditedConnections&) = delete;
    SpxEditedConnections& operator=(const SpxEditedConnections&) = delete;
    virtual ~SpxEditedConnections();

    /// The fields that follow another one afterwards, or no longer, without those that were destroyed.
    virtual std::vector<SoField*> connectedFields() const = 0;
};

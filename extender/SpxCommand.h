// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

/// One undoable edit. Who makes it hands it to SpxServices::executeCommand and never touches it again.
class SPX_API SpxCommand
{
public:
    SpxCommand();
    SpxCommand(const SpxCommand&) = delete;
    SpxCommand& operator=(const SpxCommand&) = delete;

    /// Called once, when the services take the command over.
    virtual void execute() = 0;
    /// Then called in turn, each time the user undoes or redoes.
    virtual void undo() = 0;
    virtual void redo() = 0;
    virtual ~SpxCommand();
};

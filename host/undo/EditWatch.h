// SPDX-License-Identifier: MIT
#pragma once

class SoField;

namespace scopix
{

/// Is told of each edit of the user before it happens: of what an undo history records, and of its undoing
/// and redoing. What nobody edits, such as an animation's writes, it does not hear of. It may read, and must
/// not write. GUI thread only.
class EditWatch
{
public:
    EditWatch() = default;
    EditWatch(const EditWatch&) = delete;
    EditWatch& operator=(const EditWatch&) = delete;

    /// As of SoWriteRecorder.
    virtual void aboutToWrite(SoField& field, int start, int removed) = 0;
    /// A command lets a field follow another one, or no longer.
    virtual void aboutToConnect(SoField& field) = 0;
    /// Commands are about to run, or to be undone or redone.
    virtual void aboutToRun() = 0;
    virtual void hasRun() = 0;

protected:
    ~EditWatch() = default;
};

} // namespace scopix

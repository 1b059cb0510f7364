// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/XsgExport.h>

#include <atomic>

class SoField;

/// Is told of every write of a field before it happens, so that it can keep what the field held: its value
/// and its two flags. At most one is active in the process. A field asks one pointer whether there is one.
/// What a field fetches over a connection is no write.
///
/// A recorder may read the field and make other fields; it must not write. Called on the thread of the write.
class XSG_API SoWriteRecorder
{
public:
    SoWriteRecorder(const SoWriteRecorder&) = delete;
    SoWriteRecorder& operator=(const SoWriteRecorder&) = delete;

    /// Values start..start+removed-1 may be removed, replaced or followed by new ones; no value outside of
    /// them changes. Nothing is removed where values are inserted only, or where only a flag may change.
    /// -1: all from `start` on. A single-value field has one value; `removed` is 0 for its flags alone. The
    /// write may still be refused, or leave the field as it was.
    virtual void aboutToWrite(SoField& field, int start, int removed) = 0;

    /// Null where none is active.
    static SoWriteRecorder* getActive() { return s_active.load(std::memory_order_relaxed); }
    /// Makes another one active, or none (null). Returns the one before, for the caller to put back.
    static SoWriteRecorder* setActive(SoWriteRecorder* recorder);

protected:
    SoWriteRecorder();
    /// One that is active ceases to be.
    virtual ~SoWriteRecorder();

private:
    static std::atomic<SoWriteRecorder*> s_active;
};

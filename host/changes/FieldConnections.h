// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoFieldContainer.h>

#include <vector>

class SoField;

namespace scopix
{

/// Which fields an edit lets follow which, so that it can be undone and redone. Announces the values that may
/// change by it as writes (SoWriteRecorder), since what a field fetches is none. Keeps the nodes of both
/// alive. GUI thread only.
class FieldConnections
{
public:
    /// Before the field follows another one, or none, by whatever means: connected() then sees which.
    void aboutToConnect(SoField& field);
    void connected();
    /// For redo(): the field follows `source`, or none (null).
    void add(SoField& field, SoField* source);

    /// Before values are written that these fields may fetch.
    void announce() const;
    void undo() const;
    void redo() const;

    bool isEmpty() const { return m_all.empty(); }
    std::vector<SoField*> fields() const;

private:
    struct Source {
        SoRef<SoFieldContainer> node;
        SoField* field = nullptr;
    };
    struct Connection {
        SoRef<SoFieldContainer> node;
        SoField* field = nullptr;
        Source before;
        Source after;
    };

    static Source sourceOf(SoField* field);
    static void announce(SoField& field);
    static void follow(SoField& field, SoField* source);

    std::vector<Connection> m_all;
};

} // namespace scopix

// SPDX-License-Identifier: MIT
#pragma once

#include "table/TableSession.h"
#include "table/VertexUse.h"

#include <scopix/SpxViewServices.h>
#include <scopix/editing/SpxWatcher.h>

#include <QTimer>

namespace inspector
{

/// Lets the rows of a table and the 3D view know each other: the vertices that the selected rows stand for
/// are marked in the view, and the row of a vertex that is clicked there becomes current. Does nothing in a
/// host without a view, and for lists that no shape uses. Lives in its session.
class VertexLink : public QObject, private SpxPickListener
{
    Q_OBJECT

public:
    /// What a click near a vertex does to the selection of nodes.
    enum class Click { StaysHere, Selects };

    VertexLink(TableSession& session, Click click);
    ~VertexLink() override;

    /// The list, its values or the selected rows have changed; looked at when the event loop is reached.
    void restart();
    void stop();

private:
    bool pointPicked(const SpxPickedPoint& picked) override;
    void mark();
    void listen(bool on);
    SoPath pathToList() const;
    VertexUse findUse() const;
    SoPath markedPoints(std::vector<SbVec3f>& points);

    TableSession& m_session;
    const Click m_click;
    bool m_isListening = false;
    bool m_hasMarks = false;
    QTimer m_soon;
    SpxWatcher m_points; // of an index list, whose points may move
};

} // namespace inspector

// SPDX-License-Identifier: MIT
#pragma once

#include "live/LiveChanges.h"
#include "live/LiveNode.h"

#include <QObject>
#include <QStringList>

namespace scopix
{

class HostServices;
class LiveScene;

/// Writes the values of a list of changes to a running program, as one step of the history: looks for the
/// places one after the other, which may have to be unfolded first. Deletes itself at its end, or with the
/// scene. GUI thread only.
class LiveReplay : public QObject
{
    Q_OBJECT

public:
    enum class Which { After, Before };

    LiveReplay(LiveScene& scene, HostServices& services, std::vector<LiveChanges::Change> changes,
               Which which);
    void start();

signals:
    /// `missing`: places that are no longer there, or hold something else.
    void finished(int written, const QStringList& missing);

private:
    using NodeRef = SoRef<LiveNode>;

    void next();
    void goDown(const NodeRef& node, std::size_t step);
    void arrived(const NodeRef& node);
    void miss();
    void writeAll();

    LiveScene& m_scene;
    HostServices& m_services;
    std::vector<LiveChanges::Change> m_changes;
    Which m_which;
    std::size_t m_at = 0;
    struct Found {
        NodeRef node;
        LiveProperty* property;
        live::Value value;
    };
    std::vector<Found> m_found;
    QStringList m_missing;
};

} // namespace scopix

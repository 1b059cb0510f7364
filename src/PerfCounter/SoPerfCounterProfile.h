// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

/// A named profile of the performance-counter tool: the counters that it offers and those that it shows in
/// the viewer.
class SoPerfCounterProfile
{
public:
    explicit SoPerfCounterProfile(const QString& name);

    QString getName() const { return m_name; }
    /// Both lists belong to the profile; their order is the order on screen and in the file.
    QList<QString>* getList() const { return m_list.get(); }
    QList<QString>* getView() const { return m_view.get(); }

    /// Take counters out of both lists.
    void removeCounter(const QString& counter);
    void removeCounters(const QStringList& counters);
    /// Puts counters, each of which is named once, at the end of those that are offered, in their order.
    void moveToEnd(const QStringList& counters);
    std::unique_ptr<SoPerfCounterProfile> copy() const;

private:
    QString m_name;
    std::unique_ptr<QList<QString>> m_list;
    std::unique_ptr<QList<QString>> m_view;
};

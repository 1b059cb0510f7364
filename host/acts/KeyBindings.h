// SPDX-License-Identifier: MIT
#pragma once

#include "acts/MenuActs.h"

#include <QHash>
#include <QObject>

namespace scopix
{

/// The keys of the acts in the menus, which the user may change; what differs from the shipped keys is kept
/// in the settings. GUI thread only.
class KeyBindings : public QObject
{
    Q_OBJECT

public:
    /// The bar must outlive it.
    explicit KeyBindings(QMenuBar& bar);

    /// Gives the acts that are there by now the user's keys.
    void restore();

    std::vector<MenuAct> acts() const;
    /// The act that has the key where it would take it from this one; null for none.
    QAction* rival(const QAction& act, const QKeySequence& key) const;
    /// An empty key leaves the act without one. One sentence where that cannot be kept, else empty.
    QString set(QAction& act, const QKeySequence& key);
    QString reset(QAction& act);
    QString resetAll();
    bool isShipped(const QAction& act) const;

    /// Keys of other programs for the same acts, by the names of these programs.
    static QStringList presets();
    /// The keys that are shipped, and over them those of the preset; an unknown one has none.
    QString usePreset(const QString& preset);

private:
    QString idOf(const QAction& act) const;
    void meet(const QAction& act);
    QString keep() const;

    QMenuBar& m_bar;
    QHash<QString, QList<QKeySequence>> m_shipped; // by id
    QHash<const QAction*, QString> m_ids;
};

} // namespace scopix

// SPDX-License-Identifier: MIT
#pragma once

#include "palette/PaletteEntry.h"

#include <QAbstractListModel>

namespace scopix
{

/// The entries that fit what was typed, the best first.
class PaletteModel : public QAbstractListModel
{
    Q_OBJECT

public:
    static constexpr int Most = 60; // rows
    enum Role { PlaceRole = Qt::UserRole, KeyRole };

    using QAbstractListModel::QAbstractListModel;

    void setEntries(std::vector<PaletteEntry> entries);
    /// What was found elsewhere for the text that is typed; shown behind the others.
    void setFound(std::vector<PaletteEntry> found);
    void setTyped(const QString& typed);
    const PaletteEntry& entry(int row) const { return *m_shown[std::size_t(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void choose();

    std::vector<PaletteEntry> m_entries;
    std::vector<PaletteEntry> m_found;
    QString m_typed;
    std::vector<const PaletteEntry*> m_shown;
};

} // namespace scopix

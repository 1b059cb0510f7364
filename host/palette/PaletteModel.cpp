// SPDX-License-Identifier: MIT
#include "palette/PaletteModel.h"

#include <algorithm>

namespace scopix
{

void PaletteModel::setEntries(std::vector<PaletteEntry> entries)
{
    beginResetModel();
    m_entries = std::move(entries);
    m_found.clear();
    choose();
    endResetModel();
}

void PaletteModel::setFound(std::vector<PaletteEntry> found)
{
    beginResetModel();
    m_found = std::move(found);
    choose();
    endResetModel();
}

void PaletteModel::setTyped(const QString& typed)
{
    beginResetModel();
    m_typed = typed;
    choose();
    endResetModel();
}

void PaletteModel::choose()
{
    std::vector<std::pair<int, const PaletteEntry*>> fitting;
    for (const PaletteEntry& each : m_entries)
        if (const int fit = fitOf(each.text, m_typed))
            fitting.emplace_back(each.isEnabled ? fit : fit / 2, &each);
    for (const PaletteEntry& each : m_found)
        fitting.emplace_back(std::max(1, fitOf(each.text, m_typed) - 1), &each);
    std::stable_sort(fitting.begin(), fitting.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    fitting.resize(std::min<std::size_t>(fitting.size(), Most));
    m_shown.clear();
    for (const auto& each : fitting)
        m_shown.push_back(each.second);
}

int PaletteModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

QVariant PaletteModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const PaletteEntry& shown = entry(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return shown.text;
    case PlaceRole:
        return shown.place;
    case KeyRole:
        return shown.key;
    case Qt::AccessibleTextRole:
        return QStringList{shown.text, shown.place, shown.key}.join(QStringLiteral(", "));
    default:
        return {};
    }
}

Qt::ItemFlags PaletteModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractListModel::flags(index);
    return !index.isValid() || entry(index.row()).isEnabled ? flags : flags & ~Qt::ItemIsEnabled;
}

} // namespace scopix

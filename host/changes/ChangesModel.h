// SPDX-License-Identifier: MIT
#pragma once

#include "changes/ChangeSource.h"

#include <QAbstractTableModel>
#include <QPointer>

#include <unordered_map>

namespace scopix
{

/// Changes as rows, which the user ticks. Makes text only of the rows that somebody asks about. What was
/// ticked stays so while the change is there. GUI thread only.
class ChangesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { PathColumn, BeforeColumn, AfterColumn, TimeColumn, SizeColumn, ColumnCount };
    static constexpr int SortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    /// It is not owned.
    void setSource(ChangeSource* source);
    ChangeSource* getSource() const { return m_source; }
    /// The rows are as the source has them now.
    void follow();

    const ChangeKey& keyAt(int row) const { return m_keys[static_cast<std::size_t>(row)]; }
    const ChangeKeySet& getTicked() const { return m_ticked; }
    void setTicked(const ChangeKeySet& keys, bool isTicked);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// "set in the scene" words of the row, for a filter.
    bool contains(int row, const QString& text) const;

signals:
    /// What is there now was entered anew.
    void valueEntered(const ChangeKey& key, const QString& text);
    /// One sentence.
    void refused(const QString& sentence);
    void tickedChanged();

private:
    struct Shown {
        quint64 version = 0;
        ChangeSource::Text text;
    };
    const ChangeSource::Text& textOf(const ChangeKey& key) const;
    QVariant text(const ChangeKey& key, int column) const;
    QVariant sortKey(int row, int column) const;
    bool canEnter(const ChangeKey& key) const;
    void followList();
    void removeGone(const ChangeKeySet& present);
    void forgetGone(const ChangeKeySet& present);

    QPointer<ChangeSource> m_source;
    ChangeKeys m_keys;
    std::vector<quint64> m_versions; // that were told, of the same rows
    quint64 m_listVersion = 0;
    ChangeKeySet m_known; // the same
    ChangeKeySet m_ticked;
    mutable std::map<ChangeKey, Shown> m_shown;
    mutable std::map<ChangeKey, int> m_ranks; // in the scene, once they were asked for
};

} // namespace scopix

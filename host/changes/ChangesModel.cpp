// SPDX-License-Identifier: MIT
#include "changes/ChangesModel.h"

#include "text/ValueText.h"

#include <xsg/core/SoMField.h>
#include <xsg/fields/SoSFImage.h>

#include <QDateTime>
#include <QLocale>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr std::size_t MostStepwise = 100; // rows that go one by one

} // namespace

void ChangesModel::setSource(ChangeSource* source)
{
    beginResetModel();
    m_source = source;
    m_keys.clear();
    m_versions.clear();
    m_listVersion = source ? source->listVersion() - 1 : 0; // whatever it is
    m_known.clear();
    m_ticked.clear();
    m_shown.clear();
    m_ranks.clear();
    endResetModel();
    follow();
}

void ChangesModel::follow()
{
    if (!m_source)
        return;
    m_source->update();
    if (std::exchange(m_listVersion, m_source->listVersion()) != m_source->listVersion())
        followList();
    for (int row = 0; row < rowCount(); ++row) {
        const quint64 version = m_source->versionOf(keyAt(row));
        if (std::exchange(m_versions[static_cast<std::size_t>(row)], version) != version)
            emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
    }
}

void ChangesModel::followList()
{
    const ChangeKeys& list = m_source->list();
    const ChangeKeySet present(list.begin(), list.end());
    m_ranks.clear();
    removeGone(present);
    ChangeKeys added;
    std::copy_if(list.begin(), list.end(), std::back_inserter(added),
                 [this](const ChangeKey& key) { return m_known.count(key) == 0; });
    if (added.empty())
        return;
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(added.size()) - 1);
    for (const ChangeKey& key : added) {
        m_keys.push_back(key);
        m_versions.push_back(m_source->versionOf(key));
        m_known.insert(key);
    }
    endInsertRows();
}

void ChangesModel::removeGone(const ChangeKeySet& present)
{
    std::vector<int> gone;
    for (int row = rowCount(); row-- > 0;) {
        if (present.count(keyAt(row)) == 0)
            gone.push_back(row);
    }
    if (gone.empty())
        return;
    const bool isTicked = std::any_of(m_ticked.begin(), m_ticked.end(),
                                      [&](const ChangeKey& key) { return present.count(key) == 0; });
    if (gone.size() > MostStepwise) {
        beginResetModel();
        forgetGone(present);
        m_keys.assign(m_known.begin(), m_known.end());
        m_versions.assign(m_keys.size(), 0);
        endResetModel();
    } else {
        for (const int row : gone) {
            beginRemoveRows({}, row, row);
            m_keys.erase(m_keys.begin() + row);
            m_versions.erase(m_versions.begin() + row);
            endRemoveRows();
        }
        forgetGone(present);
    }
    if (isTicked)
        emit tickedChanged();
}

void ChangesModel::forgetGone(const ChangeKeySet& present)
{
    const auto drop = [&](auto& from, auto keyOf) {
        for (auto at = from.begin(); at != from.end();)
            at = present.count(keyOf(*at)) > 0 ? std::next(at) : from.erase(at);
    };
    const auto itself = [](const ChangeKey& key) { return key; };
    drop(m_known, itself);
    drop(m_ticked, itself);
    drop(m_shown, [](const auto& each) { return each.first; });
}

void ChangesModel::setTicked(const ChangeKeySet& keys, bool isTicked)
{
    for (const ChangeKey& key : keys) {
        if (!isTicked)
            m_ticked.erase(key);
        else if (m_known.count(key) > 0)
            m_ticked.insert(key);
    }
    if (rowCount() > 0)
        emit dataChanged(index(0, PathColumn), index(rowCount() - 1, PathColumn), {Qt::CheckStateRole});
    emit tickedChanged();
}

int ChangesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_keys.size());
}

int ChangesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

const ChangeSource::Text& ChangesModel::textOf(const ChangeKey& key) const
{
    Shown& shown = m_shown[key];
    const quint64 version = m_source->versionOf(key);
    if (shown.version != version || shown.text.path.isEmpty())
        shown = {version, m_source->describe(key)};
    return shown.text;
}

QVariant ChangesModel::text(const ChangeKey& key, int column) const
{
    switch (column) {
    case PathColumn:
        return textOf(key).path;
    case BeforeColumn:
        return textOf(key).before;
    case AfterColumn:
        return textOf(key).after;
    case TimeColumn: {
        const qint64 time = m_source->timeOf(key);
        return time > 0
                   ? QLocale().toString(QDateTime::fromMSecsSinceEpoch(time).time(), QLocale::ShortFormat)
                   : QString();
    }
    default:
        return m_source->sizeOf(key);
    }
}

QVariant ChangesModel::sortKey(int row, int column) const
{
    const ChangeKey& key = keyAt(row);
    if (column == TimeColumn)
        return m_source->timeOf(key);
    if (column != PathColumn)
        return text(key, column);
    if (m_ranks.empty()) {
        ChangeKeys sorted = m_keys;
        m_source->sortByScene(sorted);
        for (std::size_t i = 0; i < sorted.size(); ++i)
            m_ranks[sorted[i]] = static_cast<int>(i);
    }
    return m_ranks[key];
}

QVariant ChangesModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !m_source)
        return {};
    const ChangeKey& key = keyAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(key, index.column());
    case SortRole:
        return sortKey(index.row(), index.column());
    case Qt::EditRole:
        return index.column() == AfterColumn && m_source->fieldOf(key)
                   ? QVariant(wholeValueText(*m_source->fieldOf(key)))
                   : text(key, index.column());
    case Qt::CheckStateRole:
        return index.column() == PathColumn ? QVariant(m_ticked.count(key) > 0 ? Qt::Checked : Qt::Unchecked)
                                            : QVariant();
    case Qt::ToolTipRole: {
        const ChangeSource::Text& all = textOf(key);
        const QString line = tr("%1: %2 → %3").arg(all.path, all.before, all.after);
        return (all.note.isEmpty() ? line : line + QLatin1Char('\n') + all.note).toHtmlEscaped();
    }
    case Qt::FontRole: {
        QFont font;
        font.setItalic(textOf(key).isUncertain);
        return index.column() == AfterColumn ? QVariant(font) : QVariant();
    }
    case Qt::AccessibleTextRole:
        return tr("%1, was %2, is %3").arg(textOf(key).path, textOf(key).before, textOf(key).after);
    case Qt::TextAlignmentRole:
        return index.column() == SizeColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    default:
        return {};
    }
}

bool ChangesModel::canEnter(const ChangeKey& key) const
{
    const SoField* field = m_source->fieldOf(key);
    const auto* list = dynamic_cast<const SoMField*>(field);
    return field && (!list || list->getNum() == 1) && !dynamic_cast<const SoSFImage*>(field) &&
           !field->isConnected();
}

bool ChangesModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || !m_source)
        return false;
    const ChangeKey key = keyAt(index.row());
    if (role == Qt::CheckStateRole && index.column() == PathColumn) {
        setTicked({key}, value.toInt() == Qt::Checked);
        return true;
    }
    if (role != Qt::EditRole || value.toString() == data(index, Qt::EditRole).toString())
        return false;
    if (index.column() == AfterColumn) {
        emit valueEntered(key, value.toString());
        return true;
    }
    const QString problem = m_source->setFormer(key, value.toString());
    if (!problem.isEmpty())
        emit refused(problem);
    return problem.isEmpty();
}

QVariant ChangesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const QString captions[] = {tr("Change"), tr("Before"), tr("Now"), tr("Time"), tr("Values")};
    return captions[section];
}

Qt::ItemFlags ChangesModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    if (!index.isValid() || !m_source)
        return flags;
    const ChangeKey& key = keyAt(index.row());
    flags.setFlag(Qt::ItemIsUserCheckable, index.column() == PathColumn);
    flags.setFlag(Qt::ItemIsEditable, (index.column() == BeforeColumn && m_source->canSetFormer(key)) ||
                                          (index.column() == AfterColumn && canEnter(key)));
    return flags;
}

bool ChangesModel::contains(int row, const QString& text) const
{
    const ChangeSource::Text& all = textOf(keyAt(row));
    return (all.path + QLatin1Char('\n') + all.before + QLatin1Char('\n') + all.after)
        .contains(text, Qt::CaseInsensitive);
}

} // namespace scopix

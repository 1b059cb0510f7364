// SPDX-License-Identifier: MIT
#include "console/LogModel.h"

#include "console/LogText.h"

#include <QDateTime>
#include <QElapsedTimer>

namespace profiler
{

namespace
{

constexpr qint64 TurnMilliseconds = 8;
// A line without an end is shown when nobody has gone on with it for so long.
constexpr int QuietMilliseconds = 300;

QString kindText(LogKind kind)
{
    switch (kind) {
    case LogKind::Error:
        return LogModel::tr("error");
    case LogKind::Warning:
        return LogModel::tr("warning");
    case LogKind::Info:
        return LogModel::tr("information");
    default:
        return LogModel::tr("output");
    }
}

} // namespace

LogModel::LogModel(QObject* parent, std::uint64_t mostLines)
    : QAbstractListModel(parent)
    , m_store(mostLines)
    , m_rows(m_store)
    , m_inbox(
          [this] {
              QMetaObject::invokeMethod(
                  this, [this] { takeNews(); }, Qt::QueuedConnection);
          },
          mostLines)
{
    m_work.setInterval(0);
    connect(&m_work, &QTimer::timeout, this, &LogModel::work);
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(QuietMilliseconds);
    connect(&m_quiet, &QTimer::timeout, this, [this] {
        const auto since = LogInbox::Clock::now() - std::chrono::milliseconds(QuietMilliseconds);
        if (m_inbox.endLines(since))
            m_quiet.start();
        takeNews();
    });
}

LogModel::~LogModel() = default;

void LogModel::takeNews()
{
    LogInbox::Batch batch = m_inbox.take();
    m_store.noteDropped(batch.dropped);
    for (LogChunk& chunk : batch.chunks)
        m_arrived.push_back(std::move(chunk));
    if (!m_quiet.isActive() && m_inbox.endLines(LogInbox::Clock::time_point::min()))
        m_quiet.start();
    if (!m_arrived.empty())
        m_work.start();
}

void LogModel::work()
{
    QElapsedTimer clock;
    clock.start();
    bool isMore = true;
    while (isMore && clock.elapsed() < TurnMilliseconds)
        isMore = workOnce();
    if (!isMore)
        m_work.stop();
    emit advanced();
}

// False when all is done.
bool LogModel::workOnce()
{
    if (!m_rows.isDone()) {
        LogRows::News news = m_rows.follow();
        if (!news.rows.empty()) {
            beginInsertRows({}, m_rows.size(), m_rows.size() + int(news.rows.size()) - 1);
            m_rows.add(news.rows);
            endInsertRows();
        }
        if (news.firstCounted >= 0)
            emit dataChanged(index(news.firstCounted), index(news.lastCounted));
        return true;
    }
    if (m_arrived.empty())
        return false;
    adopt(std::move(m_arrived.front()));
    m_arrived.pop_front();
    return true;
}

void LogModel::adopt(LogChunk&& chunk)
{
    note(chunk, m_store.end());
    m_store.append(std::move(chunk));
    // Who is told that rows go may still look at them.
    removeRowsBefore(m_store.firstToKeep());
    m_store.trim();
}

void LogModel::note(const LogChunk& chunk, std::uint64_t first)
{
    for (int kind = 0; kind < LogKinds; ++kind)
        m_counts[std::size_t(kind)] += chunk.countOf(LogKind(kind));
    const std::size_t errors = chunk.countOf(LogKind::Error);
    if (errors > 0 && m_newErrors == 0) {
        std::size_t i = 0;
        while (chunk.line(i).kind != LogKind::Error)
            ++i;
        m_firstError = shownText(chunk.text(i));
        m_firstErrorLine = first + i;
    }
    m_newErrors += errors;
}

void LogModel::removeRowsBefore(std::uint64_t line)
{
    const int gone = m_rows.lowerBound(line);
    if (gone == 0)
        return;
    beginRemoveRows({}, 0, gone - 1);
    m_rows.removeFirst(gone);
    endRemoveRows();
}

void LogModel::setRule(const LogRows::Rule& rule)
{
    beginResetModel();
    m_rows.setRule(rule);
    endResetModel();
    m_work.start();
}

void LogModel::clear()
{
    takeNews();
    beginResetModel();
    m_arrived.clear();
    m_store.clear();
    m_counts = {};
    m_rows.setRule(LogRows::Rule(m_rows.getRule()));
    endResetModel();
    clearErrors();
}

void LogModel::clearErrors()
{
    m_firstError.clear();
    m_newErrors = 0;
    emit advanced();
}

void LogModel::refreshRows()
{
    if (m_rows.size() > 0)
        emit dataChanged(index(0), index(m_rows.size() - 1));
}

void LogModel::setShowsTime(bool shows)
{
    m_showsTime = shows;
    refreshRows();
}

void LogModel::setShowsThread(bool shows)
{
    m_showsThread = shows;
    refreshRows();
}

QString LogModel::prefixOf(int row) const
{
    if (!m_showsTime && !m_showsThread)
        return {};
    const LogLine& line = m_store.line(m_rows[row].line);
    QString prefix;
    if (m_showsTime)
        prefix += QDateTime::fromMSecsSinceEpoch(line.time).toString(QStringLiteral("hh:mm:ss.zzz "));
    if (m_showsThread)
        prefix += QStringLiteral("[%1] ").arg(QString::fromStdString(m_inbox.nameOfThread(line.thread)));
    return prefix;
}

QString LogModel::textOf(int row) const
{
    return shownText(m_store.text(m_rows[row].line));
}

QString LogModel::copyOf(int row) const
{
    return prefixOf(row) + decoded(m_store.text(m_rows[row].line));
}

LogKind LogModel::kindOf(int row) const
{
    return m_store.line(m_rows[row].line).kind;
}

int LogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

QVariant LogModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    const LogRow& row = m_rows[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return prefixOf(index.row()) + textOf(index.row());
    case Qt::AccessibleTextRole: {
        const QString text = tr("%1: %2").arg(kindText(kindOf(index.row())), textOf(index.row()));
        return row.count > 1 ? tr("%1, %2 times").arg(text).arg(row.count) : text;
    }
    case CountRole:
        return int(row.count);
    case ContextRole:
        return bool(row.isContext);
    default:
        return {};
    }
}

} // namespace profiler

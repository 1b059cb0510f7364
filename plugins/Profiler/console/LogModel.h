// SPDX-License-Identifier: MIT
#pragma once

#include "console/LogInbox.h"
#include "console/LogRows.h"

#include <QAbstractListModel>
#include <QTimer>

#include <array>

namespace profiler
{

/// The lines that the process writes, as far as a rule wants them: takes them from the inbox and follows them
/// in pieces, so that the event loop is never held for long. GUI thread only.
class LogModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { CountRole = Qt::UserRole, ContextRole };

    explicit LogModel(QObject* parent = nullptr, std::uint64_t mostLines = LogStore::MostLines);
    ~LogModel() override;

    LogInbox& getInbox() { return m_inbox; }
    const LogStore& getStore() const { return m_store; }
    const LogRows& getRows() const { return m_rows; }

    void setRule(const LogRows::Rule& rule);
    void clear();
    /// All that has come so far is shown.
    bool isUpToDate() const { return !m_work.isActive(); }
    std::uint64_t countOf(LogKind kind) const { return m_counts[std::size_t(kind)]; }
    /// The first error since clearErrors(); empty where there is none.
    const QString& getFirstError() const { return m_firstError; }
    std::uint64_t getNewErrors() const { return m_newErrors; }
    /// Of the first of them; the store may hold it no more.
    std::uint64_t getFirstErrorLine() const { return m_firstErrorLine; }
    void clearErrors();

    void setShowsTime(bool shows);
    void setShowsThread(bool shows);
    bool showsTime() const { return m_showsTime; }
    bool showsThread() const { return m_showsThread; }
    /// What stands before the text of a row: time, thread; empty for neither.
    QString prefixOf(int row) const;
    QString textOf(int row) const;
    /// The whole line as it was written, with what stands before it.
    QString copyOf(int row) const;
    LogKind kindOf(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

signals:
    /// Lines have come, or are shown; once per piece.
    void advanced();

private:
    void takeNews();
    void work();
    bool workOnce();
    void adopt(LogChunk&& chunk);
    void note(const LogChunk& chunk, std::uint64_t first);
    void removeRowsBefore(std::uint64_t line);
    void refreshRows();

    LogStore m_store;
    LogRows m_rows;
    std::deque<LogChunk> m_arrived;
    std::array<std::uint64_t, LogKinds> m_counts{};
    QString m_firstError;
    std::uint64_t m_newErrors = 0;
    std::uint64_t m_firstErrorLine = 0;
    QTimer m_work;
    QTimer m_quiet; // ends lines that nobody goes on with
    bool m_showsTime = false;
    bool m_showsThread = false;
    LogInbox m_inbox;
};

} // namespace profiler

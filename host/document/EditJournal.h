// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/files/SceneRecords.h>

#include <QFile>
#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class SoField;

namespace scopix
{

/// What a field holds now: a text, or one with a long value in the middle, of which the thread makes text.
struct FieldRecord {
    std::string text;
    std::shared_ptr<const SoField> value; // or null
    std::string rest;
};

/// A file to which the edits of a scene are appended, beside a snapshot of that scene: losing the program
/// then loses the edits of a second, however large the scene is. A record that is torn, since the end came
/// while it was written, ends the journal; so does one that is damaged. GUI thread only; a thread writes.
class EditJournal : public QObject
{
    Q_OBJECT

public:
    explicit EditJournal(QObject* parent = nullptr);
    /// Waits for what is being written.
    ~EditJournal() override;

    /// Begins a new journal in this file, for the snapshot that has this id.
    void begin(const QString& path, const QByteArray& snapshotId);
    void append(std::vector<FieldRecord> records);
    /// How much was written since begin().
    qint64 getSize() const { return m_file ? m_file->size.load() : 0; }
    /// Until all is on the disk, or cannot be written.
    void wait();

    /// What is in the journal of that snapshot; nothing where the file belongs to another one.
    static xsg::SceneRecords read(const QString& path, const QByteArray& snapshotId);

signals:
    /// The reason, as the end of a sentence; once for each journal.
    void failed(const QString& reason);

private:
    struct Target {
        QFile file;
        bool hasFailed = false; // what would follow is of no use without what is missing
        std::atomic<qint64> size{0};
    };
    void write(std::function<QByteArray()> makeBytes);
    static bool writeTo(Target& target, const QByteArray& bytes);

    std::shared_ptr<Target> m_file; // used by the thread alone, after begin()
    QThreadPool m_thread;           // one
};

} // namespace scopix

// SPDX-License-Identifier: MIT
#include "document/EditJournal.h"

#include "support/CatchExceptions.h"

#include <scopix/SpxSentence.h>
#include <xsg/core/SoField.h>

#include <QCryptographicHash>

#include <unistd.h>

namespace scopix
{

namespace
{

constexpr auto FirstLine = "#Xsg journal V1 of ";
constexpr int ChecksumDigits = 16;
constexpr qint64 LongestJournal = qint64{1} << 30;

QByteArray checksum(const QByteArray& text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Sha1).toHex().left(ChecksumDigits);
}

std::string textOf(const FieldRecord& record)
{
    SbString value;
    if (record.value)
        record.value->get(value);
    return record.value ? record.text + value.str() + record.rest : record.text;
}

QByteArray framed(const std::string& text)
{
    const QByteArray bytes = QByteArray::fromStdString(text);
    return QByteArray::number(bytes.size()) + ' ' + checksum(bytes) + '\n' + bytes + '\n';
}

// Null at the end, or where the file is torn or damaged.
QByteArray nextRecord(QFile& file)
{
    const QList<QByteArray> head = file.readLine(64).split(' ');
    bool isNumber = false;
    const qint64 size = head.value(0).toLongLong(&isNumber);
    if (head.size() != 2 || !isNumber || size <= 0 || size > file.bytesAvailable())
        return {};
    const QByteArray text = file.read(size);
    return text.size() == size && head.at(1) == checksum(text) + '\n' && file.read(1) == "\n" ? text
                                                                                              : QByteArray();
}

} // namespace

EditJournal::EditJournal(QObject* parent)
    : QObject(parent)
{
    m_thread.setMaxThreadCount(1); // so that all is written in its order
}

EditJournal::~EditJournal()
{
    wait();
}

void EditJournal::begin(const QString& path, const QByteArray& snapshotId)
{
    m_file = std::make_shared<Target>();
    m_file->file.setFileName(path);
    write([line = FirstLine + snapshotId + '\n'] { return line; });
}

void EditJournal::append(std::vector<FieldRecord> records)
{
    write([records = std::move(records)] {
        QByteArray bytes;
        for (const FieldRecord& record : records)
            bytes += framed(textOf(record));
        return bytes;
    });
}

void EditJournal::write(std::function<QByteArray()> makeBytes)
{
    m_thread.start([this, target = m_file, makeBytes = std::move(makeBytes)] {
        bool good = target->hasFailed;
        const QString problem = catchExceptions([&] { good = good || writeTo(*target, makeBytes()); });
        if (good)
            return;
        target->hasFailed = true;
        const QString reason = problem.isEmpty() ? SpxSentence::ofFileError(target->file) : problem;
        QMetaObject::invokeMethod(
            this, [this, reason] { emit failed(reason); }, Qt::QueuedConnection);
    });
}

bool EditJournal::writeTo(Target& target, const QByteArray& bytes)
{
    QFile& file = target.file;
    if (!file.isOpen() && !file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    target.size += bytes.size();
    return file.write(bytes) == bytes.size() && file.flush() && fdatasync(file.handle()) == 0;
}

void EditJournal::wait()
{
    m_thread.waitForDone();
}

xsg::SceneRecords EditJournal::read(const QString& path, const QByteArray& snapshotId)
{
    xsg::SceneRecords records;
    QFile file(path);
    if (snapshotId.isEmpty() || !file.open(QIODevice::ReadOnly) || file.size() > LongestJournal ||
        file.readLine(256) != FirstLine + snapshotId + '\n')
        return records;
    for (QByteArray text = nextRecord(file); !text.isNull(); text = nextRecord(file))
        records.add(text.toStdString());
    return records;
}

} // namespace scopix

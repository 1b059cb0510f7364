// SPDX-License-Identifier: MIT
#include "document/FileStamp.h"

#include <QCryptographicHash>
#include <QFile>

#include <atomic>
#include <future>
#include <system_error>

namespace scopix
{

namespace
{

constexpr qint64 BlockBytes = 1 << 20;

bool isSame(const timespec& one, const timespec& other)
{
    return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

// Nothing has been done to the file.
bool isUntouched(const struct stat& one, const struct stat& other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino && one.st_size == other.st_size &&
           isSame(one.st_mtim, other.st_mtim) && isSame(one.st_ctim, other.st_ctim);
}

bool readAbout(const QString& path, struct stat& about)
{
    return stat(QFile::encodeName(path).constData(), &about) == 0;
}

// Empty where it cannot be read, or is not the file that it was.
QByteArray checksumOf(const QString& path, const struct stat& expected, const std::atomic<bool>& isCancelled)
{
    QFile file(path);
    struct stat about {
    };
    if (!S_ISREG(expected.st_mode) || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    QCryptographicHash hash(QCryptographicHash::Sha1);
    QByteArray block;
    do {
        block = file.read(BlockBytes);
        hash.addData(block);
    } while (!block.isEmpty() && !isCancelled);
    const bool isWhole = file.error() == QFileDevice::NoError && !isCancelled;
    return isWhole && readAbout(path, about) && isUntouched(about, expected) ? hash.result() : QByteArray();
}

} // namespace

/// A checksum that a thread computes; the thread ends soon when nobody wants it any more.
class FileStamp::Checksum
{
public:
    Checksum(const QString& path, const struct stat& about)
    {
        try {
            m_result = std::async(std::launch::async, [this, path, about] {
                           return checksumOf(path, about, m_isCancelled);
                       }).share();
        } catch (const std::system_error&) {
            // There is no thread to be had: the file is judged by its size and its time.
        }
    }
    ~Checksum() { m_isCancelled = true; }
    Checksum(const Checksum&) = delete;
    Checksum& operator=(const Checksum&) = delete;

    QByteArray get() const { return m_result.valid() ? m_result.get() : QByteArray(); }

private:
    std::atomic<bool> m_isCancelled{false};
    std::shared_future<QByteArray> m_result; // before the flag is gone, its destructor waits for the thread
};

FileStamp::FileStamp(const QString& path)
{
    m_isOfFile = readAbout(path, m_about);
    if (m_isOfFile)
        m_checksum = std::make_shared<Checksum>(path, m_about);
}

void FileStamp::complete() const
{
    if (m_checksum)
        m_checksum->get();
}

FileStamp::Difference FileStamp::compare(const QString& path)
{
    struct stat now {
    };
    if (!readAbout(path, now))
        return m_isOfFile ? Difference::Deleted : Difference::None;
    if (!m_isOfFile || now.st_size != m_about.st_size)
        return Difference::Changed;
    if (isUntouched(now, m_about))
        return Difference::None;
    const std::atomic<bool> isCancelled{false};
    const QByteArray before = m_checksum->get();
    const bool isSameContent = before.isEmpty()
                                   ? isSame(now.st_mtim, m_about.st_mtim) && now.st_ino == m_about.st_ino
                                   : before == checksumOf(path, now, isCancelled);
    if (!isSameContent)
        return Difference::Changed;
    m_about = now; // so that it need not be read again
    return Difference::None;
}

} // namespace scopix

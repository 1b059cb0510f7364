// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>
#include <optional>

namespace scopix
{

/// What is remembered of plug-in libraries from one start to the next: a small file for each library, so that
/// two programs that start at once never write over one another's. A folder that cannot be written to means
/// that nothing is remembered, and no error. GUI thread only.
class PluginRecords
{
public:
    /// Of one library, as long as the file stays what it was.
    struct Record {
        bool isQuarantined = false;
        QString reason; // of the quarantine, as the end of a sentence about "it"
    };

    /// A library that is being loaded. When a process ends before it has destroyed this, others see that it
    /// did.
    class Start
    {
    public:
        ~Start();
        Start(const Start&) = delete;
        Start& operator=(const Start&) = delete;

    private:
        friend class PluginRecords;
        Start(QByteArray path, int descriptor);
        const QByteArray m_path;
        const int m_descriptor;
    };

    explicit PluginRecords(QString folder);
    static QString standardFolder();

    /// Nothing where the file was never recorded or is not the same any more: its size, times, place on the
    /// disk, or the version of this program.
    std::optional<Record> find(const QString& library) const;
    void write(const QString& library, const Record& record) const;
    void forget(const QString& library) const;

    /// Null where nothing can be remembered, or another program is loading it right now.
    std::unique_ptr<Start> begin(const QString& library) const;
    /// A process has ended while it was loading the library as it is now. True once: what remembers it is
    /// removed.
    bool takeBrokenStart(const QString& library) const;

private:
    QString pathFor(const QString& library, const char* suffix) const;

    QString m_folder;
};

} // namespace scopix

// SPDX-License-Identifier: MIT
#pragma once

#include "table/TableSession.h"

namespace xsg
{
class FileReplacement;
}

namespace inspector
{

/// Lists as files of comma-separated values, in UTF-8, with the headings in the first line. Long files are
/// read and written in pieces, and can be cancelled; then, and where anything is wrong, nothing has changed.
class TableFile : public QObject
{
    Q_OBJECT

public:
    explicit TableFile(TableSession& session);

    /// What is shown, in its order; they ask for the file.
    void write();
    void read();

    /// In one step: the file is the old one until all of it is written. With tabs where the name ends in
    /// .tsv. Refused, with a sentence, for another ending than .csv, .tsv and .txt, for what is no regular
    /// file, and for a file that nobody may write to.
    bool writeTo(const QString& path);
    /// The file's rows take the place of all values, as one step. Commas, semicolons and tabs separate.
    bool readFrom(const QString& path);

private:
    bool fail(const QString& sentence);
    bool refuse(const QString& path, const QString& why);
    bool writeRows(const QString& path, xsg::FileReplacement& file, std::uint32_t version);

    TableSession& m_session;
};

} // namespace inspector

// SPDX-License-Identifier: MIT
#pragma once

#include "table/TableSession.h"

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

    /// A sentence is said where it fails.
    bool writeTo(const QString& path);
    /// The file's rows take the place of all values, as one step. Commas, semicolons and tabs separate.
    bool readFrom(const QString& path);

private:
    bool fail(const QString& sentence);

    TableSession& m_session;
};

} // namespace inspector

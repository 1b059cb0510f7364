// SPDX-License-Identifier: MIT
#include "table/TableFile.h"

#include "table/BlockText.h"
#include "table/PieceWork.h"

#include <scopix/SpxSentence.h>
#include <xsg/support/FileReplacement.h>
#include <xsg/support/SpecialFile.h>

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QTextStream>

namespace inspector
{

namespace
{

constexpr int RowsAtOnce = 2048;
constexpr qint64 CharactersAtOnce = 65536;

// The first line shows which it is; a tab is never part of a number or a heading.
QChar separatorOf(const QString& start)
{
    const QString line = start.section('\n', 0, 0);
    for (const QChar separator : {QChar('\t'), QChar(';')}) {
        if (line.contains(separator))
            return separator;
    }
    return ',';
}

// The first one is added where a name has none.
QStringList endings()
{
    return {QStringLiteral("csv"), QStringLiteral("tsv"), QStringLiteral("txt")};
}

QString filterText()
{
    return QCoreApplication::translate("TableFile",
                                       "Comma-separated values (*.csv *.tsv *.txt);;All files (*)");
}

std::string encodedPath(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

// Takes the rows of a file into a list.
class RowTaker
{
public:
    RowTaker(const ListAccess& access, SoMField& values)
        : m_access(access)
        , m_values(values)
        , m_columns(access.columnCount())
    {
    }

    // A first row that holds no value is the headings.
    bool take(const QStringList& row)
    {
        ++m_line;
        const bool isEmpty = row.size() == 1 && row.front().isEmpty() && m_columns > 1;
        if (isEmpty)
            return true;
        const int at = m_values.getNum();
        if (row.size() != m_columns) {
            m_problem = QCoreApplication::translate("TableFile", "has %1 columns and not %2")
                            .arg(row.size())
                            .arg(m_columns);
            return m_line == 1 && isHeading(row);
        }
        reserve(at);
        for (int column = 0; column < m_columns; ++column) {
            if (m_access.setText(m_values, m_count, column, row[column]))
                continue;
            m_problem = QCoreApplication::translate("TableFile", "holds “%1”, which is no value of this list")
                            .arg(row[column].left(60));
            return m_line == 1;
        }
        if (m_line == 1 && isHeading(row))
            return true;
        ++m_count;
        return true;
    }
    // Growing one by one would notify for each.
    void finish() { m_values.setNum(m_count); }
    const QString& problem() const { return m_problem; }
    int line() const { return m_line; }

private:
    bool isHeading(const QStringList& row) const { return row == m_access.headings(); }
    void reserve(int at)
    {
        if (m_count >= at)
            m_values.setNum(at + std::max(at / 2, 1024));
    }

    const ListAccess& m_access;
    SoMField& m_values;
    const int m_columns;
    int m_count = 0;
    int m_line = 0;
    QString m_problem;
};

} // namespace

TableFile::TableFile(TableSession& session)
    : QObject(&session)
    , m_session(session)
{
}

bool TableFile::fail(const QString& sentence)
{
    emit m_session.said(sentence);
    return false;
}

void TableFile::write()
{
    QFileDialog dialog(&m_session.view, tr("Write CSV"), QString(), filterText());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(endings().front());
    if (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty())
        writeTo(dialog.selectedFiles().front());
}

void TableFile::read()
{
    const QString path =
        QFileDialog::getOpenFileName(&m_session.view, tr("Read CSV"), QString(), filterText());
    if (!path.isEmpty())
        readFrom(path);
}

bool TableFile::refuse(const QString& path, const QString& why)
{
    return fail(
        tr("“%1” could not be written: %2; choose another file.").arg(QFileInfo(path).fileName(), why));
}

bool TableFile::writeTo(const QString& path)
{
    emit m_session.said({});
    if (!m_session.list())
        return false;
    const std::string encoded = encodedPath(path);
    if (xsg::isOfAnotherKind(encoded, {"csv", "tsv", "txt"}))
        return refuse(path, tr("its name was expected to end in .%1").arg(endings().join(", .")));
    if (const SbSentence why = xsg::reasonAgainstReplacing(encoded); !why.empty())
        return refuse(path, SpxSentence::translated(why));
    xsg::FileReplacement file(encoded);
    if (!file.open())
        return refuse(path, SpxSentence::translated(file.getProblem()));
    const SoMField* list = m_session.list();
    const std::uint32_t version = list->getChangeCount();
    const bool isWritten = writeRows(path, file, version);
    if (m_session.list() != list || list->getChangeCount() != version)
        return fail(tr("“%1” was not written, since the list was changed meanwhile; try again.")
                        .arg(QFileInfo(path).fileName()));
    if (!isWritten && file.getProblem().empty())
        return false; // cancelled
    return (isWritten && file.commit()) || refuse(path, SpxSentence::translated(file.getProblem()));
}

bool TableFile::writeRows(const QString& path, xsg::FileReplacement& file, std::uint32_t version)
{
    const SoMField* list = m_session.list();
    const TableRows& rows = m_session.rows();
    const int columns = rows.columnCount();
    const int total = rows.count();
    const QChar separator = QFileInfo(path).suffix().toLower() == QLatin1String("tsv") ? '\t' : ',';
    int row = -1; // the headings
    return PieceWork::run(
        &m_session.view, tr("Writing “%1”…").arg(QFileInfo(path).fileName()), [&]() -> PieceWork::Progress {
            if (m_session.list() != list || list->getChangeCount() != version)
                return {0, 1, true};
            QString text;
            for (int i = 0; i < RowsAtOnce && row < total; ++i, ++row) {
                for (int column = 0; column < columns; ++column) {
                    if (column > 0)
                        text += separator;
                    BlockText::appendCell(text, row < 0 ? rows.heading(column) : rows.text(row, column),
                                          separator);
                }
                text += '\n';
            }
            const QByteArray bytes = text.toUtf8();
            const bool isTaken = file.write({bytes.constData(), std::size_t(bytes.size())});
            return {row, total, !isTaken};
        });
}

bool TableFile::readFrom(const QString& path)
{
    emit m_session.said({});
    if (!m_session.list())
        return false;
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (xsg::isSpecialFile(encodedPath(path)))
        return fail(tr("“%1” could not be read: it is no regular file; choose another one.").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return fail(tr("“%1” could not be read: %2; choose a file that you may read.")
                        .arg(name, SpxSentence::ofFileError(file)));
    QTextStream in(&file);
    in.setCodec("UTF-8");
    const SoMField* list = m_session.list();
    const std::unique_ptr<SoMField> values = list->makeSlice();
    RowTaker taker(m_session.access(), *values);
    QString piece = in.read(CharactersAtOnce);
    BlockText::Reader reader(separatorOf(piece), [&](const QStringList& row) { return taker.take(row); });
    bool isRefused = false;
    const bool isRead =
        PieceWork::run(&m_session.view, tr("Reading “%1”…").arg(name), [&]() -> PieceWork::Progress {
            isRefused = !reader.feed(piece);
            piece = in.read(CharactersAtOnce);
            if (piece.isEmpty())
                isRefused = isRefused || !reader.finish();
            const bool isGone = m_session.list() != list;
            const qint64 size = std::max<qint64>(file.size(), 1);
            return {piece.isEmpty() ? size : std::min(file.pos(), size - 1), size, isRefused || isGone};
        });
    if (isRefused)
        return fail(tr("“%1” was not read, since line %2 %3; correct the file and try again.")
                        .arg(name)
                        .arg(taker.line())
                        .arg(taker.problem()));
    if (!isRead || m_session.list() != list)
        return false;
    taker.finish();
    return m_session.report(m_session.writer.replaceRows(0, list->getNum(), *values));
}

} // namespace inspector

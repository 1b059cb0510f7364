// SPDX-License-Identifier: MIT
#include "reader/FormatChecks.h"

#include "model/FileChecks.h"
#include "model/TranslatedSentence.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QList>

#include <algorithm>
#include <limits>

namespace scopix
{

namespace
{

constexpr int LongestLine = 4096;
constexpr int MostHeaderLines = 1000;
constexpr qint64 BlockSize = 1 << 20;

QString tr(const char* text)
{
    return QCoreApplication::translate("FileChecks", text);
}

// What the header says of what follows it.
struct Header {
    bool isText = false;
    bool isComplete = false;
    qint64 entries = 0; // one line each, in a text
    qint64 bytes = 0;   // at least, otherwise
    QString reason;     // why it is none
};

int sizeOfType(const QByteArray& type)
{
    static const QHash<QByteArray, int> sizes{{"char", 1},  {"uchar", 1},   {"int8", 1},   {"uint8", 1},
                                              {"short", 2}, {"ushort", 2},  {"int16", 2},  {"uint16", 2},
                                              {"int", 4},   {"uint", 4},    {"int32", 4},  {"uint32", 4},
                                              {"float", 4}, {"float32", 4}, {"double", 8}, {"float64", 8}};
    return sizes.value(type, 0);
}

Header readHeader(QFile& file)
{
    Header header;
    qint64 count = 0;
    if (file.readLine(LongestLine).trimmed() != "ply") {
        header.reason = tr("it is no PLY file, which starts with the line “ply”");
        return header;
    }
    for (int i = 0; i < MostHeaderLines && !file.atEnd() && !header.isComplete; ++i) {
        const QList<QByteArray> words = file.readLine(LongestLine).simplified().split(' ');
        const QByteArray& first = words.first();
        header.isComplete = first == "end_header";
        if (first == "format") {
            header.isText = words.value(1) == "ascii";
        } else if (first == "element") {
            bool isNumber = false;
            count = words.value(2).toLongLong(&isNumber);
            if (!isNumber || count < 0 || count > std::numeric_limits<int>::max()) {
                header.reason =
                    tr("its line “%1” should end in a count").arg(QString::fromLatin1(words.join(' ')));
                return header;
            }
            header.entries += count;
        } else if (first == "property") {
            header.bytes += count * sizeOfType(words.value(1) == "list" ? words.value(2) : words.value(1));
        }
    }
    if (!header.isComplete)
        header.reason = tr("its header does not end in the line “end_header”");
    return header;
}

qint64 countLines(QFile& file)
{
    qint64 lines = 0;
    bool endsInside = false;
    while (!file.atEnd()) {
        const QByteArray block = file.read(BlockSize);
        if (block.isEmpty())
            break;
        lines += std::count(block.begin(), block.end(), '\n');
        endsInside = !block.endsWith('\n');
    }
    return lines + (endsInside ? 1 : 0);
}

QString reasonAgainst(QFile& file)
{
    const Header header = readHeader(file);
    if (!header.reason.isEmpty())
        return header.reason;
    const qint64 bytes = file.size() - file.pos();
    if (!header.isText && bytes < header.bytes)
        return tr("%1 bytes follow its header, which announces at least %2").arg(bytes).arg(header.bytes);
    const qint64 lines = header.isText ? countLines(file) : 0;
    if (header.isText && lines < header.entries)
        return tr("%1 lines follow its header, which announces %2").arg(lines).arg(header.entries);
    return {};
}

} // namespace

QString checkPly(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return cannotOpen(path, translatedErrorOf(file));
    const QString reason = reasonAgainst(file);
    return reason.isEmpty() ? QString() : cannotOpen(path, reason);
}

} // namespace scopix

// SPDX-License-Identifier: MIT
#include "CounterXml.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDomDocument>
#include <QTextStream>
#include <QXmlStreamReader>

#include <algorithm>

namespace counterXml
{
namespace
{

constexpr int Indentation = 2;
// QDomDocument copies, saves and destroys by recursion.
constexpr qint64 DeepestLevel = 100;

QString parseError(qint64 line, qint64 column, const QString& message)
{
    return QCoreApplication::translate("PerfCounter", "Parse error at line %1, column %2:\n%3")
        .arg(QString::number(line), QString::number(column), message);
}

bool isTooDeep(const QByteArray& bytes, QString& problem)
{
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    qint64 level = 0;
    while (!reader.atEnd() && level <= DeepestLevel) {
        reader.readNext();
        level += int(reader.isStartElement()) - int(reader.isEndElement());
    }
    // Past an error that the document's own parser might forgive, each "<" may be one level.
    if (reader.hasError())
        level += bytes.mid(int(reader.characterOffset())).count('<');
    if (level <= DeepestLevel)
        return false;
    problem = parseError(reader.lineNumber(), reader.columnNumber(),
                         reader.hasError() ? reader.errorString()
                                           : QCoreApplication::translate(
                                                 "PerfCounter", "elements are nested deeper than %1 levels")
                                                 .arg(DeepestLevel));
    return true;
}

bool parse(const QByteArray& bytes, QDomDocument& document, QString& problem)
{
    QString message;
    int line = 0;
    int column = 0;
    if (isTooDeep(bytes, problem))
        return false;
    if (document.setContent(bytes, true, &message, &line, &column))
        return true;
    problem = parseError(line, column, message);
    return false;
}

// The document is saved in the encoding that it declares, which a file may have in any other; the parser has
// its characters by now. It takes whatever begins with "xml" for a declaration.
void declareUtf8(QDomDocument& document)
{
    const QDomProcessingInstruction declaration = document.firstChild().toProcessingInstruction();
    if (declaration.target().startsWith(QLatin1String("xml"), Qt::CaseInsensitive))
        document.replaceChild(document.createProcessingInstruction(
                                  QStringLiteral("xml"), QStringLiteral("version='1.0' encoding='UTF-8'")),
                              declaration);
}

// XML allows no control characters but these three; the parser takes them, and loses them in what was saved.
bool hasForbiddenCharacters(const QByteArray& saved)
{
    return std::any_of(saved.begin(), saved.end(),
                       [](char c) { return uchar(c) < ' ' && c != '\t' && c != '\n' && c != '\r'; });
}

// Stricter than the document's own parser, which lets an element have two attributes of one name.
bool isWellFormed(const QByteArray& saved)
{
    QXmlStreamReader reader(saved);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

// Each reading takes a prefix off that nothing declares, until nothing of such a name is left.
bool isBrokenName(const QDomNode& node)
{
    return node.localName().isEmpty() || node.localName().contains(QLatin1Char(':'));
}

bool hasBrokenName(const QDomNode& node)
{
    const QDomNamedNodeMap attributes = node.attributes();
    bool isBroken = node.isElement() && isBrokenName(node);
    for (int i = 0; i < attributes.size() && !isBroken; ++i)
        isBroken = isBrokenName(attributes.item(i));
    return isBroken;
}

// Whether anything in it reads otherwise once it was saved. The parser may skip an entity that nothing
// declares in one place and refuse it in another.
bool isUnstable(const QDomNode& node)
{
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isEntityReference() || hasBrokenName(child) || isUnstable(child))
            return true;
    }
    return false;
}

} // namespace

bool read(const QByteArray& bytes, QDomDocument& document, QString& problem)
{
    if (!parse(bytes, document, problem))
        return false;
    declareUtf8(document);
    QBuffer saved;
    saved.open(QIODevice::WriteOnly);
    write(&saved, document);
    QDomDocument again;
    if (!hasForbiddenCharacters(saved.data()) && isWellFormed(saved.data()) && !isUnstable(document) &&
        parse(saved.data(), again, problem) &&
        again.documentElement().tagName() == document.documentElement().tagName())
        return true;
    problem = QCoreApplication::translate("PerfCounter",
                                          "The file contains XML that would be unreadable once saved.");
    return false;
}

void write(QIODevice* device, const QDomDocument& document)
{
    QTextStream stream(device);
    stream.setCodec("UTF-8");
    document.save(stream, Indentation);
}

} // namespace counterXml

// SPDX-License-Identifier: MIT
#include "CounterXml.h"

#include "ProfileText.h"

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

// Also where no node of the document holds them.
bool hasControlCharacters(const QByteArray& saved)
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

QString brokenNameIn(const QDomNode& node)
{
    const QDomNamedNodeMap attributes = node.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        if (isBrokenName(attributes.item(i)))
            return attributes.item(i).nodeName();
    }
    return node.isElement() && isBrokenName(node) ? node.nodeName() : QString();
}

QString unsavableCharacterIn(const QDomNode& node)
{
    QString texts = node.nodeValue();
    const QDomNamedNodeMap attributes = node.attributes();
    for (int i = 0; i < attributes.size(); ++i)
        texts += attributes.item(i).nodeValue() + QLatin1Char(' '); // halves of two values make no pair
    return profileText::unsavableCharacter(texts);
}

using CauseOf = QString (*)(const QDomNode& node);

QString causeOfCharacter(const QDomNode& node)
{
    const QString character = unsavableCharacterIn(node);
    if (character.isEmpty())
        return {};
    return QCoreApplication::translate("PerfCounter", "the character %1 cannot be saved").arg(character);
}

// The parser may skip an entity that nothing declares in one place and refuse it in another.
QString causeOfUnstable(const QDomNode& node)
{
    if (node.isEntityReference())
        return QCoreApplication::translate("PerfCounter", "the entity \"%1\" is not declared")
            .arg(node.nodeName());
    const QString name = brokenNameIn(node);
    if (!name.isNull())
        return QCoreApplication::translate("PerfCounter", "\"%1\" is not a name that can be saved").arg(name);
    return causeOfCharacter(node);
}

// The first node below this one for which there is a cause; `cause` is empty where there is none.
QDomNode findFlaw(const QDomNode& node, CauseOf causeOf, QString& cause)
{
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        cause = causeOf(child);
        if (!cause.isEmpty())
            return child;
        const QDomNode below = findFlaw(child, causeOf, cause);
        if (!below.isNull())
            return below;
    }
    return {};
}

// Why what was read cannot be kept, at the place that a stricter parser finds fault with, else that of the
// node.
QString flawIn(const QByteArray& bytes, const QDomDocument& document)
{
    QString cause;
    const QDomNode node = findFlaw(document, causeOfUnstable, cause);
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError())
        return parseError(reader.lineNumber(), reader.columnNumber(),
                          cause.isEmpty() ? reader.errorString() : cause);
    return cause.isEmpty() ? QString() : parseError(node.lineNumber(), node.columnNumber(), cause);
}

bool isReadBack(const QDomDocument& document)
{
    QBuffer saved;
    saved.open(QIODevice::WriteOnly);
    write(&saved, document);
    QDomDocument again;
    QString cause;
    return findFlaw(document, causeOfUnstable, cause).isNull() && !hasControlCharacters(saved.data()) &&
           isWellFormed(saved.data()) && parse(saved.data(), again, cause) &&
           again.documentElement().tagName() == document.documentElement().tagName();
}

} // namespace

bool read(const QByteArray& bytes, QDomDocument& document, QString& problem)
{
    if (!parse(bytes, document, problem))
        return false;
    declareUtf8(document);
    if (isReadBack(document))
        return true;
    problem = flawIn(bytes, document);
    if (problem.isEmpty())
        problem = QCoreApplication::translate("PerfCounter",
                                              "The file contains XML that would be unreadable once saved.");
    return false;
}

QString causeOfUnsavable(const QDomDocument& document)
{
    QString cause;
    findFlaw(document, causeOfCharacter, cause);
    return cause;
}

void write(QIODevice* device, const QDomDocument& document)
{
    QTextStream stream(device);
    stream.setCodec("UTF-8");
    document.save(stream, Indentation);
}

} // namespace counterXml

// SPDX-License-Identifier: MIT
#include "CounterProfileFile.h"

#include "CounterText.h"
#include "CounterXml.h"
#include "CustomCounter.h"
#include "SoPerfCounterProfile.h"

#include <scopix/SpxSentence.h>
#include <scopix/editing/SpxText.h>
#include <xsg/core/SoPreferences.h>
#include <xsg/counters/SoPerfCounterManager.h>
#include <xsg/support/FileLock.h>
#include <xsg/support/FileReplacement.h>
#include <xsg/support/SystemReason.h>

#include <QCoreApplication>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QSet>

#include <cerrno>
#include <memory>

#include <sys/stat.h>

namespace counterProfileFile
{
namespace
{

const QLatin1String Root("perfCounterModule");
const QLatin1String CustomCounters("customPC");
const QLatin1String Counter("counter");
const QLatin1String Profiles("profiles");
const QLatin1String Profile("profile");
const QLatin1String ProfileView("profileview");
const QLatin1String ListCounters("listcounters");
const QLatin1String ListView("listview");
const QLatin1String Pc("pc");
const QLatin1String PcViewed("pcviewed");
const QLatin1String Name("name");
const QLatin1String Type("type");

QString translated(const char* text)
{
    return QCoreApplication::translate("PerfCounter", text);
}

QDomElement section(const QDomDocument& document, const QString& name)
{
    return document.documentElement().firstChildElement(name);
}

// The section of this name, made where a hand-written file lacks it.
QDomElement sectionToWrite(QDomDocument& document, const QString& name)
{
    QDomElement found = section(document, name);
    if (found.isNull())
        found = document.documentElement().appendChild(document.createElement(name)).toElement();
    return found;
}

void removeChildren(QDomElement parent, const QString& name)
{
    for (QDomElement child = parent.firstChildElement(name); !child.isNull();) {
        const QDomElement next = child.nextSiblingElement(name);
        parent.removeChild(child);
        child = next;
    }
}

void appendText(QDomElement parent, const QString& name, const QString& text)
{
    QDomDocument document = parent.ownerDocument();
    QDomElement element = document.createElement(name);
    element.appendChild(document.createTextNode(text));
    parent.appendChild(element);
}

QStringList readTexts(const QDomElement& parent, const QString& name)
{
    QStringList texts;
    for (QDomElement e = parent.firstChildElement(name); !e.isNull(); e = e.nextSiblingElement(name))
        texts.append(e.text());
    return texts;
}

void appendTexts(QDomElement parent, const QString& list, const QString& name, const QStringList& texts)
{
    QDomElement element = parent.ownerDocument().createElement(list);
    for (const QString& text : texts)
        appendText(element, name, text);
    parent.appendChild(element);
}

std::string encoded(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

// A pipe would keep who opens it waiting, and a device would take anything. What cannot be opened at all says
// so itself.
bool isNoFile(const QString& path)
{
    struct stat about {
    };
    return stat(encoded(path).c_str(), &about) == 0 && !S_ISREG(about.st_mode) && !S_ISDIR(about.st_mode) &&
           !S_ISSOCK(about.st_mode);
}

// For root every file is writable; one without write permission is still protected on purpose.
QString reasonAgainstTarget(const QString& path)
{
    if (isNoFile(path))
        return translated("It is no regular file");
    const bool isProtected = QFileInfo(path).isFile() && !xsg::reasonAgainstReplacing(encoded(path)).empty();
    return isProtected ? SpxSentence::translated(xsg::systemReason(EACCES)) : QString();
}

// Where the disk takes a part only, the next attempt says why.
bool writeAll(QFile& file, const QByteArray& bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 count = file.write(bytes.constData() + written, bytes.size() - written);
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

QString tryToWrite(const QString& path, const std::function<QByteArray()>& content)
{
    const QString reason = reasonAgainstTarget(path);
    if (!reason.isEmpty())
        return reason;
    const xsg::FileLock lock(encoded(path), xsg::FileLock::Kind::Exclusive);
    if (lock.isBusy())
        return translated("Another program is using it");
    const QByteArray bytes = content();
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text | QIODevice::Unbuffered) &&
        writeAll(file, bytes))
        return {};
    return path.isEmpty() ? translated("No file name specified") : SpxSentence::ofFileError(file);
}

void readCounter(const QDomElement& element, QStringList& leftOut)
{
    const QString type = element.attribute(Type);
    if (type != QLatin1String("A") && type != QLatin1String("S"))
        return;
    const auto text = [&](const char* child) {
        return element.firstChildElement(QLatin1String(child)).text();
    };
    CustomCounter counter;
    counter.name = element.attribute(Name);
    counter.isAccumulation = type == QLatin1String("A");
    counter.description = text("description");
    counter.module = text("module");
    counter.level = text("level").toInt();
    counter.firstParent = text("firstparent");
    counter.secondParent = text("secondparent");
    counter.operation = text("operation");
    for (const QString& counterName : {counter.name, counter.firstParent, counter.secondParent}) {
        if (!isCounterName(counterName)) {
            leftOut.append(beginningOf(counter.name, LongestInLine));
            return;
        }
    }
    counter.registerIt();
}

void appendCounter(QDomElement parent, const CustomCounter& counter)
{
    QDomElement element = parent.ownerDocument().createElement(Counter);
    element.setAttribute(Name, counter.name);
    element.setAttribute(Type, counter.isAccumulation ? QStringLiteral("A") : QStringLiteral("S"));
    const auto text = [&](const char* name, const QString& value) {
        appendText(element, QLatin1String(name), value);
    };
    text("description", counter.description);
    text("module", counter.module);
    text("level", QString::number(counter.level));
    text("firstparent", counter.firstParent);
    text("secondparent", counter.secondParent);
    text("operation", counter.operation);
    parent.appendChild(element);
}

} // namespace

QString defaultPath()
{
    const SbString home = SoPreferences::getString("XSGHOME", "");
    return SpxText::toQString(home) + QStringLiteral("/data/Scopix/PerfCounter.xml");
}

QString dialogFilter()
{
    return translated("XML Files (*.xml)");
}

QString title()
{
    return translated("Performance counter profile");
}

QString openToRead(QFile& file)
{
    if (isNoFile(file.fileName()))
        return translated("It is no regular file");
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString() : SpxSentence::ofFileError(file);
}

bool parse(QIODevice* device, QDomDocument& document, QString& problem)
{
    // Parsed aside first, since a failed parse leaves what it has read so far in every document that shares
    // the tree.
    QDomDocument parsed;
    // A device that cannot be opened is an empty one; the caller has said so.
    const auto* file = qobject_cast<QFile*>(device);
    const bool canBeOpened = !file || !isNoFile(file->fileName());
    const bool isOpen = device->isOpen() || (canBeOpened && device->open(QIODevice::ReadOnly));
    if (!counterXml::read(isOpen ? device->readAll() : QByteArray(), parsed, problem))
        return false;
    if (parsed.documentElement().tagName() != Root) {
        problem = translated("The file does not contain information about performance counters.");
        return false;
    }
    replace(document, parsed);
    return true;
}

void replace(QDomDocument& document, const QDomDocument& by)
{
    while (document.hasChildNodes())
        document.removeChild(document.firstChild());
    for (QDomNode node = by.firstChild(); !node.isNull(); node = node.nextSibling())
        document.appendChild(document.importNode(node, true));
}

bool readDocument(QIODevice* device, QDomDocument& document, QWidget* parent)
{
    QString problem;
    if (parse(device, document, problem))
        return true;
    QMessageBox::information(parent, title(), problem);
    return false;
}

void writeDocument(QIODevice* device, const QDomDocument& document)
{
    if (device->isWritable()) // a file that could not be opened is not
        counterXml::write(device, document);
}

QString reasonAgainstName(const QString& path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    return ending.isEmpty() || ending == QLatin1String("xml")
               ? QString()
               : translated("Its name was expected to end in .xml");
}

bool writeFile(const QString& path, const std::function<QByteArray()>& content, const QString& flaw,
               QWidget* parent)
{
    const QString reason = flaw.isEmpty() ? tryToWrite(path, content) : flaw;
    if (reason.isEmpty())
        return true;
    QMessageBox::warning(parent, title(), translated("Cannot write file %1:\n%2.").arg(path, reason));
    return false;
}

void initDocument(QIODevice* device, QDomDocument& document)
{
    document = QDomDocument();
    const QDomNode declaration = document.createProcessingInstruction(
        QStringLiteral("xml"), QStringLiteral("version='1.0' encoding='UTF-8'"));
    document.insertBefore(declaration, document.firstChild());
    QDomElement root = document.createElement(Root);
    document.appendChild(root);
    for (const QLatin1String name : {CustomCounters, Profiles, ProfileView})
        root.appendChild(document.createElement(name));
    writeDocument(device, document);
}

QStringList readCustomCounters(const QDomDocument& document)
{
    QStringList leftOut;
    for (const QDomElement& element : childrenOf(document, Section::Counters))
        readCounter(element, leftOut);
    return leftOut;
}

void reportLeftOut(const QStringList& counters, QWidget* parent)
{
    if (counters.isEmpty())
        return;
    const QString text = translated("Custom counters are left out whose names, or those of what they are "
                                    "computed from, have characters beyond Latin-1: %1.");
    QMessageBox::information(parent, title(), text.arg(beginningOf(counters.join(QStringLiteral(", ")))));
}

void writeCustomCounters(QDomDocument& document)
{
    const QDomElement all = sectionToWrite(document, CustomCounters);
    removeChildren(all, Counter);
    for (const SoPerfCounter* counter : SoPerfCounterManager::getInstance()->getCounters()) {
        if (counter->isCustom() && counter->isEnabled())
            appendCounter(all, CustomCounter::of(*counter));
    }
}

QList<QDomElement> childrenOf(const QDomDocument& document, Section kind)
{
    const bool isCounters = kind == Section::Counters;
    const QString name = isCounters ? Counter : Profile;
    const QDomElement all = section(document, isCounters ? CustomCounters : Profiles);
    QList<QDomElement> children;
    for (QDomElement e = all.firstChildElement(name); !e.isNull(); e = e.nextSiblingElement(name))
        children.append(e);
    return children;
}

void appendCopy(QDomDocument& document, Section kind, const QDomElement& element)
{
    sectionToWrite(document, kind == Section::Counters ? CustomCounters : Profiles)
        .appendChild(document.importNode(element, true));
}

QStringList readCounters(const QDomElement& profile)
{
    return readTexts(profile.firstChildElement(ListCounters), Pc);
}

QStringList readView(const QDomElement& profile)
{
    return readTexts(profile.firstChildElement(ListView), PcViewed);
}

void writeLists(QDomElement profile, const QStringList& counters, const QStringList& view)
{
    removeChildren(profile, ListCounters);
    removeChildren(profile, ListView);
    appendTexts(profile, ListCounters, Pc, counters);
    appendTexts(profile, ListView, PcViewed, view);
}

QList<SoPerfCounterProfile*> readProfiles(const QDomDocument& document)
{
    QList<SoPerfCounterProfile*> profiles;
    for (const QDomElement& element : childrenOf(document, Section::Profiles)) {
        auto profile = std::make_unique<SoPerfCounterProfile>(element.attribute(Name));
        *profile->getList() = readCounters(element);
        *profile->getView() = readView(element);
        profiles.append(profile.release());
    }
    return profiles;
}

void writeProfiles(QDomDocument& document, const QList<SoPerfCounterProfile*>& profiles)
{
    QDomElement all = sectionToWrite(document, Profiles);
    removeChildren(all, Profile);
    for (const SoPerfCounterProfile* profile : profiles) {
        QDomElement element = document.createElement(Profile);
        element.setAttribute(Name, profile->getName());
        writeLists(element, *profile->getList(), *profile->getView());
        all.appendChild(element);
    }
}

bool readViewedProfile(const QDomDocument& document, QString& name)
{
    name = section(document, ProfileView).attribute(Name);
    return !section(document, ProfileView).isNull();
}

void writeView(QDomDocument& document, const SoPerfCounterProfile& profile)
{
    const QDomElement all = sectionToWrite(document, Profiles);
    QDomElement element = all.firstChildElement(Profile);
    while (!element.isNull() && element.attribute(Name) != profile.getName())
        element = element.nextSiblingElement(Profile);
    if (!element.isNull()) {
        QDomElement view = element.firstChildElement(ListView);
        if (view.isNull())
            view = element.appendChild(document.createElement(ListView)).toElement();
        const QSet<QString> wanted(profile.getView()->begin(), profile.getView()->end());
        QSet<QString> present;
        for (QDomElement e = view.lastChildElement(PcViewed); !e.isNull();) {
            const QDomElement before = e.previousSiblingElement(PcViewed);
            if (wanted.contains(e.text()))
                present.insert(e.text());
            else
                view.removeChild(e);
            e = before;
        }
        for (const QString& name : *profile.getView()) {
            if (present.contains(name))
                continue;
            present.insert(name);
            appendText(view, PcViewed, name);
        }
    }
    sectionToWrite(document, ProfileView).setAttribute(Name, profile.getName());
}

} // namespace counterProfileFile

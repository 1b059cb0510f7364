// SPDX-License-Identifier: MIT
#include "CounterProfileFile.h"

#include "CounterText.h"
#include "CounterXml.h"
#include "CustomCounter.h"
#include "SoPerfCounterProfile.h"

#include <scopix/editing/SpxText.h>
#include <xsg/core/SoPreferences.h>
#include <xsg/counters/SoPerfCounterManager.h>

#include <QCoreApplication>
#include <QDomDocument>
#include <QFile>
#include <QMessageBox>
#include <QSet>

#include <memory>

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

void readTexts(const QDomElement& parent, const QString& name, QList<QString>& texts)
{
    for (QDomElement e = parent.firstChildElement(name); !e.isNull(); e = e.nextSiblingElement(name))
        texts.append(e.text());
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

bool parse(QIODevice* device, QDomDocument& document, QString& problem)
{
    // Parsed aside first, since a failed parse leaves what it has read so far in every document that shares
    // the tree.
    QDomDocument parsed;
    // A device that cannot be opened is an empty one; the caller has said so.
    const bool isOpen = device->isOpen() || device->open(QIODevice::ReadOnly);
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
    counterXml::write(device, document);
}

bool writeFile(const QString& path, const QByteArray& content, const QString& flaw, QWidget* parent)
{
    QFile file(path);
    QString reason = flaw;
    if (reason.isEmpty()) {
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text) &&
            file.write(content) == content.size() && file.flush())
            return true;
        reason = path.isEmpty() ? translated("No file name specified") : file.errorString();
    }
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
    const QDomElement all = section(document, CustomCounters);
    for (QDomElement e = all.firstChildElement(Counter); !e.isNull(); e = e.nextSiblingElement(Counter))
        readCounter(e, leftOut);
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

QList<SoPerfCounterProfile*> readProfiles(const QDomDocument& document)
{
    QList<SoPerfCounterProfile*> profiles;
    const QDomElement all = section(document, Profiles);
    for (QDomElement e = all.firstChildElement(Profile); !e.isNull(); e = e.nextSiblingElement(Profile)) {
        auto profile = std::make_unique<SoPerfCounterProfile>(e.attribute(Name));
        readTexts(e.firstChildElement(ListCounters), Pc, *profile->getList());
        readTexts(e.firstChildElement(ListView), PcViewed, *profile->getView());
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
        QDomElement counters = document.createElement(ListCounters);
        for (const QString& name : *profile->getList())
            appendText(counters, Pc, name);
        QDomElement view = document.createElement(ListView);
        for (const QString& name : *profile->getView())
            appendText(view, PcViewed, name);
        element.appendChild(counters);
        element.appendChild(view);
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

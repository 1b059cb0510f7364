// SPDX-License-Identifier: MIT
#include "console/LogTargets.h"

#include <scopix/SpxNavigator.h>
#include <scopix/SpxSceneServices.h>

#include <QFileInfo>
#include <QRegularExpression>

#include <xsg/paths/SoScenePath.h>

namespace profiler
{

namespace
{

// Looking for a name walks the scene: a line of a thousand words must not do it a thousand times.
constexpr int MostCandidates = 24;
constexpr int MostTargets = 8;
constexpr int LongestLine = 4000;
constexpr int LongestName = 1000;

void add(QList<QString>& names, const QString& name)
{
    if (!name.isEmpty() && name.size() <= LongestName && !names.contains(name))
        names += name;
}

QString withoutPunctuation(QString word)
{
    static const QString Opening = QStringLiteral("([{<'`“‘„");
    static const QString Closing = QStringLiteral(")]}>'`”’,;:.!?");
    while (!word.isEmpty() && Opening.contains(word.front()))
        word.remove(0, 1);
    while (!word.isEmpty() && Closing.contains(word.back()) &&
           !(word.endsWith(QLatin1Char(']')) && word.contains(QLatin1Char('['))))
        word.chop(1);
    return word;
}

QString withoutPlace(const QString& name)
{
    static const QRegularExpression Place(QStringLiteral("(:\\d+){1,2}$"));
    return QString(name).remove(Place);
}

bool isPathLike(const QString& word)
{
    return word.contains(QLatin1Char('/')) || word.contains(QLatin1Char('.')) ||
           word.contains(QLatin1Char('['));
}

bool isNameLike(const QString& word)
{
    return word.size() > 1 && !word.front().isDigit();
}

void addQuoted(QList<QString>& names, const QString& line)
{
    static const QRegularExpression Quoted(QStringLiteral("„([^“]+)“|“([^”]+)”|\"([^\"]+)\"|'([^']+)'"));
    for (auto each = Quoted.globalMatch(line); each.hasNext();) {
        const QRegularExpressionMatch match = each.next();
        add(names, match.captured(match.lastCapturedIndex()));
    }
}

bool isFile(const QString& name)
{
    const QFileInfo file(name);
    return file.isFile() && file.isReadable();
}

bool look(const QString& name, const SpxNavigator& navigator, LogTarget& target)
{
    const QString file = withoutPlace(name);
    if (isPathLike(file) && isFile(file))
        target = {LogTarget::Kind::File, QFileInfo(file).absoluteFilePath()};
    else if (navigator.findNode(name))
        target = {LogTarget::Kind::Node, name};
    else if (navigator.findField(name))
        target = {LogTarget::Kind::Field, name};
    else
        return false;
    return true;
}

} // namespace

QList<QString> LogTargets::candidatesIn(const QString& text)
{
    const QString line = text.left(LongestLine);
    QList<QString> names;
    addQuoted(names, line);
    QList<QString> plain;
    for (const QString& each : line.simplified().split(QLatin1Char(' '))) {
        const QString word = withoutPunctuation(each);
        add(isPathLike(word) ? names : plain, word);
    }
    for (const QString& word : qAsConst(plain)) {
        if (isNameLike(word))
            add(names, word);
    }
    return names.mid(0, MostCandidates);
}

QList<LogTarget> LogTargets::find(const QString& line)
{
    QList<LogTarget> targets;
    const SpxNavigator* navigator = SpxNavigator::getInstance();
    if (!navigator)
        return targets;
    for (const QString& name : candidatesIn(line)) {
        LogTarget target{LogTarget::Kind::Node, {}};
        if (targets.size() < MostTargets && look(name, *navigator, target))
            targets += target;
    }
    return targets;
}

bool LogTargets::goTo(const LogTarget& target)
{
    SpxNavigator* navigator = SpxNavigator::getInstance();
    SpxSceneServices* scene = SpxSceneServices::getInstance();
    if (!navigator)
        return false;
    if (target.kind == LogTarget::Kind::File) {
        const bool isThere = isFile(target.name);
        if (isThere)
            navigator->openFile(target.name);
        return isThere;
    }
    SoNode* node = navigator->findNode(target.name);
    SoField* field = node ? nullptr : navigator->findField(target.name);
    if (scene && node)
        scene->selectNode(node);
    else if (scene && field)
        scene->selectField(field);
    return scene && (node || field);
}

} // namespace profiler

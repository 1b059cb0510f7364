// SPDX-License-Identifier: MIT
#include <scopix-host/CommandLine.h>

#include "app/WindowCommand.h"
#include "commands/CommandTable.h"
#include "live/LiveLaunch.h"
#include "support/Printable.h"
#include "viewport/ToneMappingNames.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("CommandLine", text);
}

QList<QCommandLineOption> options()
{
    QList<QCommandLineOption> all;
    for (const Command::Option& each : windowCommand().options)
        all += QCommandLineOption(QLatin1String(each.name), tr(each.help),
                                  each.value ? tr(each.value) : QString());
    return all;
}

// Options of Qt itself, each followed by a value.
const QStringList& toolkitOptions()
{
    static const QStringList names{QStringLiteral("-platform"), QStringLiteral("-style"),
                                   QStringLiteral("-stylesheet"), QStringLiteral("-display"),
                                   QStringLiteral("-geometry")};
    return names;
}

QStringList withoutToolkitOptions(const QStringList& arguments)
{
    QStringList rest;
    for (int i = 0; i < arguments.size(); ++i) {
        if (toolkitOptions().contains(arguments.at(i)))
            ++i;
        else
            rest += arguments.at(i);
    }
    return rest;
}

// The value of --attach may be left out, which the parser does not know, and all behind --launch is the
// program's.
QStringList takeLive(CommandLine& line, const QStringList& arguments)
{
    QStringList rest;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& each = arguments.at(i);
        if (each == QLatin1String("--launch") && i > 0) {
            line.launch = arguments.mid(i + 1);
            if (line.launch.value(0).isEmpty())
                line.error = tr("--launch expects a program and its arguments, and nothing was given.");
            break;
        }
        if (each == QLatin1String("--attach") && i > 0) {
            line.isAttaching = true;
            // What begins with a dash is the next option.
            if (!arguments.value(i + 1).isEmpty() && !arguments.at(i + 1).startsWith(QLatin1Char('-')))
                line.attach = arguments.at(++i);
        } else if (each.startsWith(QLatin1String("--attach=")) && i > 0) {
            line.isAttaching = true;
            line.attach = each.section(QLatin1Char('='), 1);
        } else {
            rest += each;
        }
    }
    return rest;
}

// What the parser says itself, which Qt's own catalogues translate only where they are installed.
[[maybe_unused]] constexpr const char* OfParser[] = {QT_TRANSLATE_NOOP("CommandLine", "Usage: %1"),
                                                     QT_TRANSLATE_NOOP("CommandLine", "[options]"),
                                                     QT_TRANSLATE_NOOP("CommandLine", "Arguments:")};

void describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription(tr(windowCommand().summary));
    parser.addOptions(options());
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 tr("The scene or model to open; several get a tab each, the first in front. "
                                    "A patch among them is for "
                                    "the one before it."),
                                 QStringLiteral("[FILE...]"));
}

// The part behind the last dot is the field: names of nodes may have dots.
QString takeSelect(CommandLine& line, const QString& value)
{
    const int dot = value.lastIndexOf(QLatin1Char('.'));
    if (dot <= 0 || dot == value.size() - 1)
        return tr("--select expects NODE.FIELD, such as Material.transparency, and not “%1”.").arg(value);
    line.selectNode = value.left(dot);
    line.selectField = value.mid(dot + 1);
    return {};
}

QString takeSize(CommandLine& line, const QString& value)
{
    const QStringList sides = value.toLower().split(QLatin1Char('x'));
    bool isWidth = false;
    bool isHeight = false;
    line.pictureSize = QSize(sides.value(0).toInt(&isWidth), sides.value(1).toInt(&isHeight));
    if (sides.size() == 2 && isWidth && isHeight && !line.pictureSize.isEmpty())
        return {};
    return tr("--size expects WIDTHxHEIGHT, such as 1920x1080, and not “%1”.").arg(value);
}

QString takeTurntable(CommandLine& line, const QString& value)
{
    bool isNumber = false;
    line.turntable = value.toInt(&isNumber);
    if (isNumber && line.turntable > 1)
        return {};
    return tr("--turntable expects a number of pictures, 2 or more, and not “%1”.").arg(value);
}

QString takeToneMapping(CommandLine& line, const QString& value)
{
    line.toneMapping = value;
    if (value.isEmpty() || toneMappingNamed(value))
        return {};
    return tr("--tone-mapping expects none, neutral or filmic, and not “%1”.").arg(value);
}

// What makes no sense without --picture is not silently of no effect.
QString takePicture(CommandLine& line, const QCommandLineParser& parser)
{
    line.picture = parser.value(QStringLiteral("picture"));
    line.transparent = parser.isSet(QStringLiteral("transparent"));
    for (const char* name : {"size", "transparent", "turntable"}) {
        if (line.picture.isEmpty() && parser.isSet(QLatin1String(name)))
            return tr("--%1 says how a picture is made, and --picture OUT.png is missing.")
                .arg(QLatin1String(name));
    }
    QString problem;
    if (parser.isSet(QStringLiteral("size")))
        problem = takeSize(line, parser.value(QStringLiteral("size")));
    if (problem.isEmpty() && parser.isSet(QStringLiteral("turntable")))
        problem = takeTurntable(line, parser.value(QStringLiteral("turntable")));
    return problem;
}

// Without a window there is nothing to take a picture of or to select in.
QString checkSave(const CommandLine& line, const QCommandLineParser& parser)
{
    if (line.save.isEmpty())
        return {};
    if (line.file.isEmpty())
        return tr("--save writes what FILE holds, and no FILE was given.");
    if (!line.others.isEmpty())
        return tr("--save writes what one FILE holds, and %1 were given, the second being “%2”.")
            .arg(QString::number(line.others.size() + 1), line.others.first());
    for (const char* name : {"screenshot", "picture", "select"}) {
        if (parser.isSet(QLatin1String(name)))
            return tr("--save opens no window, so that --%1 cannot be given with it.")
                .arg(QLatin1String(name));
    }
    return {};
}

QString check(CommandLine& line, const QCommandLineParser& parser)
{
    const QStringList files = parser.positionalArguments();
    for (const QCommandLineOption& option : options()) {
        if (!option.valueName().isEmpty() && parser.values(option).contains(QString()))
            return tr("--%1 expects %2, and nothing was given.")
                .arg(option.names().first(), option.valueName());
    }
    if (files.contains(QString()))
        return tr("FILE expects the path of a scene or model, and nothing was given.");
    line.file = files.value(0);
    line.others = files.mid(1);
    if (line.isLive() && (!files.isEmpty() || (line.isAttaching && !line.launch.isEmpty())))
        return tr("Either FILE or one running program can be shown, and more than one of them was given.");
    line.save = parser.value(QStringLiteral("save"));
    QString problem = checkSave(line, parser);
    if (problem.isEmpty())
        problem = takePicture(line, parser);
    if (problem.isEmpty())
        problem = takeToneMapping(line, parser.value(QStringLiteral("tone-mapping")));
    if (!problem.isEmpty())
        return problem;
    const QString select = parser.value(QStringLiteral("select"));
    return select.isEmpty() ? QString() : takeSelect(line, select);
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    CommandLine line;
    QCommandLineParser parser;
    describe(parser);
    const QStringList others = withoutToolkitOptions(takeLive(line, arguments));
    if (!line.error.isEmpty())
        return line;
    if (!parser.parse(others)) {
        line.error = printable(tr("%1 (scopix --help lists the options.)").arg(parser.errorText()));
        return line;
    }
    line.plugins = parser.values(QStringLiteral("plugin"));
    line.profile = parser.value(QStringLiteral("profile"));
    line.screenshot = parser.value(QStringLiteral("screenshot"));
    line.quit = parser.isSet(QStringLiteral("quit"));
    line.listsLive = parser.isSet(QStringLiteral("list-live"));
    line.counters = parser.isSet(QStringLiteral("counters"));
    line.help = parser.isSet(QStringLiteral("help"));
    line.version = parser.isSet(QStringLiteral("version"));
    line.error = printable(check(line, parser));
    return line;
}

QString CommandLine::helpText()
{
    QCommandLineParser parser;
    describe(parser);
    return parser.helpText() + QLatin1Char('\n') +
           tr("Without a window (scopix COMMAND --help says more; a file of such a name is ./NAME):\n%1")
               .arg(QString::fromStdString(commandList()));
}

QString CommandLine::liveText()
{
    return livePrograms();
}

QString CommandLine::versionText()
{
    return QStringLiteral("scopix " SCOPIX_VERSION "\n");
}

} // namespace scopix

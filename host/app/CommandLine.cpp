// SPDX-License-Identifier: MIT
#include <scopix-host/CommandLine.h>

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("CommandLine", text);
}

struct Option {
    const char* name;
    const char* value; // null: a switch
    const char* help;
};

constexpr Option Options[] = {
    {"plugin", "PATH",
     QT_TRANSLATE_NOOP("CommandLine", "Load this plug-in too; may be given several times.")},
    {"profile", "NAME", QT_TRANSLATE_NOOP("CommandLine", "Use this profile in this session.")},
    {"select", "NODE.FIELD",
     QT_TRANSLATE_NOOP("CommandLine", "Select this field; NODE is a node's name or type.")},
    {"screenshot", "OUT.png",
     QT_TRANSLATE_NOOP("CommandLine", "Write a picture of the window and end; needs no display.")},
    {"quit", nullptr, QT_TRANSLATE_NOOP("CommandLine", "End when everything asked for is done.")},
    {"counters", nullptr, QT_TRANSLATE_NOOP("CommandLine", "Switch the performance counters on.")},
    {"help", nullptr, QT_TRANSLATE_NOOP("CommandLine", "Show this text and end.")},
    {"version", nullptr, QT_TRANSLATE_NOOP("CommandLine", "Show the version and end.")},
};

// Options that the toolkit takes for itself, each followed by a value.
constexpr const char* ToolkitOptions[] = {"-platform", "-style", "-stylesheet", "-display", "-geometry"};

QStringList withoutToolkitOptions(const QStringList& arguments)
{
    QStringList rest;
    for (int i = 0; i < arguments.size(); ++i) {
        const auto is = [&](const char* option) { return arguments.at(i) == QLatin1String(option); };
        if (std::any_of(std::begin(ToolkitOptions), std::end(ToolkitOptions), is))
            ++i;
        else
            rest += arguments.at(i);
    }
    return rest;
}

void addOptions(QCommandLineParser& parser)
{
    for (const Option& option : Options) {
        const QString name = QLatin1String(option.name);
        const QString value = option.value ? QString::fromLatin1(option.value) : QString();
        parser.addOption({name, tr(option.help), value});
    }
    parser.addPositionalArgument(QStringLiteral("FILE"), tr("The scene or model to open."),
                                 QStringLiteral("[FILE]"));
}

// The part behind the last dot is the field: names of nodes may have dots.
QString takeSelect(CommandLine& line, const QString& value)
{
    const int dot = value.lastIndexOf(QLatin1Char('.'));
    if (dot <= 0 || dot == value.size() - 1)
        return tr("--select expects NODE.FIELD, such as Material.transparency, and not \"%1\".").arg(value);
    line.selectNode = value.left(dot);
    line.selectField = value.mid(dot + 1);
    return {};
}

QString check(CommandLine& line, const QCommandLineParser& parser)
{
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1)
        return tr("Only one FILE can be opened, and %1 were given, the second being \"%2\".")
            .arg(QString::number(files.size()), files.at(1));
    for (const Option& option : Options) {
        const QString name = QLatin1String(option.name);
        if (option.value && parser.isSet(name) && parser.values(name).contains(QString()))
            return tr("--%1 expects %2, and nothing was given.").arg(name, QLatin1String(option.value));
    }
    if (files.value(0).isEmpty() && !files.isEmpty())
        return tr("FILE expects the path of a scene or model, and nothing was given.");
    line.file = files.value(0);
    const QString select = parser.value(QStringLiteral("select"));
    return select.isEmpty() ? QString() : takeSelect(line, select);
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    CommandLine line;
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(withoutToolkitOptions(arguments))) {
        line.error = parser.errorText() + tr(" (scopix --help tells the options.)");
        return line;
    }
    line.plugins = parser.values(QStringLiteral("plugin"));
    line.profile = parser.value(QStringLiteral("profile"));
    line.screenshot = parser.value(QStringLiteral("screenshot"));
    line.quit = parser.isSet(QStringLiteral("quit"));
    line.counters = parser.isSet(QStringLiteral("counters"));
    line.help = parser.isSet(QStringLiteral("help"));
    line.version = parser.isSet(QStringLiteral("version"));
    line.error = check(line, parser);
    return line;
}

QString CommandLine::helpText()
{
    QString text =
        QStringLiteral("scopix [FILE] [--plugin PATH] [--profile NAME] [--select NODE.FIELD]\n"
                       "       [--screenshot OUT.png] [--quit] [--counters] [--help] [--version]\n\n");
    text += tr("Inspects and tunes the 3D scene or model in FILE.") + QStringLiteral("\n\n");
    for (const Option& option : Options) {
        QString usage = QStringLiteral("  --") + QLatin1String(option.name);
        if (option.value)
            usage += QLatin1Char(' ') + QLatin1String(option.value);
        text += usage.leftJustified(26) + tr(option.help) + QLatin1Char('\n');
    }
    return text;
}

QString CommandLine::versionText()
{
    return QStringLiteral("scopix " SCOPIX_VERSION "\n");
}

} // namespace scopix

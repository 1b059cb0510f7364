// SPDX-License-Identifier: MIT
#include "settings/ScreenLayouts.h"

#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"

#include <QCryptographicHash>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>

namespace scopix
{

namespace
{

constexpr int MostArrangements = 12;
constexpr int NameLetters = 12;

QString geometryKey()
{
    return QStringLiteral("geometry");
}

QString docksKey()
{
    return QStringLiteral("layout");
}

QString listKey()
{
    return QStringLiteral("screens");
}

QString groupOf(const QString& screens)
{
    return QStringLiteral("screens-") + screens + QLatin1Char('/');
}

QString describe(const QScreen& screen)
{
    const QRect place = screen.geometry();
    return QStringLiteral("%1 %2 %3 %4 %5 %6")
        .arg(screen.name())
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height())
        .arg(screen.devicePixelRatio());
}

void write(QSettings& settings, const QString& group, const ScreenLayouts::Layout& layout)
{
    settings.setValue(group + geometryKey(), layout.geometry);
    settings.setValue(group + docksKey(), layout.docks);
}

} // namespace

QString ScreenLayouts::currentScreens()
{
    QStringList all;
    for (const QScreen* screen : QGuiApplication::screens())
        all += describe(*screen);
    all.sort();
    const QByteArray text = all.join(QLatin1Char('\n')).toUtf8();
    return QString::fromLatin1(
        QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex().left(NameLetters));
}

ScreenLayouts::Layout ScreenLayouts::find(const QString& screens, const QString& window)
{
    const SettingsFile settings(UserSettings::windowFile());
    const QString own = groupOf(screens) + window;
    const QString group = settings.value(own + docksKey()).isValid() ? own : window;
    return {settings.value(group + geometryKey()).toByteArray(),
            settings.value(group + docksKey()).toByteArray()};
}

void ScreenLayouts::save(QSettings& settings, const Layout& layout, const QString& window)
{
    const QString screens = currentScreens();
    write(settings, window, layout);
    write(settings, groupOf(screens) + window, layout);
    QStringList list = settings.value(listKey()).toStringList();
    list.removeAll(screens);
    list.prepend(screens);
    while (list.size() > MostArrangements)
        settings.remove(groupOf(list.takeLast()).chopped(1));
    settings.setValue(listKey(), list);
}

} // namespace scopix

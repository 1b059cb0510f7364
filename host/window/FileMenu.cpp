// SPDX-License-Identifier: MIT
#include "window/FileMenu.h"

#include "theme/SvgIcon.h"
#include "window/SceneFiles.h"

#include <QAction>
#include <QDir>
#include <QGuiApplication>
#include <QMenu>

namespace scopix
{

FileMenu::FileMenu(QMenu& menu, SceneFiles& files)
    : QObject(&menu)
    , m_files(files)
{
    menu.addAction(tr("&New"), &files, &SceneFiles::newScene, QKeySequence::New);
    m_open = menu.addAction(svgIcon(QStringLiteral("action-open"), &menu), tr("&Open…"), &files,
                            &SceneFiles::askForFile, QKeySequence::Open);
    m_open->setToolTip(tr("Open a scene or model"));
    QAction* tab = menu.addAction(tr("Open &in a New Tab…"), &files, &SceneFiles::askForFileInTab,
                                  Qt::CTRL + Qt::SHIFT + Qt::Key_O);
    tab->setObjectName(QStringLiteral("openInTabAction"));
    m_recent = menu.addMenu(tr("Open &Recent"));
    m_recent->setObjectName(QStringLiteral("recentFiles"));
    m_recent->setToolTipsVisible(true);
    connect(m_recent, &QMenu::aboutToShow, this, &FileMenu::fillRecent);
    menu.addSeparator();
    menu.addAction(tr("&Save"), &files, &SceneFiles::save, QKeySequence::Save);
    menu.addAction(tr("Save &As…"), &files, &SceneFiles::saveAs, Qt::CTRL + Qt::SHIFT + Qt::Key_S);
    menu.addAction(tr("&Export…"), &files, &SceneFiles::exportAs, Qt::CTRL + Qt::SHIFT + Qt::Key_E);
    QAction* close = menu.addAction(
        tr("&Close Tab"), &files, [&files] { files.closeScene(files.getScenes().getFront()); },
        Qt::CTRL + Qt::Key_F4);
    close->setObjectName(QStringLiteral("closeTabAction"));
}

void FileMenu::fillRecent()
{
    m_recent->clear();
    int number = 0;
    for (const QString& path : m_files.getRecent().list()) {
        QString name = QDir::toNativeSeparators(path);
        name.replace(QLatin1Char('&'), QStringLiteral("&&"));
        const QString digit = ++number < 10 ? QStringLiteral("&%1  ").arg(number) : QString();
        QAction* action = m_recent->addAction(digit + name, this, [this, path] { openRecent(path); });
        action->setData(path);
        action->setToolTip(tr("With Ctrl held, it opens in a new tab"));
    }
    if (number == 0) {
        m_recent->addAction(tr("None Yet"))->setEnabled(false);
        return;
    }
    m_recent->addSeparator();
    m_recent->addAction(tr("&Clear This List"), this, [this] { m_files.getRecent().clear(); });
}

void FileMenu::openRecent(const QString& path)
{
    if (QGuiApplication::keyboardModifiers() & Qt::ControlModifier)
        m_files.openRecentInTab(path);
    else
        m_files.openRecent(path);
}

} // namespace scopix

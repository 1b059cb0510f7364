// SPDX-License-Identifier: MIT
#pragma once

#include <scopix-host/HostExport.h>

#include <QSize>
#include <QString>
#include <QStringList>

namespace scopix
{

/// What the command line asks for.
struct SCOPIX_HOST_API CommandLine {
    QString file;
    QStringList others; // further files, each for a tab
    QStringList plugins;
    QString profile;
    QString selectNode; // of --select NODE.FIELD
    QString selectField;
    QString screenshot;
    QString picture;   // of the 3D view alone
    QSize pictureSize; // of --size; empty: as PictureOrder
    bool transparent = false;
    QString toneMapping; // of --tone-mapping; empty: as the menu remembers it
    int turntable = 1;   // pictures of one turn
    QString save;        // another file for what FILE holds
    QStringList launch;  // of --launch PROGRAM ARGS...
    QString attach;      // of --attach; empty: the only program there is
    bool isAttaching = false;
    bool listsLive = false;
    bool quit = false;
    bool counters = false;
    bool help = false;
    bool version = false;

    QString error; // one sentence; empty when all is well

    /// A running program is to be shown.
    bool isLive() const { return isAttaching || !launch.isEmpty(); }
    /// Nobody is there to answer a message box.
    bool isUnattended() const { return quit || isForPictures() || !save.isEmpty(); }
    /// Writes pictures and ends, for which no display is needed.
    bool isForPictures() const { return !screenshot.isEmpty() || !picture.isEmpty(); }

    /// `arguments` begin with the program's name. Qt's own options, such as -platform, are skipped.
    static CommandLine parse(const QStringList& arguments);
    /// Needs a QCoreApplication, whose first argument it names.
    static QString helpText();
    static QString versionText();
    /// A line for each running program that can be attached to.
    static QString liveText();
};

} // namespace scopix

// SPDX-License-Identifier: MIT
#pragma once

#include <scopix-host/HostExport.h>

#include <QString>
#include <QStringList>

namespace scopix
{

/// What the command line asks for.
struct SCOPIX_HOST_API CommandLine {
    QString file;
    QStringList plugins;
    QString profile;
    QString selectNode; // of --select NODE.FIELD
    QString selectField;
    QString screenshot;
    bool quit = false;
    bool counters = false;
    bool help = false;
    bool version = false;

    QString error; // one sentence; empty when all is well

    /// Nobody is there to answer a box.
    bool isUnattended() const { return quit || !screenshot.isEmpty(); }

    /// `arguments` begin with the program's name. What only concerns the window system (such as -platform) is
    /// passed over.
    static CommandLine parse(const QStringList& arguments);
    static QString helpText();
    static QString versionText();
};

} // namespace scopix

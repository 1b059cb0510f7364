// SPDX-License-Identifier: MIT
// What becomes of a profile file that two programs have changed.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QDomDocument;
class SoPerfCounterProfile;

namespace counterMerge
{

/// The counters of a profile: those that it offers, and those that it shows.
struct Lists {
    QStringList counters;
    QStringList view;
};

/// A profile that another program has added (`before` is empty then) or changed.
struct JoinedProfile {
    QString name;
    int occurrence; // among the profiles of this name
    Lists before;   // here
    Lists now;
};

struct Joined {
    bool isChanged = false;
    QList<JoinedProfile> profiles;
};

/// Brings into `mine` what another program has done to the file, which holds `theirs`, since it held `base`:
/// profiles and custom counters that it has added join those of `mine`, and a profile that it alone has
/// changed takes its lists from there. Nothing is removed.
Joined join(QDomDocument& mine, const QDomDocument& base, const QDomDocument& theirs);

/// Does the same to the profiles that were read from the document. Lists that differ from the document's
/// stay: they hold what has not been saved yet. Returns whether anything has changed.
bool apply(const QList<JoinedProfile>& joined, QList<SoPerfCounterProfile*>& profiles);

} // namespace counterMerge

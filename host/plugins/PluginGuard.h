// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/PluginRecords.h"

#include <QStringList>

#include <vector>

namespace scopix
{

/// Keeps a plug-in that ends or blocks the program from doing so at every start. One that is new or has
/// changed is tried in a process of its own first, where that is asked for. One during whose loading a
/// program ended, or whose trial did, is in quarantine from then on: it is loaded only when it is asked for
/// again, or once its file has changed. The default extensions of this program's own installation are always
/// loaded. GUI thread only.
class PluginGuard
{
public:
    /// A plug-in lies in a folder that is searched, or the user names it.
    enum class Asked { Found, Named };

    explicit PluginGuard(PluginRecords records);

    /// Off at first: a program that embeds the host may not want another process.
    void setTriesFirst(bool tries) { m_triesFirst = tries; }

    /// Empty where it may be loaded, which must follow and end with leave(); else why it may not, as the end
    /// of a sentence about "it".
    QString enter(const QString& library, Asked asked);
    void leave(const QString& library, bool isLoaded);
    /// What has been loaded has also survived its first turn of the event loop.
    void settle();

    /// Those refused for their quarantine, in the order of their names.
    const QStringList& quarantined() const { return m_quarantined; }

private:
    struct Loading {
        QString library;
        std::unique_ptr<PluginRecords::Start> start;
        bool isKnown; // from an earlier start, which went well
    };

    QString quarantine(const QString& library, const QString& reason);
    QString tryFirst(const QString& library);

    PluginRecords m_records;
    std::vector<Loading> m_loading;
    QStringList m_quarantined;
    bool m_triesFirst = false;
};

} // namespace scopix

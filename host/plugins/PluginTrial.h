// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace scopix
{

/// Loads a plug-in in a process of its own, as the host is about to: its initialisers and its loadPlugin()
/// run there, and nothing else of it. What kills, blocks or bloats that process cannot do so to the host.
/// Waits for the outcome. GUI thread only.
class PluginTrial
{
public:
    struct Outcome {
        QString reason; // why it cannot be used, as the end of a sentence about "it"; empty where it can
        bool isHarmful = false; // it would have taken the host with it
    };

    /// Enough for any plug-in on a busy machine.
    static constexpr int PatienceMs = 20000;

    /// The exit status of that process where all is well. Not 0, with which the library's code may end it.
    static constexpr int Succeeded = 64;

    static Outcome run(const QString& library, int patienceMs = PatienceMs);
};

} // namespace scopix

// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace scopix
{

class HostServices;
class SceneFiles;

/// Marks in the log of frames what the user does, so that a slow frame can be told from what came before it:
/// edits, undo, selecting, opening. GUI thread only.
class FrameMarks : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this.
    FrameMarks(HostServices& services, const SceneFiles& files, QObject* parent);

private:
    void stepsChanged();
    static void mark(const QString& text);

    HostServices& m_services;
    int m_index = 0; // of the steps
};

} // namespace scopix

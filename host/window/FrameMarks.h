// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace scopix
{

class HostServices;
class SceneDocument;

/// Marks in the log of frames what the user does, so that a slow frame can be told from what came before it:
/// edits, undo, selecting, opening. GUI thread only.
class FrameMarks : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this.
    FrameMarks(HostServices& services, const SceneDocument& document, QObject* parent);

private:
    void stepsChanged(int index);
    static void mark(const QString& text);

    HostServices& m_services;
    int m_index = 0; // of the steps
};

} // namespace scopix

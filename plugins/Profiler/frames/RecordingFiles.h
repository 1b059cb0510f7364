// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/frames/SoFrameRecording.h>

#include <QString>

class QWidget;

namespace profiler
{

/// Recordings as files that the user chooses: the endings .xsgframes and .csv.
struct RecordingFiles {
    /// Paths; empty where the user chose none.
    static QString askForNew(QWidget* parent);
    static QString askForOne(QWidget* parent);
    /// False, and a sentence, where it is none.
    static bool read(const QString& path, SoFrameRecording& recording, QString& problem);
    /// A sentence, or an empty text.
    static QString write(const QString& path, const SoFrameRecording& recording);
};

} // namespace profiler

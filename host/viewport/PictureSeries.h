// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/ViewCamera.h"

#include <QColor>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>

class SoRenderer;

namespace scopix
{

/// What pictures of a 3D view are asked for.
struct PictureOrder {
    QString path; // its ending chooses the kind of picture; several are numbered before it
    QSize size{1920, 1080};
    bool isTransparent = false; // where there is nothing of the scene
    int count = 1;              // 1: as the view sees; more: of one full turn, at equal steps

    static constexpr int MostPixels = 1 << 28;
    static constexpr int LongestSide = 32768;
    static constexpr int MostPictures = 3600;

    /// The files that are written: OUT.png, or OUT-01.png and so on.
    QStringList getPaths() const;
    /// Why there are no pictures of this size, or not so many, in one sentence; else empty.
    QString findSizeProblem() const;
    /// Why these pictures cannot be made, in one sentence; else empty.
    QString findProblem() const;
};

/// What is drawn.
struct PictureSubject {
    SoRef<SoNode> root;
    PictureCamera camera;
    QColor ground;
    std::function<void(SoRenderer&)> setUp; // how the scene is shown
};

/// Draws pictures off the screen, larger than OpenGL could draw them where need be, and writes each as a
/// whole or not at all. The scene must not change meanwhile. GUI thread only.
struct PictureSeries {
    QString problem;          // one sentence; the pictures before it have been written
    int written = 0;          // pictures
    bool isCancelled = false; // by the progress

    /// Told before each piece of work; false cancels.
    using Progress = std::function<bool(int done, int total)>;
    static PictureSeries make(const PictureSubject& subject, const PictureOrder& order,
                              const Progress& progress = {});
};

} // namespace scopix

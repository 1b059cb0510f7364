// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/ViewSight.h"

#include <xsg/actions/SoPath.h>
#include <xsg/values/SbMatrix.h>

#include <QColor>
#include <QImage>

class QPainter;

namespace scopix
{

class SceneView;

/// A thin line around a part of the scene and its name: what a click would select. The line is found without
/// another picture of the scene, so that it costs what the part does. GUI thread only.
class HoverMark
{
public:
    explicit HoverMark(SceneView& view)
        : m_view(view)
    {
    }
    /// An empty path: nothing. `place`: where the name is to be.
    void show(const SoPath& part, const QPoint& place);
    bool isShown() const { return !m_part.empty(); }
    /// Whether scene or camera have changed since the line was found.
    bool isOld() const;
    void paint(QPainter& painter) const;

private:
    /// What the line depends on beside the part.
    struct Stamp {
        SbMatrix toPicture;
        std::uint64_t scene = 0;
        std::uint32_t changes = 0;
        QSize size;
    };
    Stamp stampNow() const;
    void findLine(const SoPath& part);

    SceneView& m_view;
    std::vector<std::uint64_t> m_part; // the numbers of the nodes that lead to it, which may go
    QString m_text;
    QPoint m_place;
    Stamp m_stamp;
    QImage m_line;
    std::uint64_t m_slowPart = 0; // a node whose line takes too long
};

/// A text on a plate, as tools label things in the view, kept within `bounds`.
void paintLabel(QPainter& painter, const QPoint& place, const QString& text, const QRect& bounds);

} // namespace scopix

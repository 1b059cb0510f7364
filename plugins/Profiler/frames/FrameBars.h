// SPDX-License-Identifier: MIT
#pragma once

#include "frames/FrameFormula.h"

#include <QPointer>
#include <QWidget>

namespace profiler
{

class FrameStore;

/// A curve over the frames: what is computed, and what it is now.
struct FrameCurve {
    FrameFormula formula;
    QString unit;

    /// One for each frame.
    const std::vector<double>& getValues() const { return formula.getValues(); }
};

/// One bar for each frame, its phases on top of each other, with a line for the budget, curves of counters,
/// each with an axis of its own, and marks where something happened. The newest frame is at the right until
/// one scrolls back; while it stands still, what comes is not shown.
///
/// Keys: left and right choose a frame, with Shift ten; Page Up and Page Down scroll, Home and End go to the
/// first and the newest; plus and minus zoom; Esc chooses none. The wheel scrolls, with Ctrl it zooms.
class FrameBars : public QWidget
{
    Q_OBJECT

public:
    static constexpr int WidestBar = 48;

    explicit FrameBars(const FrameStore& store, QWidget* parent = nullptr);

    void setBudget(double milliseconds);
    void setBarWidth(int pixels);
    int getBarWidth() const { return m_barWidth; }
    void setPaused(bool on);
    bool isPaused() const { return m_isPaused; }
    void setCurves(std::vector<FrameCurve>& curves);

    /// Of the frames in the store; -1: none.
    int getChosen() const;
    void choose(int frame);
    /// The one whose values are read: under the pointer, else the chosen one; -1: none.
    int getCursor() const;
    /// The frames in sight.
    int getFirstSeen() const;
    int getEndSeen() const;
    /// What the highest bar could be, in milliseconds.
    double getScale() const;
    QRect getBar(int frame) const;
    void scroll(int frames);

    QSize sizeHint() const override { return {480, 150}; }
    QSize minimumSizeHint() const override { return {160, 90}; }

signals:
    void chosen(int frame);
    void cursorMoved();
    void zoomed(int barWidth);
    void pauseRequested(bool on);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void followStore();
    int frameAt(int x) const;
    int numFrames() const;
    int numSeen() const;
    QRect plot() const;
    double yOf(double milliseconds) const;
    void paintBars(QPainter& painter) const;
    void paintBudget(QPainter& painter) const;
    void paintMarks(QPainter& painter) const;
    void paintCurves(QPainter& painter) const;
    void paintCurve(QPainter& painter, const FrameCurve& curve, const QColor& color, int axis) const;
    void paintCursor(QPainter& painter) const;
    void zoom(int steps);

    const FrameStore& m_store;
    std::vector<FrameCurve>* m_curves = nullptr;
    double m_budget = 1000.0 / 60;
    int m_barWidth = 4;
    bool m_isPaused = false;
    // Frames are counted from the first that ever came, so that they stay while others go.
    std::uint64_t m_end = 0;     // behind the last in sight
    std::uint64_t m_chosen = 0;  // plus one; 0: none
    std::uint64_t m_pointed = 0; // as m_chosen
};

/// A number for reading, with a unit that fits its size: "1.25 ms", "34 µs", "2.5 MB".
QString readable(double value, const QString& unit);

} // namespace profiler

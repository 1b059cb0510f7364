// SPDX-License-Identifier: MIT
#pragma once

#include "frames/FrameBars.h"
#include "frames/FrameStore.h"

#include <QWidget>

class QAction;
class QComboBox;
class QDoubleSpinBox;
class QHBoxLayout;
class QLabel;
class QToolBar;

namespace profiler
{

/// The content of the dock "Frames": bars, what they say in words, curves of counters, and recordings. GUI
/// thread only.
class FramesPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FramesPanel(SoFrameLog& log, QWidget* parent = nullptr);
    ~FramesPanel() override;

    FrameStore& getStore() { return m_store; }
    FrameBars& getBars() { return *m_bars; }
    const std::vector<FrameCurve>& getCurves() const { return m_curves; }
    /// Lays the formula over the bars. False, and the line says why, where it cannot be computed.
    bool addCurve(const QString& formula);
    void removeCurve(int curve);
    /// The path of what the window shows that this stands in; empty where it has none.
    QString findScene() const;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void makeActions(QToolBar& bar);
    void makeCurveInput();
    void fillCounters();
    void followFrames();
    void computeCurves();
    void rebuildLegend();
    void showValues();
    void showWords();
    void setPaused(bool on);
    void enterCurve();
    void keepCurves();
    void record(bool on);
    SoFrameRecording surrounded(const SoFrameRecording& frames) const;
    void openRecording();
    void saveTable();
    void compareRecordings();
    void say(const QString& text);

    FrameStore m_store;
    FrameBars* m_bars;
    QAction* m_pause = nullptr;
    QAction* m_record = nullptr;
    QAction* m_live = nullptr;
    QDoubleSpinBox* m_budget = nullptr;
    QComboBox* m_input = nullptr;
    QHBoxLayout* m_legend;
    QLabel* m_summary;
    QLabel* m_details;
    std::vector<FrameCurve> m_curves;
};

} // namespace profiler

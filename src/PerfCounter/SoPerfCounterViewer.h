// SPDX-License-Identifier: MIT
#pragma once

#include "CounterBarView.h"
#include "CounterLegend.h"
#include "CounterSampler.h"
#include "CounterTextView.h"
#include "ui_SoPerfCounterViewer.h"

#include <QList>
#include <QWidget>

#include <memory>
#include <vector>

class QTimer;
class QwtPlot;
class SoPerfCounterCurve;
class SoPerfCounterGraph;
class SoPerfCounterPcViewed;

/// Samples the viewed performance counters on a timer and shows them as curves, bars or text, with a legend.
/// Every sample is a rate per second since the one before. GUI thread only.
class SoPerfCounterViewer : public QWidget, public Ui_QPerfCounterViewer
{
    Q_OBJECT

public:
    explicit SoPerfCounterViewer(QWidget* parent = nullptr);
    ~SoPerfCounterViewer() override;

    QTimer* getTimer() const { return m_timer; }
    const QList<SoPerfCounterPcViewed*>* getViewed() const { return m_viewed.get(); }
    SoPerfCounterPcViewed* findViewed(const QString& name) const;
    SoPerfCounterCurve* getCurvePlot() const { return m_curvePlot; }
    QwtPlot* getGraphPlot() const { return m_graphPlot; }
    const SoPerfCounterGraph* getGraph() const { return m_bars; }

    int getTimeShown() const { return m_timeShown; } // seconds
    int getFrequency() const { return m_frequency; } // samples per second
    int getHistoryLength() const { return m_historyLength; }
    int getFilled() const { return m_filled; }
    const std::vector<double>& getXValues() const { return m_xValues; }

    /// Shows these counters, in this order. Those that were shown already keep their samples and colour.
    void setViewList(const QList<QString>* list);
    /// Where the time between samples comes from; seconds. For tests and for hosts that have a clock of their
    /// own.
    void setElapsedSource(double (*secondsSinceReset)(void* data), void (*reset)(void* data), void* data);

signals:
    void newPcViewed(QString name);
    void deletedPcViewed(QString name);

public slots:
    void textView();
    void graphView();
    void curveView();
    void freezeView();
    void resetHistory();
    void changeTimeHistory(const QString& text);
    void changeFreqHistory(const QString& text);
    void viewTimer();
    void doubleClickLegend(QTableWidgetItem* item);
    void doubleClickEvent(const QString& name);
    void changeColor(QColor color);
    void changeScale(const QString& text);
    void resetView();
    void updateViewer();
    void clearViewer();
    void start();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void buildPlots();
    void setupConnections();
    void setupViews();
    void startPeriod();
    void redrawViews();
    void setupCurveView();
    void setRawSamples();
    void setupLegend();
    void setupXValues();
    void resetAll();
    QColor newColor() const;
    void add(const QString& name);
    void addAndShow(const QStringList& names);
    void remove(int index);
    void showView(QWidget* view);
    void changeHistory(int timeShown, int frequency);
    int selectedIndex() const;

    int m_timeShown = 30;
    int m_frequency = 2;
    int m_historyLength = 60;
    int m_filled = 0;
    std::vector<double> m_xValues;
    int m_interval = 500; // milliseconds
    QTimer* m_timer = nullptr;
    CounterSampler m_sampler;
    int m_running = 1;
    bool m_outdated = false; // the views miss what was sampled while they were hidden
    std::unique_ptr<QList<SoPerfCounterPcViewed*>> m_viewed;
    SoPerfCounterCurve* m_curvePlot = nullptr;
    QwtPlot* m_graphPlot = nullptr;
    SoPerfCounterGraph* m_bars = nullptr; // the plot's
    std::unique_ptr<CounterBarView> m_barView;
    std::unique_ptr<CounterTextView> m_texts;
    std::unique_ptr<CounterLegend> m_legendRows;
};

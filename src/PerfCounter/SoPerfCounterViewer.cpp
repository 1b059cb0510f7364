// SPDX-License-Identifier: MIT
#include "SoPerfCounterViewer.h"

#include "CounterPlot.h"
#include "CurveColors.h"
#include "PlayPauseIcon.h"
#include "PlotToolTip.h"
#include "SoPerfCounterCurve.h"
#include "SoPerfCounterGraph.h"
#include "SoPerfCounterPcViewed.h"

#include <QHash>
#include <QKeyEvent>
#include <QMimeData>
#include <QSet>
#include <QTimer>

#include <qwt_plot.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>

namespace
{

constexpr int PlotPosition = 1;
constexpr QSize PlotMinimum(240, 140);
constexpr auto Separator = "##";
constexpr auto DragSource = "m_preSelectedListView";

} // namespace

SoPerfCounterViewer::SoPerfCounterViewer(QWidget* parent)
    : QWidget(parent)
    , m_viewed(std::make_unique<QList<SoPerfCounterPcViewed*>>())
{
    setupUi(this);
    std::srand(unsigned(std::time(nullptr)));
    setAcceptDrops(true);
    buildPlots();
    setupXValues();
    curveView();
    m_timer = new QTimer(this);
    m_timer->setTimerType(Qt::PreciseTimer);
    m_timer->setInterval(m_interval);
    m_stop->setIcon(playPauseIcon(*m_timer));
    start();
    setupConnections();
}

SoPerfCounterViewer::~SoPerfCounterViewer()
{
    clearViewer();
}

void SoPerfCounterViewer::buildPlots()
{
    m_curvePlot = new SoPerfCounterCurve(this);
    m_curvePlot->setObjectName(QStringLiteral("m_curvePlot"));
    counterPlot::prepare(*m_curvePlot);
    counterPlot::setAxisTitle(*m_curvePlot, QwtPlot::xBottom, tr("Time (s)"));
    m_curvePlot->setAxisScale(QwtPlot::xBottom, 0, m_timeShown - 1);
    m_curvePlot->setPeriods(m_sampler.periods());
    verticalLayout->insertWidget(PlotPosition, m_curvePlot);
    m_graphPlot = new QwtPlot(this);
    m_graphPlot->setObjectName(QStringLiteral("m_graphPlot"));
    verticalLayout->insertWidget(PlotPosition, m_graphPlot);
    m_bars = new SoPerfCounterGraph(QString());
    m_barView = std::make_unique<CounterBarView>(*m_graphPlot, *m_bars, m_sampler);
    new PlotToolTip(m_graphPlot, [this](const QPoint& place) { return m_barView->textAt(place, *m_viewed); });
    m_texts = std::make_unique<CounterTextView>(*m_textView, m_sampler);
    m_legendRows =
        std::make_unique<CounterLegend>(*m_legend, m_sampler, m_curvePlot->canvasBackground().color());
    for (QWidget* view : {static_cast<QWidget*>(m_curvePlot), static_cast<QWidget*>(m_graphPlot),
                          static_cast<QWidget*>(m_textView)}) {
        view->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding); // the tool bar says how wide
        view->setMinimumSize(PlotMinimum);
        verticalLayout->setStretchFactor(view, 1);
    }
}

void SoPerfCounterViewer::setupConnections()
{
    connect(m_text, &QPushButton::clicked, this, &SoPerfCounterViewer::textView);
    connect(m_graph, &QPushButton::clicked, this, &SoPerfCounterViewer::graphView);
    connect(m_curve, &QPushButton::clicked, this, &SoPerfCounterViewer::curveView);
    connect(m_stop, &QPushButton::clicked, this, &SoPerfCounterViewer::freezeView);
    connect(m_resetDisplay, &QPushButton::clicked, this, &SoPerfCounterViewer::resetHistory);
    connect(m_timeBox, SIGNAL(currentIndexChanged(const QString&)), this,
            SLOT(changeTimeHistory(const QString&)));
    connect(m_freqBox, SIGNAL(currentIndexChanged(const QString&)), this,
            SLOT(changeFreqHistory(const QString&)));
    connect(m_legend, &QTableWidget::itemDoubleClicked, this, &SoPerfCounterViewer::doubleClickLegend);
    connect(m_timer, &QTimer::timeout, this, &SoPerfCounterViewer::viewTimer);
}

void SoPerfCounterViewer::setElapsedSource(double (*seconds)(void*), void (*reset)(void*), void* data)
{
    m_sampler.setElapsedSource(seconds, reset, data);
}

SoPerfCounterPcViewed* SoPerfCounterViewer::findViewed(const QString& name) const
{
    const auto found = std::find_if(m_viewed->begin(), m_viewed->end(),
                                    [&](const SoPerfCounterPcViewed* v) { return v->getName() == name; });
    return found == m_viewed->end() ? nullptr : *found;
}

void SoPerfCounterViewer::setupXValues()
{
    // Samples that are kept stay where they are on the axis; without any it starts again.
    const double newest = m_filled > 0 ? m_xValues.front() : -1.0 / m_frequency;
    m_xValues.resize(std::size_t(m_historyLength));
    for (std::size_t i = 0; i < m_xValues.size(); ++i)
        m_xValues[i] = newest - double(i) / m_frequency;
}

void SoPerfCounterViewer::viewTimer()
{
    m_sampler.sample(*m_viewed, m_filled, m_historyLength);
    m_filled = std::min(m_filled + 1, m_historyLength);
    // Until the display is reset (decisions.md: counters-drifting-axis).
    for (double& x : m_xValues)
        x += 1.0 / m_frequency;
    setupViews();
}

void SoPerfCounterViewer::setupViews()
{
    if (m_running == 0)
        return;
    redrawViews();
    resetAll();
    m_sampler.resetElapsed();
}

// Counts from here on: the next sample comes a whole period later, or it would be one of a moment.
void SoPerfCounterViewer::startPeriod()
{
    setupViews();
    if (m_timer->isActive())
        m_timer->start();
}

void SoPerfCounterViewer::redrawViews()
{
    // Only what can be seen is made. A viewer behind another tab counts as visible but has no region that is.
    m_outdated = visibleRegion().isEmpty() || window()->isMinimized();
    if (m_outdated)
        return;
    if (m_textView->isVisible())
        m_texts->show(*m_viewed);
    if (m_graphPlot->isVisible())
        m_barView->show(*m_viewed);
    if (m_curvePlot->isVisible())
        setupCurveView();
}

void SoPerfCounterViewer::resetAll()
{
    m_sampler.resetCounters(*m_viewed);
}

void SoPerfCounterViewer::resetView()
{
    resetAll();
}

void SoPerfCounterViewer::start()
{
    resetAll();
    m_sampler.resetElapsed();
    m_timer->start();
    m_stop->update();
}

void SoPerfCounterViewer::freezeView()
{
    if (m_timer->isActive())
        m_timer->stop();
    else
        start();
    m_stop->update();
}

void SoPerfCounterViewer::setRawSamples()
{
    for (int i = 0; i < m_viewed->size(); ++i)
        m_curvePlot->setRawSamples(i, m_xValues.data(), m_viewed->at(i)->getHistory(), m_filled);
}

void SoPerfCounterViewer::setupCurveView()
{
    setRawSamples();
    const double span = m_timeShown - 1;
    const double end = std::max(span, m_xValues.empty() ? 0 : m_xValues.front());
    m_curvePlot->setAxisScale(QwtPlot::xBottom, end - span, end);
    m_curvePlot->replot();
}

void SoPerfCounterViewer::setupLegend()
{
    m_legendRows->show(*m_viewed);
}

int SoPerfCounterViewer::selectedIndex() const
{
    const int row = m_legendRows->selectedRow();
    return row < m_viewed->size() ? row : -1;
}

QColor SoPerfCounterViewer::newColor() const
{
    std::vector<QColor> used;
    if (m_viewed->size() < CurveColorCount) {
        for (const SoPerfCounterPcViewed* viewed : qAsConst(*m_viewed))
            used.push_back(viewed->getColor());
    }
    return randomCurveColor(used);
}

void SoPerfCounterViewer::add(const QString& name)
{
    const QColor color = newColor();
    auto* viewed = new SoPerfCounterPcViewed(name, m_historyLength);
    viewed->setColor(color.red(), color.green(), color.blue());
    viewed->setUnknown(m_filled);
    m_curvePlot->newCurve(name, color.red(), color.green(), color.blue());
    m_viewed->append(viewed);
}

void SoPerfCounterViewer::addAndShow(const QStringList& names)
{
    for (const QString& name : names) {
        if (findViewed(name))
            continue;
        add(name);
        emit newPcViewed(name);
    }
    startPeriod();
    setupLegend();
}

void SoPerfCounterViewer::doubleClickEvent(const QString& name)
{
    addAndShow({name});
}

void SoPerfCounterViewer::dragEnterEvent(QDragEnterEvent* event)
{
    event->acceptProposedAction(); // the drop sorts out what is welcome
}

void SoPerfCounterViewer::dropEvent(QDropEvent* event)
{
    const QMimeData* data = event->mimeData();
    if (!data->hasFormat(QStringLiteral("text/plain")) || !event->source() ||
        event->source()->objectName() != QLatin1String(DragSource)) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    addAndShow(data->text().split(QLatin1String(Separator), Qt::SkipEmptyParts));
}

void SoPerfCounterViewer::remove(int index)
{
    if (index < 0 || index >= m_viewed->size())
        return;
    const std::unique_ptr<SoPerfCounterPcViewed> removed(m_viewed->at(index));
    emit deletedPcViewed(removed->getName());
    m_curvePlot->removeCurve(index);
    m_viewed->removeAt(index);
}

void SoPerfCounterViewer::keyPressEvent(QKeyEvent* event)
{
    // Not Delete (decisions.md: counters-backspace).
    if (event->key() != Qt::Key_Backspace) {
        QWidget::keyPressEvent(event);
        return;
    }
    const QList<int> rows = m_legendRows->selectedRows();
    for (const int row : rows)
        remove(row);
    updateViewer();
}

void SoPerfCounterViewer::doubleClickLegend(QTableWidgetItem* item)
{
    remove(item->row());
    updateViewer();
}

void SoPerfCounterViewer::changeColor(QColor color)
{
    const int index = selectedIndex();
    if (index < 0)
        return;
    m_viewed->at(index)->setColor(color.red(), color.green(), color.blue());
    m_curvePlot->setColor(index, color);
    setupLegend();
    redrawViews();
}

void SoPerfCounterViewer::changeScale(const QString& text)
{
    bool ok = false;
    const double scale = text.toDouble(&ok);
    const int index = selectedIndex();
    if (!ok || !(scale > 0) || index < 0)
        return;
    m_sampler.rescale(*m_viewed->at(index), scale, m_historyLength);
    redrawViews();
}

void SoPerfCounterViewer::changeTimeHistory(const QString& text)
{
    changeHistory(text.toInt(), m_frequency);
}

void SoPerfCounterViewer::changeFreqHistory(const QString& text)
{
    changeHistory(m_timeShown, text.toInt());
}

void SoPerfCounterViewer::changeHistory(int timeShown, int frequency)
{
    if (timeShown < 1 || frequency < 1)
        return;
    const int oldLength = m_historyLength;
    m_timeShown = timeShown;
    m_frequency = frequency;
    m_historyLength = timeShown * frequency;
    m_filled = std::min(m_filled, m_historyLength);
    m_sampler.keepPeriods(m_filled);
    for (SoPerfCounterPcViewed* viewed : qAsConst(*m_viewed)) {
        auto longer = std::make_unique<double[]>(std::size_t(m_historyLength));
        std::copy_n(viewed->getHistory(), std::min(oldLength, m_historyLength), longer.get());
        viewed->setHistory(longer.release());
    }
    // The curves must not keep the old arrays until they are drawn again.
    setupXValues();
    setRawSamples();
    m_interval = 1000 / m_frequency;
    m_timer->setInterval(m_interval);
    startPeriod();
}

void SoPerfCounterViewer::resetHistory()
{
    for (SoPerfCounterPcViewed* viewed : qAsConst(*m_viewed))
        std::fill_n(viewed->getHistory(), m_historyLength, 0.0);
    m_filled = 0;
    m_sampler.keepPeriods(m_filled);
    setupXValues();
    startPeriod();
}

void SoPerfCounterViewer::setViewList(const QList<QString>* list)
{
    QHash<QString, int> places; // of each name in the list
    for (const QString& name : *list) {
        if (!places.contains(name))
            places.insert(name, places.size());
    }
    QSet<QString> stay;
    for (int i = m_viewed->size() - 1; i >= 0; --i) {
        if (places.contains(m_viewed->at(i)->getName())) {
            stay.insert(m_viewed->at(i)->getName());
            continue;
        }
        m_curvePlot->removeCurve(i);
        delete m_viewed->takeAt(i);
    }
    for (const QString& name : *list) {
        if (stay.contains(name))
            continue;
        stay.insert(name);
        add(name);
    }
    // Into the order of the list.
    std::vector<int> order(std::size_t(m_viewed->size()));
    for (int i = 0; i < m_viewed->size(); ++i)
        order[std::size_t(places[m_viewed->at(i)->getName()])] = i;
    const QList<SoPerfCounterPcViewed*> before = *m_viewed;
    std::transform(order.begin(), order.end(), m_viewed->begin(), [&](int i) { return before.at(i); });
    m_curvePlot->order(order);
}

void SoPerfCounterViewer::clearViewer()
{
    while (!m_viewed->isEmpty()) {
        m_curvePlot->removeCurve(m_viewed->size() - 1);
        delete m_viewed->takeLast();
    }
}

void SoPerfCounterViewer::updateViewer()
{
    setupLegend();
    startPeriod();
}

void SoPerfCounterViewer::showView(QWidget* view)
{
    m_textView->setVisible(view == m_textView);
    m_graphPlot->setVisible(view == m_graphPlot);
    m_curvePlot->setVisible(view == m_curvePlot);
    m_text->setChecked(view == m_textView);
    m_graph->setChecked(view == m_graphPlot);
    m_curve->setChecked(view == m_curvePlot);
    redrawViews();
}

void SoPerfCounterViewer::textView()
{
    showView(m_textView);
}

void SoPerfCounterViewer::graphView()
{
    showView(m_graphPlot);
}

void SoPerfCounterViewer::curveView()
{
    showView(m_curvePlot);
}

void SoPerfCounterViewer::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    redrawViews();
}

void SoPerfCounterViewer::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    // Seen again, as when another tab is chosen.
    if (m_outdated)
        QMetaObject::invokeMethod(this, &SoPerfCounterViewer::redrawViews, Qt::QueuedConnection);
}

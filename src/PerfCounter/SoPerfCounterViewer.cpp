// SPDX-License-Identifier: MIT
#include "SoPerfCounterViewer.h"

#include "CounterTable.h"
#include "CounterText.h"
#include "CurveColors.h"
#include "CustomCounter.h"
#include "PlayPauseIcon.h"
#include "PlotToolTip.h"
#include "SampleText.h"
#include "SoPerfCounterCurve.h"
#include "SoPerfCounterGraph.h"
#include "SoPerfCounterPcViewed.h"

#include <xsg/counters/SoPerfCounterManager.h>

#include <QHash>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QSet>
#include <QSignalBlocker>
#include <QTimer>

#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_map.h>
#include <qwt_text.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <ctime>

namespace
{

constexpr int PlotPosition = 1;
constexpr int AxisPenWidth = 2;
constexpr QSize PlotMinimum(240, 140);
constexpr auto Separator = "##";
constexpr auto DragSource = "m_preSelectedListView";

QString numberText(double value)
{
    return std::isnan(value) ? QString() : QString().setNum(value, 'g', 6);
}

// No plot can show a number beyond all numbers.
double finiteOf(double value)
{
    return std::isfinite(value) ? value : 0;
}

// Where nothing is counted the toolkit shows a span around 0, though few counters ever fall below it.
class CountScaleEngine : public QwtLinearScaleEngine
{
public:
    void autoScale(int maxSteps, double& from, double& to, double& step) const override
    {
        if (from == 0 && to == 0)
            to = 1;
        QwtLinearScaleEngine::autoScale(maxSteps, from, to, step);
    }
};

void setAxisTitle(QwtPlot& plot, int axis, const QString& text)
{
    QwtText title(text);
    title.setFont(plot.font()); // the toolkit's own is large and bold
    plot.setAxisTitle(axis, title);
}

void preparePlot(QwtPlot& plot)
{
    plot.setAutoReplot(false);
    plot.setCanvasBackground(Qt::white);
    for (const int axis : {int(QwtPlot::yLeft), int(QwtPlot::xBottom)})
        plot.axisScaleDraw(axis)->setPenWidth(AxisPenWidth);
    plot.setAxisScaleEngine(QwtPlot::yLeft, new CountScaleEngine); // the plot's
    setAxisTitle(plot, QwtPlot::yLeft, SoPerfCounterViewer::tr("Per second"));
}

void setText(QTableWidget& table, int row, int column, const QString& text)
{
    if (QTableWidgetItem* item = table.item(row, column))
        item->setText(text);
    else
        table.setItem(row, column, new QTableWidgetItem(text));
}

} // namespace

SoPerfCounterViewer::SoPerfCounterViewer(QWidget* parent)
    : QWidget(parent)
    , m_viewed(std::make_unique<QList<SoPerfCounterPcViewed*>>())
    , m_manager(SoPerfCounterManager::getInstance())
{
    setupUi(this);
    counterTable::showBeginnings(*m_textView);
    counterTable::showBeginnings(*m_legend);
    std::srand(unsigned(std::time(nullptr)));
    setAcceptDrops(true);
    m_manager->setInterval(SbTime(0.0));
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
    preparePlot(*m_curvePlot);
    setAxisTitle(*m_curvePlot, QwtPlot::xBottom, tr("Time (s)"));
    m_curvePlot->setAxisScale(QwtPlot::xBottom, 0, m_timeShown - 1);
    m_curvePlot->setPeriods(m_periods);
    verticalLayout->insertWidget(PlotPosition, m_curvePlot);
    m_graphPlot = new QwtPlot(this);
    m_graphPlot->setObjectName(QStringLiteral("m_graphPlot"));
    preparePlot(*m_graphPlot);
    m_graphPlot->axisScaleDraw(QwtPlot::xBottom)->enableComponent(QwtAbstractScaleDraw::Labels, false);
    m_graphPlot->setAxisMaxMinor(QwtPlot::xBottom, 0);
    new PlotToolTip(m_graphPlot, [this](const QPoint& place) { return barTextAt(place); });
    verticalLayout->insertWidget(PlotPosition, m_graphPlot);
    m_bars = new SoPerfCounterGraph(QString());
    m_bars->attach(m_graphPlot);
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
    m_elapsedSource = {seconds, reset, data};
}

void SoPerfCounterViewer::resetElapsed()
{
    if (m_elapsedSource.reset)
        m_elapsedSource.reset(m_elapsedSource.data);
    m_elapsed.reset();
}

SoPerfCounter* SoPerfCounterViewer::counterOf(const SoPerfCounterPcViewed& viewed) const
{
    return m_manager->getCounter(toCounterName(viewed.getName()));
}

SoPerfCounterPcViewed* SoPerfCounterViewer::findViewed(const QString& name) const
{
    const auto found = std::find_if(m_viewed->begin(), m_viewed->end(),
                                    [&](const SoPerfCounterPcViewed* v) { return v->getName() == name; });
    return found == m_viewed->end() ? nullptr : *found;
}

void SoPerfCounterViewer::setupXValues()
{
    // Samples that are kept stay where they are on the axis; without any it starts anew.
    const double newest = m_filled > 0 ? m_xValues.front() : -1.0 / m_frequency;
    m_xValues.resize(std::size_t(m_historyLength));
    for (std::size_t i = 0; i < m_xValues.size(); ++i)
        m_xValues[i] = newest - double(i) / m_frequency;
}

void SoPerfCounterViewer::viewTimer()
{
    const double elapsed =
        m_elapsedSource.seconds ? m_elapsedSource.seconds(m_elapsedSource.data) : m_elapsed.getElapsed();
    for (SoPerfCounterPcViewed* viewed : qAsConst(*m_viewed))
        sample(*viewed, elapsed);
    m_filled = std::min(m_filled + 1, m_historyLength);
    m_periods.push_front(elapsed);
    m_periods.resize(std::size_t(m_filled));
    // The time axis drifts with the samples until the display is reset.
    for (double& x : m_xValues)
        x += 1.0 / m_frequency;
    setupViews();
}

void SoPerfCounterViewer::sample(SoPerfCounterPcViewed& viewed, double elapsed) const
{
    double* history = viewed.getHistory();
    const int kept = std::min(m_filled, m_historyLength - 1);
    std::copy_backward(history, history + kept, history + kept + 1);
    const SoPerfCounter* counter = counterOf(viewed);
    // A counter that is gone reads 0, and so does one sampled twice at the same moment.
    history[0] = counter && elapsed > 0 ? finiteOf(counter->getValue() / elapsed) : 0;
}

void SoPerfCounterViewer::setupViews()
{
    if (m_running == 0)
        return;
    redrawViews();
    resetAll();
    resetElapsed();
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
        setupTextView();
    if (m_graphPlot->isVisible())
        setupGraphView();
    if (m_curvePlot->isVisible())
        setupCurveView();
}

void SoPerfCounterViewer::resetAll()
{
    const auto reset = [this](SbName name) {
        if (SoPerfCounter* counter = m_manager->getCounter(name))
            counter->reset();
    };
    for (const SoPerfCounterPcViewed* viewed : qAsConst(*m_viewed)) {
        const SoPerfCounter* counter = counterOf(*viewed);
        if (counter && counter->isCustom()) {
            reset(counter->getFirstParent());
            reset(counter->getSecondParent());
        } else {
            reset(toCounterName(viewed->getName()));
        }
    }
}

void SoPerfCounterViewer::resetView()
{
    resetAll();
}

void SoPerfCounterViewer::start()
{
    resetAll();
    resetElapsed();
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

void SoPerfCounterViewer::setupTextView()
{
    m_textView->setRowCount(m_viewed->size());
    for (int row = 0; row < m_viewed->size(); ++row) {
        const SoPerfCounterPcViewed& viewed = *m_viewed->at(row);
        const SoPerfCounter* counter = counterOf(viewed);
        setText(*m_textView, row, 0, viewed.getName());
        setText(*m_textView, row, 1, numberText(viewed.getHistory()[0]));
        m_textView->item(row, 1)->setToolTip(undividedText(viewed.getHistory()[0], newestPeriod()));
        setText(*m_textView, row, 2,
                QStringLiteral("x ") + numberText(counter ? counter->getScaleFactor() : 1));
    }
    m_textView->resizeColumnsToContents();
}

void SoPerfCounterViewer::setupGraphView()
{
    m_bars->clearColor();
    QwtIntervalData bars;
    for (int i = 0; i < m_viewed->size(); ++i) {
        const SoPerfCounterPcViewed& viewed = *m_viewed->at(i);
        bars.append(
            QwtIntervalSample(viewed.getHistory()[0], QwtInterval(i, i + 1, QwtInterval::ExcludeMaximum)));
        m_bars->addColor(new QColor(viewed.getColor()));
    }
    m_bars->setData(bars);
    m_graphPlot->setAxisScale(QwtPlot::xBottom, 0, m_viewed->size(), 1);
    m_graphPlot->replot();
}

QString SoPerfCounterViewer::barTextAt(const QPoint& place) const
{
    const double x = m_graphPlot->canvasMap(QwtPlot::xBottom).invTransform(place.x());
    const SoPerfCounterPcViewed* viewed = x >= 0 ? m_viewed->value(int(std::min(x, 1e6))) : nullptr;
    return viewed ? sampleText(viewed->getName(), viewed->getHistory()[0], newestPeriod()) : QString();
}

double SoPerfCounterViewer::newestPeriod() const
{
    return m_periods.empty() ? 0 : m_periods.front();
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
    const QString selected = selectedIndex() < 0 ? QString() : m_legend->item(selectedIndex(), 0)->text();
    QSignalBlocker quiet(m_legend);
    m_legend->setRowCount(m_viewed->size());
    m_legend->clearSelection();
    for (int row = 0; row < m_viewed->size(); ++row) {
        const SoPerfCounterPcViewed& viewed = *m_viewed->at(row);
        const SoPerfCounter* counter = counterOf(viewed);
        setText(*m_legend, row, 0, viewed.getName());
        m_legend->item(row, 0)->setForeground(viewed.getColor());
        m_legend->item(row, 0)->setBackground(m_curvePlot->canvasBackground()); // as readable as the curve
        setText(*m_legend, row, 1, counter ? toQString(counter->getTypeText()) : QString());
        setText(*m_legend, row, 2, counter ? toQString(counter->getStringLevel()) : QString());
        setText(*m_legend, row, 3, counter ? beginningOf(counter->getModule()) : QString());
        setText(*m_legend, row, 4, counter ? beginningOf(counter->getDescription()) : tr("No such counter"));
        if (viewed.getName() == selected)
            m_legend->selectRow(row);
    }
    counterTable::fitColumns(*m_legend);
    // Told once, when the rows are complete again.
    quiet.unblock();
    emit m_legend->itemSelectionChanged();
}

int SoPerfCounterViewer::selectedIndex() const
{
    const QModelIndexList rows = m_legend->selectionModel()->selectedRows();
    return rows.size() == 1 && rows.first().row() < m_viewed->size() ? rows.first().row() : -1;
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
    const std::unique_ptr<SoPerfCounterPcViewed> gone(m_viewed->at(index));
    emit deletedPcViewed(gone->getName());
    m_curvePlot->removeCurve(index);
    m_viewed->removeAt(index);
}

void SoPerfCounterViewer::keyPressEvent(QKeyEvent* event)
{
    // Not Delete: meant so.
    if (event->key() != Qt::Key_Backspace) {
        QWidget::keyPressEvent(event);
        return;
    }
    QList<int> rows;
    for (const QModelIndex& index : m_legend->selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end(), std::greater<>());
    for (const int row : qAsConst(rows))
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
    SoPerfCounter* counter = counterOf(*m_viewed->at(index));
    if (!counter)
        return;
    const double old = counter->getScaleFactor();
    counter->setScaleFactor(scale);
    const double ratio = old / counter->getScaleFactor();
    double* history = m_viewed->at(index)->getHistory();
    std::for_each(history, history + m_historyLength, [ratio](double& sample) {
        sample = std::isnan(sample) ? sample : finiteOf(sample * ratio);
    });
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
    m_periods.resize(std::size_t(m_filled));
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
    m_periods.clear();
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

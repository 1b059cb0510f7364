// SPDX-License-Identifier: MIT
#include "frames/FramesPanel.h"

#include "ProfilerSettings.h"
#include "frames/ComparisonDialog.h"
#include "frames/FrameColors.h"
#include "frames/FrameReport.h"
#include "frames/RecordingFiles.h"

#include <xsg/counters/SoPerfCounterManager.h>

#include <QAction>
#include <QComboBox>
#include <QCompleter>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolBar>
#include <QToolButton>

namespace profiler
{

namespace
{

constexpr std::size_t MostCurves = 20;

QLabel* addLine(QLayout& layout, const QString& name)
{
    auto* line = new QLabel;
    line->setObjectName(name);
    line->setWordWrap(true);
    line->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    layout.addWidget(line);
    return line;
}

} // namespace

FramesPanel::FramesPanel(SoFrameLog& log, QWidget* parent)
    : QWidget(parent)
    , m_store(log)
    , m_bars(new FrameBars(m_store))
    , m_legend(new QHBoxLayout)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    auto* bar = new QToolBar;
    bar->setIconSize({16, 16});
    makeActions(*bar);
    makeCurveInput();
    layout->addWidget(bar);
    layout->addWidget(m_bars, 1);
    auto* line = new QHBoxLayout;
    line->addWidget(m_input);
    line->addLayout(m_legend, 1);
    layout->addLayout(line);
    m_summary = addLine(*layout, QStringLiteral("framesSummary"));
    m_details = addLine(*layout, QStringLiteral("frameDetails"));
    m_bars->setBarWidth(ProfilerSettings::barWidth());
    m_bars->setBudget(ProfilerSettings::budget());
    m_bars->setCurves(m_curves);
    connect(m_bars, &FrameBars::zoomed, this, [](int width) { ProfilerSettings::setBarWidth(width); });
    connect(m_bars, &FrameBars::pauseRequested, this, &FramesPanel::setPaused);
    connect(m_bars, &FrameBars::chosen, this, &FramesPanel::showWords);
    connect(m_bars, &FrameBars::cursorMoved, this, &FramesPanel::showValues);
    connect(&m_store, &FrameStore::failed, this, &FramesPanel::say);
    connect(&m_store, &FrameStore::changed, this, [this] { followFrames(); });
    for (const QString& formula : ProfilerSettings::curves())
        addCurve(formula);
    rebuildLegend();
    showWords();
}

// The store takes what is left at its end, when nothing here can show it any more.
FramesPanel::~FramesPanel()
{
    m_store.disconnect();
}

void FramesPanel::makeActions(QToolBar& bar)
{
    m_pause = bar.addAction(tr("Pause"));
    m_pause->setCheckable(true);
    m_pause->setToolTip(tr("Stand still and look at what was (Space)"));
    connect(m_pause, &QAction::toggled, this, [this](bool on) {
        m_bars->setPaused(on);
        showWords();
    });
    m_record = bar.addAction(tr("Record…"));
    m_record->setCheckable(true);
    m_record->setToolTip(tr("Write what comes to a file, until this is chosen again"));
    connect(m_record, &QAction::triggered, this, &FramesPanel::record);
    bar.addAction(tr("Open…"), this, &FramesPanel::openRecording)
        ->setToolTip(tr("Look at a recording, or at a table of comma-separated values"));
    bar.addAction(tr("Save…"), this, &FramesPanel::saveTable)
        ->setToolTip(tr("Save what is here as a recording, or as comma-separated values"));
    bar.addAction(tr("Compare…"), this, &FramesPanel::compareRecordings)
        ->setToolTip(tr("Compare what is here with a recording"));
    m_live = bar.addAction(tr("Back to the Program"), this, [this] { m_store.showLive(); });
    m_live->setVisible(false);
    connect(&m_store, &FrameStore::changed, this, [this] { m_live->setVisible(!m_store.isLive()); });
    bar.addSeparator();
    m_budget = new QDoubleSpinBox;
    m_budget->setObjectName(QStringLiteral("frameBudget"));
    m_budget->setAccessibleName(tr("Budget of a frame"));
    m_budget->setToolTip(tr("What a frame may take"));
    m_budget->setRange(0.1, 10000);
    m_budget->setDecimals(1);
    m_budget->setSuffix(tr(" ms"));
    m_budget->setFocusPolicy(Qt::StrongFocus);
    m_budget->setValue(ProfilerSettings::budget());
    bar.addWidget(m_budget);
    connect(m_budget, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this](double value) {
        ProfilerSettings::setBudget(value);
        m_bars->setBudget(value);
        showWords();
    });
}

void FramesPanel::makeCurveInput()
{
    m_input = new QComboBox;
    m_input->setObjectName(QStringLiteral("curveInput"));
    m_input->setEditable(true);
    m_input->setInsertPolicy(QComboBox::NoInsert);
    m_input->setMinimumContentsLength(24);
    m_input->setAccessibleName(tr("Counter or formula"));
    m_input->lineEdit()->setPlaceholderText(tr("Counter or formula, as in rate(Triangles)"));
    m_input->setToolTip(tr("A counter, or a formula such as Triangles / DrawCalls, rate(x) or mean(x, 2s)"));
    fillCounters();
    connect(m_input->lineEdit(), &QLineEdit::returnPressed, this, &FramesPanel::enterCurve);
    connect(m_input, QOverload<int>::of(&QComboBox::activated), this, &FramesPanel::enterCurve);
}

void FramesPanel::fillCounters()
{
    const QString typed = m_input->currentText();
    m_input->clear();
    for (int i = SoFrame::Whole; i < SoFrame::NumFigures; ++i)
        m_input->addItem(QString::fromLatin1(SoFrame::getName(static_cast<SoFrame::Figure>(i))));
    for (const SoPerfCounter* counter : SoPerfCounterManager::getInstance()->getCounters()) {
        const QString name = QString::fromLatin1(counter->getName().getString());
        if (m_input->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0)
            m_input->addItem(name);
    }
    m_input->setEditText(typed);
}

void FramesPanel::enterCurve()
{
    if (!m_input->currentText().trimmed().isEmpty() && addCurve(m_input->currentText())) {
        m_input->clearEditText();
        keepCurves();
    }
}

bool FramesPanel::addCurve(const QString& formula)
{
    if (m_curves.size() >= MostCurves) {
        say(tr("“%1” cannot be shown: there are %2 curves already; take one out first.")
                .arg(formula)
                .arg(MostCurves));
        return false;
    }
    FrameCurve curve{FrameFormula(formula), {}};
    // A formula of counters that have not been noted yet is checked with their names alone.
    SoFrameRecording names = m_store.getFrames();
    for (const SoPerfCounter* counter : SoPerfCounterManager::getInstance()->getCounters()) {
        const std::string name = counter->getName().getString();
        if (!counter->isCustom() && !names.findColumn(name))
            names.columns.push_back(
                {name, "", false, std::vector<std::int64_t>(names.getNumFrames(), SoFrame::Missing)});
    }
    curve.formula.evaluate(names);
    if (!curve.formula.getProblem().isEmpty()) {
        say(tr("“%1” cannot be shown: %2").arg(formula, curve.formula.getProblem()));
        return false;
    }
    m_curves.push_back(std::move(curve));
    std::vector<SbName> wanted;
    for (const FrameCurve& each : m_curves) {
        for (const SbName name : each.formula.getNames())
            wanted.push_back(name);
    }
    m_store.wantCounters(wanted);
    computeCurves();
    rebuildLegend();
    return true;
}

void FramesPanel::removeCurve(int curve)
{
    m_curves.erase(m_curves.begin() + curve);
    m_bars->update();
    keepCurves();
    rebuildLegend();
}

void FramesPanel::keepCurves()
{
    QStringList formulas;
    for (const FrameCurve& curve : m_curves)
        formulas += curve.formula.getText();
    ProfilerSettings::setCurves(formulas);
}

// A recording goes on while nobody looks at curves.
void FramesPanel::followFrames()
{
    if (isVisible())
        computeCurves();
    showWords();
}

void FramesPanel::computeCurves()
{
    for (FrameCurve& curve : m_curves) {
        curve.formula.follow(m_store.getFrames(), m_store.getSeries(), m_store.getFirst());
        curve.unit = curve.formula.getUnit(m_store.getFrames());
    }
    m_bars->setCurves(m_curves);
    showValues();
}

// The phases, then a button for each curve that takes it out.
void FramesPanel::rebuildLegend()
{
    while (QLayoutItem* item = m_legend->takeAt(0)) {
        if (item->widget())
            item->widget()->deleteLater();
        delete item;
    }
    const auto colored = [](const QColor& color, const QString& text) {
        return QStringLiteral("<span style=\"color:%1\">■</span> %2").arg(color.name(), text.toHtmlEscaped());
    };
    QString phases;
    for (int phase = 0; phase < SoFrame::NumPhases; ++phase)
        phases += colored(FrameColors::ofPhase(phase, palette()),
                          QString::fromLatin1(
                              SoFrame::getName(static_cast<SoFrame::Figure>(SoFrame::Update + phase)))) +
                  QStringLiteral("&nbsp; ");
    m_legend->addWidget(new QLabel(phases + tr("▔ Gpu")));
    for (std::size_t i = 0; i < m_curves.size(); ++i) {
        auto* button = new QToolButton;
        button->setObjectName(QStringLiteral("curve%1").arg(i));
        button->setAutoRaise(true);
        QPalette own = button->palette();
        own.setColor(QPalette::ButtonText, FrameColors::ofCurve(static_cast<int>(i), palette()));
        button->setPalette(own);
        button->setToolTip(tr("Take “%1” out").arg(m_curves[i].formula.getText()));
        connect(button, &QToolButton::clicked, this, [this, i] { removeCurve(static_cast<int>(i)); });
        m_legend->addWidget(button);
    }
    m_legend->addStretch(1);
    showValues();
}

void FramesPanel::showValues()
{
    const int cursor = m_bars->getCursor() >= 0 ? m_bars->getCursor() : m_bars->getEndSeen() - 1;
    for (std::size_t i = 0; i < m_curves.size(); ++i) {
        auto* button = findChild<QToolButton*>(QStringLiteral("curve%1").arg(i));
        const FrameCurve& curve = m_curves[i];
        const bool isThere = cursor >= 0 && cursor < static_cast<int>(curve.getValues().size());
        if (!button)
            continue;
        const QString value =
            isThere ? readable(curve.getValues()[static_cast<std::size_t>(cursor)], curve.unit) : QString();
        button->setText(curve.formula.getText() + QStringLiteral(" ") + value + QStringLiteral(" ✕"));
        button->setAccessibleName(tr("%1 %2: take out").arg(curve.formula.getText(), value));
    }
}

void FramesPanel::showWords()
{
    const SoFrameRecording& frames = m_store.getFrames();
    QString summary =
        FrameReport::summary(frames, m_bars->getFirstSeen(), m_bars->getEndSeen(), m_budget->value());
    if (!m_store.isLive())
        summary = tr("“%1”: %2").arg(m_store.getTitle(), summary);
    if (m_store.isRecording())
        summary =
            tr("%1; recording, %2 frames so far").arg(summary, QString::number(m_store.getNumRecorded()));
    m_summary->setText(summary);
    const QStringList lines = FrameReport::differences(frames, m_bars->getChosen());
    if (!lines.isEmpty())
        m_details->setText(lines.join(QStringLiteral("; ")));
    else if (m_bars->getChosen() < 0)
        m_details->setText(tr("Choose a frame to see what was different about it."));
    m_bars->setAccessibleDescription(summary + QStringLiteral(". ") + m_details->text());
}

void FramesPanel::setPaused(bool on)
{
    m_pause->setChecked(on);
}

void FramesPanel::say(const QString& text)
{
    m_details->setText(text);
}

void FramesPanel::showEvent(QShowEvent* /*event*/)
{
    fillCounters();
    m_store.setWatched(true);
    followFrames();
}

void FramesPanel::hideEvent(QHideEvent* /*event*/)
{
    m_store.setWatched(false);
}

void FramesPanel::record(bool on)
{
    m_record->setChecked(false);
    if (!on)
        m_store.stopRecording();
    const QString path = on ? RecordingFiles::askForNew(this) : QString();
    if (!path.isEmpty()) {
        const QString problem = m_store.startRecording(path, findScene());
        m_record->setChecked(problem.isEmpty());
        if (!problem.isEmpty())
            say(tr("“%1” cannot be written: %2. Choose another place.").arg(path, problem));
    }
    showWords();
}

QString FramesPanel::findScene() const
{
    for (const QWidget* at = this; at; at = at->parentWidget()) {
        if (!at->windowFilePath().isEmpty())
            return at->windowFilePath();
    }
    return {};
}

// What is shown of a file was said when that was made.
SoFrameRecording FramesPanel::surrounded(const SoFrameRecording& frames) const
{
    return m_store.isLive() ? withSurroundings(frames, findScene()) : frames;
}

void FramesPanel::openRecording()
{
    const QString path = RecordingFiles::askForOne(this);
    SoFrameRecording recording;
    QString problem;
    if (path.isEmpty())
        return;
    if (RecordingFiles::read(path, recording, problem))
        m_store.show(std::move(recording));
    else
        say(problem);
}

void FramesPanel::saveTable()
{
    m_store.takeNow();
    const QString path = RecordingFiles::askForNew(this);
    const QString problem =
        path.isEmpty() ? QString() : RecordingFiles::write(path, surrounded(m_store.getFrames()));
    if (!problem.isEmpty())
        say(problem);
}

void FramesPanel::compareRecordings()
{
    m_store.takeNow();
    const QString path = RecordingFiles::askForOne(this);
    SoFrameRecording before;
    QString problem;
    if (path.isEmpty())
        return;
    if (!RecordingFiles::read(path, before, problem))
        return say(problem);
    auto* dialog = new ComparisonDialog(before, m_store.getFrames(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

} // namespace profiler

// SPDX-License-Identifier: MIT
#include "console/LogPanel.h"

#include "console/LogFind.h"
#include "console/LogModel.h"
#include "console/LogTargets.h"
#include "console/LogText.h"
#include "console/LogView.h"

#include <scopix/editing/SpxFlowLayout.h>

#include <QActionGroup>
#include <QCheckBox>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>

#include <utility>

namespace profiler
{

namespace
{

QLayout* rowIn(QWidget* bar)
{
    auto* row = new SpxFlowLayout(bar);
    row->setContentsMargins(2, 2, 2, 2);
    return row;
}

QToolButton* button(const QString& caption, const QString& name, const QString& toolTip)
{
    auto* made = new QToolButton;
    made->setText(caption);
    made->setObjectName(name);
    made->setToolTip(toolTip);
    made->setAccessibleName(toolTip);
    made->setFocusPolicy(Qt::TabFocus);
    return made;
}

QString captionOf(const LogTarget& target)
{
    const bool isFile = target.kind == LogTarget::Kind::File;
    QString name = isFile ? QFileInfo(target.name).fileName() : target.name;
    name.replace(QLatin1Char('&'), QLatin1String("&&"));
    return isFile ? LogPanel::tr("&Open “%1”").arg(name) : LogPanel::tr("&Go to “%1”").arg(name);
}

QString countsText(qulonglong shown, qulonglong lines, qulonglong dropped)
{
    if (shown == lines)
        return dropped > 0 ? LogPanel::tr("%L1 lines, %L2 older ones gone").arg(lines).arg(dropped)
                           : LogPanel::tr("%L1 lines").arg(lines);
    return dropped > 0
               ? LogPanel::tr("%L1 of %L2 lines, %L3 older ones gone").arg(shown).arg(lines).arg(dropped)
               : LogPanel::tr("%L1 of %L2 lines").arg(shown).arg(lines);
}

} // namespace

LogPanel::LogPanel(LogModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_settings(LogSettings::read())
    , m_find(new LogFind(model, this))
    , m_view(new LogView(model))
    , m_counts(new QLabel)
{
    setObjectName(QString::fromLatin1("logPanel"));
    m_view->setObjectName(QString::fromLatin1("logLines"));
    m_view->setAccessibleName(tr("Lines of the log"));
    m_view->setProperty("unfoldsDock", true);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_counts->setObjectName(QString::fromLatin1("logCounts"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeTools());
    column->addWidget(m_view, 1);
    column->addWidget(makeFindBar());
    for (QWidget* each : findChildren<QWidget*>())
        each->installEventFilter(this);
    connect(&model, &LogModel::advanced, this, &LogPanel::showCounts);
    connect(m_find, &LogFind::changed, this, &LogPanel::showFound);
    connect(m_find, &LogFind::found, m_view, &LogView::goTo);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, &LogPanel::showFound);
    connect(m_view, &LogView::lineActivated, this, &LogPanel::activateLine);
    connect(m_view, &QWidget::customContextMenuRequested, this, &LogPanel::openMenu);
    model.setShowsTime(m_settings.showsTime);
    model.setShowsThread(m_settings.showsThread);
    applyRule();
    showCounts();
}

LogPanel::~LogPanel() = default;

QWidget* LogPanel::makeTools()
{
    auto* bar = new QWidget;
    QLayout* row = rowIn(bar);
    m_filter = new QLineEdit;
    m_filter->setObjectName(QString::fromLatin1("logFilter"));
    m_filter->setPlaceholderText(tr("Filter: words to have, -words to leave out"));
    m_filter->setAccessibleName(tr("Filter of the log"));
    m_filter->setClearButtonEnabled(true);
    m_filter->setMinimumWidth(16 * fontMetrics().averageCharWidth());
    connect(m_filter, &QLineEdit::textChanged, this, &LogPanel::applyRule);
    row->addWidget(m_filter);
    row->addWidget(makeKind(LogKind::Error, tr("Errors")));
    row->addWidget(makeKind(LogKind::Warning, tr("Warnings")));
    row->addWidget(makeKind(LogKind::Info, tr("Information")));
    row->addWidget(makeKind(LogKind::Output, tr("Output")));
    auto* options = button(tr("Options"), QString::fromLatin1("logOptions"), tr("Options of the log"));
    options->setMenu(makeOptions());
    options->setPopupMode(QToolButton::InstantPopup);
    row->addWidget(options);
    row->addWidget(m_counts);
    return bar;
}

QCheckBox* LogPanel::makeKind(LogKind kind, const QString& caption)
{
    auto* made = new QCheckBox(caption);
    made->setObjectName(QString::fromLatin1("logKind%1").arg(int(kind)));
    made->setChecked(true);
    connect(made, &QCheckBox::toggled, this, &LogPanel::applyRule);
    m_kinds[int(kind)] = made;
    return made;
}

QMenu* LogPanel::makeOptions()
{
    auto* menu = new QMenu(this);
    QAction* time = menu->addAction(tr("&Time"));
    QAction* thread = menu->addAction(tr("T&hread"));
    time->setObjectName(QString::fromLatin1("logTime"));
    thread->setObjectName(QString::fromLatin1("logThread"));
    time->setCheckable(true);
    thread->setCheckable(true);
    time->setChecked(m_settings.showsTime);
    thread->setChecked(m_settings.showsThread);
    connect(time, &QAction::toggled, this, [this](bool shows) {
        m_model.setShowsTime(m_settings.showsTime = shows);
        m_settings.write();
    });
    connect(thread, &QAction::toggled, this, [this](bool shows) {
        m_model.setShowsThread(m_settings.showsThread = shows);
        m_settings.write();
    });
    menu->addSeparator();
    addFolding(*menu);
    menu->addSeparator();
    QAction* clear = menu->addAction(tr("&Clear the Log"), &m_model, &LogModel::clear);
    clear->setObjectName(QString::fromLatin1("logClear"));
    return menu;
}

void LogPanel::addFolding(QMenu& menu)
{
    auto* group = new QActionGroup(this);
    const QString captions[] = {tr("&Each Line"), tr("&Repeated Lines Once"), tr("E&qual Lines Once")};
    for (int fold = 0; fold < 3; ++fold) {
        QAction* action = group->addAction(captions[fold]);
        action->setObjectName(QString::fromLatin1("logFold%1").arg(fold));
        action->setCheckable(true);
        action->setChecked(fold == int(m_settings.fold));
        connect(action, &QAction::triggered, this, [this, fold] {
            m_settings.fold = LogFold(fold);
            applyRule();
        });
    }
    menu.addActions(group->actions());
}

QWidget* LogPanel::makeFindBar()
{
    m_findBar = new QWidget;
    QLayout* row = rowIn(m_findBar);
    m_wanted = new QLineEdit;
    m_wanted->setObjectName(QString::fromLatin1("logFind"));
    m_wanted->setPlaceholderText(tr("Find in the lines that are shown"));
    m_wanted->setAccessibleName(tr("Find in the log"));
    connect(m_wanted, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_view->setMarked(text);
        m_find->setText(text);
        if (!text.isEmpty())
            m_find->goOnFrom(m_view->currentIndex().row(), true);
    });
    auto* previous = button(tr("Previous"), QString::fromLatin1("logPrevious"), tr("Previous (Shift+Enter)"));
    auto* next = button(tr("Next"), QString::fromLatin1("logNext"), tr("Next (Enter)"));
    connect(previous, &QToolButton::clicked, this, [this] { find(false); });
    connect(next, &QToolButton::clicked, this, [this] { find(true); });
    m_found = new QLabel;
    m_found->setObjectName(QString::fromLatin1("logFound"));
    m_context = new QSpinBox;
    m_context->setObjectName(QString::fromLatin1("logContext"));
    m_context->setRange(0, MostContext);
    m_context->setValue(m_settings.context);
    m_context->setPrefix(tr("± "));
    m_context->setSuffix(tr(" lines"));
    m_context->setToolTip(
        tr("How many lines before and after each line that the filter wants are shown too"));
    m_context->setAccessibleName(tr("Lines around those that the filter wants"));
    connect(m_context, qOverload<int>(&QSpinBox::valueChanged), this, &LogPanel::applyRule);
    auto* close = button(tr("Close"), QString::fromLatin1("logCloseFind"), tr("Close (Esc)"));
    connect(close, &QToolButton::clicked, this, &LogPanel::closeFind);
    row->addWidget(m_wanted);
    row->addWidget(previous);
    row->addWidget(next);
    row->addWidget(m_found);
    row->addWidget(m_context);
    row->addWidget(close);
    m_findBar->hide();
    return m_findBar;
}

void LogPanel::applyRule()
{
    if (!m_context)
        return; // still being made
    LogRows::Rule rule;
    rule.filter = LogFilter(m_filter->text());
    for (int kind = 0; kind < LogKinds; ++kind)
        rule.filter.setKind(LogKind(kind), m_kinds[kind]->isChecked());
    rule.fold = m_settings.fold;
    rule.context = m_context->value();
    if (rule == m_model.getRows().getRule())
        return;
    m_settings.context = rule.context;
    m_settings.write();
    const QModelIndex current = m_view->currentIndex();
    if (current.isValid())
        keepPlace(m_model.getRows()[current.row()].line);
    m_model.setRule(rule);
}

// The current line stays the current one while the rows around it change.
void LogPanel::keepPlace(std::uint64_t line)
{
    m_place = line;
    m_keepsPlace = true;
}

void LogPanel::goToLine(std::uint64_t line)
{
    keepPlace(line);
    m_filter->clear();
    for (QCheckBox* kind : m_kinds)
        kind->setChecked(true);
    showCounts();
}

void LogPanel::showCounts()
{
    const LogStore& store = m_model.getStore();
    if (m_keepsPlace && m_model.isUpToDate() && m_model.getRows().size() > 0) {
        m_keepsPlace = false;
        m_view->goTo(std::min(m_model.getRows().lowerBound(m_place), m_model.getRows().size() - 1));
    }
    const auto lines = qulonglong(store.end() - store.begin());
    const int shown = m_model.getRows().size();
    const QString text = countsText(qulonglong(shown), lines, qulonglong(store.getDropped()));
    m_counts->setText(text);
    m_filter->setToolTip(text);
    m_counts->setToolTip(tr("The newest %L1 lines are kept, and at most %2 MB of them.")
                             .arg(qulonglong(LogStore::MostLines))
                             .arg(LogStore::MostBytes >> 20));
    const QString captions[LogKinds] = {tr("Output"), tr("Information"), tr("Warnings"), tr("Errors")};
    for (int kind = 0; kind < LogKinds; ++kind) {
        const auto count = qulonglong(m_model.countOf(LogKind(kind)));
        m_kinds[kind]->setText(count > 0 ? tr("%1 %L2").arg(captions[kind]).arg(count) : captions[kind]);
    }
}

void LogPanel::showFound()
{
    if (m_wanted->text().isEmpty()) {
        m_found->clear();
        return;
    }
    const int number = m_find->numberOf(m_view->currentIndex().row());
    if (m_find->count() == 0)
        m_found->setText(m_find->isDone() ? tr("not found") : tr("looking…"));
    else if (number > 0)
        m_found->setText(tr("%L1 of %L2").arg(number).arg(m_find->count()));
    else
        m_found->setText(tr("%L1 found").arg(m_find->count()));
}

void LogPanel::openFind()
{
    m_findBar->show();
    m_wanted->setFocus(Qt::ShortcutFocusReason);
    m_wanted->selectAll();
}

void LogPanel::closeFind()
{
    m_wanted->clear();
    m_findBar->hide();
    m_view->setFocus();
}

void LogPanel::find(bool forward)
{
    const int current = m_view->currentIndex().row();
    m_find->goOnFrom(forward ? current + 1 : current, forward);
}

void LogPanel::activateLine(int row)
{
    const QList<LogTarget> targets =
        LogTargets::find(decoded(m_model.getStore().text(m_model.getRows()[row].line)));
    if (targets.isEmpty())
        say(tr("This line names no node of the scene and no file that there is."));
    else if (!LogTargets::goTo(targets.front()))
        say(tr("“%1” is not there any more.").arg(targets.front().name));
}

void LogPanel::say(const QString& sentence)
{
    m_counts->setText(sentence);
    // In a narrow dock there is no room for that.
    const QRect row = m_view->visualRect(m_view->currentIndex());
    QToolTip::showText(m_view->viewport()->mapToGlobal(row.bottomLeft()), sentence, m_view);
}

void LogPanel::openMenu(const QPoint& place)
{
    const QModelIndex index = m_view->indexAt(place);
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (index.isValid()) {
        const QString line = decoded(m_model.getStore().text(m_model.getRows()[index.row()].line));
        for (const LogTarget& target : LogTargets::find(line))
            menu->addAction(captionOf(target), this, [target] { LogTargets::goTo(target); });
        menu->addSeparator();
        const std::uint64_t number = m_model.getRows()[index.row()].line;
        if (!m_model.getRows().getRule().filter.wantsAll())
            menu->addAction(tr("Show &Among All Lines"), this, [this, number] { goToLine(number); });
    }
    menu->addAction(
        tr("&Copy"), m_view, [this] { m_view->copySelected(); }, QKeySequence::Copy);
    menu->addAction(tr("Select &All"), m_view, &QAbstractItemView::selectAll, QKeySequence::SelectAll);
    menu->addAction(tr("&Find…"), this, &LogPanel::openFind, QKeySequence::Find);
    menu->popup(m_view->viewport()->mapToGlobal(place));
}

// Before the window's own Ctrl+F, which finds in the scene.
bool LogPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Find)) {
        event->accept();
        return true;
    }
    return event->type() == QEvent::KeyPress && takeKey(watched, *static_cast<QKeyEvent*>(event));
}

bool LogPanel::takeKey(QObject* watched, const QKeyEvent& key)
{
    const bool isInFind = m_findBar->isAncestorOf(static_cast<QWidget*>(watched));
    if (key.matches(QKeySequence::Find)) {
        openFind();
    } else if (key.key() == Qt::Key_Escape && isInFind) {
        closeFind();
    } else if (watched == m_wanted && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)) {
        find(!(key.modifiers() & Qt::ShiftModifier));
    } else if (watched == m_filter && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Down)) {
        m_view->setFocus();
    } else {
        return false;
    }
    return true;
}

} // namespace profiler

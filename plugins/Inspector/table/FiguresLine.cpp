// SPDX-License-Identifier: MIT
#include "table/FiguresLine.h"

#include "table/TableSession.h"

namespace inspector
{

namespace
{

constexpr int CellsAtOnce = 100'000;
constexpr int Delay = 100; // milliseconds: a list that moves does not keep the machine busy
constexpr int MostLines = 4;
constexpr int MostUnasked = 100'000; // values of a list whose figures are calculated unasked

} // namespace

FiguresLine::FiguresLine(TableSession& session, QWidget* parent)
    : QLabel(parent)
    , m_session(session)
{
    setObjectName(QStringLiteral("figures"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    m_delay.setSingleShot(true);
    m_delay.setInterval(Delay);
    connect(&m_delay, &QTimer::timeout, this, &FiguresLine::begin);
    connect(&m_timer, &QTimer::timeout, this, &FiguresLine::goOn);
}

void FiguresLine::restart()
{
    if (!m_delay.isActive())
        m_delay.start();
}

// Of a single cell there is nothing to say; then the figures are those of the whole list, unless it is so
// long that each change of it would keep the machine busy.
void FiguresLine::begin()
{
    m_timer.stop();
    m_run.reset();
    const SoMField* list = m_session.list();
    m_cells = m_session.view.selection().cellCount();
    m_isOfAll = m_cells <= 1;
    const bool isTooLong = m_isOfAll && list && list->getNum() > MostUnasked;
    if (!list || list->getNum() == 0 || isTooLong) {
        setText({});
        return;
    }
    if (!m_session.access().hasNumbers()) {
        setText(m_isOfAll ? QString() : tr("%1 cells selected").arg(m_cells));
        return;
    }
    std::vector<RowBand> bands;
    if (m_isOfAll)
        bands.push_back({0, list->getNum() - 1, ~0U});
    else
        bands = m_session.selectedElements();
    m_run = std::make_unique<FiguresRun>(m_session.access(), std::move(bands));
    m_timer.start(0);
}

void FiguresLine::goOn()
{
    const SoMField* list = m_session.list();
    if (!list || !m_run) {
        m_timer.stop();
        return;
    }
    if (!m_run->step(*list, CellsAtOnce))
        return;
    m_timer.stop();
    showFigures();
}

QString FiguresLine::textOf(const ColumnFigures& figures) const
{
    const QString text = figures.count ? tr("%1 to %2, mean %3")
                                             .arg(QString::number(figures.least, 'g', 6),
                                                  QString::number(figures.greatest, 'g', 6),
                                                  QString::number(figures.mean(), 'g', 6))
                                       : tr("no numbers");
    return figures.nanCount ? tr("%1, %2 NaN").arg(text, QString::number(figures.nanCount)) : text;
}

void FiguresLine::showFigures()
{
    QStringList lines;
    for (int column = 0; column < int(m_run->columns().size()); ++column) {
        const ColumnFigures& figures = m_run->columns()[std::size_t(column)];
        if (figures.count || figures.nanCount)
            lines.append(m_session.rows().heading(column) + QLatin1String(": ") + textOf(figures));
    }
    setToolTip(lines.join('\n'));
    if (lines.size() > MostLines)
        lines = QStringList{textOf(m_run->all())};
    if (!m_isOfAll)
        lines.prepend(tr("%1 cells selected").arg(m_cells));
    setText(lines.join('\n'));
}

} // namespace inspector

// SPDX-License-Identifier: MIT
#include "console/LogBadge.h"

#include "console/LogModel.h"

#include <scopix/SpxNavigator.h>

namespace profiler
{

namespace
{

constexpr int MostCharacters = 40; // of the line, so that the bar has room for others

} // namespace

LogBadge::LogBadge(LogModel& model)
    : m_model(model)
{
    setObjectName(QString::fromLatin1("logBadge"));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setMaximumHeight(fontMetrics().height() + 4); // the bar never grows
    connect(&model, &LogModel::advanced, this, &LogBadge::refresh);
    refresh();
}

void LogBadge::attach()
{
    SpxNavigator* navigator = SpxNavigator::getInstance();
    if (navigator && !m_isAttached)
        navigator->addStatusWidget(this);
    m_isAttached = navigator != nullptr;
    refresh();
}

void LogBadge::detach()
{
    SpxNavigator* navigator = SpxNavigator::getInstance();
    if (navigator && m_isAttached)
        navigator->removeStatusWidget(this);
    m_isAttached = false;
    hide();
}

void LogBadge::refresh()
{
    const auto errors = qulonglong(m_model.getNewErrors());
    setVisible(m_isAttached && errors > 0);
    if (errors == 0)
        return;
    const QString line = m_model.getFirstError();
    const QString shortened = line.size() > MostCharacters ? line.left(MostCharacters) + QChar(0x2026) : line;
    const QString count = errors == 1 ? tr("1 error") : tr("%L1 errors").arg(errors);
    QString caption = tr("%1: %2").arg(count, shortened);
    setText(caption.replace(QLatin1Char('&'), QLatin1String("&&")));
    setAccessibleName(tr("%1 in the log, the first: %2").arg(count, line));
    setToolTip(tr("<p>%1</p><p>Click to see it in the log.</p>").arg(line.left(400).toHtmlEscaped()));
}

} // namespace profiler

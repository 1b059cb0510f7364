// SPDX-License-Identifier: MIT
#include "panels/FindBar.h"

#include "panels/SceneFinder.h"
#include "theme/SvgIcon.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QToolButton>

#include <algorithm>

namespace scopix
{

FindBar::FindBar(SceneFinder& finder, QWidget* parent)
    : QWidget(parent)
    , m_finder(finder)
    , m_line(new QLineEdit)
    , m_count(new QLabel)
    , m_error(new QLabel)
{
    setObjectName(QStringLiteral("findBar"));
    m_line->setPlaceholderText(tr("Find in the scene"));
    m_line->setAccessibleName(tr("Find in the scene"));
    m_line->setToolTip(
        tr("<p>Finds nodes by name, type or text; also <b>type:Light</b>, <b>name:door</b>, "
           "<b>field:radius</b>, <b>value:0.5</b>, <b>transparency&gt;0</b>, <b>translation.x=1</b>, "
           "<b>changed</b>, <b>connected</b>, <b>ignored</b>, <b>shared</b>. A minus sign before a "
           "term means “not”, a bar between terms “or”.</p>"));
    m_line->installEventFilter(this);
    m_error->setObjectName(QStringLiteral("findError"));
    m_error->setWordWrap(true);
    m_error->hide();
    makeButtons();
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    row->addWidget(m_line, 1);
    row->addWidget(m_count);
    for (QToolButton* button : {m_previous, m_next, m_filter})
        row->addWidget(button);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(2);
    layout->addLayout(row);
    layout->addWidget(m_error);
    connect(m_line, &QLineEdit::textChanged, this, &FindBar::textChanged);
    connect(m_previous, &QToolButton::clicked, this, [this] { goTo(-1); });
    connect(m_next, &QToolButton::clicked, this, [this] { goTo(1); });
    connect(m_filter, &QToolButton::toggled, this, &FindBar::filterToggled);
    connect(&m_finder, &SceneFinder::foundChanged, this, &FindBar::foundChanged);
    showCount();
}

void FindBar::makeButtons()
{
    m_previous = addButton(QStringLiteral("action-previous"), tr("Previous"), tr("Previous (Shift+Enter)"));
    m_next = addButton(QStringLiteral("action-next"), tr("Next"), tr("Next (Enter)"));
    m_filter = addButton(QStringLiteral("action-filter"), tr("Show only what is found"),
                         tr("Show only what is found, and what it is in"));
    m_filter->setCheckable(true);
}

QToolButton* FindBar::addButton(const QString& icon, const QString& name, const QString& toolTip)
{
    auto* button = new QToolButton;
    button->setObjectName(icon);
    button->setAutoRaise(true);
    button->setIcon(svgIcon(icon, this));
    button->setAccessibleName(name);
    button->setToolTip(toolTip);
    return button;
}

void FindBar::focusLine()
{
    m_line->setFocus(Qt::ShortcutFocusReason);
    m_line->selectAll();
}

void FindBar::setText(const QString& query)
{
    m_line->setText(query);
}

bool FindBar::isFiltering() const
{
    return m_filter->isChecked() && m_finder.hasQuery();
}

void FindBar::textChanged(const QString& text)
{
    m_current = nullptr;
    m_showsFirst = true;
    m_finder.setQuery(text);
    m_error->setText(m_finder.getError());
    m_error->setVisible(!m_error->text().isEmpty());
}

void FindBar::foundChanged()
{
    showCount();
    if (m_showsFirst && !m_finder.getFound().empty()) {
        m_showsFirst = false;
        emit firstFound(m_finder.getFound().front().get());
    }
}

void FindBar::showCount()
{
    const auto& found = m_finder.getFound();
    const auto current = std::find_if(found.begin(), found.end(),
                                      [this](const auto& each) { return each.get() == m_current; });
    const QLocale locale;
    const QString count = locale.toString(static_cast<qulonglong>(found.size()));
    if (!m_finder.hasQuery())
        m_count->clear();
    else if (current != found.end())
        m_count->setText(tr("%1 of %2").arg(locale.toString(current - found.begin() + 1), count));
    else
        m_count->setText(m_finder.isFinished() ? count : tr("%1…").arg(count));
    for (QToolButton* button : {m_previous, m_next})
        button->setEnabled(!found.empty());
}

void FindBar::goTo(int step)
{
    const auto& found = m_finder.getFound();
    if (found.empty())
        return;
    const auto count = static_cast<std::ptrdiff_t>(found.size());
    const auto current = std::find_if(found.begin(), found.end(),
                                      [this](const auto& each) { return each.get() == m_current; });
    const std::ptrdiff_t from = current != found.end() ? current - found.begin() : step > 0 ? -1 : 0;
    SoNode* node = found[static_cast<std::size_t>((from + step + count) % count)].get();
    m_current = node;
    showCount();
    emit chosen(node);
}

bool FindBar::lineKey(int key, Qt::KeyboardModifiers modifiers)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        goTo(modifiers & Qt::ShiftModifier ? -1 : 1);
        return true;
    case Qt::Key_Down:
        goTo(1);
        return true;
    case Qt::Key_Up:
        goTo(-1);
        return true;
    case Qt::Key_Escape:
        if (m_line->text().isEmpty())
            emit left();
        m_line->clear();
        return true;
    default:
        return false;
    }
}

bool FindBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (lineKey(key->key(), key->modifiers()))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace scopix

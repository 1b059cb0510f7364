// SPDX-License-Identifier: MIT
#include "changes/ChangesPanel.h"

#include "changes/ChangeCommand.h"
#include "services/HostServices.h"
#include "text/NodeText.h"
#include "text/ValueEntry.h"

#include <scopix/SpxSentence.h>
#include <xsg/core/SoField.h>

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScopedValueRollback>
#include <QSortFilterProxyModel>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr int LeastPathLetters = 22;

} // namespace

/// Rows that hold all words of a text, sorted by what the columns mean.
class ChangesPanel::Filter : public QSortFilterProxyModel
{
public:
    Filter(ChangesModel& model, QObject* parent)
        : QSortFilterProxyModel(parent)
        , m_model(model)
    {
        setSourceModel(&model);
        setSortRole(ChangesModel::SortRole);
        setSortCaseSensitivity(Qt::CaseInsensitive);
    }
    void setText(const QString& text)
    {
        m_words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& /*parent*/) const override
    {
        return std::all_of(m_words.begin(), m_words.end(),
                           [&](const QString& word) { return m_model.contains(row, word); });
    }

private:
    ChangesModel& m_model;
    QStringList m_words;
};

ChangesPanel::ChangesPanel(HostServices& services, QWidget* parent)
    : QWidget(parent)
    , m_services(services)
    , m_model(new ChangesModel(this))
    , m_filter(new Filter(*m_model, this))
    , m_line(new QLineEdit)
    , m_heading(new QLabel)
    , m_view(new QTreeView)
    , m_menu(new QMenu(this))
    , m_revert(new QToolButton)
    , m_before(new QToolButton)
{
    setObjectName(QStringLiteral("changes"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_line->setObjectName(QStringLiteral("changesFilter"));
    m_line->setPlaceholderText(tr("Filter the changes"));
    m_line->setAccessibleName(tr("Filter the changes"));
    m_line->setClearButtonEnabled(true);
    connect(m_line, &QLineEdit::textChanged, this, [this](const QString& text) { m_filter->setText(text); });
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setWordWrap(true);
    m_heading->setMargin(3);
    layout->addWidget(m_line);
    layout->addWidget(m_heading);
    makeView();
    layout->addWidget(m_view, 1);
    makeButtons();
    makeMenu();
    connect(m_model, &ChangesModel::valueEntered, this, &ChangesPanel::enter);
    connect(m_model, &ChangesModel::refused, this, &ChangesPanel::said);
    connect(m_model, &ChangesModel::tickedChanged, this, &ChangesPanel::updateButtons);
    connect(&services.preview(), &HostPreview::formerShown, m_before, &QToolButton::setChecked);
    updateButtons();
}

void ChangesPanel::makeView()
{
    m_view->setObjectName(QStringLiteral("changesList"));
    m_view->setAccessibleName(tr("Changes"));
    m_view->setModel(m_filter);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setTextElideMode(Qt::ElideMiddle);
    m_view->setAllColumnsShowFocus(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setEditTriggers(QAbstractItemView::DoubleClicked);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setSortingEnabled(true);
    m_view->sortByColumn(ChangesModel::TimeColumn, Qt::DescendingOrder);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_view->header()->setStretchLastSection(false);
    m_view->header()->setSectionResizeMode(ChangesModel::PathColumn, QHeaderView::Fixed);
    connect(m_view->header(), &QHeaderView::sectionResized, this, [this](int column) {
        if (column != ChangesModel::PathColumn)
            fitPaths();
    });
    m_view->viewport()->installEventFilter(this);
    const int character = fontMetrics().averageCharWidth();
    for (const int column : {ChangesModel::BeforeColumn, ChangesModel::AfterColumn})
        m_view->setColumnWidth(column, 12 * character);
    for (const int column : {ChangesModel::TimeColumn, ChangesModel::SizeColumn})
        m_view->setColumnWidth(column, 8 * character);
    m_view->installEventFilter(this);
    connect(m_view, &QTreeView::clicked, this, &ChangesPanel::select);
    connect(m_view, &QTreeView::activated, this, &ChangesPanel::select);
    connect(m_view, &QTreeView::customContextMenuRequested, this, &ChangesPanel::openMenu);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ChangesPanel::updateButtons);
}

// The paths have what the other columns leave. Where that is too little, the last of these are out of sight.
void ChangesPanel::fitPaths()
{
    int left = m_view->viewport()->width();
    for (int column = ChangesModel::PathColumn + 1; column < ChangesModel::ColumnCount; ++column)
        left -= m_view->columnWidth(column);
    m_view->header()->resizeSection(ChangesModel::PathColumn,
                                    std::max(left, LeastPathLetters * fontMetrics().averageCharWidth()));
}

void ChangesPanel::makeButtons()
{
    auto* more = new QToolButton;
    more->setObjectName(QStringLiteral("changesMore"));
    more->setText(tr("More"));
    more->setMenu(m_menu);
    more->setPopupMode(QToolButton::InstantPopup);
    m_revert->setObjectName(QStringLiteral("changesRevert"));
    m_revert->setToolTip(tr("Takes back the ticked changes, or those that are selected, as one step (Del)."));
    connect(m_revert, &QToolButton::clicked, this, qOverload<>(&ChangesPanel::revert));
    m_before->setObjectName(QStringLiteral("changesBefore"));
    m_before->setText(tr("Show Before"));
    m_before->setCheckable(true);
    m_before->setToolTip(tr("Shows the values from before the ticked changes, or before all of them."));
    connect(m_before, &QToolButton::clicked, this, &ChangesPanel::showBefore);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(3, 3, 3, 3);
    for (QToolButton* button : {m_revert, m_before, more}) {
        button->setFocusPolicy(Qt::TabFocus);
        row->addWidget(button);
    }
    row->addStretch();
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void ChangesPanel::makeMenu()
{
    m_menu->setObjectName(QStringLiteral("changesMenu"));
    m_menu->addAction(tr("&Tick All"), this, [this] { m_model->setTicked(getAll(), true); });
    m_menu->addAction(tr("&Untick All"), this,
                      [this] { m_model->setTicked(ChangeKeySet(m_model->getTicked()), false); });
    m_menu->addSeparator();
}

void ChangesPanel::openMenu(const QPoint& at)
{
    m_menu->popup(m_view->viewport()->mapToGlobal(at));
}

void ChangesPanel::setSource(ChangeSource* source)
{
    if (ChangeSource* before = m_model->getSource())
        before->disconnect(this);
    m_model->setSource(source);
    if (source) {
        connect(source, &ChangeSource::changed, this, &ChangesPanel::follow);
        m_revert->setText(source->revertText());
        m_view->setColumnHidden(ChangesModel::TimeColumn, !source->canShowFormer());
    }
    updateButtons();
}

void ChangesPanel::startFiltering()
{
    m_line->setFocus();
    m_line->selectAll();
}

void ChangesPanel::follow()
{
    if (m_isFollowing || !isVisible())
        return;
    const QScopedValueRollback<bool> following(m_isFollowing, true);
    m_model->follow();
    updateButtons();
}

void ChangesPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    follow();
}

void ChangesPanel::updateButtons()
{
    const ChangeSource* source = m_model->getSource();
    const int count = m_model->rowCount();
    m_revert->setEnabled(!getMeant().empty());
    m_before->setEnabled((count > 0 && source->canShowFormer()) || m_services.preview().isShowingFormer());
    const int ticked = static_cast<int>(m_model->getTicked().size());
    QString text = !source      ? QString()
                   : count == 0 ? tr("Nothing differs from %1.").arg(source->baselineName())
                   : count == 1 ? tr("1 change from %1").arg(source->baselineName())
                                : tr("%L1 changes from %2").arg(count).arg(source->baselineName());
    if (ticked > 0)
        text = tr("%1, %2 of them ticked").arg(text, QLocale().toString(ticked));
    m_heading->setText(text);
}

ChangeKey ChangesPanel::keyAt(const QModelIndex& index) const
{
    return m_model->keyAt(m_filter->mapToSource(index).row());
}

ChangeKeySet ChangesPanel::getSelected() const
{
    ChangeKeySet keys;
    for (const QModelIndex& index : m_view->selectionModel()->selectedRows())
        keys.insert(keyAt(index));
    return keys;
}

ChangeKeySet ChangesPanel::getMeant() const
{
    return m_model->getTicked().empty() ? getSelected() : m_model->getTicked();
}

ChangeKeySet ChangesPanel::getChosen() const
{
    if (!m_model->getTicked().empty() || !m_model->getSource())
        return m_model->getTicked();
    return getAll();
}

ChangeKeySet ChangesPanel::getAll() const
{
    const ChangeSource* source = m_model->getSource();
    return source ? ChangeKeySet(source->list().begin(), source->list().end()) : ChangeKeySet();
}

void ChangesPanel::select(const QModelIndex& index)
{
    const ChangeSource* source = m_model->getSource();
    if (!index.isValid() || !source)
        return;
    const ChangeKey key = keyAt(index);
    if (SoField* field = source->fieldOf(key))
        m_services.select(field);
    else if (SoNode* node = source->nodeOf(key))
        m_services.select(node);
}

void ChangesPanel::revert()
{
    revert(getMeant());
}

void ChangesPanel::revert(const ChangeKeySet& keys)
{
    ChangeSource* source = m_model->getSource();
    if (!source || keys.empty() || m_services.preview().refusesEdit())
        return;
    m_services.history().endStep();
    source->update();
    ChangeAct act = source->revert(keys);
    if (!act.command)
        return emit said(act.refusal);
    m_services.executeCommand(act.command.release(), act.name);
    m_services.history().endStep();
    if (act.result && !act.result->isWhole())
        emit said(tr("Changes that could not be taken over: %1; the first: %2")
                      .arg(act.result->misfits.size())
                      .arg(SpxSentence::translated(act.result->misfits.front())));
    follow();
}

void ChangesPanel::showBefore(bool on)
{
    HostPreview& preview = m_services.preview();
    ChangeSource* source = m_model->getSource();
    if (!on || !source)
        return preview.showPresent();
    m_services.history().endStep();
    source->update();
    const QPointer<ChangeSource> kept = source;
    const bool isShown =
        preview.showFormer(source->fieldsOf(getChosen()), [kept](const std::set<SoField*>& fields) {
            if (kept)
                kept->writeFormer(fields);
        });
    m_before->setChecked(isShown);
    if (!isShown)
        emit said(tr("None of these changes is one of a value that could be shown as it was."));
}

void ChangesPanel::enter(const ChangeKey& key, const QString& text)
{
    SoField* field = m_model->getSource()->fieldOf(key);
    if (!field || m_services.preview().refusesEdit())
        return;
    bool isTaken = false;
    const auto write = [&] { return isTaken = setFromText(*field, text); };
    const QString what = m_model->getSource()->describe(key).path;
    m_services.history().endStep();
    m_services.executeCommand(new ChangeCommand({field}, write), tr("Change %1").arg(what));
    m_services.history().endStep();
    if (!isTaken)
        emit said(tr("“%1” cannot be set to “%2”: it is no value of a %3.")
                      .arg(what, text, toQString(field->getTypeId().getName())));
}

void ChangesPanel::toggleSelected()
{
    ChangeKeySet selected = getSelected();
    if (selected.empty() && m_view->currentIndex().isValid())
        selected.insert(keyAt(m_view->currentIndex())); // Tab goes to a row without selecting it
    const ChangeKeySet& ticked = m_model->getTicked();
    const bool areTicked = std::includes(ticked.begin(), ticked.end(), selected.begin(), selected.end());
    m_model->setTicked(selected, !areTicked);
}

void ChangesPanel::edit(int column)
{
    const QModelIndex index = m_view->currentIndex().siblingAtColumn(column);
    if (index.flags() & Qt::ItemIsEditable)
        m_view->edit(index);
}

bool ChangesPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_view->viewport() && event->type() == QEvent::Resize)
        fitPaths();
    if (watched != m_view || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    switch (key->key()) {
    case Qt::Key_Space:
        toggleSelected();
        return true;
    case Qt::Key_Delete:
        revert();
        return true;
    case Qt::Key_F2:
        edit(key->modifiers() & Qt::ShiftModifier ? ChangesModel::BeforeColumn : ChangesModel::AfterColumn);
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

} // namespace scopix

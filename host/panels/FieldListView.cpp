// SPDX-License-Identifier: MIT
#include "panels/FieldListView.h"

#include "panels/FieldListModel.h"
#include "text/ValueText.h"
#include <xsg/core/SoField.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include <algorithm>

namespace scopix
{

FieldListView::FieldListView(QWidget* parent)
    : QTreeView(parent)
    , m_model(new FieldListModel(this))
{
    setObjectName(QStringLiteral("fieldList"));
    setModel(m_model);
    setUniformRowHeights(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setSelectionMode(SingleSelection);
    setAllColumnsShowFocus(true);
    setTextElideMode(Qt::ElideRight);
    setFrameShape(NoFrame);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(50);
    header()->setSectionsMovable(false);
    header()->setSectionResizeMode(QHeaderView::Fixed);
    connect(m_model, &QAbstractItemModel::modelReset, this, &FieldListView::fitColumns);
}

void FieldListView::keyPressEvent(QKeyEvent* event)
{
    if (!event->matches(QKeySequence::Copy))
        return QTreeView::keyPressEvent(event);
    copyValue();
    event->accept();
}

void FieldListView::copyValue() const
{
    if (const SoField* field = m_model->fieldAt(currentIndex()))
        QApplication::clipboard()->setText(wholeValueText(*field));
}

void FieldListView::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    fitColumns();
}

// Types and names get what they need as long as a third of the width is left for the values; what is cut off
// is in the tool tip.
void FieldListView::fitColumns()
{
    const auto wanted = [this](int column) {
        return std::max(sizeHintForColumn(column), header()->sectionSizeHint(column));
    };
    const int width = viewport()->width();
    const int third = width / 3;
    const int type = std::min(wanted(FieldListModel::TypeColumn), third);
    const int name = std::min(wanted(FieldListModel::NameColumn), width - third - type);
    header()->resizeSection(FieldListModel::TypeColumn, type);
    header()->resizeSection(FieldListModel::NameColumn, name);
    header()->resizeSection(FieldListModel::ValueColumn, width - name - type);
    updateGeometries(); // the tree itself would wait for a timer, with a scroll bar meanwhile
}

void FieldListView::setContainer(SoFieldContainer* container)
{
    const QScopedValueRollback<bool> quiet(m_quiet, true);
    m_model->setContainer(container);
}

void FieldListView::lookAgain()
{
    m_model->lookAgain();
}

void FieldListView::showField(const SoField* field)
{
    const QScopedValueRollback<bool> quiet(m_quiet, true);
    if (field)
        m_model->setContainer(field->getContainer());
    const QModelIndex index = m_model->indexOf(field);
    if (index == currentIndex().siblingAtColumn(FieldListModel::NameColumn) && index.isValid())
        return;
    setCurrentIndex(index);
    if (index.isValid())
        scrollTo(index);
    else
        clearSelection();
}

void FieldListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    if (!m_quiet)
        emit fieldSelected(selected.isEmpty() ? nullptr : m_model->fieldAt(selected.indexes().first()));
}

} // namespace scopix

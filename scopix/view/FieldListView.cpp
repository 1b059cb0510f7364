#include "view/FieldListView.h"

#include "view/FieldListModel.h"
#include <xsg/fields/SoField.h>

#include <QHeaderView>
#include <QScopedValueRollback>

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
    header()->setStretchLastSection(true);
    header()->setMinimumSectionSize(50);
    header()->setSectionsMovable(false);
    for (const int column : {FieldListModel::NameColumn, FieldListModel::TypeColumn})
        header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
}

void FieldListView::setContainer(SoFieldContainer* container)
{
    const QScopedValueRollback<bool> quiet(m_quiet, true);
    m_model->setContainer(container);
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

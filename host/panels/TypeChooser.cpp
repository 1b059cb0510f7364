// SPDX-License-Identifier: MIT
#include "panels/TypeChooser.h"

#include "panels/NodeIcons.h"
#include "text/NodeText.h"

#include <xsg/nodes/base/SoNode.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/nodes/groups/SoGroup.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace scopix
{

namespace
{

std::vector<SoType> typesBelow(SoType base)
{
    std::vector<SoType> types = SoType::getAllDerivedFrom(base);
    const auto isNone = [](SoType type) {
        return !type.canCreateInstance() || type.isDerivedFrom(SoUnknownNode::getClassTypeId());
    };
    types.erase(std::remove_if(types.begin(), types.end(), isNone), types.end());
    std::sort(types.begin(), types.end(),
              [](SoType a, SoType b) { return toQString(a.getName()) < toQString(b.getName()); });
    return types;
}

} // namespace

std::vector<SoType> TypeChooser::typesToAdd()
{
    return typesBelow(SoNode::getClassTypeId());
}

std::vector<SoType> TypeChooser::groupTypes()
{
    return typesBelow(SoGroup::getClassTypeId());
}

TypeChooser::TypeChooser(const std::vector<SoType>& types, const QString& title, QWidget* parent)
    : QDialog(parent)
    , m_line(new QLineEdit)
    , m_list(new QListWidget)
    , m_types(types)
{
    setObjectName(QStringLiteral("typeChooser"));
    setWindowTitle(title);
    m_line->setPlaceholderText(tr("Type a part of the name"));
    m_line->setAccessibleName(tr("Type a part of the name"));
    m_line->installEventFilter(this);
    m_list->setIconSize({16, 16}); // the grid that the icons are drawn on
    m_list->setAccessibleName(tr("Types of nodes"));
    for (const SoType type : m_types)
        m_list->addItem(new QListWidgetItem(nodeIcon(type, this), typeText(type)));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_line);
    layout->addWidget(m_list);
    connect(m_line, &QLineEdit::textChanged, this, &TypeChooser::narrow);
    connect(m_line, &QLineEdit::returnPressed, this, &TypeChooser::choose);
    connect(m_list, &QListWidget::itemActivated, this, &TypeChooser::choose);
    narrow({});
    resize(300, 420);
}

void TypeChooser::narrow(const QString& text)
{
    int first = -1;
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem* item = m_list->item(row);
        const bool fits = item->text().contains(text.trimmed(), Qt::CaseInsensitive);
        item->setHidden(!fits);
        const bool startsSo = fits && item->text().startsWith(text.trimmed(), Qt::CaseInsensitive);
        if (fits && (first < 0 || (startsSo && !m_list->item(first)->text().startsWith(text.trimmed(),
                                                                                       Qt::CaseInsensitive))))
            first = row;
    }
    m_list->setCurrentRow(first);
}

void TypeChooser::choose()
{
    const int row = m_list->currentRow();
    if (row < 0)
        return;
    m_chosen = m_types[static_cast<std::size_t>(row)];
    accept();
}

// The list follows the keys that go through it, while typing stays in the line.
bool TypeChooser::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QCoreApplication::sendEvent(m_list, event);
        return true;
    default:
        return QDialog::eventFilter(watched, event);
    }
}

} // namespace scopix

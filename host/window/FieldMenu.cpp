// SPDX-License-Identifier: MIT
#include "window/FieldMenu.h"

#include "panels/FieldListModel.h"
#include "panels/FieldListView.h"
#include "services/HostServices.h"
#include "text/NodeText.h"
#include "undo/FieldEdit.h"

#include <scopix/SpxCommand.h>
#include <scopix/SpxContextMenus.h>
#include <scopix/SpxEditedFields.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>
#include <xsg/paths/SoScenePath.h>

#include <QApplication>
#include <QClipboard>
#include <QMenu>

#include <memory>

namespace scopix
{

namespace
{

// The host takes the step out before the field's node is destroyed.
class ResetCommand : public SpxCommand, public SpxEditedFields
{
public:
    ResetCommand(SoField& field, const SoField& fresh)
        : m_field(field)
        , m_fresh(&fresh)
        , m_edit(field)
    {
    }

    void execute() override
    {
        m_edit.aboutToWrite(0, -1);
        m_field.copyFrom(*m_fresh);
        m_field.setDefault(true);
        m_edit.close();
        m_fresh = nullptr;
    }
    void undo() override { m_edit.undo(); }
    void redo() override { m_edit.redo(); }
    std::vector<SoField*> editedFields() const override { return {&m_field}; }
    bool isWithoutEffect() const override { return m_edit.isNothing(); }

private:
    SoField& m_field;
    const SoField* m_fresh; // until it is executed
    FieldEdit m_edit;
};

// Null where the type cannot be made by itself.
SoRef<SoFieldContainer> makeFresh(const SoFieldContainer& node)
{
    return SoRef<SoFieldContainer>(dynamic_cast<SoFieldContainer*>(node.getTypeId().createInstance()));
}

} // namespace

FieldMenu::FieldMenu(FieldListView& list, HostServices& services)
    : QObject(&list)
    , m_list(list)
    , m_services(services)
{
    list.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&list, &QWidget::customContextMenuRequested, this, &FieldMenu::open);
}

// By the keyboard it opens where the chosen row is.
void FieldMenu::open(const QPoint& where)
{
    const QModelIndex index = m_list.indexAt(where).isValid() ? m_list.indexAt(where) : m_list.currentIndex();
    SoField* field = m_list.getModel().fieldAt(index);
    if (!field)
        return;
    m_services.select(field); // entries act on it, and it goes with the menu where its node is destroyed
    auto* menu = new QMenu(&m_list);
    menu->setObjectName(QStringLiteral("fieldMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(&m_list.getModel(), &QAbstractItemModel::modelAboutToBeReset, menu, &QWidget::close);
    menu->addAction(tr("&Copy Value"), &m_list, &FieldListView::copyValue)->setShortcut(QKeySequence::Copy);
    menu->addAction(tr("Cop&y Path"), this,
                    [text = pathOf(*field)] { QApplication::clipboard()->setText(text); });
    menu->addSeparator();
    menu->addAction(tr("&Reset to Default"), this,
                    [this] {
                        if (SoField* selected = m_services.selectedField())
                            reset(*selected);
                    })
        ->setEnabled(!field->isDefault());
    if (SpxContextMenus* menus = SpxContextMenus::getInstance())
        menus->fillFieldMenu(*menu, *field);
    menu->popup(m_list.viewport()->mapToGlobal(where));
}

QString FieldMenu::pathOf(const SoField& field) const
{
    const SoPath path = m_services.getSelectedPath();
    SoScenePath place = path.isEmpty() && field.getContainer() ? SoScenePath::ofLabel(*field.getContainer())
                                                               : SoScenePath::of(path);
    place.setField(field.getName().getString());
    return QString::fromLatin1(place.toText().c_str()); // names hold Latin-1
}

void FieldMenu::reset(SoField& field)
{
    const SoFieldContainer& node = *field.getContainer();
    const SoRef<SoFieldContainer> fresh = makeFresh(node);
    if (const SoField* same = fresh ? fresh->getField(field.getName()) : nullptr)
        m_services.executeCommand(
            new ResetCommand(field, *same),
            tr("Reset %1.%2").arg(toQString(node.getTypeId().getName()), toQString(field.getName())));
}

} // namespace scopix

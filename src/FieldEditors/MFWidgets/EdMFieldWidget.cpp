// SPDX-License-Identifier: MIT
#include "EdMFieldWidget.h"

#include "AccessButtonPrivate.h"
#include "EdFieldEdits.h"
#include "EdFieldFrame.h"
#include "EdMFColorTable.h"
#include "EdMFieldTable.h"
#include "EditorIcons.h"
#include "FieldEditorSettings.h"

#include <xsg/core/SoMField.h>

#include <QFrame>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

namespace
{

int setting(const char* key)
{
    return xsgsettings_fieldEditor(QString::fromLatin1(key));
}

} // namespace

EdMFieldWidget::EdMFieldWidget(const char* name)
    : EdMFieldWidget(0, name)
{
}

EdMFieldWidget::EdMFieldWidget(int tableKind, const char* name)
    : m_deleteIcon(fieldEditor::icon(fieldEditor::Icon::Delete))
    , m_addIcon(fieldEditor::icon(fieldEditor::Icon::Add))
    , m_upIcon(fieldEditor::icon(fieldEditor::Icon::Up))
    , m_downIcon(fieldEditor::icon(fieldEditor::Icon::Down))
    , m_defaultIcon(fieldEditor::icon(fieldEditor::Icon::Default))
    , m_ignoreIcon(fieldEditor::icon(fieldEditor::Icon::Ignore))
{
    setObjectName(QString::fromLatin1(name ? name : "EdMFieldWidget"));
    if (tableKind == ColorTableKind)
        m_table = new EdMFColorTable(this, getWidgetContainer(), "m_table");
    else
        m_table = new EdMFieldTable(this, getWidgetContainer(), "m_table");
}

EdMFieldWidget::~EdMFieldWidget()
{
    // An open cell may still hand its value over while it is destroyed; it must find an editor.
    if (getWidgetContainer())
        delete m_table;
}

void EdMFieldWidget::load()
{
    SpxFieldEditors::load();
    QFrame* container = getWidgetContainer();
    const EdFieldFrame frame(container);
    frame.discard({m_label, m_table}); // of an earlier load()
    EdFieldFrame::setBox(container, "frameLineWidth");
    m_globalLayout = new QGridLayout(container);
    // "Marging" is the key's spelling (decisions.md: metric-names).
    EdFieldFrame::setMetrics(m_globalLayout, "m_globalLayout", "MFGlobalLayoutMarging",
                             "MFGlobalLayoutSpacing");

    if (!m_label)
        m_label = frame.newLabel("m_label");
    EdFieldFrame::styleCaption(m_label);
    m_globalLayout->addWidget(m_label, 0, 0);
    m_globalLayout->addItem(new QSpacerItem(0, 4), 1, 0);
    m_globalLayout->addItem(new QSpacerItem(6, 0), 0, 1);

    buildButtons();
    m_globalLayout->addLayout(m_buttonsLayout, 0, 2);
    m_globalLayout->addWidget(m_table, 2, 2);
    m_table->setMinimumHeight(setting("MFTableMinHeightUnix"));
    m_table->setAccessibleName(tr("Elements"));
    connectButtons();
    languageChange();
}

void EdMFieldWidget::buildButtons()
{
    const EdFieldFrame frame(getWidgetContainer());
    const auto newGroup = [](const char* objectName) {
        return EdFieldFrame::newRow(objectName, "MFButtonLayoutMargin", "MFButtonLayoutSpacing");
    };
    m_buttonsLayout = EdFieldFrame::newRow("m_buttonsLayout", "MFGlobalButtonsLayoutMargin",
                                           "MFGlobalButtonsLayoutSpacing");

    m_addButton = frame.newButton("m_addButton", m_addIcon);
    m_deleteButton = frame.newButton("m_deleteButton", m_deleteIcon);
    m_manageButtonsLayout = newGroup("m_manageButtonsLayout");
    m_manageButtonsLayout->addWidget(m_addButton);
    m_manageButtonsLayout->addWidget(m_deleteButton);
    m_buttonsLayout->addLayout(m_manageButtonsLayout);

    m_manageAccessSpacer = new QSpacerItem(setting("MFManageAccessSpacerWidth"),
                                           setting("MFManageAccessSpacerHeight"), QSizePolicy::Expanding);
    m_buttonsLayout->addItem(m_manageAccessSpacer);
    m_accessBox = new AccessButtonPrivate(0, 0, 1, getWidgetContainer(), "m_accessBox");
    m_accessBox->setMaximumSize(setting("MFAccessWidth"), setting("buttonHeight"));
    m_buttonsLayout->addWidget(m_accessBox);
    m_accessMoveSpacer = new QSpacerItem(setting("MFAccessMoveSpacerWidth"),
                                         setting("MFAccessMoveSpacerHeight"), QSizePolicy::Expanding);
    m_buttonsLayout->addItem(m_accessMoveSpacer);
    m_buttonsLayout->addItem(new QSpacerItem(0, 4));
    m_labelNumElement = frame.newLabel("m_labelNumElement");
    updateNumElementLabel();
    m_buttonsLayout->addWidget(m_labelNumElement);

    m_upButton = frame.newButton("m_upButton", m_upIcon);
    m_downButton = frame.newButton("m_downButton", m_downIcon);
    QHBoxLayout* movement = newGroup("movementButtonLayout");
    movement->addWidget(m_upButton);
    movement->addWidget(m_downButton);
    m_buttonsLayout->addLayout(movement);

    m_defaultButton = frame.newDefaultButton(m_defaultIcon);
    m_ignoreButton = frame.newIgnoreButton(m_ignoreIcon);
    QHBoxLayout* state = newGroup("movementButtonLayout");
    state->addWidget(m_defaultButton);
    state->addWidget(m_ignoreButton);
    m_buttonsLayout->addLayout(state);
}

void EdMFieldWidget::connectButtons()
{
    connect(m_upButton, &QPushButton::clicked, m_table, &EdMFieldTable::swapUpRow);
    connect(m_downButton, &QPushButton::clicked, m_table, &EdMFieldTable::swapDownRow);
    connect(m_deleteButton, &QPushButton::clicked, m_table, &EdMFieldTable::deleteRow);
    connect(m_addButton, &QPushButton::clicked, m_table, &EdMFieldTable::addRow);
    connect(m_accessBox, qOverload<int>(&QSpinBox::valueChanged), m_table, &EdMFieldTable::showTableRow);
    connect(m_ignoreButton, &QPushButton::released, this, &EdMFieldWidget::ignoreButtonStateChanged);
    connect(m_defaultButton, &QPushButton::clicked, this, &EdMFieldWidget::setDefaultFieldValue);
}

void EdMFieldWidget::languageChange()
{
    for (QPushButton* button : {m_deleteButton, m_upButton, m_downButton, m_addButton})
        button->setText(QString());
    EdFieldFrame::nameStateButtons(m_defaultButton, m_ignoreButton);
    EdFieldFrame::name(m_deleteButton, tr("Delete current row"));
    EdFieldFrame::name(m_accessBox, tr("Quick access to rows"));
    EdFieldFrame::name(m_upButton, tr("Bring up current row"));
    EdFieldFrame::name(m_downButton, tr("Bring down current row"));
    EdFieldFrame::name(m_addButton, tr("Add a row"));
}

void EdMFieldWidget::setFieldName(const QString& name)
{
    m_label = EdFieldFrame(getWidgetContainer()).captioned(m_label, name);
}

void EdMFieldWidget::updateNumElementLabel()
{
    const SoMField* field = editedField();
    if (field && m_labelNumElement)
        m_labelNumElement->setText(tr("<p align=\"center\">") + QString::number(field->getNum()) +
                                   tr(" elements") + tr("</p>"));
}

void EdMFieldWidget::initColumns(const QStringList& captions, int columns)
{
    m_table->setColumnCount(columns);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    if (!captions.isEmpty())
        m_table->setHorizontalHeaderLabels(captions);
    m_table->setNumRows(0);
}

bool EdMFieldWidget::hasRow(int row) const
{
    const SoMField* field = editedField();
    return field && row >= 0 && row < field->getNum();
}

void EdMFieldWidget::setField(SoField* field)
{
    if (checkField(field))
        m_field = field;
    SpxFieldEditors::setField(field);
}

void EdMFieldWidget::deactivate()
{
    SpxFieldEditors::deactivate();
    m_table->dropOpenEditor();
}

bool EdMFieldWidget::edited()
{
    return m_table->hasTypedCell();
}

void EdMFieldWidget::applyChanges()
{
    m_table->commitOpenEditor();
}

SoMField* EdMFieldWidget::editedField() const
{
    return getField() ? static_cast<SoMField*>(m_field.get()) : nullptr;
}

void EdMFieldWidget::refresh()
{
    const SoMField* field = editedField();
    if (!m_table || !m_refresh || !field)
        return;
    m_table->setNumRows(field->getNum());
    m_table->viewport()->update();
    {
        const QSignalBlocker quiet(m_ignoreButton);
        m_ignoreButton->setChecked(field->isIgnored());
    }
    updateNumElementLabel();
}

void EdMFieldWidget::swapRows(int /*row1*/, int /*row2*/) {}

void EdMFieldWidget::swapColumns(int /*column1*/, int /*column2*/) {}

void EdMFieldWidget::set1Value(int /*row*/, int /*column*/, QString /*text*/) {}

void EdMFieldWidget::setValue(int /*row*/, const void* /*value*/) {}

QString EdMFieldWidget::getFieldValue(int /*row*/, int /*column*/) const
{
    return {};
}

QString EdMFieldWidget::getCellText(int row, int column, int /*length*/) const
{
    return getFieldValue(row, column);
}

int EdMFieldWidget::getTextFlags()
{
    return Qt::AlignCenter;
}

bool EdMFieldWidget::checkField(SoField* /*field*/)
{
    return false;
}

void EdMFieldWidget::ignoreButtonStateChanged()
{
    if (SoMField* field = editedField())
        EdFieldEdits::setIgnored(field, m_ignoreButton->isChecked());
}

void EdMFieldWidget::setDefaultFieldValue()
{
    if (SoMField* field = editedField())
        EdFieldEdits::setToDefault(field);
}

// SPDX-License-Identifier: MIT
#include "EdMFieldWidget.h"

#include "AccessButtonPrivate.h"
#include "EdFieldEdits.h"
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

void setMargin(QLayout* layout, int margin)
{
    layout->setContentsMargins(margin, margin, margin, margin);
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
    // An open cell may still hand its value over while it goes; it must find an editor.
    if (getWidgetContainer())
        delete m_table;
}

void EdMFieldWidget::load()
{
    SpxFieldEditors::load();
    QFrame* container = getWidgetContainer();
    discardWidgets();
    container->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    container->setLineWidth(setting("frameLineWidth"));
    m_globalLayout = new QGridLayout(container);
    setMargin(m_globalLayout, setting("MFGlobalLayoutMarging")); // spelt so in the settings that people have
    m_globalLayout->setSpacing(setting("MFGlobalLayoutSpacing"));
    m_globalLayout->setObjectName(QStringLiteral("m_globalLayout"));

    if (!m_label)
        m_label = new QLabel(container);
    m_label->setObjectName(QStringLiteral("m_label"));
    QFont font = m_label->font();
    font.setPointSize(setting("labelPointSize"));
    m_label->setFont(font);
    m_label->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    m_label->setLineWidth(setting("labelLineWidth"));
    m_label->setScaledContents(true);
    m_label->setMinimumWidth(1);
    m_label->setToolTip(m_label->text());
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

// What an earlier load() built is built again; the caption and the table stay.
void EdMFieldWidget::discardWidgets()
{
    delete getWidgetContainer()->layout();
    const QList<QWidget*> inside =
        getWidgetContainer()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* widget : inside) {
        if (widget != m_label && widget != m_table)
            delete widget;
    }
    m_accessBox = nullptr;
    m_labelNumElement = nullptr;
}

QPushButton* EdMFieldWidget::newButton(const char* objectName, const QPixmap& icon, int width, int height)
{
    auto* button = new QPushButton(getWidgetContainer());
    button->setObjectName(QString::fromLatin1(objectName));
    button->setMaximumSize(width, height);
    button->setIcon(icon);
    button->setFocusPolicy(Qt::NoFocus); // the keyboard stays in the table
    return button;
}

QHBoxLayout* EdMFieldWidget::newButtonLayout(const char* objectName)
{
    auto* layout = new QHBoxLayout;
    setMargin(layout, setting("MFButtonLayoutMargin"));
    layout->setSpacing(setting("MFButtonLayoutSpacing"));
    layout->setObjectName(QString::fromLatin1(objectName));
    return layout;
}

void EdMFieldWidget::buildButtons()
{
    const int width = setting("buttonWidth");
    const int height = setting("buttonHeight");
    m_buttonsLayout = new QHBoxLayout;
    m_buttonsLayout->setObjectName(QStringLiteral("m_buttonsLayout"));
    setMargin(m_buttonsLayout, setting("MFGlobalButtonsLayoutMargin"));
    m_buttonsLayout->setSpacing(setting("MFGlobalButtonsLayoutSpacing"));

    m_addButton = newButton("m_addButton", m_addIcon, width, height);
    m_deleteButton = newButton("m_deleteButton", m_deleteIcon, width, height);
    m_manageButtonsLayout = newButtonLayout("m_manageButtonsLayout");
    m_manageButtonsLayout->addWidget(m_addButton);
    m_manageButtonsLayout->addWidget(m_deleteButton);
    m_buttonsLayout->addLayout(m_manageButtonsLayout);

    m_manageAccessSpacer = new QSpacerItem(setting("MFManageAccessSpacerWidth"),
                                           setting("MFManageAccessSpacerHeight"), QSizePolicy::Expanding);
    m_buttonsLayout->addItem(m_manageAccessSpacer);
    m_accessBox = new AccessButtonPrivate(0, 0, 1, getWidgetContainer(), "m_accessBox");
    m_accessBox->setLeastMaximumSize(setting("MFAccessWidth"), height);
    m_buttonsLayout->addWidget(m_accessBox);
    m_accessMoveSpacer = new QSpacerItem(setting("MFAccessMoveSpacerWidth"),
                                         setting("MFAccessMoveSpacerHeight"), QSizePolicy::Expanding);
    m_buttonsLayout->addItem(m_accessMoveSpacer);
    m_buttonsLayout->addItem(new QSpacerItem(0, 4));
    m_labelNumElement = new QLabel(getWidgetContainer());
    m_labelNumElement->setObjectName(QStringLiteral("m_labelNumElement"));
    updateNumElementLabel();
    m_labelNumElement->setMinimumWidth(1); // a narrow dock cuts it; the tool tip has all of it
    m_buttonsLayout->addWidget(m_labelNumElement);

    m_upButton = newButton("m_upButton", m_upIcon, width, height);
    m_downButton = newButton("m_downButton", m_downIcon, width, height);
    QHBoxLayout* movement = newButtonLayout("movementButtonLayout");
    movement->addWidget(m_upButton);
    movement->addWidget(m_downButton);
    m_buttonsLayout->addLayout(movement);

    m_defaultButton = newButton("m_defaultButton", m_defaultIcon, width, height);
    m_ignoreButton = newButton("m_ignoreButton", m_ignoreIcon, width, height);
    m_ignoreButton->setCheckable(true);
    QHBoxLayout* state = newButtonLayout("movementButtonLayout");
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
    const auto name = [](QWidget* widget, const QString& toolTip) {
        widget->setToolTip(toolTip);
        widget->setAccessibleName(toolTip);
    };
    for (QPushButton* button :
         {m_deleteButton, m_upButton, m_downButton, m_defaultButton, m_ignoreButton, m_addButton})
        button->setText(QString());
    name(m_deleteButton, tr("Delete current row"));
    name(m_accessBox, tr("Quick access to rows"));
    name(m_upButton, tr("Bring up current row"));
    name(m_downButton, tr("Bring down current row"));
    name(m_defaultButton, tr("Set to default"));
    name(m_ignoreButton, tr("Ignore this field"));
    name(m_addButton, tr("Add a row"));
}

void EdMFieldWidget::setFieldName(const QString& name)
{
    if (!m_label)
        m_label = new QLabel(getWidgetContainer());
    // A caption that is shown stays, whatever name comes later; that is meant.
    if (m_label->text().isEmpty())
        m_label->setText(tr("<p align=\"center\">") + name + tr("</p>"));
}

void EdMFieldWidget::updateNumElementLabel()
{
    const SoMField* field = editedField();
    if (!field || !m_labelNumElement)
        return;
    m_labelNumElement->setText(tr("<p align=\"center\">") + QString::number(field->getNum()) +
                               QStringLiteral(" elements") + tr("</p>"));
    m_labelNumElement->setToolTip(m_labelNumElement->text());
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
    if (checkField(field)) {
        m_table->forgetRows();
        m_field.attach(field);
    }
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
    return getField() ? static_cast<SoMField*>(m_field.getAttachedField()) : nullptr;
}

void EdMFieldWidget::refresh()
{
    const SoMField* field = editedField();
    if (!m_table || !m_refresh || !field)
        return;
    m_table->setNumRows(field->getNum());
    m_table->followField();
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
    m_table->finishOpenEditor();
    if (SoMField* field = editedField())
        EdFieldEdits::setIgnored(field, m_ignoreButton->isChecked());
}

void EdMFieldWidget::setDefaultFieldValue()
{
    m_table->finishOpenEditor();
    if (SoMField* field = editedField())
        EdFieldEdits::setToDefault(field);
}

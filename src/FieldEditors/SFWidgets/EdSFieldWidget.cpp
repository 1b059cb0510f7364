// SPDX-License-Identifier: MIT
#include "EdSFieldWidget.h"

#include "EdFieldEdits.h"
#include "EdFieldFrame.h"
#include "EdIntSlider.h"
#include "EdLineEdit.h"
#include "EdRealSlider.h"
#include "EdUIntSlider.h"
#include "EditorIcons.h"

#include <xsg/core/SoSField.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace
{

QSpacerItem* addSpacer(QBoxLayout* layout)
{
    auto* spacer = new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Minimum);
    layout->addItem(spacer);
    return spacer;
}

} // namespace

EdSFieldWidget::EdSFieldWidget(const char* name)
{
    setObjectName(QLatin1String(name));
}

EdSFieldWidget::EdSFieldWidget(SFFrameType frameType, const char* name)
{
    setObjectName(QLatin1String(name ? name : "EdSFieldWidget"));
    makeSlider(frameType);
}

EdSFieldWidget::~EdSFieldWidget()
{
    // An input that loses the focus while the container is destroyed must not apply anything.
    delete m_slider;
    if (QFrame* container = getWidgetContainer()) {
        const QList<QWidget*> inputs = container->findChildren<QWidget*>();
        for (QWidget* input : inputs)
            input->disconnect(this);
    }
}

void EdSFieldWidget::setFieldType(SoType type, const char* name)
{
    setHandledType(type);
    setName(type.getName().getString());
    if (!name)
        setObjectName(QLatin1String(metaObject()->className()));
}

void EdSFieldWidget::makeSlider(SFFrameType frameType)
{
    QWidget* parent = getWidgetContainer();
    const auto real = [&](bool single) {
        return new EdRealSlider(SingleValueParent, this, parent, single, 0, 1);
    };
    const auto integer = [&](SliderType type) {
        return new EdIntSlider(type, SingleValueParent, this, parent, 0, 1);
    };
    const auto natural = [&](SliderType type) {
        return new EdUIntSlider(type, SingleValueParent, this, parent, 0, 1);
    };
    switch (frameType) {
    case PlainFrame:
        break;
    case FloatFrame:
        m_slider = real(true);
        break;
    case DoubleFrame:
        m_slider = real(false);
        break;
    case Int32Frame:
        m_slider = integer(Int32Slider);
        break;
    case UInt32Frame:
        m_slider = natural(UInt32Slider);
        break;
    case ShortFrame:
        m_slider = integer(Int16Slider);
        break;
    case UShortFrame:
        m_slider = natural(UInt16Slider);
        break;
    }
    m_editionFrame = m_slider;
}

void EdSFieldWidget::load()
{
    if (!m_label)
        setFieldName(QLatin1String(getName().getString()));
    SpxFieldEditors::load();
    discardWidgets();
    EdFieldFrame::setBox(getWidgetContainer(), "frameLineWidth");
    m_mainLayout = EdFieldFrame::newRow("SFieldLayout", "SFieldLayoutMargin", "SFieldLayoutSpacing",
                                        getWidgetContainer());
    styleLabel();
    m_mainLayout->addWidget(m_label);
    m_labelSpacer = addSpacer(m_mainLayout);

    m_editionAreaLayout =
        EdFieldFrame::newRow("SFieldEditionAreaLayout", "SFEditionAreaLayMargin", "SFEditionAreaLaySpacing");
    buildEditionFrame();
    m_editionAreaLayout->addWidget(m_editionFrame, 1);
    m_editionSpacer = addSpacer(m_editionAreaLayout);
    buildButtons();
    m_editionAreaLayout->addLayout(m_buttonLayout);
    m_editionAreaLayout->setAlignment(m_buttonLayout, Qt::AlignTop);
    m_editionAreaLayout->setSizeConstraint(QLayout::SetMinimumSize);
    m_mainLayout->addLayout(m_editionAreaLayout, 1);
    // In a tall dock everything stands at the top.
    m_mainLayout->setAlignment(m_label, Qt::AlignTop);
    m_mainLayout->setAlignment(m_editionAreaLayout, Qt::AlignTop);

    languageChange();
    connect(m_defaultButton, &QPushButton::clicked, this, &EdSFieldWidget::setDefaultFieldValue);
    connect(m_ignoreButton, &QPushButton::released, this, &EdSFieldWidget::ignoreButtonStateChanged);
}

// Removes what an earlier load() built. The caption, which is kept, and the slider, which comes with the
// constructor, stay.
void EdSFieldWidget::discardWidgets()
{
    EdFieldFrame(getWidgetContainer()).discard({m_label, m_slider});
    m_editionFrame = m_slider;
}

void EdSFieldWidget::setFieldName(const QString& name)
{
    m_label = EdFieldFrame(getWidgetContainer()).captioned(m_label, name);
}

void EdSFieldWidget::styleLabel()
{
    EdFieldFrame::styleCaption(m_label);
    // As high as a row of inputs, so that the caption stands level with them.
    m_label->setMinimumHeight(QLineEdit().sizeHint().height() + 4);
}

void EdSFieldWidget::buildEditionFrame()
{
    if (m_editionFrame) {
        m_editLayout = qobject_cast<QBoxLayout*>(m_editionFrame->layout());
        return;
    }
    m_editionFrame = new QFrame(getWidgetContainer());
    m_editionFrame->setObjectName(QStringLiteral("m_editionFrame"));
    EdFieldFrame::setBox(m_editionFrame, "frameLineWidth");
    m_editLayout = EdFieldFrame::newRow("editLayout", "SFieldEditLayoutMargin", "SFieldEditLayoutSpacing",
                                        m_editionFrame);
    m_editLayout->addStrut(m_label->minimumHeight()); // what is lower stands level with the caption
}

void EdSFieldWidget::buildButtons()
{
    const EdFieldFrame frame(getWidgetContainer());
    // The main layout's object name once more (decisions.md: layout-names).
    m_buttonLayout = EdFieldFrame::newRow("SFieldLayout", "SFButtonLayoutMargin", "SFButtonLayoutSpacing");
    m_buttonLayout->addStrut(m_label->minimumHeight()); // level with the caption, also beside many rows
    m_defaultButton = frame.newDefaultButton(fieldEditor::icon(fieldEditor::Icon::Default));
    m_buttonLayout->addWidget(m_defaultButton);
    m_ignoreButton = frame.newIgnoreButton(fieldEditor::icon(fieldEditor::Icon::Ignore));
    m_buttonLayout->addWidget(m_ignoreButton);
}

void EdSFieldWidget::setSpacers(int width, int height)
{
    if (!m_mainLayout)
        return;
    for (QSpacerItem* spacer : {m_labelSpacer, m_editionSpacer})
        spacer->changeSize(width, height, QSizePolicy::Expanding, QSizePolicy::Minimum);
    m_mainLayout->invalidate();
    m_editionAreaLayout->invalidate();
}

SoSField* EdSFieldWidget::getSField() const
{
    return getFieldAs<SoSField>();
}

void EdSFieldWidget::setField(SoField* field)
{
    ++m_editingRound;
    if (m_slider)
        m_slider->forget();
    const QList<EdLineEdit*> inputs = getWidgetContainer()->findChildren<EdLineEdit*>();
    for (EdLineEdit* input : inputs)
        input->forget();
    SpxFieldEditors::setField(field);
}

void EdSFieldWidget::refresh()
{
    const SoField* field = getField();
    if (field && m_ignoreButton)
        m_ignoreButton->setChecked(field->isIgnored());
}

void EdSFieldWidget::setRefresh(bool) {}

void EdSFieldWidget::swapRows(int, int) {}

void EdSFieldWidget::swapColumns(int, int) {}

void EdSFieldWidget::set1Value(int, int, QString) {}

void EdSFieldWidget::setValue(int, const void*) {}

void EdSFieldWidget::applyChanges() {}

bool EdSFieldWidget::edited()
{
    return false;
}

void EdSFieldWidget::languageChange()
{
    EdFieldFrame::nameStateButtons(m_defaultButton, m_ignoreButton);
}

void EdSFieldWidget::setCommandValue()
{
    applyChanges();
}

void EdSFieldWidget::setFocusLeaveEvent()
{
    if (edited())
        applyChanges();
}

void EdSFieldWidget::ignoreButtonStateChanged()
{
    if (SoField* field = getField())
        EdFieldEdits::setIgnored(field, m_ignoreButton->isChecked());
}

// What waits to be applied would otherwise replace the default when its input is left.
void EdSFieldWidget::dropTyping()
{
    const QList<EdLineEdit*> inputs = getWidgetContainer()->findChildren<EdLineEdit*>();
    for (EdLineEdit* input : inputs)
        input->dropTyping();
}

void EdSFieldWidget::setDefaultFieldValue()
{
    SoField* field = getField();
    if (!field)
        return;
    dropTyping();
    EdFieldEdits::setToDefault(field);
}

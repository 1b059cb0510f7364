// SPDX-License-Identifier: MIT
#include "EdFieldFrame.h"

#include "FieldEditorSettings.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace
{

int setting(const char* key)
{
    return xsgsettings_fieldEditor(QLatin1String(key));
}

QString tr(const char* text)
{
    return QCoreApplication::translate("EdFieldFrame", text);
}

} // namespace

void EdFieldFrame::setBox(QFrame* frame, const char* lineWidthKey)
{
    frame->setFrameShape(QFrame::Box);
    frame->setFrameShadow(QFrame::Plain);
    frame->setLineWidth(setting(lineWidthKey));
}

void EdFieldFrame::setMetrics(QLayout* layout, const char* objectName, const char* marginKey,
                              const char* spacingKey)
{
    const int margin = setting(marginKey);
    layout->setObjectName(QLatin1String(objectName));
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(setting(spacingKey));
}

QHBoxLayout* EdFieldFrame::newRow(const char* objectName, const char* marginKey, const char* spacingKey,
                                  QWidget* parent)
{
    auto* row = new QHBoxLayout(parent);
    setMetrics(row, objectName, marginKey, spacingKey);
    return row;
}

QLabel* EdFieldFrame::captioned(QLabel* label, const QString& name) const
{
    if (!label)
        label = newLabel("m_label");
    // A caption that is shown stays, whatever name comes later (decisions.md: first-caption).
    if (label->text().isEmpty())
        label->setText(tr("<p align=\"center\">") + name + tr("</p>"));
    return label;
}

QLabel* EdFieldFrame::newLabel(const char* objectName) const
{
    auto* label = new QLabel(m_container);
    label->setObjectName(QLatin1String(objectName));
    return label;
}

void EdFieldFrame::styleCaption(QLabel* label)
{
    QFont font = label->font();
    font.setPointSize(setting("labelPointSize"));
    label->setFont(font);
    setBox(label, "labelLineWidth");
    label->setScaledContents(true);
}

QPushButton* EdFieldFrame::newButton(const char* objectName, const QPixmap& icon) const
{
    auto* button = new QPushButton(m_container);
    button->setObjectName(QLatin1String(objectName));
    button->setMaximumSize(setting("buttonWidth"), setting("buttonHeight"));
    button->setIcon(icon);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

QPushButton* EdFieldFrame::newDefaultButton(const QPixmap& icon) const
{
    return newButton("m_defaultButton", icon);
}

QPushButton* EdFieldFrame::newIgnoreButton(const QPixmap& icon) const
{
    QPushButton* button = newButton("m_ignoreButton", icon);
    button->setCheckable(true);
    return button;
}

void EdFieldFrame::name(QWidget* widget, const QString& toolTip)
{
    widget->setToolTip(toolTip);
    widget->setAccessibleName(toolTip);
}

void EdFieldFrame::nameStateButtons(QPushButton* defaultButton, QPushButton* ignoreButton)
{
    defaultButton->setText(QString());
    ignoreButton->setText(QString());
    name(defaultButton, tr("Set to default"));
    name(ignoreButton, tr("Ignore this field"));
}

void EdFieldFrame::discard(const QList<QWidget*>& kept) const
{
    delete m_container->layout();
    const QList<QWidget*> inside = m_container->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* widget : inside) {
        if (!kept.contains(widget))
            delete widget;
    }
}

// SPDX-License-Identifier: MIT
#include "EdSFFilePathStringWidget.h"

#include "EdFontFitting.h"
#include "EdLineEdit.h"

#include <QBoxLayout>
#include <QFileDialog>
#include <QFileInfo>
#include <QFrame>
#include <QPointer>
#include <QPushButton>

EdSFFilePathStringWidget::EdSFFilePathStringWidget(const char* name)
    : EdSFTextWidget(name)
{
    setFieldType(SoSFFilePathString::getClassTypeId(), name);
}

void EdSFFilePathStringWidget::load()
{
    EdSFTextWidget::load();
    auto* button = new QPushButton(QStringLiteral("..."), editionFrame());
    button->setObjectName(QStringLiteral("openFileButton"));
    button->setAccessibleName(tr("Open File"));
    button->setToolTip(tr("Open File"));
    button->setFocusPolicy(Qt::TabFocus); // a click does not end the editing of the line
    followFont(button, [button] {
        button->setMaximumWidth(button->fontMetrics().horizontalAdvance(QStringLiteral("......")));
    });
    editLayout()->addWidget(button);
    connect(button, &QPushButton::clicked, this, &EdSFFilePathStringWidget::openFileDialog);
}

bool EdSFFilePathStringWidget::edited()
{
    return EdSFTextWidget::edited();
}

void EdSFFilePathStringWidget::openFileDialog()
{
    const QPointer<EdSFFilePathStringWidget> self(this);
    const int round = editingRound();
    const QString folder = lineEdit()->text().isEmpty() ? QString() : QFileInfo(lineEdit()->text()).path();
    const QString name = QFileDialog::getOpenFileName(getWidgetContainer(), tr("Open File"), folder);
    // Meanwhile another field, or none, may have come.
    if (!self || round != editingRound() || name.isEmpty())
        return;
    lineEdit()->setText(name);
    applyChanges();
}

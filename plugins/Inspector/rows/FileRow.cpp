// SPDX-License-Identifier: MIT
#include "rows/FileRow.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMimeData>
#include <QPointer>
#include <QToolButton>
#include <QUrl>

namespace inspector
{

namespace
{

QString fileIn(const QMimeData& data)
{
    return data.urls().isEmpty() ? QString() : data.urls().first().toLocalFile();
}

} // namespace

FileRow::FileRow(SoField* field)
    : TextRow(field)
{
    setAcceptDrops(true);
}

void FileRow::build()
{
    TextRow::build();
    line()->setAcceptDrops(false); // the row takes files
    auto* button = new QToolButton;
    button->setText(tr("…"));
    button->setToolTip(tr("Choose a file"));
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QToolButton::clicked, this, &FileRow::browse);
    editorLayout()->addWidget(button);
    addInput(button, tr("choose a file"));
}

void FileRow::showValue()
{
    TextRow::showValue();
    // A picture of the file, where it is one.
    const QString path = shownText();
    if (!path.isEmpty())
        line()->setToolTip(
            QStringLiteral("<img src=\"%1\" width=\"160\"><br>%2")
                .arg(QUrl::fromLocalFile(path).toString().toHtmlEscaped(), path.toHtmlEscaped()));
}

void FileRow::browse()
{
    if (!field())
        return;
    const QPointer<FileRow> self(this); // the row may go while the dialog is open
    const QString path = QFileDialog::getOpenFileName(window(), tr("Choose a File"), shownText());
    if (self && field() && !path.isEmpty())
        take(path);
}

void FileRow::take(const QString& path)
{
    if (isMixed() || path != shownText())
        edit([&] { writeText(path); });
}

void FileRow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!fileIn(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void FileRow::dropEvent(QDropEvent* event)
{
    const QString path = fileIn(*event->mimeData());
    if (path.isEmpty() || !field())
        return;
    event->acceptProposedAction();
    take(path);
}

} // namespace inspector

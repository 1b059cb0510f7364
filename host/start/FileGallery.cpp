// SPDX-License-Identifier: MIT
#include "start/FileGallery.h"

#include "start/FilePictures.h"

#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

namespace scopix
{

namespace
{

constexpr int Margin = 8;

// A picture of the same size for each, so that the names stand in line.
QIcon framed(const QImage& picture, const QPalette& palette)
{
    QPixmap frame(FilePictures::size());
    frame.fill(palette.color(QPalette::Mid));
    QPainter painter(&frame);
    if (!picture.isNull())
        painter.drawImage(frame.rect(), picture);
    painter.setPen(palette.color(QPalette::Dark));
    painter.drawRect(frame.rect().adjusted(0, 0, -1, -1));
    return QIcon(frame);
}

} // namespace

FileGallery::FileGallery(const QString& name, QWidget* parent)
    : QListWidget(parent)
{
    setAccessibleName(name);
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setWordWrap(true);
    setTextElideMode(Qt::ElideMiddle);
    setFrameShape(QFrame::NoFrame);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setIconSize(FilePictures::size());
    viewport()->setAutoFillBackground(false);
    connect(this, &QListWidget::itemClicked, this, &FileGallery::choose);
    fitRows();
}

void FileGallery::add(const QString& file, const QString& title, const QImage& picture)
{
    auto* item = new QListWidgetItem(framed(picture, palette()), title, this);
    item->setData(Qt::UserRole, file);
    item->setToolTip(QDir::toNativeSeparators(file));
    fitRows();
}

QStringList FileGallery::files() const
{
    QStringList all;
    for (int row = 0; row < count(); ++row)
        all += item(row)->data(Qt::UserRole).toString();
    return all;
}

QSize FileGallery::sizeHint() const
{
    const int columns = std::max(1, viewport()->width() / std::max(1, gridSize().width()));
    const int rows = (count() + columns - 1) / columns;
    return {gridSize().width() * 2, gridSize().height() * rows};
}

void FileGallery::fitRows()
{
    setGridSize(FilePictures::size() + QSize(2 * Margin, 2 * Margin + 2 * fontMetrics().lineSpacing()));
    updateGeometry();
}

void FileGallery::resizeEvent(QResizeEvent* event)
{
    QListWidget::resizeEvent(event);
    updateGeometry();
}

void FileGallery::changeEvent(QEvent* event)
{
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitRows();
}

void FileGallery::focusInEvent(QFocusEvent* event)
{
    QListWidget::focusInEvent(event);
    if (!currentItem() && event->reason() != Qt::MouseFocusReason)
        setCurrentRow(0);
}

void FileGallery::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        choose(currentItem());
    else
        QListWidget::keyPressEvent(event);
}

void FileGallery::choose(const QListWidgetItem* item)
{
    if (item)
        emit chosen(item->data(Qt::UserRole).toString());
}

} // namespace scopix

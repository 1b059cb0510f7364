// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>

namespace scopix
{

/// Files as pictures with their names, in rows, of which a click or Enter opens one. As high as its rows are,
/// so that it scrolls with what is around it. GUI thread only.
class FileGallery : public QListWidget
{
    Q_OBJECT

public:
    explicit FileGallery(const QString& name, QWidget* parent = nullptr);

    /// A null picture gives an empty frame.
    void add(const QString& file, const QString& title, const QImage& picture);
    /// The files, in their order.
    QStringList files() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

signals:
    void chosen(const QString& file);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void fitRows();
    void choose(const QListWidgetItem* item);
};

} // namespace scopix

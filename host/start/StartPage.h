// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QStringList>

class QAction;
class QLabel;
class QVBoxLayout;

namespace scopix
{

class FileGallery;

/// What lies over the view while nothing is open: what one can begin with, the files of the last days and
/// samples, each with its picture. Goes with Esc or its button. GUI thread only.
class StartPage : public QFrame
{
    Q_OBJECT

public:
    /// Covers `view`, which owns it; hidden at first.
    explicit StartPage(QWidget& view);

    /// A button for the act at the left, below those before.
    void addAct(QAction& act);
    void setRecent(const QStringList& files);

    /// Shows it, with the focus on its first button.
    void open();

    /// The shipped files that it offers, and that are there.
    static QStringList samples();

signals:
    void chosen(const QString& file);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeActs();
    QWidget* makeFiles();
    void addSamples();
    void close();
    void cover();

    QWidget& m_view;
    QBoxLayout* m_parts; // the acts beside the files, or above them
    QVBoxLayout* m_acts;
    FileGallery* m_recent;
    FileGallery* m_samples;
    QLabel* m_noneYet;
};

} // namespace scopix

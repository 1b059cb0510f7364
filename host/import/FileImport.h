// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>

class QWidget;

namespace scopix
{

class ProgressDialog;

/// Reads one file, and shows how far it is once that takes noticeable time. Made for one file; deleting it
/// gives up at once. GUI thread only.
class FileImport : public QObject
{
    Q_OBJECT

public:
    ~FileImport() override;

    /// One of the signals follows, possibly before this returns.
    virtual void start(const QString& path) = 0;
    /// cancelled() follows at once.
    virtual void cancel() = 0;

    /// What of a file that was read is left out or changed, a sentence for each kind.
    const QStringList& notes() const { return m_notes; }

signals:
    /// Exactly one of these or of the derived class's, once; it is of no more use then.
    void failed(const QString& sentence);
    void cancelled();

protected:
    /// The dialog opens over `window`; none does where that is null.
    FileImport(QWidget* window, QObject* parent);
    void openDialog(const QString& path);
    void showPercent(int percent);
    void closeDialog();
    void addNote(const QString& sentence) { m_notes += sentence; }

private:
    QWidget* m_window;
    QPointer<ProgressDialog> m_dialog;
    QStringList m_notes;
};

} // namespace scopix

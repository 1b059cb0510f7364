// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>

class QWidget;

namespace scopix
{

class FileImport;
class UserNotifier;

/// A scene or model beside the one that is open, which stays: asks for it and reads it, one at a time,
/// perhaps in the background. Says why one cannot be read. GUI thread only.
class OtherFile : public QObject
{
    Q_OBJECT

public:
    /// Questions open over the window, which owns `parent`; the notifier must outlive it.
    OtherFile(QWidget& window, UserNotifier& notifier, QObject* parent);

    /// What a dialog shows that asks for any file that can be opened.
    static QString nameFilter();
    /// An empty text where none was chosen.
    QString ask(const QString& title, const QString& folder = {});
    /// `finished`: with the scene, and what of the file is left out.
    using Finished = std::function<void(const SoRef<SoNode>& scene, const QStringList& notes)>;
    void read(const QString& path, const Finished& finished);

private:
    QStringList forget();

    QWidget& m_window;
    UserNotifier& m_notifier;
    QPointer<FileImport> m_import;
};

} // namespace scopix

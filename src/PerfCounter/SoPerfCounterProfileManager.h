// SPDX-License-Identifier: MIT
#pragma once

#include "CounterSnapshot.h"
#include "ui_SoPerfCounterProfileManager.h"

#include <QDomDocument>
#include <QList>
#include <QMainWindow>

#include <memory>

class OwedSaves;
namespace counterMerge
{
struct JoinedProfile;
}
class SoPerfCounterManager;
class SoPerfCounterPage;
class SoPerfCounterProfile;

/// The window in which profiles and custom counters are made, changed, opened and saved. It works on copies:
/// OK hands them over, Cancel drops them and undoes what was done to the counters. Deletes itself when
/// closed. GUI thread only.
class SoPerfCounterProfileManager : public QMainWindow, public Ui_QPerfCounterProfileManager
{
    Q_OBJECT

public:
    explicit SoPerfCounterProfileManager(QWidget* parent = nullptr);
    ~SoPerfCounterProfileManager() override;

    /// The file in use; reported to the dock window.
    void setFilepath(const QString& path);
    /// The file to read again on Cancel.
    void setFilepathTemp(const QString& path) { m_fallbackPath = path; }
    /// A copy that shares the dock window's tree. What it holds, and the custom counters, are put back by a
    /// Cancel that finds nothing to read again.
    void setDomDocument(const QDomDocument& document);
    /// Where saving is tried again; shared with the dock window.
    void setOwedSaves(std::shared_ptr<OwedSaves> owed) { m_owed = std::move(owed); }

signals:
    /// Hands the profiles over, with the selected one; the receiver owns the list and what is in it.
    void okProfile(QList<SoPerfCounterProfile*>* profiles, int index);
    void okProfile();
    void cancelProfile();
    /// The profiles that were handed over have changed: another program has changed the file.
    void joinedHandedOver();
    void filepathChanged(QString path);
    void deletedCounter(QString name);

public slots:
    void recoveryListFromMainWindow(QList<SoPerfCounterProfile*>* profiles, int index);
    void createCounter();
    void deleteCounter();
    void updateCounterList(QString name);
    void downArrowAction();
    void upArrowAction();
    void createProfile();
    void createNewProfile(QString name);
    void deleteProfile();
    void resetProfile();
    void openProfile();
    void saveAsProfile();
    void saveProfile();
    void okButtonAction();
    void cancelButtonAction();
    void removeFromProfiles(QString name);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void setupConnections();
    void setupListCounter();
    void setupPreSelectedList(); // of the current tab
    void refillPages();
    void addTab(const SoPerfCounterProfile& profile);
    void dropProfiles();
    bool read(QIODevice* device);
    void adopt(const QList<counterMerge::JoinedProfile>& joined);
    void updateDom();
    void okAction();
    void cancelAction();
    void undoCounterChanges();
    /// The profile of the current tab; says `otherwise` in a box where there is none.
    SoPerfCounterProfile* currentProfile(const QString& otherwise);
    SoPerfCounterPage* currentPage() const;

    SoPerfCounterManager* m_registry;
    QList<QString> m_created;                                 // counters made since the window was opened
    QList<SoPerfCounterProfile*>* m_handedOver = nullptr;     // the dock window's
    std::unique_ptr<QList<SoPerfCounterProfile*>> m_profiles; // the working copies, one tab each
    QString m_filePath;
    QString m_fallbackPath;
    QDomDocument m_document;
    CounterSnapshot m_atOpening;
    std::shared_ptr<OwedSaves> m_owed;
    bool m_accepted = false;
    bool m_isDone = false; // accepted or cancelled
};

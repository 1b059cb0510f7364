// SPDX-License-Identifier: MIT
#pragma once

#include "ui_SoPerfCounterDockWin.h"

#include <QDockWidget>
#include <QDomDocument>
#include <QList>
#include <QPointer>

#include <memory>

class OwedSaves;
class SoPerfCounterManager;
class SoPerfCounterProfile;
class SoPerfCounterProfileManager;

/// The dock of the performance-counter tool: the profiles, the counters of the selected one, the viewer and
/// the properties of the counter selected in its legend. Owns the profiles and the document of their file.
/// GUI thread only.
class SoPerfCounterDockWin : public QDockWidget, public Ui_QPerfCounterModule
{
    Q_OBJECT

public:
    explicit SoPerfCounterDockWin(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~SoPerfCounterDockWin() override;

    const QList<SoPerfCounterProfile*>& getProfiles() const { return *m_profiles; }
    int getCurrentProfile() const { return m_currentProfile; } // -1 where there is none
    QString getFilepath() const { return m_filePath; }
    const QDomDocument& getDocument() const { return m_document; }
    /// Tries once more to save what could not be saved.
    void saveOwed();

signals:
    void openingProfile(QList<SoPerfCounterProfile*>* profiles, int index);
    void openingProfile();
    void doubleClick(QString name);
    void colorChanged(QColor color);
    void currentProfileChanged();
    void needUpdateViewer();
    void needClearViewer();

public slots:
    void openProfileManager();
    void saveView();
    void updateProperties();
    void addPcViewed(QString name);
    void removePcViewed(QString name);
    void updateCurrentProfile(int index);
    void doubleClickAction(const QModelIndex& index);
    void colorClicked();
    void recoveryListFromProfileManager(QList<SoPerfCounterProfile*>* profiles, int index);
    void changeFilepath(QString path);

private:
    void setupConnections();
    void setupProfileComboBox();
    void setupPreSelectedList();
    void openDefaultFile();
    bool read(QIODevice* device);
    void parseViewElement();
    void showJoinedProfiles();
    void selectInComboBox(int index);
    SoPerfCounterProfile* profile() const;

    std::unique_ptr<QList<QString>> m_preSelected;
    std::unique_ptr<QList<SoPerfCounterProfile*>> m_profiles;
    int m_currentProfile = -1;
    QString m_filePath;
    SoPerfCounterManager* m_manager;
    QDomDocument m_document;
    std::shared_ptr<OwedSaves> m_owed;
    QPointer<SoPerfCounterProfileManager> m_profileManager; // one at a time
};

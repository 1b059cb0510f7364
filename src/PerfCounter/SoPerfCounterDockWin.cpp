// SPDX-License-Identifier: MIT
#include "SoPerfCounterDockWin.h"

#include "CounterProfileFile.h"
#include "CounterTable.h"
#include "CounterText.h"
#include "CustomCounter.h"
#include "OwedSaves.h"
#include "SoPerfCounterPcViewed.h"
#include "SoPerfCounterProfile.h"
#include "SoPerfCounterProfileManager.h"

#include <xsg/counters/SoPerfCounterManager.h>
#include <xsg/support/FileLock.h>

#include <QColorDialog>
#include <QFile>
#include <QMessageBox>
#include <QTimer>

#include <algorithm>

namespace
{

// One full row of the legend.
constexpr int LegendColumns = 5;

} // namespace

SoPerfCounterDockWin::SoPerfCounterDockWin(QWidget* parent, Qt::WindowFlags flags)
    : QDockWidget(parent, flags)
    , m_preSelected(std::make_unique<QList<QString>>())
    , m_profiles(std::make_unique<QList<SoPerfCounterProfile*>>())
    , m_manager(SoPerfCounterManager::getInstance())
    , m_owed(std::make_shared<OwedSaves>())
{
    auto* content = new QWidget(this);
    setupUi(content);
    setWidget(content);
    counterTable::showBeginnings(*m_preSelectedListView);
    setupConnections();
    openDefaultFile();
    m_propertiesGroupBox->setEnabled(false);
}

SoPerfCounterDockWin::~SoPerfCounterDockWin()
{
    delete m_profileManager;
    qDeleteAll(*m_profiles);
}

void SoPerfCounterDockWin::setupConnections()
{
    using Dock = SoPerfCounterDockWin;
    using Viewer = SoPerfCounterViewer;
    connect(m_openConfigButton, &QPushButton::clicked, this, &Dock::openProfileManager);
    connect(m_saveView, &QPushButton::clicked, this, &Dock::saveView);
    connect(this, qOverload<>(&Dock::openingProfile), m_viewer->getTimer(), &QTimer::stop);
    connect(this, qOverload<>(&Dock::openingProfile), m_viewer->m_stop, qOverload<>(&QWidget::update));
    connect(m_viewer->m_legend, &QTableWidget::itemSelectionChanged, this, &Dock::updateProperties);
    connect(m_viewer, &Viewer::newPcViewed, this, &Dock::addPcViewed);
    connect(m_viewer, &Viewer::deletedPcViewed, this, &Dock::removePcViewed);
    connect(m_listConfig, SIGNAL(currentIndexChanged(int)), this, SLOT(updateCurrentProfile(int)));
    connect(m_preSelectedListView, &QListWidget::doubleClicked, this, &Dock::doubleClickAction);
    connect(this, &Dock::doubleClick, m_viewer, &Viewer::doubleClickEvent);
    connect(m_colorButton, &QPushButton::clicked, this, &Dock::colorClicked);
    connect(this, &Dock::colorChanged, m_viewer, &Viewer::changeColor);
    connect(m_scaleEdit, &QLineEdit::textEdited, m_viewer, &Viewer::changeScale);
    connect(this, &Dock::currentProfileChanged, m_viewer, &Viewer::resetView);
    connect(this, &Dock::needUpdateViewer, m_viewer, &Viewer::updateViewer);
    connect(this, &Dock::needClearViewer, m_viewer, &Viewer::clearViewer);
}

void SoPerfCounterDockWin::openDefaultFile()
{
    m_filePath = counterProfileFile::defaultPath();
    const xsg::FileLock lock(QFile::encodeName(m_filePath).toStdString(), xsg::FileLock::Kind::Shared);
    QFile file(m_filePath);
    const QString reason = counterProfileFile::openToRead(file);
    if (!reason.isEmpty())
        QMessageBox::warning(this, tr("DOM Bookmarks"),
                             tr("Cannot read file %1:\n%2.").arg(m_filePath, reason));
    // Read even where it could not be opened (decisions.md: counters-file-read-twice).
    if (!read(&file)) {
        m_filePath.clear();
        file.close();
        counterProfileFile::initDocument(&file, m_document);
        m_currentProfile = m_profiles->isEmpty() ? -1 : 0;
    }
}

bool SoPerfCounterDockWin::read(QIODevice* device)
{
    if (!counterProfileFile::readDocument(device, m_document, this))
        return false;
    m_owed->noteRead(m_filePath, m_document);
    const QStringList leftOut = counterProfileFile::readCustomCounters(m_document);
    m_profiles->append(counterProfileFile::readProfiles(m_document));
    setupProfileComboBox();
    parseViewElement();
    counterProfileFile::reportLeftOut(leftOut, this);
    return true;
}

void SoPerfCounterDockWin::parseViewElement()
{
    if (m_listConfig->currentIndex() < 0)
        return;
    QString name;
    const bool isNamed = counterProfileFile::readViewedProfile(m_document, name);
    const auto found =
        std::find_if(m_profiles->begin(), m_profiles->end(),
                     [&](const SoPerfCounterProfile* p) { return isNamed && p->getName() == name; });
    if (found != m_profiles->end())
        selectInComboBox(int(found - m_profiles->begin()));
    else
        updateCurrentProfile(0);
}

void SoPerfCounterDockWin::setupProfileComboBox()
{
    disconnect(m_listConfig, SIGNAL(currentIndexChanged(int)), this, SLOT(updateCurrentProfile(int)));
    m_listConfig->clear();
    QStringList names;
    for (const SoPerfCounterProfile* p : qAsConst(*m_profiles))
        names.append(beginningOf(p->getName(), LongestInLine));
    m_listConfig->addItems(names);
    connect(m_listConfig, SIGNAL(currentIndexChanged(int)), this, SLOT(updateCurrentProfile(int)));
}

SoPerfCounterProfile* SoPerfCounterDockWin::profile() const
{
    return m_currentProfile >= 0 && m_currentProfile < m_profiles->size() ? m_profiles->at(m_currentProfile)
                                                                          : nullptr;
}

void SoPerfCounterDockWin::updateCurrentProfile(int index)
{
    if (index != m_currentProfile)
        m_viewer->clearViewer(); // nothing of this profile stays
    m_currentProfile = index;
    if (!profile())
        return;
    m_viewer->setViewList(profile()->getView());
    emit currentProfileChanged();
    emit needUpdateViewer();
    setupPreSelectedList();
}

void SoPerfCounterDockWin::selectInComboBox(int index)
{
    // The box says nothing when the index is its own already.
    if (m_listConfig->currentIndex() == index)
        updateCurrentProfile(index);
    else
        m_listConfig->setCurrentIndex(index);
}

void SoPerfCounterDockWin::setupPreSelectedList()
{
    m_preSelected->clear();
    m_preSelectedListView->clear();
    if (const SoPerfCounterProfile* current = profile()) {
        *m_preSelected = *current->getList();
        m_preSelectedListView->addItems(QStringList(*m_preSelected));
    }
    m_preSelectedListView->sortItems(Qt::AscendingOrder);
}

void SoPerfCounterDockWin::doubleClickAction(const QModelIndex& /*index*/)
{
    if (const QListWidgetItem* item = m_preSelectedListView->currentItem())
        emit doubleClick(item->text());
}

void SoPerfCounterDockWin::addPcViewed(QString name)
{
    if (SoPerfCounterProfile* current = profile())
        current->getView()->append(name);
}

void SoPerfCounterDockWin::removePcViewed(QString name)
{
    if (SoPerfCounterProfile* current = profile())
        current->getView()->removeAll(name);
}

void SoPerfCounterDockWin::colorClicked()
{
    m_colorButton->ensurePolished(); // the style sheet's colour shows in the palette only then
    const QColor present = m_colorButton->palette().color(m_colorButton->backgroundRole());
    const QColor color = QColorDialog::getColor(present, this);
    if (!color.isValid())
        return;
    emit colorChanged(color);
    updateProperties();
}

void SoPerfCounterDockWin::updateProperties()
{
    const QList<QTableWidgetItem*> selected = m_viewer->m_legend->selectedItems();
    const QTableWidgetItem* first =
        selected.size() == LegendColumns ? m_viewer->m_legend->item(selected.first()->row(), 0) : nullptr;
    const SoPerfCounterPcViewed* viewed = first ? m_viewer->findViewed(first->text()) : nullptr;
    const bool isViewed = viewed && profile() && profile()->getView()->contains(viewed->getName());
    m_propertiesGroupBox->setEnabled(isViewed);
    if (!isViewed)
        return;
    const QColor color = viewed->getColor();
    m_colorButton->setStyleSheet(QStringLiteral("background-color: rgb(%1,%2,%3);")
                                     .arg(color.red())
                                     .arg(color.green())
                                     .arg(color.blue()));
    const SoPerfCounter* counter = m_manager->getCounter(toCounterName(viewed->getName()));
    m_scaleEdit->setText(QString().setNum(counter ? counter->getScaleFactor() : 1.0, 'g', 6));
}

void SoPerfCounterDockWin::openProfileManager()
{
    if (m_profileManager) {
        m_profileManager->raise();
        return;
    }
    auto* manager = new SoPerfCounterProfileManager(this);
    m_profileManager = manager;
    using Manager = SoPerfCounterProfileManager;
    connect(manager, qOverload<QList<SoPerfCounterProfile*>*, int>(&Manager::okProfile), this,
            &SoPerfCounterDockWin::recoveryListFromProfileManager);
    connect(manager, qOverload<>(&Manager::okProfile), m_viewer, &SoPerfCounterViewer::start);
    connect(manager, &Manager::cancelProfile, m_viewer, &SoPerfCounterViewer::start);
    connect(this, qOverload<QList<SoPerfCounterProfile*>*, int>(&SoPerfCounterDockWin::openingProfile),
            manager, &Manager::recoveryListFromMainWindow);
    connect(manager, &Manager::joinedHandedOver, this, &SoPerfCounterDockWin::showJoinedProfiles);
    connect(manager, &Manager::filepathChanged, this, &SoPerfCounterDockWin::changeFilepath);
    manager->setFilepath(m_filePath);
    manager->setFilepathTemp(m_filePath);
    manager->setDomDocument(m_document);
    manager->setOwedSaves(m_owed);
    emit openingProfile(m_profiles.get(), m_currentProfile);
    emit openingProfile();
    manager->show();
}

void SoPerfCounterDockWin::recoveryListFromProfileManager(QList<SoPerfCounterProfile*>* profiles, int index)
{
    // The old profiles are the manager's to delete.
    m_profiles->clear();
    m_profiles.reset(profiles);
    setupProfileComboBox();
    if (index == -1) {
        m_currentProfile = -1;
        m_preSelected->clear();
        m_preSelectedListView->clear();
        emit needClearViewer();
        emit needUpdateViewer();
        return;
    }
    m_viewer->setViewList(m_profiles->at(index)->getView());
    m_currentProfile = index; // so that the box selects it as the profile already shown
    if (index == 0)
        setupPreSelectedList(); // the box shows this one already and will not report it
    m_listConfig->setCurrentIndex(index);
    emit needUpdateViewer();
}

void SoPerfCounterDockWin::changeFilepath(QString path)
{
    m_filePath = path;
}

void SoPerfCounterDockWin::saveView()
{
    if (profile())
        counterProfileFile::writeView(m_document, *profile());
    OwedSaves::JoinedProfiles joined;
    m_owed->save(m_filePath, m_document, this, joined);
    if (counterMerge::apply(joined, *m_profiles))
        showJoinedProfiles();
}

// New ones are behind those that the box shows already.
void SoPerfCounterDockWin::showJoinedProfiles()
{
    for (int i = m_listConfig->count(); i < m_profiles->size(); ++i)
        m_listConfig->addItem(beginningOf(m_profiles->at(i)->getName(), LongestInLine));
    if (!profile())
        return;
    m_viewer->setViewList(profile()->getView());
    setupPreSelectedList();
    emit needUpdateViewer();
}

void SoPerfCounterDockWin::saveOwed()
{
    m_owed->retry(this);
}

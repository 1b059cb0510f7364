// SPDX-License-Identifier: MIT
#include "SoPerfCounterProfileManager.h"

#include "CounterProfileFile.h"
#include "CounterTable.h"
#include "CounterText.h"
#include "CustomCounter.h"
#include "OwedSaves.h"
#include "ProfileText.h"
#include "SoPerfCounterCreateCounter.h"
#include "SoPerfCounterCreateProfile.h"
#include "SoPerfCounterPage.h"
#include "SoPerfCounterProfile.h"

#include <xsg/counters/SoPerfCounterManager.h>

#include <QCloseEvent>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace
{

// In a tab "&" would underline the next letter.
QString labelOf(const SoPerfCounterProfile& profile)
{
    return beginningOf(profile.getName(), LongestInLine).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

SoPerfCounterProfileManager::SoPerfCounterProfileManager(QWidget* parent)
    : QMainWindow(parent)
    , m_registry(SoPerfCounterManager::getInstance())
    , m_profiles(std::make_unique<QList<SoPerfCounterProfile*>>())
    , m_owed(std::make_shared<OwedSaves>())
{
    setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    counterTable::showBeginnings(*m_listCounter);
    setupConnections();
    setupListCounter();
}

SoPerfCounterProfileManager::~SoPerfCounterProfileManager()
{
    // Where the dock is destroyed first, the window is never closed.
    if (!m_isDone) {
        undoCounterChanges();
        m_atOpening.restore(m_document);
    }
    dropProfiles();
}

void SoPerfCounterProfileManager::setupConnections()
{
    using Manager = SoPerfCounterProfileManager;
    connect(actionCreateCounter, &QAction::triggered, this, &Manager::createCounter);
    connect(actionDeleteCounter, &QAction::triggered, this, &Manager::deleteCounter);
    connect(actionOpenProfile, &QAction::triggered, this, &Manager::openProfile);
    connect(actionSaveProfile, &QAction::triggered, this, &Manager::saveAsProfile);
    connect(actionNewProfile, &QAction::triggered, this, &Manager::createProfile);
    connect(actionDeleteProfile, &QAction::triggered, this, &Manager::deleteProfile);
    connect(actionResetProfile, &QAction::triggered, this, &Manager::resetProfile);
    connect(m_createCounter, &QPushButton::clicked, this, &Manager::createCounter);
    connect(m_deleteCounter, &QPushButton::clicked, this, &Manager::deleteCounter);
    connect(m_downArrow, &QPushButton::clicked, this, &Manager::downArrowAction);
    connect(m_upArrow, &QPushButton::clicked, this, &Manager::upArrowAction);
    connect(m_addProfile, &QPushButton::clicked, this, &Manager::createProfile);
    connect(m_deleteProfile, &QPushButton::clicked, this, &Manager::deleteProfile);
    connect(m_resetProfile, &QPushButton::clicked, this, &Manager::resetProfile);
    connect(m_buttonBox, &QDialogButtonBox::accepted, this, &Manager::okButtonAction);
    connect(m_buttonBox, &QDialogButtonBox::rejected, this, &Manager::cancelButtonAction);
    connect(this, &Manager::deletedCounter, this, &Manager::removeFromProfiles);
}

void SoPerfCounterProfileManager::setFilepath(const QString& path)
{
    m_filePath = path;
    setWindowTitle(tr("Profile Manager - ") + path);
    emit filepathChanged(path);
}

void SoPerfCounterProfileManager::setDomDocument(const QDomDocument& document)
{
    m_document = document;
    m_atOpening = CounterSnapshot(document);
}

void SoPerfCounterProfileManager::recoveryListFromMainWindow(QList<SoPerfCounterProfile*>* profiles,
                                                             int index)
{
    m_handedOver = profiles;
    for (const SoPerfCounterProfile* profile : qAsConst(*profiles)) {
        m_profiles->append(profile->copy().release());
        addTab(*m_profiles->last());
    }
    m_tabProfile->setCurrentIndex(index);
}

void SoPerfCounterProfileManager::addTab(const SoPerfCounterProfile& profile)
{
    m_tabProfile->addTab(new SoPerfCounterPage(profile, m_tabProfile), labelOf(profile));
}

void SoPerfCounterProfileManager::dropProfiles()
{
    // From the back, so that no tab moves and none becomes the current one only to go next.
    m_tabProfile->setCurrentIndex(0);
    while (m_tabProfile->count() > 0) {
        const int last = m_tabProfile->count() - 1;
        QWidget* page = m_tabProfile->widget(last);
        m_tabProfile->removeTab(last);
        delete page;
    }
    if (!m_profiles)
        return;
    qDeleteAll(*m_profiles);
    m_profiles->clear();
}

SoPerfCounterPage* SoPerfCounterProfileManager::currentPage() const
{
    return static_cast<SoPerfCounterPage*>(m_tabProfile->currentWidget());
}

void SoPerfCounterProfileManager::setupListCounter()
{
    std::vector<const SoPerfCounter*> counters;
    for (const SoPerfCounter* counter : m_registry->getCounters()) {
        if (counter->isEnabled())
            counters.push_back(counter);
    }
    counterTable::fill(*m_listCounter, counters);
}

void SoPerfCounterProfileManager::setupPreSelectedList()
{
    if (SoPerfCounterPage* page = currentPage())
        page->refill();
}

// What becomes of a counter is seen in every profile that has it.
void SoPerfCounterProfileManager::refillPages()
{
    for (int i = 0; i < m_tabProfile->count(); ++i)
        static_cast<SoPerfCounterPage*>(m_tabProfile->widget(i))->refill();
}

void SoPerfCounterProfileManager::createCounter()
{
    const QStringList names = counterTable::selectedNames(*m_listCounter);
    if (names.size() != 2) {
        QMessageBox::warning(
            this, windowTitle(),
            tr("To create a custom counter you have to select exactly TWO counters from the list."));
        return;
    }
    auto* dialog = new SoPerfCounterCreateCounter(names[0], names[1], this);
    connect(dialog, &SoPerfCounterCreateCounter::createNow, this,
            &SoPerfCounterProfileManager::updateCounterList);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->show();
}

void SoPerfCounterProfileManager::updateCounterList(QString name)
{
    m_created.append(name);
    setupListCounter();
    refillPages();
}

void SoPerfCounterProfileManager::deleteCounter()
{
    QMessageBox question(
        QMessageBox::Question, windowTitle(),
        tr("Do you really want to delete definitively these counters ?\n\nNote that only custom "
           "counters will be affected."),
        QMessageBox::Ok | QMessageBox::Cancel, this);
    if (question.exec() != QMessageBox::Ok)
        return;
    for (const QString& name : counterTable::selectedNames(*m_listCounter)) {
        const SoPerfCounter* counter = m_registry->getCounter(toCounterName(name));
        if (counter && counter->isCustom())
            m_registry->disableCounter(toCounterName(name));
    }
    setupListCounter();
    refillPages();
}

SoPerfCounterProfile* SoPerfCounterProfileManager::currentProfile(const QString& otherwise)
{
    const int index = m_tabProfile->currentIndex();
    if (index >= 0)
        return m_profiles->at(index);
    QMessageBox::warning(this, tr("No profiles"), otherwise);
    return nullptr;
}

void SoPerfCounterProfileManager::downArrowAction()
{
    SoPerfCounterProfile* profile =
        currentProfile(tr("You have to create al least one profile before adding counters."));
    if (!profile)
        return;
    QStringList names;
    for (const QString& name : counterTable::selectedNames(*m_listCounter)) {
        const QString refusal = profileText::listedNameRefusal(tr("The name of the counter"), name);
        if (refusal.isEmpty())
            names.append(name);
        else
            QMessageBox::warning(this, windowTitle(), refusal);
    }
    profile->moveToEnd(names);
    setupPreSelectedList();
}

void SoPerfCounterProfileManager::upArrowAction()
{
    SoPerfCounterProfile* profile =
        currentProfile(tr("There is no profile from which you can remove a counter."));
    if (!profile)
        return;
    profile->removeCounters(counterTable::selectedNames(*currentPage()->getTableProfile()));
    setupPreSelectedList();
}

void SoPerfCounterProfileManager::createProfile()
{
    auto* dialog = new SoPerfCounterCreateProfile(this);
    connect(dialog, &SoPerfCounterCreateProfile::createdNewProfile, this,
            &SoPerfCounterProfileManager::createNewProfile);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->show();
}

void SoPerfCounterProfileManager::createNewProfile(QString name)
{
    m_profiles->append(new SoPerfCounterProfile(name));
    addTab(*m_profiles->last());
    m_tabProfile->setCurrentIndex(m_tabProfile->count() - 1);
}

void SoPerfCounterProfileManager::deleteProfile()
{
    if (!currentProfile(tr("There is no profile you can remove.")))
        return;
    const int index = m_tabProfile->currentIndex();
    delete currentPage(); // together with its tab
    delete m_profiles->takeAt(index);
}

void SoPerfCounterProfileManager::resetProfile()
{
    SoPerfCounterProfile* profile = currentProfile(tr("There is no profile you can reset."));
    if (!profile)
        return;
    profile->getList()->clear();
    profile->getView()->clear();
    setupPreSelectedList();
}

void SoPerfCounterProfileManager::removeFromProfiles(QString name)
{
    for (SoPerfCounterProfile* profile : qAsConst(*m_profiles))
        profile->removeCounter(name);
}

void SoPerfCounterProfileManager::openProfile()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open performance counter profile"),
                                                      m_filePath, counterProfileFile::dialogFilter());
    if (path.isEmpty())
        return;
    QFile file(path);
    const QString reason = counterProfileFile::openToRead(file);
    if (!reason.isEmpty()) {
        QMessageBox::warning(this, counterProfileFile::title(),
                             tr("Cannot read file %1:\n%2.").arg(path, reason));
        return;
    }
    const QString before = m_filePath;
    setFilepath(path);
    // OK would write over a file that holds something else.
    if (read(&file)) {
        m_owed->turnToAnotherDocument();
        m_owed->noteRead(path, m_document);
    } else {
        setFilepath(before);
    }
}

bool SoPerfCounterProfileManager::read(QIODevice* device)
{
    if (!counterProfileFile::readDocument(device, m_document, this))
        return false;
    removeCustomCounters();
    m_tabProfile->hide(); // shown, it would lay out all tabs again for each that is added or removed
    dropProfiles();
    const QStringList leftOut = counterProfileFile::readCustomCounters(m_document);
    m_atOpening.restoreScales();
    setupListCounter();
    for (SoPerfCounterProfile* profile : counterProfileFile::readProfiles(m_document)) {
        m_profiles->append(profile);
        addTab(*profile);
    }
    m_tabProfile->show();
    counterProfileFile::reportLeftOut(leftOut, this);
    return true;
}

// Whatever becomes of the file: what is saved later must not lack what was done here.
void SoPerfCounterProfileManager::updateDom()
{
    counterProfileFile::writeCustomCounters(m_document);
    counterProfileFile::writeProfiles(m_document, *m_profiles);
}

void SoPerfCounterProfileManager::saveAsProfile()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save performance counter profile"),
                                                      m_filePath, counterProfileFile::dialogFilter());
    if (path.isEmpty())
        return;
    updateDom();
    OwedSaves::JoinedProfiles joined;
    if (m_owed->saveOnce(path, m_document, this, joined))
        setFilepath(path);
    adopt(joined);
}

void SoPerfCounterProfileManager::saveProfile()
{
    updateDom();
    OwedSaves::JoinedProfiles joined;
    m_owed->save(m_filePath, m_document, this, joined);
    adopt(joined);
}

void SoPerfCounterProfileManager::adopt(const QList<counterMerge::JoinedProfile>& joined)
{
    if (!counterMerge::apply(joined, *m_profiles))
        return;
    for (int i = m_tabProfile->count(); i < m_profiles->size(); ++i)
        addTab(*m_profiles->at(i));
    setupListCounter();
    refillPages();
}

void SoPerfCounterProfileManager::okButtonAction()
{
    m_accepted = true;
    close();
}

void SoPerfCounterProfileManager::cancelButtonAction()
{
    m_accepted = false;
    close();
}

void SoPerfCounterProfileManager::okAction()
{
    for (const SoPerfCounter* counter : m_registry->getCounters()) {
        if (!counter->isEnabled())
            emit deletedCounter(SpxText::toQString(counter->getName()));
    }
    m_registry->removeDisabledCounters();
    m_created.clear();
    m_fallbackPath.clear();
    saveProfile();
    m_isDone = true;
    const int index = m_tabProfile->currentIndex();
    // The dock lets go of the old profiles while they still live.
    const QList<SoPerfCounterProfile*> old = m_handedOver ? *m_handedOver : QList<SoPerfCounterProfile*>();
    emit okProfile(m_profiles.release(), index);
    m_profiles = std::make_unique<QList<SoPerfCounterProfile*>>();
    qDeleteAll(old);
    emit okProfile();
}

void SoPerfCounterProfileManager::undoCounterChanges()
{
    for (const SoPerfCounter* counter : m_registry->getCounters())
        m_registry->enableCounter(counter->getName());
    for (const QString& name : qAsConst(m_created))
        m_registry->disableCounter(toCounterName(name));
    m_registry->removeDisabledCounters();
    m_created.clear();
}

void SoPerfCounterProfileManager::cancelAction()
{
    undoCounterChanges();
    emit cancelProfile();
    setFilepath(m_fallbackPath);
    m_isDone = true;
    QFile file(m_filePath);
    const bool isRead =
        !m_filePath.isEmpty() && counterProfileFile::openToRead(file).isEmpty() && read(&file);
    // A file that lacks what could not be saved does not say how things were.
    if (!isRead || m_owed->isOwed(m_filePath))
        m_atOpening.restore(m_document);
    else if (m_handedOver && counterMerge::apply(m_owed->noteRead(m_filePath, m_document), *m_handedOver))
        emit joinedHandedOver();
}

void SoPerfCounterProfileManager::closeEvent(QCloseEvent* event)
{
    if (m_accepted && m_filePath.isEmpty()) {
        // The flag stays, so that every later close is refused too until there is a path: edits are never
        // lost in silence.
        QMessageBox::warning(this, tr("Path invalid"),
                             tr("Please choose a new path where you want to save your modifications with the "
                                "\"save as\" action"));
        event->ignore();
        return;
    }
    if (m_accepted)
        okAction();
    else
        cancelAction();
    event->accept();
}

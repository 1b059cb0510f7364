// SPDX-License-Identifier: MIT
#include "profiles/ProfilesDialog.h"

#include "profiles/ProfileList.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr int NameRole = Qt::UserRole;

// A check box of an item is outlined in a darker shade of the window's colour, which a dark base would hide.
void showCheckBoxes(QTreeWidget& tree)
{
    QPalette palette = tree.palette();
    if (palette.color(QPalette::Base).lightness() >= 128)
        return;
    palette.setColor(QPalette::Window, palette.color(QPalette::PlaceholderText));
    tree.setPalette(palette);
}

} // namespace

ProfilesDialog::ProfilesDialog(ProfileList& profiles, QWidget* parent)
    : QDialog(parent)
    , m_source(profiles)
    , m_base(profiles.choices())
    , m_list(new QListWidget)
    , m_tree(new QTreeWidget)
    , m_problem(new QLabel)
{
    setWindowTitle(tr("Profiles"));
    setObjectName(QStringLiteral("profilesDialog"));
    makeList();
    makeTree();
    m_problem->setObjectName(QStringLiteral("problem"));
    m_problem->setWordWrap(true);

    auto* left = new QVBoxLayout;
    left->addWidget(m_list);
    left->addLayout(makeButtons());
    auto* columns = new QHBoxLayout;
    columns->addLayout(left, 2);
    columns->addWidget(m_tree, 3);
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(box, &QDialogButtonBox::accepted, this, &ProfilesDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &ProfilesDialog::reject);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(columns);
    rows->addWidget(m_problem);
    rows->addWidget(box);
    resize(640, 480);
    m_list->setCurrentRow(static_cast<int>(m_active));
}

void ProfilesDialog::makeList()
{
    m_list->setObjectName(QStringLiteral("profiles"));
    m_list->setAccessibleName(tr("Profiles"));
    for (const auto& profile : m_source.profiles()) {
        auto* item = new QListWidgetItem(profile->name(), m_list);
        if (profile.get() == m_source.activeProfile()) {
            m_active = m_profiles.size();
            markActive(*item);
        }
        m_profiles.push_back(profile->choice());
        if (!profile->isDefault())
            item->setFlags(item->flags() | Qt::ItemIsEditable);
    }
    connect(m_list, &QListWidget::currentRowChanged, this, &ProfilesDialog::showProfile);
    connect(m_list, &QListWidget::itemChanged, this, &ProfilesDialog::nameEdited);
}

void ProfilesDialog::markActive(QListWidgetItem& item)
{
    const QSignalBlocker silent(m_list);
    QFont font = m_list->font();
    font.setBold(true);
    item.setFont(font);
    item.setToolTip(tr("The active profile"));
}

void ProfilesDialog::makeTree()
{
    m_tree->setObjectName(QStringLiteral("extensions"));
    m_tree->setAccessibleName(tr("Extensions that the profile controls"));
    m_tree->setHeaderLabel(tr("Extensions that the profile controls"));
    showCheckBoxes(*m_tree);
    m_tools = makeGroup(tr("Tools"), false);
    m_editors = makeGroup(tr("Editors"), true);
    m_tools->setExpanded(true);
    connect(m_tree, &QTreeWidget::itemChanged, this, &ProfilesDialog::choiceEdited);
}

QTreeWidgetItem* ProfilesDialog::makeGroup(const QString& title, bool editors)
{
    auto* group = new QTreeWidgetItem(m_tree, {title});
    group->setFlags(group->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
    for (const ProfiledExtension& extension : m_source.extensions()) {
        if (extension.isEditor != editors)
            continue;
        auto* item = new QTreeWidgetItem(group, {extension.name.section(QLatin1Char('/'), 1)});
        item->setData(0, NameRole, extension.name);
        item->setToolTip(0, extension.name);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    }
    return group;
}

QLayout* ProfilesDialog::makeButtons()
{
    auto* row = new QHBoxLayout;
    QPushButton* newButton = makeButton(tr("&New"), "newProfile", &ProfilesDialog::addProfile);
    newButton->setToolTip(tr("Makes a copy of the active profile, which stands in bold."));
    row->addWidget(newButton);
    m_renameButton = makeButton(tr("&Rename"), "renameProfile", &ProfilesDialog::renameProfile);
    m_deleteButton = makeButton(tr("&Delete"), "deleteProfile", &ProfilesDialog::deleteProfile);
    row->addWidget(m_renameButton);
    row->addWidget(m_deleteButton);
    return row;
}

QPushButton* ProfilesDialog::makeButton(const QString& text, const char* name, void (ProfilesDialog::*act)())
{
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, act);
    return button;
}

void ProfilesDialog::addProfile()
{
    ProfileChoice profile = m_profiles[m_active];
    profile.name = freeName();
    m_profiles.push_back(profile);
    auto* item = new QListWidgetItem(profile.name);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    m_list->addItem(item);
    m_list->setCurrentItem(item);
    m_list->editItem(item);
}

void ProfilesDialog::renameProfile()
{
    if (QListWidgetItem* item = m_list->currentItem())
        m_list->editItem(item);
}

void ProfilesDialog::deleteProfile()
{
    const int row = m_list->currentRow();
    const ProfileChoice* profile = current();
    if (!profile || profile->name == HostProfile::defaultName())
        return;
    {
        // On the way it would point at rows that the profiles do not have any more.
        const QSignalBlocker silent(m_list);
        delete m_list->takeItem(row);
    }
    m_profiles.erase(m_profiles.begin() + row);
    const auto deleted = static_cast<std::size_t>(row);
    if (m_active > deleted)
        --m_active;
    else if (m_active == deleted)
        activateDefault();
    showProfile(m_list->currentRow());
}

void ProfilesDialog::activateDefault()
{
    const auto isDefault = [](const ProfileChoice& each) { return each.name == HostProfile::defaultName(); };
    const auto found = std::find_if(m_profiles.begin(), m_profiles.end(), isDefault);
    m_active = static_cast<std::size_t>(found - m_profiles.begin());
    markActive(*m_list->item(static_cast<int>(m_active)));
}

void ProfilesDialog::nameEdited(QListWidgetItem* item)
{
    const int row = m_list->row(item);
    std::vector<ProfileChoice> others = m_profiles;
    others.erase(others.begin() + row);
    const QString problem = ProfileFile::nameProblem(item->text(), others);
    m_problem->setText(problem);
    ProfileChoice& profile = m_profiles[static_cast<std::size_t>(row)];
    if (problem.isEmpty())
        profile.name = item->text();
    else
        item->setText(profile.name);
    m_problem->setText(problem);
}

void ProfilesDialog::showProfile(int row)
{
    const QSignalBlocker silent(m_tree);
    const ProfileChoice* profile = current();
    const bool ours = profile && profile->name != HostProfile::defaultName();
    m_problem->setText(ours ? QString() : tr("“Default” controls every extension and stays as it is."));
    m_renameButton->setEnabled(ours);
    m_deleteButton->setEnabled(ours);
    for (QTreeWidgetItem* group : {m_tools, m_editors})
        group->setDisabled(!ours);
    if (row < 0 || !profile)
        return;
    showGroup(*m_tools, profile->tools);
    showGroup(*m_editors, profile->editors);
}

void ProfilesDialog::showGroup(QTreeWidgetItem& group, const ExtensionChoice& choice)
{
    if (group.childCount() == 0)
        group.setCheckState(0, choice.all ? Qt::Checked : Qt::Unchecked);
    for (int i = 0; i < group.childCount(); ++i) {
        QTreeWidgetItem* item = group.child(i);
        const bool chosen = choice.contains(item->data(0, NameRole).toString());
        item->setCheckState(0, chosen ? Qt::Checked : Qt::Unchecked);
    }
}

void ProfilesDialog::choiceEdited()
{
    if (ProfileChoice* profile = current()) {
        profile->tools = groupChoice(*m_tools, profile->tools);
        profile->editors = groupChoice(*m_editors, profile->editors);
    }
}

// All that are there means all that will be; names of extensions that are not loaded now are kept.
ExtensionChoice ProfilesDialog::groupChoice(const QTreeWidgetItem& group, const ExtensionChoice& former)
{
    if (group.checkState(0) == Qt::Checked)
        return {true, former.names};
    ExtensionChoice choice;
    QSet<QString> known;
    for (int i = 0; i < group.childCount(); ++i) {
        const QString name = group.child(i)->data(0, NameRole).toString();
        known.insert(name);
        if (group.child(i)->checkState(0) == Qt::Checked)
            choice.names += name;
    }
    for (const QString& name : former.names) {
        const bool isWholePlugin = name.endsWith(QLatin1String("/*")); // whose extensions are named now
        if (!known.contains(name) && !isWholePlugin)
            choice.names += name;
    }
    return choice;
}

QString ProfilesDialog::freeName() const
{
    const QString base = m_profiles[m_active].name;
    QString name;
    for (int number = 2; name.isEmpty() || !ProfileFile::nameProblem(name, m_profiles).isEmpty(); ++number)
        name = QStringLiteral("%1 %2").arg(base, QString::number(number));
    return name;
}

ProfileChoice* ProfilesDialog::current()
{
    const int row = m_list->currentRow();
    return row < 0 ? nullptr : &m_profiles[static_cast<std::size_t>(row)];
}

void ProfilesDialog::accept()
{
    const QString active = m_profiles[m_active].name;
    m_source.setProfiles(m_profiles, active, m_base);
    QDialog::accept();
}

} // namespace scopix

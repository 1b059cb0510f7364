// SPDX-License-Identifier: MIT
#include "window/LaunchDialog.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>

#include <functional>

namespace scopix
{

namespace
{

// As a command line has it, so that it can be split into the same arguments again.
QString quoted(QString argument)
{
    const bool isPlain = !argument.contains(QLatin1Char(' ')) && !argument.contains(QLatin1Char('"'));
    if (isPlain)
        return argument;
    return QLatin1Char('"') + argument.replace(QLatin1Char('"'), QStringLiteral("\"\"\"")) + QLatin1Char('"');
}

QString joined(const QStringList& arguments)
{
    QStringList all;
    for (const QString& each : arguments)
        all += quoted(each);
    return all.join(QLatin1Char(' '));
}

// Where something is chosen, it replaces the text.
QWidget* withButton(QLineEdit* line, const std::function<QString()>& choose)
{
    auto* row = new QWidget;
    auto* button = new QPushButton(LaunchDialog::tr("Choose…"));
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(line);
    layout->addWidget(button);
    row->setFocusProxy(line);
    QObject::connect(button, &QPushButton::clicked, line, [line, choose] {
        const QString chosen = choose();
        if (!chosen.isEmpty())
            line->setText(chosen);
    });
    return row;
}

} // namespace

LaunchDialog::LaunchDialog(const LaunchOrder& last, QWidget* parent)
    : QDialog(parent)
    , m_program(new QLineEdit(last.command.value(0)))
    , m_arguments(new QLineEdit(joined(last.command.mid(1))))
    , m_folder(new QLineEdit(last.folder))
{
    setObjectName(QStringLiteral("launchDialog"));
    setWindowTitle(tr("Launch a Program"));
    m_program->setObjectName(QStringLiteral("launchProgram"));
    m_program->setAccessibleName(tr("Program"));
    m_program->setPlaceholderText(tr("A file, or a name such as osgviewer"));
    m_arguments->setObjectName(QStringLiteral("launchArguments"));
    m_arguments->setAccessibleName(tr("Arguments"));
    m_arguments->setPlaceholderText(tr("What stands behind it on a command line"));
    m_folder->setObjectName(QStringLiteral("launchFolder"));
    m_folder->setAccessibleName(tr("Folder"));
    m_folder->setPlaceholderText(tr("The current folder"));
    auto* form = new QFormLayout(this);
    form->addRow(tr("&Program:"), withButton(m_program, [this] {
                     return QFileDialog::getOpenFileName(this, tr("Program"), m_program->text());
                 }));
    form->addRow(tr("&Arguments:"), m_arguments);
    form->addRow(tr("&Folder:"), withButton(m_folder, [this] {
                     return QFileDialog::getExistingDirectory(this, tr("Folder"), m_folder->text());
                 }));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_launch = buttons->addButton(tr("&Launch"), QDialogButtonBox::AcceptRole);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_program, &QLineEdit::textChanged, this, &LaunchDialog::update);
    resize(520, sizeHint().height());
    update();
}

void LaunchDialog::update()
{
    m_launch->setEnabled(!m_program->text().trimmed().isEmpty());
}

LaunchOrder LaunchDialog::getOrder() const
{
    QStringList command{m_program->text().trimmed()};
    command += QProcess::splitCommand(m_arguments->text());
    return {command, m_folder->text().trimmed()};
}

} // namespace scopix

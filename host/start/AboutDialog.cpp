// SPDX-License-Identifier: MIT
#include "start/AboutDialog.h"

#include "start/GraphicsDriver.h"
#include "theme/SvgIcon.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSysInfo>
#include <QVBoxLayout>

namespace scopix
{

namespace
{

constexpr int LogoSize = 64;
constexpr int WidthInCharacters = 78;
constexpr int HeightInLines = 18;

struct Library {
    const char* name;
    const char* use;
    const char* licence;
};

constexpr Library Libraries[] = {
    {"Qt " QT_VERSION_STR, "windows", "LGPL 3"},
    {"Qwt", "plots of the counters", "Qwt licence, an LGPL 2.1"},
    {"Assimp", "models", "BSD"},
    {"Eigen", "linear algebra", "MPL 2"},
    {"libepoxy", "OpenGL", "MIT"},
};

QString nameOf(PluginState::State state)
{
    switch (state) {
    case PluginState::State::Loaded:
        return QStringLiteral("loaded");
    case PluginState::State::SetAside:
        return QStringLiteral("set aside");
    default:
        return QStringLiteral("refused");
    }
}

QString screens()
{
    QStringList all;
    for (const QScreen* screen : QGuiApplication::screens())
        all += QStringLiteral("%1x%2 at %3 dpi, scale %4")
                   .arg(screen->size().width())
                   .arg(screen->size().height())
                   .arg(qRound(screen->logicalDotsPerInch()))
                   .arg(screen->devicePixelRatio());
    return all.join(QStringLiteral("; "));
}

QString librariesText()
{
    QString text;
    for (const Library& library : Libraries)
        text +=
            QStringLiteral("  %1: %2 (%3)\n")
                .arg(QLatin1String(library.name), QLatin1String(library.use), QLatin1String(library.licence));
    return text;
}

} // namespace

// In English (decisions.md: report-in-english).
QString AboutDialog::report(const QString& version, const std::vector<PluginState>& plugins)
{
    const QString driver = graphicsDriver();
    QString text =
        QStringLiteral("Scopix %1 (MIT licence)\nSystem: %2, %3, %4\nQt: %5, platform %6\nScreens: %7\n"
                       "OpenGL: %8\n\nPlug-ins:\n")
            .arg(version, QSysInfo::prettyProductName(), QSysInfo::kernelVersion(),
                 QSysInfo::currentCpuArchitecture(), QLatin1String(qVersion()),
                 QGuiApplication::platformName(), screens(),
                 driver.isEmpty() ? QStringLiteral("none") : driver);
    for (const PluginState& plugin : plugins)
        text += QStringLiteral("  %1: %2%3\n")
                    .arg(plugin.name, nameOf(plugin.state),
                         plugin.reason.isEmpty() ? QString() : QStringLiteral("; ") + plugin.reason);
    if (plugins.empty())
        text += QStringLiteral("  none\n");
    return text + QStringLiteral("\nLibraries:\n") + librariesText();
}

AboutDialog::AboutDialog(const QString& version, const PluginStates& plugins, QWidget* parent)
    : QDialog(parent)
    , m_details(new QPlainTextEdit(report(version, plugins ? plugins() : std::vector<PluginState>())))
{
    setObjectName(QStringLiteral("about"));
    setWindowTitle(tr("About Scopix"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* logo = new QLabel;
    logo->setPixmap(svgIcon(QStringLiteral("scopix"), this).pixmap(LogoSize));
    auto* text = new QLabel(tr("<b>Scopix %1</b><p>Opens a 3D scene and lets you click anything, tune any "
                               "value live, undo everything and see what it costs.</p>"
                               "<p>Free under the MIT licence, by the Scopix authors.</p>")
                                .arg(version));
    text->setWordWrap(true);
    auto* head = new QHBoxLayout;
    head->addWidget(logo, 0, Qt::AlignTop);
    head->addWidget(text, 1);
    m_details->setReadOnly(true);
    m_details->setTabChangesFocus(true);
    m_details->setAccessibleName(tr("Version, system, plug-ins and libraries"));
    m_details->setMinimumSize(fontMetrics().averageCharWidth() * WidthInCharacters,
                              fontMetrics().lineSpacing() * HeightInLines);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton* copyButton = buttons->addButton(tr("&Copy for a Bug Report"), QDialogButtonBox::ActionRole);
    copyButton->setObjectName(QStringLiteral("copyReport"));
    connect(copyButton, &QPushButton::clicked, this, &AboutDialog::copy);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addLayout(head);
    column->addWidget(m_details, 1);
    column->addWidget(buttons);
    setTabOrder(m_details, copyButton);
    setTabOrder(copyButton, buttons->button(QDialogButtonBox::Close));
}

void AboutDialog::copy()
{
    QGuiApplication::clipboard()->setText(m_details->toPlainText());
}

} // namespace scopix

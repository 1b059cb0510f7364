// SPDX-License-Identifier: MIT
#include "window/AttachDialog.h"

#include "live/SocketLink.h"
#include "support/Printable.h"

#include <QDialogButtonBox>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr QSize PictureSize{192, 120};
constexpr int ListMs = 1000;

QPixmap framed(const QImage& image)
{
    QPixmap pixmap(PictureSize);
    pixmap.fill(Qt::transparent);
    if (image.isNull())
        return pixmap;
    const QImage small = image.scaled(PictureSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&pixmap);
    painter.drawImage((PictureSize.width() - small.width()) / 2, (PictureSize.height() - small.height()) / 2,
                      small);
    return pixmap;
}

} // namespace

// A program, attached to until its picture has come.
class AttachDialog::Entry : private live::ClientListener
{
public:
    Entry(const live::Program& program, QListWidget& list)
        : m_socket(QString::fromStdString(program.socketPath))
        , m_item(new QListWidgetItem(&list))
        , m_link(std::make_unique<SocketLink>())
    {
        m_item->setText(tr("%1\n%2, process %3")
                            .arg(printable(QString::fromStdString(program.name)),
                                 printable(QString::fromStdString(program.sceneGraph)))
                            .arg(program.pid));
        m_item->setIcon(framed({}));
        m_item->setData(Qt::UserRole, m_socket);
        m_link->setListener(this);
        const QString problem = m_link->connectTo(m_socket);
        if (!problem.isEmpty())
            m_item->setToolTip(problem);
        else if (m_link->abilities().picture)
            m_link->showPictures(static_cast<std::uint32_t>(PictureSize.width()),
                                 static_cast<std::uint32_t>(PictureSize.height()));
    }
    ~Entry() override { delete m_item; }
    const QString& getSocket() const { return m_socket; }

private:
    void pictureCame(const live::Picture& picture) override
    {
        if (picture.pixels.size() != std::size_t(picture.width) * picture.height * 4)
            return;
        const QImage image(picture.pixels.data(), static_cast<int>(picture.width),
                           static_cast<int>(picture.height), QImage::Format_RGBX8888);
        m_item->setIcon(framed(image));
        m_link->showPictures(0, 0);
    }

    QString m_socket;
    QListWidgetItem* m_item;
    std::unique_ptr<SocketLink> m_link;
};

AttachDialog::AttachDialog(QWidget* parent)
    : QDialog(parent)
    , m_list(new QListWidget)
    , m_none(new QLabel(
          tr("No program that can be attached to is running.\nscopix --launch PROGRAM starts one.")))
{
    setObjectName(QStringLiteral("attachDialog"));
    setWindowTitle(tr("Attach to a Running Program"));
    m_list->setObjectName(QStringLiteral("livePrograms"));
    m_list->setIconSize(PictureSize);
    m_list->setAccessibleName(tr("Running programs"));
    m_none->setAlignment(Qt::AlignCenter);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_attach = buttons->addButton(tr("&Attach"), QDialogButtonBox::AcceptRole);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addWidget(m_none);
    layout->addWidget(buttons);
    resize(520, 420);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QListWidget::itemActivated, this, &QDialog::accept);
    connect(&m_again, &QTimer::timeout, this, &AttachDialog::list);
    m_again.start(ListMs);
    list();
}

AttachDialog::~AttachDialog() = default;

void AttachDialog::list()
{
    const std::vector<live::Program> programs = live::listPrograms();
    const auto isGone = [&programs](const std::unique_ptr<Entry>& entry) {
        return std::none_of(programs.begin(), programs.end(), [&entry](const live::Program& program) {
            return QString::fromStdString(program.socketPath) == entry->getSocket();
        });
    };
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), isGone), m_entries.end());
    for (const live::Program& program : programs) {
        const QString socket = QString::fromStdString(program.socketPath);
        if (std::none_of(m_entries.begin(), m_entries.end(),
                         [&socket](const auto& entry) { return entry->getSocket() == socket; }))
            m_entries.push_back(std::make_unique<Entry>(program, *m_list));
    }
    m_list->setVisible(!m_entries.empty());
    m_none->setVisible(m_entries.empty());
    m_attach->setEnabled(!m_entries.empty());
    if (!m_list->currentItem())
        m_list->setCurrentRow(0);
}

QString AttachDialog::chosenSocket() const
{
    const QListWidgetItem* item = m_list->currentItem();
    return item ? item->data(Qt::UserRole).toString() : QString();
}

} // namespace scopix

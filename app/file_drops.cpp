// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/file_drops.h"

#include "app/main_menus.h"

#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace corvala::app {

static constexpr int kMargin = 24; ///< of the sign, in pixels

FileDrops::FileDrops(QWidget& window, QWidget& plot, std::function<QString()> obstacle)
    : QObject(&window)
    , m_plot(plot)
    , m_obstacle(std::move(obstacle))
    , m_sign(new QLabel(&plot))
{
    m_sign->setObjectName(QStringLiteral("dropSign"));
    m_sign->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_sign->setAutoFillBackground(true);
    m_sign->setAlignment(Qt::AlignCenter);
    m_sign->setFrameStyle(QFrame::Box | QFrame::Plain);
    m_sign->setLineWidth(3);
    m_sign->setMargin(kMargin);
    m_sign->setTextFormat(Qt::PlainText);
    m_sign->hide();
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool FileDrops::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: answer(static_cast<QDropEvent&>(*event)); return true;
    case QEvent::DragLeave: m_sign->hide(); return true;
    case QEvent::Drop: take(static_cast<QDropEvent&>(*event)); return true;
    default: return false;
    }
}

/// Empty when there is anything else among what is dragged.
static QStringList filesIn(const QMimeData& data)
{
    QStringList files;
    const QList<QUrl> urls = data.urls();
    for (const QUrl& url : urls)
        if (url.isLocalFile())
            files << url.toLocalFile();
    return files.size() == urls.size() ? files : QStringList();
}

void FileDrops::answer(QDropEvent& event)
{
    const QStringList files = filesIn(*event.mimeData());
    const QString obstacle = files.isEmpty()
        ? tr("Only files and folders of this computer can be opened")
        : m_obstacle();
    show(obstacle.isEmpty() ? tr("Drop to open %1").arg(shownName(files)) : obstacle,
         !obstacle.isEmpty());
    if (obstacle.isEmpty())
        event.acceptProposedAction();
    else if (event.type() == QEvent::DragEnter)
        event.accept(); // else nothing would tell that it leaves
    else
        event.ignore();
}

void FileDrops::take(QDropEvent& event)
{
    m_sign->hide();
    const QStringList files = filesIn(*event.mimeData());
    if (files.isEmpty() || !m_obstacle().isEmpty())
        return;
    event.acceptProposedAction();
    Q_EMIT dropped(files);
}

void FileDrops::show(const QString& text, bool isRefusal)
{
    m_sign->setText(text);
    m_sign->setBackgroundRole(isRefusal ? QPalette::ToolTipBase : QPalette::Highlight);
    m_sign->setForegroundRole(isRefusal ? QPalette::ToolTipText : QPalette::HighlightedText);
    m_sign->resize(m_sign->sizeHint().boundedTo(m_plot.size()));
    m_sign->move(m_plot.rect().center() - m_sign->rect().center());
    m_sign->raise();
    m_sign->show();
}

} // namespace corvala::app

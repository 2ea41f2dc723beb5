// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start_page.h"

#include "app/icons.h"
#include "app/main_menus.h"
#include "app/recent_files.h"
#include "host/io/sample_list.h"
#include "samples/demo_data.h"

#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace corvala::app {

static constexpr int kIconSize = 64;
static constexpr int kListWidth = 34; ///< in average characters
static constexpr int kGap = 24;
static constexpr int kHighPage = 400; ///< which has room for the icon

namespace {

/// An entry of a list, as wide as the list; Return presses it, and the arrow keys go on.
class EntryButton : public QToolButton
{
public:
    EntryButton(const char* icon, const QString& text, const QString& tip)
    {
        setAutoRaise(true);
        setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        setIcon(commandIcon(icon));
        setText(QString(text).replace(QLatin1Char('&'), QLatin1String("&&")));
        setToolTip(tip);
        setAccessibleName(text);
        setFocusPolicy(Qt::StrongFocus);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: click(); break;
        case Qt::Key_Down: focusNextChild(); break;
        case Qt::Key_Up: focusPreviousChild(); break;
        default: QToolButton::keyPressEvent(event);
        }
    }
};

} // namespace

static QBoxLayout* addList(QBoxLayout& lists, const QString& title)
{
    auto* const list = new QVBoxLayout;
    auto* const label = new QLabel(title);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setFixedWidth(label->fontMetrics().averageCharWidth() * kListWidth);
    list->addWidget(label);
    list->setSpacing(1);
    list->setAlignment(Qt::AlignTop);
    lists.addLayout(list);
    return list;
}

StartPage::StartPage(QWidget* parent)
    : QScrollArea(parent)
{
    setObjectName(QStringLiteral("startPage"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    auto* const page = new QWidget;
    auto* const around = new QVBoxLayout(page);
    around->setContentsMargins(kGap, kGap, kGap, kGap);
    around->addStretch(1);
    addHead(*around);
    around->addSpacing(kGap);
    m_lists = new QHBoxLayout;
    m_lists->setSpacing(kGap);
    around->addLayout(m_lists);
    around->setAlignment(m_lists, Qt::AlignHCenter);
    around->addStretch(2);
    m_recent = addList(*m_lists, tr("Opened last"));
    m_samples = addList(*m_lists, tr("Samples"));
    m_demos = addList(*m_lists, tr("Demonstrations"));
    setWidget(page);
    fillSamples();
    fillDemos();
}

void StartPage::addHead(QBoxLayout& layout)
{
    m_icon = new QLabel;
    m_icon->setPixmap(programIcon().pixmap(kIconSize));
    layout.addWidget(m_icon, 0, Qt::AlignHCenter);
    layout.addWidget(new QLabel(tr("Open data, or drop files and folders here")), 0,
                     Qt::AlignHCenter);
    auto* const row = new QHBoxLayout;
    auto* const open =
        new EntryButton("document-open", tr("Open..."), tr("Open data files (Ctrl+O)"));
    auto* const folder = new EntryButton("open-case-folder", tr("Open Case Folder..."),
                                         tr("Open the case, or the data, in a folder"));
    for (QToolButton* const button : {open, folder}) {
        button->setAutoRaise(false);
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        row->addWidget(button);
    }
    connect(open, &QToolButton::clicked, this, &StartPage::openWanted);
    connect(folder, &QToolButton::clicked, this, &StartPage::folderWanted);
    row->addStretch();
    row->insertStretch(0);
    layout.addLayout(row);
    setFocusProxy(open);
}

static QString shownFolder(const QString& file)
{
    const QString folder = QFileInfo(file).path();
    const QString home = QDir::homePath();
    return folder.startsWith(home + QLatin1Char('/')) ? QLatin1Char('~') + folder.mid(home.size())
                                                      : folder;
}

/// The files may have changed since they were last shown.
void StartPage::fillRecent()
{
    while (m_recent->count() > 1) {
        const std::unique_ptr<QLayoutItem> item(m_recent->takeAt(1));
        delete item->widget();
    }
    for (const QStringList& files : recentFiles()) {
        const int width = fontMetrics().averageCharWidth() * (kListWidth - 4);
        const auto fit = [&](const QString& text) {
            return fontMetrics().elidedText(text, Qt::ElideMiddle, width);
        };
        auto* const entry = new EntryButton("document-open-recent",
                                            fit(shownName(files)) + QLatin1Char('\n')
                                                + fit(shownFolder(files.first())),
                                            files.join(QLatin1Char('\n')));
        connect(entry, &QToolButton::clicked, this, [this, files] { Q_EMIT filesWanted(files); });
        m_recent->addWidget(entry);
    }
    if (m_recent->count() == 1)
        m_recent->addWidget(new QLabel(tr("No files yet")));
}

void StartPage::fillSamples()
{
    for (const host::io::Sample& sample : host::io::sampleList()) {
        auto* const entry = new EntryButton("samples", sample.title,
                                            tr("Open real data that come with the program"));
        connect(entry, &QToolButton::clicked, this,
                [this, files = sample.files] { Q_EMIT filesWanted(files); });
        m_samples->addWidget(entry);
    }
}

void StartPage::fillDemos()
{
    for (const std::string& demo : samples::demoNames()) {
        const QString name = QString::fromStdString(demo);
        auto* const entry = new EntryButton("demonstrations", demoTitle(name),
                                            tr("Show data that are made on the spot"));
        connect(entry, &QToolButton::clicked, this, [this, name] { Q_EMIT demoWanted(name); });
        m_demos->addWidget(entry);
    }
}

void StartPage::showEvent(QShowEvent* event)
{
    fillRecent();
    QScrollArea::showEvent(event);
}

void StartPage::resizeEvent(QResizeEvent* event)
{
    const int wide = 3 * fontMetrics().averageCharWidth() * kListWidth + 4 * kGap;
    m_lists->setDirection(width() >= wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_icon->setVisible(height() >= kHighPage);
    QScrollArea::resizeEvent(event);
}

} // namespace corvala::app

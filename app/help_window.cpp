// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/help_window.h"

#include "app/help_pages.h"
#include "app/icons.h"
#include "app/user_settings.h"
#include "app/window_place.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTextBrowser>
#include <QToolBar>
#include <QWindow>

namespace corvala::app {

static const QString kPanesSetting = QStringLiteral("help/panes");
static constexpr int kReferenceRole = Qt::UserRole;
static constexpr QSize kFirstSize(860, 640);

HelpWindow::HelpWindow()
{
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(tr("Help - corvala"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_QuitOnClose, false);
    makePanes();
    makeBar();
    useColors();
    listContents();
    new WindowPlace(*this, QStringLiteral("help"), [this] {
        QRect place({}, kFirstSize);
        place.moveCenter(screen()->availableGeometry().center());
        return place;
    });
    if (!m_panes->restoreState(userSettings().value(kPanesSetting).toByteArray()))
        m_panes->setSizes({220, 640});
}

HelpWindow::~HelpWindow()
{
    userSettings().setValue(kPanesSetting, m_panes->saveState());
}

void HelpWindow::makePanes()
{
    m_panes = new QSplitter(this);
    m_list = new QListWidget(m_panes);
    m_list->setObjectName(QStringLiteral("helpContents"));
    m_list->setAccessibleName(tr("Contents"));
    m_page = new QTextBrowser(m_panes);
    m_page->setObjectName(QStringLiteral("helpPage"));
    m_page->setAccessibleName(tr("Page"));
    m_page->document()->setDocumentMargin(12);
    m_panes->setStretchFactor(1, 1);
    m_panes->setChildrenCollapsible(false);
    setCentralWidget(m_panes);
    connect(m_list, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* entry) {
        if (entry)
            openEntry(*entry);
    });
    connect(m_list, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* entry) { openEntry(*entry); });
    connect(m_list, &QListWidget::itemActivated, this, [this] { m_page->setFocus(); });
    connect(m_page, &QTextBrowser::historyChanged, this, [this] {
        markCurrentPage();
        markFound();
    });
}

void HelpWindow::makeBar()
{
    QToolBar* bar = addToolBar(tr("Navigation"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    const auto add = [&](const char* icon, const QString& text, const QKeySequence& keys,
                         auto slot) {
        QAction* action = bar->addAction(commandIcon(icon), text, m_page, slot);
        action->setShortcut(keys);
        action->setToolTip(tr("%1 (%2)").arg(text, keys.toString(QKeySequence::NativeText)));
        m_commands << action;
        return action;
    };
    QAction* back = add("go-previous", tr("Back"), QKeySequence(Qt::ALT | Qt::Key_Left),
                        &QTextBrowser::backward);
    QAction* forward = add("go-next", tr("Forward"), QKeySequence(Qt::ALT | Qt::Key_Right),
                           &QTextBrowser::forward);
    add("go-home", tr("Contents"), QKeySequence(Qt::ALT | Qt::Key_Home),
        [this] { open(QStringLiteral("index.html")); });
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(m_page, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_page, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    m_search = new QLineEdit(bar);
    m_search->setObjectName(QStringLiteral("helpSearch"));
    m_search->setPlaceholderText(tr("Search all pages"));
    m_search->setAccessibleName(m_search->placeholderText());
    m_search->setClearButtonEnabled(true);
    bar->addWidget(m_search);
    connect(m_search, &QLineEdit::textChanged, this, &HelpWindow::listHits);
    connect(m_search, &QLineEdit::returnPressed, this, &HelpWindow::findNext);
    auto* find = new QAction(this);
    find->setShortcuts({QKeySequence::Find, QKeySequence(Qt::Key_F3)});
    connect(find, &QAction::triggered, this, [this] {
        m_search->setFocus();
        m_search->selectAll();
    });
    auto* close = new QAction(this);
    close->setShortcuts({QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)});
    connect(close, &QAction::triggered, this, &QWidget::close);
    addActions({find, close});
    m_commands << find << close;
    for (QWidget* part : {static_cast<QWidget*>(m_search), static_cast<QWidget*>(m_list),
                          static_cast<QWidget*>(m_page)})
        part->installEventFilter(this);
}

/// Keys that the commands of other windows have everywhere belong to those of this window here.
bool HelpWindow::eventFilter(QObject* watched, QEvent* event)
{
    const bool isAsking = event->type() == QEvent::ShortcutOverride;
    if (!isAsking && event->type() != QEvent::KeyPress)
        return QMainWindow::eventFilter(watched, event);
    const auto& key = static_cast<QKeyEvent&>(*event);
    const QKeySequence keys(key.key() | static_cast<int>(key.modifiers() & ~Qt::KeypadModifier));
    for (QAction* const command : qAsConst(m_commands)) {
        if (!command->shortcuts().contains(keys))
            continue;
        event->accept();
        if (!isAsking)
            command->trigger();
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

static QColor between(const QColor& one, const QColor& other, double share)
{
    const auto mean = [share](double first, double second) {
        return first + share * (second - first);
    };
    return QColor::fromRgbF(mean(one.redF(), other.redF()), mean(one.greenF(), other.greenF()),
                            mean(one.blueF(), other.blueF()));
}

/// Dark palettes seldom have a color of links that can be read on them.
void HelpWindow::useColors()
{
    const QColor back = m_page->palette().color(QPalette::Base);
    const QColor text = m_page->palette().color(QPalette::Text);
    const QColor link = back.lightness() < 128 ? QColor(122, 176, 255) : QColor(0, 80, 180);
    m_page->document()->setDefaultStyleSheet(
        QStringLiteral("a { color: %1; } th { background-color: %2; } "
                       "table { margin-top: 8px; border-collapse: collapse; border-color: %3; }")
            .arg(link.name(), between(back, text, 0.1).name(), between(back, text, 0.25).name()));
    m_page->reload();
}

void HelpWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_page)
        useColors();
}

void HelpWindow::open(const QString& reference)
{
    bringToFront(); // anchors are found in what is laid out
    m_page->setSource(helpUrl(reference));
}

/// A window that belongs to a prompt is not locked by it.
void HelpWindow::bringToFront()
{
    QWidget* const prompt = QApplication::activeModalWidget();
    winId(); // makes the window
    QWindow* const owner = prompt ? prompt->window()->windowHandle() : nullptr;
    if (windowHandle()->transientParent() != owner) {
        hide();
        windowHandle()->setTransientParent(owner);
    }
    if (auto* dialog = qobject_cast<QDialog*>(prompt))
        connect(dialog, &QDialog::finished, this, &HelpWindow::leavePrompt, Qt::UniqueConnection);
    show();
    raise();
    activateWindow();
    m_page->setFocus();
}

/// The window stays when the prompt is closed.
void HelpWindow::leavePrompt()
{
    windowHandle()->setTransientParent(nullptr);
}

static void addHeading(QListWidget& list, const QString& text)
{
    auto* item = new QListWidgetItem(text, &list);
    QFont font = item->font();
    font.setBold(true);
    item->setFont(font);
    item->setFlags(Qt::NoItemFlags);
    item->setForeground(list.palette().text());
}

void HelpWindow::listContents()
{
    for (const HelpEntry& entry : helpContents()) {
        if (entry.reference.isEmpty())
            addHeading(*m_list, entry.title);
        else
            (new QListWidgetItem(entry.title, m_list))->setData(kReferenceRole, entry.reference);
    }
    markCurrentPage();
}

void HelpWindow::listHits(const QString& text)
{
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    if (text.isEmpty()) {
        listContents();
    } else {
        for (const HelpHit& hit : searchHelp(text))
            (new QListWidgetItem(tr("%1 (%2)").arg(hit.title).arg(hit.count), m_list))
                ->setData(kReferenceRole, hit.page);
        if (m_list->count() == 0)
            addHeading(*m_list, tr("Nothing found"));
    }
    markCurrentPage();
    markFound();
}

void HelpWindow::openEntry(const QListWidgetItem& entry)
{
    const QString reference = entry.data(kReferenceRole).toString();
    if (reference.isEmpty() || m_page->source() == helpUrl(reference))
        return;
    m_page->setSource(helpUrl(reference));
    if (!m_search->text().isEmpty())
        m_page->find(m_search->text());
}

/// In the list: the entry of the page and its anchor, else that of the page.
void HelpWindow::markCurrentPage()
{
    const QSignalBlocker blocker(m_list);
    QListWidgetItem* best = nullptr;
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem* const entry = m_list->item(row);
        const QUrl url = helpUrl(entry->data(kReferenceRole).toString());
        const bool isPage = url.path() == m_page->source().path();
        if (isPage && (!best || url == m_page->source()))
            best = entry;
    }
    m_list->clearSelection();
    m_list->setCurrentItem(best);
}

/// Every place on the page that the search looks for.
void HelpWindow::markFound()
{
    QList<QTextEdit::ExtraSelection> marks;
    QTextCursor place(m_page->document());
    while (!m_search->text().isEmpty()) {
        place = m_page->document()->find(m_search->text(), place);
        if (place.isNull())
            break;
        QTextEdit::ExtraSelection mark;
        mark.cursor = place;
        mark.format.setBackground(QColor(255, 220, 100));
        mark.format.setForeground(Qt::black);
        marks << mark;
    }
    m_page->setExtraSelections(marks);
}

/// The next place on the page, else on the next page that has one.
void HelpWindow::findNext()
{
    if (m_search->text().isEmpty() || m_page->find(m_search->text()) || m_list->count() == 0)
        return;
    const int next = (m_list->currentRow() + 1) % m_list->count();
    if (next != m_list->currentRow())
        m_list->setCurrentRow(next);
    else
        m_page->moveCursor(QTextCursor::Start);
    if (!m_page->textCursor().hasSelection())
        m_page->find(m_search->text());
}

} // namespace corvala::app

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/view_commands.h"

#include "app/command_tips.h"
#include "app/dialog_rows.h"
#include "app/icons.h"
#include "app/notice_bar.h"
#include "app/picked_objects.h"
#include "app/user_settings.h"
#include "host/document/document.h"
#include "plot/frame_view.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QStatusBar>

namespace corvala::app {

using plot::Canvas;
using plot::ViewPreset;

static constexpr const char* kOutlines = "view/outlineSelected";

ViewCommands::ViewCommands(QMainWindow& window, plot::FrameView* view, NoticeBar& notice,
                           QMenu& before)
    : QObject(&window)
    , m_window(window)
    , m_view(view)
    , m_notice(notice)
    , m_rows(new DialogRows(window))
    , m_escape(new QShortcut(Qt::Key_Escape, &window))
    , m_menu(new QMenu(tr("&View"), &window))
{
    window.menuBar()->insertMenu(before.menuAction(), m_menu);
    addZooms();
    m_menu->addSeparator();
    addPresets();
    m_menu->addSeparator();
    addWindowCommands();
    m_escape->setContext(Qt::ApplicationShortcut);
    // Where Esc means something else as well, one comes after the other.
    connect(m_escape, &QShortcut::activated, this, &ViewCommands::leave);
    connect(m_escape, &QShortcut::activatedAmbiguously, this, &ViewCommands::leave);
    connect(m_rows, &DialogRows::changed, this, &ViewCommands::outline);
    connect(m_menu, &QMenu::aboutToShow, this, &ViewCommands::refresh);
    if (view)
        connect(view, &plot::FrameView::boxEnded, this, [this] { m_zoomBox->setChecked(false); });
    window.installEventFilter(this);
    refresh();
    showModes();
}

QAction* ViewCommands::add(const char* name, const QString& text, const QString& tip,
                           const QKeySequence& keys, const std::function<void()>& command)
{
    QAction* const action = m_menu->addAction(text);
    setUpCommand(*action, name, keys, tip);
    if (command)
        connect(action, &QAction::triggered, this, command);
    m_ofPlots.push_back(action);
    return action;
}

void ViewCommands::change(const std::function<void(Canvas&)>& action)
{
    if (!m_view || !m_view->canvas())
        return;
    m_view->rememberView();
    action(*m_view->canvas());
    m_view->requestRedraw();
    refresh();
}

void ViewCommands::addZooms()
{
    m_fit = add("fitView", tr("&Fit View"), tr("Show all that is drawn, as at the start"),
                QKeySequence(QStringLiteral("Ctrl+0")), [this] { m_view->fitView(); });
    m_fit->setIcon(commandIcon("zoom-fit-best"));
    m_zoomBox = add("zoomBox", tr("Zoom &Box"),
                    tr("Draw a box with the mouse that shall fill the plot; Esc leaves. A drag "
                       "with Ctrl and Shift does the same at once"),
                    QKeySequence(QStringLiteral("Ctrl+B")), {});
    m_zoomBox->setIcon(commandIcon("zoom-select"));
    m_zoomBox->setCheckable(true);
    connect(m_zoomBox, &QAction::toggled, this, &ViewCommands::showModes);
    QAction* const selected =
        add("zoomSelected", tr("Zoom to &Selected"),
            tr("Show the maps whose rows are selected in the style dialog, or what was clicked in "
               "the plot, as large as possible"),
            QKeySequence(QStringLiteral("Ctrl+Shift+B")), [this] { zoomToSelected(); });
    QAction* const in = add("zoomIn", tr("Zoom &In"), tr("Show the middle of the plot larger"),
                            QKeySequence::ZoomIn, [this] { zoomBy(1.25); });
    QAction* const out = add("zoomOut", tr("Zoom &Out"), tr("Show more round the plot"),
                             QKeySequence::ZoomOut, [this] { zoomBy(0.8); });
    selected->setIcon(commandIcon("zoom-to-selected"));
    in->setIcon(commandIcon("zoom-in"));
    out->setIcon(commandIcon("zoom-out"));
    m_ofBoxes = {m_zoomBox, selected, in, out};
    m_previous = add("previousView", tr("P&revious View"),
                     tr("Go back to what was seen before the view was last changed"),
                     QKeySequence(QStringLiteral("Ctrl+Shift+0")), [this] {
                         m_view->showPreviousView();
                         refresh();
                     });
    m_previous->setIcon(commandIcon("go-previous"));
}

void ViewCommands::addPreset(ViewPreset preset, const char* name, const QString& text,
                             const QString& tip, const char* keys, const char* icon)
{
    m_ofSpace.push_back(add(name, text, tip, QKeySequence(QLatin1String(keys)), [this, preset] {
        change([preset](Canvas& canvas) { canvas.lookFrom(preset); });
    }));
    m_ofSpace.back()->setIcon(commandIcon(icon));
}

void ViewCommands::addPresets()
{
    addPreset(ViewPreset::X, "viewX", tr("Along &X"), tr("Look along X, Y to the right, Z upwards"),
              "Ctrl+1", "view-along-x");
    addPreset(ViewPreset::Y, "viewY", tr("Along &Y"), tr("Look along Y, X to the right, Z upwards"),
              "Ctrl+2", "view-along-y");
    addPreset(ViewPreset::Z, "viewZ", tr("Along &Z"), tr("Look along Z, X to the right, Y upwards"),
              "Ctrl+3", "view-along-z");
    addPreset(ViewPreset::Corner, "viewCorner", tr("From a &Corner"),
              tr("Look from a corner, Z upwards, as at the start"), "Ctrl+4", "view-from-corner");
    m_parallel =
        add("parallel", tr("&Parallel Projection"),
            tr("Show what is far away as large as what is near"),
            QKeySequence(QStringLiteral("Ctrl+5")), [this] {
                change([this](Canvas& canvas) { canvas.setParallel(m_parallel->isChecked()); });
            });
    m_parallel->setCheckable(true);
    m_ofSpace.push_back(m_parallel);
}

void ViewCommands::addWindowCommands()
{
    m_outlines = add("outlineSelected", tr("Outline Se&lected Rows"),
                     tr("Mark in the plot what is selected in the style dialog; not in pictures "
                        "that are saved"),
                     {}, [this] {
                         userSettings().setValue(kOutlines, m_outlines->isChecked());
                         outline();
                     });
    m_outlines->setCheckable(true);
    m_outlines->setChecked(userSettings().value(kOutlines, true).toBool());
    m_fullScreen =
        add("fullScreen", tr("F&ull Screen"), tr("Give the window all of the screen; Esc leaves"),
            QKeySequence(Qt::Key_F11), {});
    m_fullScreen->setIcon(commandIcon("view-fullscreen"));
    m_fullScreen->setCheckable(true);
    m_ofPlots.pop_back(); // a matter of the window
    connect(m_fullScreen, &QAction::triggered, this, &ViewCommands::setFullScreen);
}

void ViewCommands::setFullScreen(bool isFull)
{
    const Qt::WindowStates state = m_window.windowState();
    m_window.setWindowState(isFull ? state | Qt::WindowFullScreen : state & ~Qt::WindowFullScreen);
}

bool ViewCommands::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange) {
        m_fullScreen->setChecked(m_window.isFullScreen());
        showModes();
    }
    return QObject::eventFilter(watched, event);
}

/// Esc first leaves what was begun last.
void ViewCommands::leave()
{
    if (m_zoomBox->isChecked())
        m_zoomBox->setChecked(false);
    else
        setFullScreen(false);
}

void ViewCommands::showModes()
{
    const bool zooms = m_zoomBox->isChecked();
    if (m_view)
        m_view->setZoomsToBox(zooms);
    m_escape->setEnabled(zooms || m_window.isFullScreen());
}

/// From the middle of the plot.
void ViewCommands::zoomBy(double factor)
{
    change([factor](Canvas& canvas) {
        QRectF box(QPointF(), QSizeF(canvas.size()) / factor);
        box.moveCenter(QRectF(canvas.rect()).center());
        canvas.zoomToBox(box);
    });
}

void ViewCommands::zoomToSelected()
{
    host::NumberSet maps = m_rows->selectedMaps();
    if (maps.isEmpty())
        maps = pickedMaps();
    bool isShown = false;
    if (!maps.isEmpty())
        change([&](Canvas& canvas) { isShown = canvas.zoomToMaps(maps); });
    if (!isShown)
        m_window.statusBar()->showMessage(
            maps.isEmpty()
                ? tr("Select rows in the style dialog first, or click something in the plot")
                : tr("Nothing is drawn of what is selected"));
}

void ViewCommands::outline()
{
    if (m_view)
        m_view->setOutlined(m_outlines->isChecked() ? m_rows->selectedMaps() : host::NumberSet());
}

void ViewCommands::refresh()
{
    const Canvas* const canvas = m_view ? m_view->canvas() : nullptr;
    for (QAction* const action : m_ofPlots)
        action->setEnabled(canvas);
    for (QAction* const action : m_ofBoxes)
        action->setEnabled(canvas && canvas->canZoomToBox());
    for (QAction* const action : m_ofSpace)
        action->setEnabled(canvas && canvas->canTurn());
    m_outlines->setEnabled(m_view);
    m_parallel->setChecked(canvas && canvas->canTurn() && canvas->isParallel());
    m_previous->setEnabled(canvas && m_view->hasPreviousView());
    if (!m_zoomBox->isEnabled())
        m_zoomBox->setChecked(false);
}

void ViewCommands::tellWhenLost()
{
    const bool isLost = m_view && m_view->canvas() && !m_view->canvas()->seesSomething();
    if (!isLost)
        m_note = m_notice.tellInPassing(m_note, {});
    else if (!m_notice.isShown(m_note))
        m_note =
            m_notice.tellInPassing(0, tr("Nothing is in view: all that is drawn lies beside it."),
                                   tr("Fit View"), [this] { m_view->fitView(); });
    refresh();
}

} // namespace corvala::app

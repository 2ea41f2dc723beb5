// SPDX-License-Identifier: BSD-3-Clause
#include "tests/play/gesture_driver.h"

#include "host/document/document.h"
#include "play/idle.h"
#include "play/input.h"
#include "play/prompt_description.h"
#include "play/verbs.h"
#include "sdk/dialogs_common/qt_dialog_abstract.h"
#include "tests/play/watchdog.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>

#include <numeric>

namespace corvala::tests {

using Json = nlohmann::json;
using play::DialogDriver;
using play::WindowWatcher;

GestureDriver::GestureDriver(play::Stage& stage, unsigned seed)
    : m_run(stage, {})
    , m_random(seed)
{
    for (const auto kind : {WindowWatcher::Menu, WindowWatcher::Popup, WindowWatcher::Prompt})
        m_run.watcher().setHandler(kind,
                                   [this, kind](QWidget& window) { whileOpen(kind, window); });
}

const std::vector<GestureDriver::Gesture>& GestureDriver::gestures()
{
    using D = GestureDriver;
    static const std::vector<Gesture> all {
        {"change", 14, &D::changeDocument},
        {"click a cell", 14, &D::clickCell},
        {"click a check box", 10, &D::clickCheckBox},
        {"change under a pressed button", 2, &D::changeUnderPressedButton},
        {"drag over cells", 3, &D::dragOverCells},
        {"right click", 16, &D::openMenu},
        {"double click", 8, &D::doubleClickCell},
        {"drag a header", 3, &D::dragHeader},
        {"double click a header", 2, &D::doubleClickHeader},
        {"click a header", 2, &D::clickHeader},
        {"wheel", 4, &D::turnWheel},
        {"scroll bar", 3, &D::dragScrollBar},
        {"tab", 8, &D::clickTab},
        {"key", 12, &D::pressKey},
        {"type", 5, &D::typeText},
        {"pattern", 3, &D::enterPattern},
        {"button", 4, &D::clickButton},
        {"window", 2, &D::useWindow},
        {"open or close", 1, &D::openOrClose},
        {"wait", 6, &D::wait},
    };
    return all;
}

int GestureDriver::below(int count)
{
    return count > 0 ? static_cast<int>(m_random() % static_cast<unsigned>(count)) : 0;
}

int GestureDriver::between(int first, int last)
{
    return first + below(last - first + 1);
}

void GestureDriver::step()
{
    if (!DialogDriver::instance() || !DialogDriver::instance()->isVisible()) {
        if (!oneIn(4))
            return openOrClose();
        Watchdog::begin("change");
        return changeDocument();
    }
    const auto add = [](int sum, const Gesture& gesture) { return sum + gesture.weight; };
    static const int total = std::accumulate(gestures().begin(), gestures().end(), 0, add);
    int weight = below(total);
    for (const Gesture& gesture : gestures()) {
        weight -= gesture.weight;
        if (weight >= 0)
            continue;
        Watchdog::begin(gesture.name);
        return (this->*gesture.play)();
    }
}

// On the document.

Json GestureDriver::anyMaps()
{
    static const std::vector<const char*> sets {"1", "2", "1-3", "2,4", "3-5", "all"};
    return anyOf(sets);
}

Json GestureDriver::anyStyle()
{
    struct Style
    {
        std::vector<const char*> path;
        int values;
    };
    static const std::vector<Style> styles {{{"FieldMap", "Mesh", "Show"}, 2},
                                            {{"FieldMap", "Mesh", "MeshType"}, 3},
                                            {{"FieldMap", "Mesh", "Color"}, 60},
                                            {{"FieldMap", "Mesh", "LinePattern"}, 6},
                                            {{"FieldMap", "Contour", "ContourType"}, 5},
                                            {{"FieldMap", "Group"}, 9},
                                            {{"FieldMap", "Shade", "UseLightingEffect"}, 2},
                                            {{"LineMap", "Assign", "XAxisVar"}, 7},
                                            {{"LineMap", "Assign", "Zone"}, 4},
                                            {{"LineMap", "Lines", "Color"}, 60}};
    const Style style = anyOf(styles);
    Json line {{"set", style.path}, {"maps", anyMaps()}};
    const bool isSwitch = style.values == 2;
    const int value = below(style.values + 1);
    line["value"] = isSwitch ? Json(value > 0) : Json(value);
    return line;
}

Json GestureDriver::anyChange()
{
    static const std::vector<const char*> demos {"field2d",   "field3d", "kinds",
                                                 "transient", "xy",      "polar"};
    static const std::vector<const char*> layers {"ShowMesh",   "ShowContour", "ShowShade",
                                                  "ShowVector", "ShowEdge",    "ShowLines"};
    static const std::vector<const char*> ops {"add", "remove", "assign"};
    const char* const sets[] = {"FieldMaps", "LineMaps"};
    const char* const renamed[] = {"zone", "variable", "lineMap"};
    switch (below(40)) {
    case 0: {
        const std::string demo = anyOf(demos);
        const bool isLine = demo == "xy" || demo == "polar";
        Json line {{"demo", demo}};
        if (demo != "kinds" && demo != "transient" && oneIn(2))
            line[isLine ? "maps" : "zones"] = anyOf(std::vector<int> {1, 3, 40, 300});
        return line;
    }
    case 1: return oneIn(6) ? Json {{"data", "none"}} : anyStyle();
    case 2:
    case 3:
    case 4: return {{"plotType", anyOf(std::vector<int> {1, 2, 1, 2, 3, 5, 0, 4, 1, 2, 3})}};
    case 5: {
        const int frames = host::Document::instance().frameCount();
        if (frames < 3 && oneIn(2))
            return {{"frame", "new"}};
        return oneIn(8) ? Json {{"frame", "delete"}} : Json {{"frame", between(1, 3)}};
    }
    case 6:
    case 7:
    case 8: return {{"layer", anyOf(layers)}, {"on", oneIn(2)}};
    case 9:
    case 10:
    case 11: return {{"active", sets[below(2)]}, {"maps", anyMaps()}, {"op", anyOf(ops)}};
    case 12: return {{"pick", Json::array({{{"zone", between(1, 4)}}, {{"lineMap", 2}}})}};
    case 13:
    case 14: return {{"time", below(4)}};
    case 15:
    case 16:
    case 17:
        return {{"event", below(60)},
                {"parameters",
                 {anyOf(std::vector<const char*> {"FieldMap", "PlotType", "LineMap", "Linking"})}}};
    case 18:
        return oneIn(3) ? Json {{"deleteMaps", anyOf(std::vector<const char*> {"1", "2,4"})}}
                        : anyStyle();
    case 19: return {{"symbols", {{"pieChart", oneIn(2)}, {"extended", oneIn(2)}}}};
    case 20: {
        Json tabs = Json::array();
        for (int tab = 0; tab < 7; ++tab) {
            if (!oneIn(4))
                tabs.push_back(tab);
        }
        return {{"mappingTabs", tabs}};
    }
    case 21:
    case 22:
        return {{"rename", anyOf(std::vector<const char*> {"a", "wing/upper", "Größe", "&ZN&"})},
                {renamed[below(3)], between(1, 4)}};
    case 23:
    case 24:
    case 25:
    case 26: return {{"undo", between(1, 2)}};
    case 27:
    case 28: return {{"redo", 1}};
    default: return anyStyle();
    }
}

void GestureDriver::changeDocument()
{
    for (int count = between(1, 2); count > 0; --count)
        playLine(anyChange());
}

/// A line may ask for what is not there.
void GestureDriver::playLine(const Json& line)
{
    Watchdog::begin(line.dump());
    try {
        play::verbOf(line).play(m_run, play::Arguments(line, {}));
    } catch (const play::ScriptError&) {
    }
}

// On the table.

QTableView* GestureDriver::table() const
{
    QDialog* dialog = DialogDriver::instance();
    auto* view = dialog ? dialog->findChild<QTableView*>() : nullptr;
    return view && view->isVisible() && view->model() ? view : nullptr;
}

QModelIndex GestureDriver::anyCell(int role)
{
    QTableView* view = table();
    for (int attempt = 0; view && attempt < 20; ++attempt) {
        const QModelIndex cell = view->indexAt(anyPoint(view->viewport()->rect()));
        if (cell.isValid() && (role < 0 || cell.data(role).isValid()))
            return cell;
    }
    return {};
}

QPoint GestureDriver::anyPoint(const QRect& area)
{
    return area.topLeft() + QPoint(below(area.width()), below(area.height()));
}

Qt::KeyboardModifiers GestureDriver::anyModifiers()
{
    static const std::vector<Qt::KeyboardModifiers> modifiers {Qt::NoModifier,
                                                               Qt::NoModifier,
                                                               Qt::NoModifier,
                                                               Qt::ControlModifier,
                                                               Qt::ControlModifier,
                                                               Qt::ShiftModifier,
                                                               Qt::ControlModifier
                                                                   | Qt::ShiftModifier};
    return anyOf(modifiers);
}

void GestureDriver::clickCell()
{
    if (QTableView* view = table())
        play::click(view->viewport(), anyPoint(view->viewport()->rect()), anyModifiers());
}

void GestureDriver::clickCheckBox()
{
    const QModelIndex cell = anyCell(Qt::CheckStateRole);
    if (!cell.isValid())
        return clickCell();
    QTableView* view = table();
    const QPoint box = view->visualRect(cell).center();
    if (view->viewport()->rect().contains(box))
        play::click(view->viewport(), box, oneIn(4) ? anyModifiers() : Qt::NoModifier);
}

void GestureDriver::changeUnderPressedButton()
{
    const QModelIndex cell = anyCell(oneIn(2) ? Qt::CheckStateRole : -1);
    if (!cell.isValid())
        return;
    const QPointer<QWidget> viewport = table()->viewport();
    const QPoint position = table()->visualRect(cell).center();
    play::pressMouse(viewport, position);
    changeDocument();
    if (oneIn(2))
        play::waitUntilIdle();
    play::releaseMouse(viewport, position);
}

void GestureDriver::dragOverCells()
{
    QTableView* view = table();
    if (!view)
        return;
    const QRect area = view->viewport()->rect();
    play::drag(view->viewport(), anyPoint(area), anyPoint(area));
}

/// What opens is used by whileOpen().
void GestureDriver::openMenu()
{
    QTableView* view = table();
    if (!view)
        return;
    const QPointer<QWidget> viewport = view->viewport();
    const QPoint position = anyPoint(viewport->rect());
    play::pressMouse(viewport, position, Qt::RightButton);
    play::releaseMouse(viewport, position, Qt::RightButton);
}

/// An editor stays open for the gestures that follow.
void GestureDriver::doubleClickCell()
{
    if (QTableView* view = table())
        play::doubleClick(view->viewport(), anyPoint(view->viewport()->rect()));
}

/// A point of the right border of a column, when it is in view.
std::optional<QPoint> GestureDriver::anyBorder()
{
    QTableView* view = table();
    if (!view || view->horizontalHeader()->count() == 0)
        return std::nullopt;
    const QHeaderView& header = *view->horizontalHeader();
    const int column = header.logicalIndex(below(header.count()));
    const QPoint border(header.sectionViewportPosition(column) + header.sectionSize(column) - 1,
                        header.height() / 2);
    return header.viewport()->rect().contains(border) ? std::optional(border) : std::nullopt;
}

void GestureDriver::dragHeader()
{
    if (const auto border = anyBorder())
        play::drag(table()->horizontalHeader()->viewport(), *border,
                   *border + QPoint(between(-80, 200), 0));
}

void GestureDriver::doubleClickHeader()
{
    if (const auto border = anyBorder())
        play::doubleClick(table()->horizontalHeader()->viewport(), *border);
}

void GestureDriver::clickHeader()
{
    if (QTableView* view = table()) {
        QHeaderView* header = view->horizontalHeader();
        play::click(header->viewport(), anyPoint(header->viewport()->rect()), anyModifiers());
    }
}

void GestureDriver::turnWheel()
{
    QTableView* view = table();
    if (!view)
        return;
    const QPoint steps = oneIn(2) ? QPoint(0, between(-3, 3)) : QPoint(between(-3, 3), 0);
    play::turnWheel(view->viewport(), view->viewport()->rect().center(), steps,
                    oneIn(4) ? Qt::AltModifier : Qt::NoModifier);
}

void GestureDriver::dragScrollBar()
{
    QTableView* view = table();
    if (!view)
        return;
    QScrollBar* bar = oneIn(2) ? view->horizontalScrollBar() : view->verticalScrollBar();
    if (bar->isVisible())
        play::drag(bar, anyPoint(bar->rect()), anyPoint(bar->rect()));
}

// On the dialog.

void GestureDriver::clickTab()
{
    for (QTabBar* bar : DialogDriver::instance()->findChildren<QTabBar*>()) {
        if (bar->isVisible() && bar->count() > 0) {
            const QPoint tab = bar->tabRect(below(bar->count())).center();
            if (bar->rect().contains(tab))
                play::click(bar, tab);
            return;
        }
    }
}

/// The dialog closes on Escape when nothing else does, so that key is rare.
void GestureDriver::pressKey()
{
    static const std::vector<const char*> keys {
        "Left",         "Right",     "Up",     "Down",     "Home",        "End",
        "Ctrl+Home",    "Ctrl+End",  "PgUp",   "PgDown",   "Shift+Down",  "Shift+Up",
        "Shift+PgDown", "Ctrl+Down", "Ctrl+A", "Space",    "Ctrl+Space",  "Shift+Space",
        "Return",       "Enter",     "F2",     "Menu",     "Shift+F10",   "Alt+Down",
        "Tab",          "Shift+Tab", "Ctrl+Z", "Ctrl+Z",   "Ctrl+Y",      "Ctrl+Shift+Z",
        "Del",          "Backspace", "Ctrl+C", "Ctrl+Tab", "Ctrl+PgDown", "Left",
        "Right",        "Up",        "Down"};
    const QKeySequence key(QLatin1String(oneIn(40) ? "Esc" : anyOf(keys)));
    QDialog* dialog = DialogDriver::instance();
    if (table() && oneIn(2) && !dialog->focusWidget())
        table()->setFocus();
    play::pressKeys(dialog, key);
}

static const std::vector<QString>& texts()
{
    static const std::vector<QString> all {"1",       "2",        "5",     "0",
                                           "300",     "0,45",     "0.45",  "-3",
                                           "1e300",   "",         "Zone*", "zone 1",
                                           "no such", "2: Force", "mom",   "Gr\u00f6\u00dfe \u03b1",
                                           "&ZN& x",  "Overlay",  "RGB",   "*"};
    return all;
}

void GestureDriver::typeText()
{
    QDialog* dialog = DialogDriver::instance();
    if (oneIn(4))
        play::typeOver(dialog, anyOf(texts()));
    else
        play::pressKey(dialog, Qt::Key_0 + below(10));
}

void GestureDriver::enterPattern()
{
    static const std::vector<const char*> ends {"names", "groups", "clear", "Return"};
    Json line {{"pattern", anyOf(texts()).toStdString()}};
    if (!oneIn(5))
        line["apply"] = anyOf(ends);
    playLine(line);
}

void GestureDriver::clickButton()
{
    QList<QAbstractButton*> buttons;
    for (QAbstractButton* button : DialogDriver::instance()->findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->isEnabled()
            && (!button->text().contains(QLatin1String("Close")) || oneIn(20)))
            buttons << button;
    }
    if (!buttons.isEmpty())
        play::clickCentre(buttons[below(buttons.size())]);
}

/// A window beside the dialog, which stays open for a while.
void GestureDriver::useWindow()
{
    QWidget* window = m_run.watcher().modelessWindow();
    if (!window)
        return clickButton();
    if (oneIn(4)) {
        window->close();
        return;
    }
    const QPointer<QWidget> guard = window;
    fillAnyField(*window);
    if (QAbstractButton* accept = guard ? play::acceptButton(*window) : nullptr)
        play::clickCentre(accept);
}

void GestureDriver::openOrClose()
{
    Json line {{"dialog", "open"}};
    if (DialogDriver::instance() && DialogDriver::instance()->isVisible())
        line["dialog"] = oneIn(3) ? "destroy" : "close";
    else
        line["initialisation"] = below(2);
    playLine(line);
}

void GestureDriver::wait()
{
    play::waitUntilIdle();
}

// In what has opened.

/// Uses what opened and sees to it that it closes.
void GestureDriver::whileOpen(WindowWatcher::Kind kind, QWidget& window)
{
    const QPointer<QWidget> guard = &window;
    static const char* const names[] = {"in a menu", "in an editor", "in a prompt"};
    ++m_depth;
    for (int changes = oneIn(3) ? between(1, 3) : 0; changes > 0 && guard && m_depth < 4;
         --changes) {
        changeDocument();
        if (oneIn(2))
            play::waitUntilIdle();
        if (oneIn(40) && guard)
            playLine({{"dialog", oneIn(2) ? "destroy" : "close"}});
    }
    Watchdog::begin(names[kind]);
    if (guard && guard->isVisible() && m_depth < 4) {
        if (auto* menu = qobject_cast<QMenu*>(guard.data()))
            useMenu(*menu);
        else if (kind == WindowWatcher::Popup)
            useEditor(*guard);
        else
            usePrompt(*guard);
    }
    --m_depth;
    for (int attempt = 0; attempt < 3 && guard && guard->isVisible(); ++attempt) {
        play::pressKey(guard, Qt::Key_Escape);
        play::waitUntilIdle();
    }
    if (guard && guard->isVisible())
        guard->close();
}

void GestureDriver::useMenu(QMenu& menu)
{
    const QPointer<QMenu> guard = &menu;
    const QList<QAction*> actions = menu.actions();
    switch (below(8)) {
    case 0: return play::pressKey(&menu, Qt::Key_Escape);
    case 1: return clickOutside(menu);
    case 2:
        for (int i = between(1, 4); i > 0 && guard; --i)
            play::pressKey(&menu, Qt::Key_Down);
        if (guard)
            play::pressKey(&menu, Qt::Key_Return);
        return;
    default: break;
    }
    const QList<QAbstractButton*> colors = menu.findChildren<QAbstractButton*>();
    if (!colors.isEmpty())
        return play::clickCentre(colors[below(colors.size())]);
    if (!actions.isEmpty())
        play::click(&menu, menu.actionGeometry(actions[below(actions.size())]).center());
}

void GestureDriver::useEditor(QWidget& editor)
{
    const QPointer<QWidget> guard = &editor;
    fillAnyField(editor);
    if (!guard || !guard->isVisible())
        return;
    static const std::vector<int> ends {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Escape};
    if (oneIn(4))
        clickOutside(editor);
    else
        play::pressKey(&editor, anyOf(ends));
}

void GestureDriver::usePrompt(QWidget& prompt)
{
    const QPointer<QWidget> guard = &prompt;
    if (oneIn(2))
        fillAnyField(prompt);
    if (!guard || !guard->isVisible())
        return;
    QAbstractButton* button = oneIn(3) ? play::refuseButton(prompt) : play::acceptButton(prompt);
    if (button && button->isEnabled())
        play::clickCentre(button);
    else
        play::pressKey(&prompt, oneIn(3) ? Qt::Key_Escape : Qt::Key_Return);
}

void GestureDriver::fillAnyField(QWidget& window)
{
    const QList<QWidget*> fields = play::promptFields(window);
    if (fields.isEmpty())
        return;
    const QPointer<QWidget> guard = &window;
    QWidget* field = fields[below(fields.size())];
    field->setFocus(Qt::TabFocusReason);
    auto* combo = qobject_cast<QComboBox*>(field);
    auto* list = qobject_cast<QAbstractItemView*>(field);
    if (list || (combo && (!combo->isEditable() || oneIn(2)))) {
        if (combo && oneIn(2))
            play::pressKey(&window, Qt::Key_Down, Qt::AltModifier);
        for (int i = below(5); i > 0 && guard; --i)
            play::pressKey(&window, Qt::Key_Down);
        return;
    }
    if (auto* button = qobject_cast<QAbstractButton*>(field))
        return play::clickCentre(button);
    if (!oneIn(4))
        play::typeOver(&window, anyOf(texts()));
}

/// On the dialog, where a person would click; the pop-up gets it from the window system.
void GestureDriver::clickOutside(QWidget&)
{
    if (QTableView* view = table())
        play::click(view->viewport(), anyPoint(view->viewport()->rect()));
}

} // namespace corvala::tests

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
        {"click", 30, &D::click},
        {"change under a pressed button", 2, &D::changeUnderPressedButton},
        {"drag", 10, &D::drag},
        {"right click", 16, &D::openMenu},
        {"double click", 12, &D::doubleClick},
        {"wheel", 4, &D::turnWheel},
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
    const Gesture& gesture = byWeight(gestures());
    Watchdog::begin(gesture.name);
    (this->*gesture.play)();
}

// On the document.

/// "$m" stands for a set of maps, "$b" for a truth value, "$n" for a digit.
Json GestureDriver::anyChange()
{
    struct Change
    {
        int weight;
        const char* line;
    };
    static const std::vector<Change> changes {
        {2, R"({"demo": "field2d", "zones": 300})"},
        {1, R"({"demo": "field3d"})"},
        {1, R"({"demo": "kinds"})"},
        {1, R"({"demo": "transient"})"},
        {1, R"({"demo": "xy", "maps": 40})"},
        {1, R"({"demo": "xy", "maps": 3})"},
        {1, R"({"demo": "polar"})"},
        {1, R"({"data": "none"})"},
        {16, R"({"plotType": $n})"}, // most are refused
        {8, R"({"plotType": 1})"},
        {8, R"({"plotType": 2})"},
        {2, R"({"frame": "new"})"},
        {1, R"({"frame": "delete"})"},
        {6, R"({"frame": $n})"},
        {8, R"({"layer": "ShowMesh", "on": $b})"},
        {4, R"({"layer": "ShowContour", "on": $b})"},
        {4, R"({"layer": "ShowVector", "on": $b})"},
        {4, R"({"layer": "ShowLines", "on": $b})"},
        {6, R"({"active": "FieldMaps", "maps": $m, "op": "add"})"},
        {6, R"({"active": "FieldMaps", "maps": $m, "op": "remove"})"},
        {6, R"({"active": "LineMaps", "maps": $m, "op": "assign"})"},
        {6, R"({"pick": [{"zone": $n}, {"lineMap": 2}]})"},
        {12, R"({"time": $n})"},
        {6, R"({"event": 1$n, "parameters": ["FieldMap"]})"},
        {6, R"({"event": $n, "parameters": ["PlotType"]})"},
        {6, R"({"event": 5$n, "parameters": ["Linking"]})"},
        {1, R"({"deleteMaps": "1"})"},
        {1, R"({"deleteMaps": "2,4"})"},
        {6, R"({"symbols": {"pieChart": $b, "extended": $b}})"},
        {3, R"({"mappingTabs": [0, 1, 2, 3, 4, 5]})"},
        {3, R"({"mappingTabs": [1, 3, 6]})"},
        {4, R"({"rename": "wing/upper", "zone": $n})"},
        {4, R"({"rename": "Größe", "variable": $n})"},
        {4, R"({"rename": "&ZN&", "lineMap": $n})"},
        {24, R"({"undo": 1})"},
        {12, R"({"redo": 1})"},
        {8, R"({"set": ["FieldMap", "Mesh", "Show"], "maps": $m, "value": $b})"},
        {8, R"({"set": ["FieldMap", "Mesh", "MeshType"], "maps": $m, "value": $n})"},
        {8, R"({"set": ["FieldMap", "Mesh", "Color"], "maps": $m, "value": $n})"},
        {8, R"({"set": ["FieldMap", "Contour", "ContourType"], "maps": $m, "value": $n})"},
        {8, R"({"set": ["FieldMap", "Group"], "maps": $m, "value": $n})"},
        {8, R"({"set": ["FieldMap", "Shade", "UseLightingEffect"], "maps": $m, "value": $b})"},
        {8, R"({"set": ["LineMap", "Assign", "XAxisVar"], "maps": $m, "value": $n})"},
        {8, R"({"set": ["LineMap", "Assign", "Zone"], "maps": $m, "value": $n})"},
    };
    static const std::vector<const char*> maps {"1", "2", "1-3", "2,4", "3-5", "all"};
    QByteArray line = byWeight(changes).line;
    line.replace("$m", QByteArray("\"") + anyOf(maps) + '"');
    line.replace("$b", oneIn(2) ? "true" : "false");
    line.replace("$n", QByteArray::number(below(10)));
    return Json::parse(line.toStdString());
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
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ControlModifier, oneIn(3));
    modifiers.setFlag(Qt::ShiftModifier, oneIn(4));
    return modifiers;
}

/// In the cells of the table, a check box now and then, in its header, the border of a column as a
/// rule, or on a scroll bar.
std::optional<GestureDriver::Place> GestureDriver::anyPlace()
{
    QTableView* view = table();
    if (!view)
        return std::nullopt;
    Place place {view->viewport(), {}};
    if (const QModelIndex cell = oneIn(3) ? anyCell(Qt::CheckStateRole) : QModelIndex();
        cell.isValid()) {
        place.point = view->visualRect(cell).center();
        return place.widget->rect().contains(place.point) ? std::optional(place) : std::nullopt;
    }
    if (oneIn(5))
        place.widget = view->horizontalHeader()->viewport();
    else if (QScrollBar* bar = oneIn(2) ? view->horizontalScrollBar() : view->verticalScrollBar();
             oneIn(8) && bar->isVisible())
        place.widget = bar;
    place.point = anyPoint(place.widget->rect());
    const QHeaderView& header = *view->horizontalHeader();
    if (place.widget == header.viewport() && !oneIn(3)) {
        const int column = header.logicalIndexAt(place.point);
        const int border = header.sectionViewportPosition(column) + header.sectionSize(column) - 1;
        if (column >= 0 && border < place.widget->width())
            place.point.setX(border);
    }
    return place;
}

void GestureDriver::click()
{
    if (const auto place = anyPlace())
        play::click(place->widget, place->point, anyModifiers());
}

/// An editor stays open for the gestures that follow.
void GestureDriver::doubleClick()
{
    if (const auto place = anyPlace())
        play::doubleClick(place->widget, place->point);
}

void GestureDriver::drag()
{
    if (const auto place = anyPlace())
        play::drag(place->widget, place->point, anyPoint(place->widget->rect()));
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

void GestureDriver::turnWheel()
{
    QTableView* view = table();
    if (!view)
        return;
    const QPoint steps = oneIn(2) ? QPoint(0, between(-3, 3)) : QPoint(between(-3, 3), 0);
    play::turnWheel(view->viewport(), view->viewport()->rect().center(), steps,
                    oneIn(4) ? Qt::AltModifier : Qt::NoModifier);
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

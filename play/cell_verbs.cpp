// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/document.h"
#include "play/cell_editor.h"
#include "play/idle.h"
#include "play/input.h"
#include "play/menu_entries.h"
#include "play/verbs.h"
#include "sdk/dialogs_common/qt_dialog_abstract.h"

#include <QAction>
#include <QItemSelectionModel>
#include <QMenu>
#include <QPointer>
#include <QTableView>

#include <memory>

namespace corvala::play {

using Json = nlohmann::json;

static QModelIndex cellOf(ScriptRun& run, const Arguments& arguments, const char* mapKey)
{
    const int column = run.dialog().column(arguments.at("column"));
    return run.dialog().cell(arguments.integer(mapKey), column);
}

/// Sets a handler for the time of one gesture.
class HandlerScope
{
public:
    HandlerScope(ScriptRun& run, WindowWatcher::Kind kind, WindowWatcher::Handler handler)
        : m_run(run)
        , m_kind(kind)
        , m_before(run.watcher().setHandler(kind, std::move(handler)))
    {
    }
    ~HandlerScope() { m_run.watcher().setHandler(m_kind, std::move(m_before)); }
    HandlerScope(const HandlerScope&) = delete;
    HandlerScope& operator=(const HandlerScope&) = delete;

private:
    ScriptRun& m_run;
    WindowWatcher::Kind m_kind;
    WindowWatcher::Handler m_before;
};

/// A right click on a cell. What it opens gets the release of the button, then goes to `answer`.
static void rightClick(ScriptRun& run, const QModelIndex& cell, WindowWatcher::Kind kind,
                       const WindowWatcher::Handler& answer)
{
    const QPoint position = run.dialog().show(cell).center();
    const QPointer<QWidget> viewport = run.dialog().table().viewport();
    const QPoint place = viewport->mapToGlobal(position);
    bool opened = false;
    const HandlerScope scope(run, kind, [&](QWidget& window) {
        opened = true;
        releaseMouse(&window, window.mapFromGlobal(place), Qt::RightButton);
        answer(window);
    });
    pressMouse(viewport, position, Qt::RightButton);
    if (!opened)
        releaseMouse(viewport, position, Qt::RightButton);
    waitUntilIdle();
    run.watcher().check();
}

static void check(ScriptRun& run, const Arguments& arguments)
{
    const QModelIndex cell = cellOf(run, arguments, "check");
    if (!(cell.flags() & Qt::ItemIsUserCheckable))
        throw ScriptError(Text::tr("the cell has no check box"));
    const QPoint box = run.dialog().show(cell).center();
    click(run.dialog().table().viewport(), box);
}

static void menu(ScriptRun& run, const Arguments& arguments)
{
    const QModelIndex cell = cellOf(run, arguments, "menu");
    const bool choosesColor = arguments.has("color");
    if (choosesColor && arguments.has("choose"))
        throw ScriptError(Text::tr("\"choose\" and \"color\" exclude each other"));
    const auto color = static_cast<int>(arguments.integer("color", 0));
    const bool needsChoice = !choosesColor && !ScriptRun::expectsDrop(arguments);
    const Json choice = needsChoice ? arguments.at("choose") : Json();
    bool opened = false;
    rightClick(run, cell, WindowWatcher::Menu, [&](QWidget& widget) {
        auto& shownMenu = static_cast<QMenu&>(widget);
        opened = true;
        run.lastMenu = describeActions(shownMenu.actions(), &shownMenu);
        if (!run.playDuring(arguments, shownMenu))
            return;
        if (choosesColor)
            chooseColorInMenu(shownMenu, color);
        else
            chooseInMenu(shownMenu, choice);
    });
    if (opened)
        return;
    run.lastMenu = Json::array();
    if (choosesColor || !choice.is_null() || ScriptRun::expectsDrop(arguments))
        throw ScriptError(Text::tr("the cell has no menu"));
}

static void popup(ScriptRun& run, const Arguments& arguments)
{
    const QModelIndex cell = cellOf(run, arguments, "popup");
    const CellEdit edit = cellEditOf(arguments);
    bool opened = false;
    const auto fill = [&](QWidget& editor) {
        opened = true;
        if (!edit.opens)
            throw ScriptError(Text::tr("an editor opened"));
        if (run.playDuring(arguments, editor))
            finishEdit(editor, edit, run.dialog().dialog());
    };
    const auto dismiss = [&](QWidget& shownMenu) { pressKey(&shownMenu, Qt::Key_Escape); };
    const HandlerScope menus(run, WindowWatcher::Menu, dismiss);
    rightClick(run, cell, WindowWatcher::Popup, fill);
    if (!opened && edit.opens)
        throw ScriptError(Text::tr("no editor opened"));
}

static void doubleClickCell(ScriptRun& run, const Arguments& arguments)
{
    const QModelIndex cell = cellOf(run, arguments, "doubleClick");
    const CellEdit edit = cellEditOf(arguments);
    const QPoint position = run.dialog().show(cell).center();
    QTableView& view = run.dialog().table();
    doubleClick(view.viewport(), position);
    waitUntilIdle();
    run.watcher().check();
    QWidget* editor = view.indexWidget(cell);
    if (editor && !edit.opens) {
        pressKey(editor, Qt::Key_Escape);
        throw ScriptError(Text::tr("an editor opened"));
    }
    if (!editor && edit.opens)
        throw ScriptError(Text::tr("no editor opened"));
    if (editor && run.playDuring(arguments, *editor))
        finishEdit(*editor, edit, run.dialog().dialog());
}

/// What one call of the host would be for a gesture of the user.
class Gesture
{
public:
    explicit Gesture(host::UndoHistory& history)
        : m_history(history)
    {
        m_history.beginGesture();
    }
    ~Gesture() { m_history.endGesture(); }
    Gesture(const Gesture&) = delete;
    Gesture& operator=(const Gesture&) = delete;

private:
    host::UndoHistory& m_history;
};

static QVariant variantOf(const Json& value)
{
    if (value.is_boolean())
        return value.get<bool>();
    if (value.is_number_integer())
        return value.get<int>();
    if (value.is_number())
        return value.get<double>();
    if (value.is_string())
        return QString::fromStdString(value.get<std::string>());
    throw ScriptError(Text::tr("%1 is no value for a cell").arg(shown(value)));
}

static void commit(ScriptRun& run, const Arguments& arguments)
{
    const int column = run.dialog().column(arguments.at("column"));
    const host::NumberSet maps = arguments.numbers("commit", run.dialog().model().rowCount());
    const QModelIndexList cells = run.dialog().cells(maps, column);
    const auto role = static_cast<int>(arguments.integer("role", Qt::EditRole));
    const Gesture gesture(run.document().undo());
    const bool answer = run.dialog().setData(cells, variantOf(arguments.at("value")), role);
    if (arguments.has("returns") && arguments.boolean("returns") != answer)
        throw ScriptError(Text::tr("the table answered %1").arg(shown(answer)));
}

/// Whole rows, consecutive ones as one range.
static QItemSelection rowsOf(const DialogDriver& dialog, const host::NumberSet& maps)
{
    QItemSelection rows;
    const int lastColumn = dialog.model().columnCount() - 1;
    for (auto map = maps.begin(); map != maps.end();) {
        const std::uint32_t first = *map;
        std::uint32_t last = first;
        while (++map != maps.end() && *map == last + 1)
            last = *map;
        rows.append({dialog.cell(first, 0), dialog.cell(last, lastColumn)});
    }
    return rows;
}

static void action(ScriptRun& run, const Arguments& arguments)
{
    const int column = run.dialog().column(arguments.at("column"));
    const host::NumberSet maps = arguments.numbers("action", run.dialog().model().rowCount());
    QItemSelectionModel selection; // no child of the model, which may go while a prompt is open
    selection.setModel(&run.dialog().model());
    selection.select(rowsOf(run.dialog(), maps), QItemSelectionModel::Select);
    const QList<QAction*> actions = run.dialog().actions(selection, column);
    QObject owner;
    for (QAction* entry : actions)
        entry->setParent(&owner);
    run.lastMenu = describeActions(actions, &run.dialog().table());
    const Json& choice = arguments.at("choose");
    if (choice.is_null())
        return;
    const Gesture gesture(run.document().undo());
    chosenAction(actions, choice)->trigger();
}

std::vector<Verb> cellVerbs()
{
    return {{"check", {"column"}, check},
            {"menu", {"column", "choose", "color", "during", "dropped"}, menu},
            {"popup",
             {"column", "type", "choose", "end", "opens", "stays", "during", "dropped"},
             popup},
            {"doubleClick",
             {"column", "type", "choose", "end", "opens", "stays", "during", "dropped"},
             doubleClickCell},
            {"commit", {"column", "value", "role", "returns"}, commit},
            {"action", {"column", "choose"}, action}};
}

} // namespace corvala::play

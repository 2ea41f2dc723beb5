// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/play/cell_editor.h"
#include "app/play/idle.h"
#include "app/play/input.h"
#include "app/play/menu_entries.h"
#include "app/play/stage.h"
#include "host/document/document.h"
#include "sdk/dialogs_common/qt_dialog_abstract.h"

#include <QAction>
#include <QItemSelectionModel>
#include <QMenu>
#include <QTableView>

#include <memory>

namespace corvala::app::play {

using Json = nlohmann::json;

static QModelIndex cellOf(Stage& stage, const Arguments& arguments, const char* mapKey)
{
    const int column = stage.dialog().column(arguments.at("column"));
    return stage.dialog().cell(arguments.integer(mapKey), column);
}

/// Sets a handler for the time of one gesture.
class HandlerScope
{
public:
    HandlerScope(Stage& stage, WindowWatcher::Kind kind, WindowWatcher::Handler handler)
        : m_stage(stage)
        , m_kind(kind)
    {
        m_stage.watcher().setHandler(m_kind, std::move(handler));
    }
    ~HandlerScope() { m_stage.watcher().setHandler(m_kind, {}); }
    HandlerScope(const HandlerScope&) = delete;
    HandlerScope& operator=(const HandlerScope&) = delete;

private:
    Stage& m_stage;
    WindowWatcher::Kind m_kind;
};

/// A right click on a cell. What it opens gets the release of the button, then goes to `answer`.
static void rightClick(Stage& stage, const QModelIndex& cell, WindowWatcher::Kind kind,
                       const WindowWatcher::Handler& answer)
{
    const QPoint position = stage.dialog().show(cell).center();
    QWidget* viewport = stage.dialog().table().viewport();
    const QPoint place = viewport->mapToGlobal(position);
    bool opened = false;
    const HandlerScope scope(stage, kind, [&](QWidget& window) {
        opened = true;
        releaseRight(&window, window.mapFromGlobal(place));
        answer(window);
    });
    pressRight(viewport, position);
    if (!opened)
        releaseRight(viewport, position);
    waitUntilIdle();
    stage.watcher().check();
}

static void check(Stage& stage, const Arguments& arguments)
{
    const QModelIndex cell = cellOf(stage, arguments, "check");
    if (!(cell.flags() & Qt::ItemIsUserCheckable))
        throw ScriptError(Text::tr("the cell has no check box"));
    const QPoint box = stage.dialog().show(cell).center();
    click(stage.dialog().table().viewport(), box);
}

static void menu(Stage& stage, const Arguments& arguments)
{
    const QModelIndex cell = cellOf(stage, arguments, "menu");
    const bool choosesColor = arguments.has("color");
    if (choosesColor && arguments.has("choose"))
        throw ScriptError(Text::tr("\"choose\" and \"color\" exclude each other"));
    const auto color = static_cast<int>(arguments.integer("color", 0));
    const Json choice = choosesColor ? Json() : arguments.at("choose");
    bool opened = false;
    rightClick(stage, cell, WindowWatcher::Menu, [&](QWidget& widget) {
        auto& shownMenu = static_cast<QMenu&>(widget);
        opened = true;
        stage.lastMenu = describeActions(shownMenu.actions(), &shownMenu);
        if (choosesColor)
            chooseColorInMenu(shownMenu, color);
        else
            chooseInMenu(shownMenu, choice);
    });
    if (opened)
        return;
    stage.lastMenu = Json::array();
    if (choosesColor || !choice.is_null())
        throw ScriptError(Text::tr("the cell has no menu"));
}

static void popup(Stage& stage, const Arguments& arguments)
{
    const QModelIndex cell = cellOf(stage, arguments, "popup");
    const CellEdit edit = cellEditOf(arguments);
    bool opened = false;
    const auto fill = [&](QWidget& editor) {
        opened = true;
        if (edit.opens)
            finishEdit(editor, edit, stage.dialog().dialog());
        else
            throw ScriptError(Text::tr("an editor opened"));
    };
    const auto dismiss = [&](QWidget& shownMenu) { pressKey(&shownMenu, Qt::Key_Escape); };
    const HandlerScope menus(stage, WindowWatcher::Menu, dismiss);
    rightClick(stage, cell, WindowWatcher::Popup, fill);
    if (!opened && edit.opens)
        throw ScriptError(Text::tr("no editor opened"));
}

static void doubleClickCell(Stage& stage, const Arguments& arguments)
{
    const QModelIndex cell = cellOf(stage, arguments, "doubleClick");
    const CellEdit edit = cellEditOf(arguments);
    const QPoint position = stage.dialog().show(cell).center();
    QTableView& view = stage.dialog().table();
    doubleClick(view.viewport(), position);
    waitUntilIdle();
    stage.watcher().check();
    QWidget* editor = view.indexWidget(cell);
    if (editor && !edit.opens) {
        pressKey(editor, Qt::Key_Escape);
        throw ScriptError(Text::tr("an editor opened"));
    }
    if (!editor && edit.opens)
        throw ScriptError(Text::tr("no editor opened"));
    if (editor)
        finishEdit(*editor, edit, stage.dialog().dialog());
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

static void commit(Stage& stage, const Arguments& arguments)
{
    const int column = stage.dialog().column(arguments.at("column"));
    const host::MapSet maps = arguments.maps("commit", stage.dialog().model().rowCount());
    const QModelIndexList cells = stage.dialog().cells(maps, column);
    const auto role = static_cast<int>(arguments.integer("role", Qt::EditRole));
    const Gesture gesture(stage.document().undo());
    const bool answer = stage.dialog().setData(cells, variantOf(arguments.at("value")), role);
    if (arguments.has("returns") && arguments.boolean("returns") != answer)
        throw ScriptError(Text::tr("the table answered %1").arg(shown(answer)));
}

/// Whole rows, consecutive ones as one range.
static QItemSelection rowsOf(const DialogDriver& dialog, const host::MapSet& maps)
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

static void action(Stage& stage, const Arguments& arguments)
{
    const int column = stage.dialog().column(arguments.at("column"));
    const host::MapSet maps = arguments.maps("action", stage.dialog().model().rowCount());
    QItemSelectionModel selection(&stage.dialog().model());
    selection.select(rowsOf(stage.dialog(), maps), QItemSelectionModel::Select);
    const QList<QAction*> actions = stage.dialog().actions(selection, column);
    QObject owner;
    for (QAction* entry : actions)
        entry->setParent(&owner);
    stage.lastMenu = describeActions(actions, &stage.dialog().table());
    const Json& choice = arguments.at("choose");
    if (choice.is_null())
        return;
    const Gesture gesture(stage.document().undo());
    chosenAction(actions, choice)->trigger();
}

std::vector<Verb> cellVerbs()
{
    return {{"check", {"column"}, check},
            {"menu", {"column", "choose", "color"}, menu},
            {"popup", {"column", "type", "choose", "end", "opens"}, popup},
            {"doubleClick", {"column", "type", "choose", "end", "opens"}, doubleClickCell},
            {"commit", {"column", "value", "role", "returns"}, commit},
            {"action", {"column", "choose"}, action}};
}

} // namespace corvala::app::play

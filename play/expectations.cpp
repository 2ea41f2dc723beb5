// SPDX-License-Identifier: BSD-3-Clause
#include "play/expectations.h"

#include "host/document/document.h"
#include "play/style_report.h"
#include "sdk/dialogs_common/qt_dialog_abstract.h"

#include <QAction>
#include <QBrush>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QTabWidget>
#include <QTableView>

#include <algorithm>
#include <cmath>

namespace corvala::play {

using Json = nlohmann::json;

static bool isNothing(const Json& value)
{
    return value.is_null() || value == "";
}

/// A number equals the text that shows it; a missing value equals null and the empty text.
static bool isEqual(const Json& seen, const Json& wanted)
{
    if (isNothing(seen) && isNothing(wanted))
        return true;
    if (seen.is_number() && wanted.is_number()) {
        const double one = seen.get<double>();
        const double two = wanted.get<double>();
        return std::abs(one - two) <= 1e-9 * std::max(std::abs(one), std::abs(two));
    }
    if (seen.is_number_integer() && wanted.is_string())
        return seen.dump() == wanted.get<std::string>();
    if (seen.is_array() && wanted.is_array())
        return std::equal(seen.begin(), seen.end(), wanted.begin(), wanted.end(), isEqual);
    return seen == wanted;
}

void compare(const QString& what, const Json& seen, const Json& wanted)
{
    if (!isEqual(seen, wanted))
        throw ScriptError(Text::tr("%1 is %2, not %3").arg(what, shown(seen), shown(wanted)));
}

static Json upperCase(const Json& color)
{
    return color.is_string()
        ? Json(QString::fromStdString(color.get<std::string>()).toUpper().toStdString())
        : color;
}

void expectCell(ScriptRun& run, const Arguments& wanted)
{
    wanted.allowOnly({"map", "column", "display", "edit", "check", "role256", "relevant",
                      "editable", "checkable", "toolTip", "color"});
    const int column = run.dialog().column(wanted.at("column"));
    const QModelIndex cell = run.dialog().cell(wanted.integer("map"), column);
    const Json seen = describeCell(run.dialog(), cell);
    for (const auto& [key, value] : wanted.object().items()) {
        if (key == "map" || key == "column")
            continue;
        const QString what = Text::tr("%1 of map %2 in %3")
                                 .arg(QString::fromStdString(key))
                                 .arg(wanted.integer("map"))
                                 .arg(shown(wanted.at("column")));
        compare(what, seen.value(key, Json()), key == "color" ? upperCase(value) : value);
    }
}

void expectColumn(ScriptRun& run, const Arguments& wanted)
{
    wanted.allowOnly({"column", "width", "visual", "header", "brush"});
    const int column = run.dialog().column(wanted.at("column"));
    const QAbstractItemModel& model = run.dialog().model();
    const QTableView& view = run.dialog().table();
    const auto brush = model.headerData(column, Qt::Horizontal, Qt::BackgroundRole).value<QBrush>();
    const Json seen {{"width", view.columnWidth(column)},
                     {"visual", view.horizontalHeader()->visualIndex(column)},
                     {"header", model.headerData(column, Qt::Horizontal).toString().toStdString()},
                     {"brush", colorText(brush.color()).toStdString()}};
    for (const auto& [key, value] : wanted.object().items()) {
        if (key != "column")
            compare(Text::tr("%1 of column %2")
                        .arg(QString::fromStdString(key), shown(wanted.at("column"))),
                    seen[key], key == "brush" ? upperCase(value) : value);
    }
}

static Json listOf(const QStringList& texts)
{
    Json list = Json::array();
    for (const QString& text : texts)
        list.push_back(text.toStdString());
    return list;
}

static Json sorted(Json list)
{
    if (list.is_array())
        std::sort(list.begin(), list.end());
    return list;
}

static bool holdsAll(const Json& list, const Json& wanted)
{
    return wanted.is_array() && std::all_of(wanted.begin(), wanted.end(), [&](const Json& one) {
               return std::find(list.begin(), list.end(), one) != list.end();
           });
}

static bool isMenuEntry(const Json& seen, const Json& wanted)
{
    if (wanted.is_string())
        return isEqual(seen.value("text", Json()), wanted);
    return std::all_of(wanted.items().begin(), wanted.items().end(), [&seen](const auto& item) {
        return seen.contains(item.key()) && isEqual(seen[item.key()], item.value());
    });
}

static void expectMenu(ScriptRun& run, const Json& wanted)
{
    if (run.lastMenu.is_null())
        throw ScriptError(Text::tr("no menu was opened yet"));
    const auto isText = [](const Json& element) { return element.is_string(); };
    Json seen = run.lastMenu;
    if (std::all_of(wanted.begin(), wanted.end(), isText)) {
        seen = Json::array();
        std::copy_if(run.lastMenu.begin(), run.lastMenu.end(), std::back_inserter(seen),
                     [](const Json& entry) { return entry.contains("text"); });
    }
    if (!wanted.is_array()
        || !std::equal(seen.begin(), seen.end(), wanted.begin(), wanted.end(), isMenuEntry))
        throw ScriptError(
            Text::tr("the menu is %1, not %2").arg(shown(run.lastMenu), shown(wanted)));
}

static void expectPrompt(ScriptRun& run, const Json& wanted)
{
    const Json& seen = run.prompts().lastPrompt();
    if (seen.is_null())
        throw ScriptError(Text::tr("no prompt was opened yet"));
    Arguments(wanted, {})
        .allowOnly({"title", "label", "value", "min", "max", "decimals", "items", "labels",
                    "buttons", "default"});
    for (const auto& [key, value] : wanted.items()) {
        const QString what = Text::tr("%1 of the prompt").arg(QString::fromStdString(key));
        const Json present = seen.value(key, Json());
        if (key == "labels" && holdsAll(present, value))
            continue;
        if (key == "buttons")
            compare(what, sorted(present), sorted(value));
        else
            compare(what, present, value);
    }
}

static void expectRefreshes(ScriptRun& run, const Json& wanted)
{
    const int total = run.dialog().refreshCount();
    const int since = total - run.refreshesSeen;
    run.refreshesSeen = total;
    compare(Text::tr("the number of refreshes"), since, wanted);
}

/// What stands under a key of the state; its comparison is plain equality.
static Json stateOf(ScriptRun& run, const std::string& key)
{
    const DialogDriver& dialog = run.dialog();
    if (key == "visible")
        return DialogDriver::instance() && DialogDriver::instance()->isVisible();
    if (key == "title")
        return dialog.dialog().windowTitle().toStdString();
    if (key == "page")
        return dialog.page().toStdString();
    if (key == "tab")
        return dialog.tabTexts().value(dialog.tabs().currentIndex()).toStdString();
    if (key == "tabs")
        return listOf(dialog.tabTexts());
    if (key == "ranges")
        return dialog.table().selectionModel()->selection().size();
    if (key == "top")
        return dialog.firstVisibleMap();
    if (key == "rows")
        return dialog.model().rowCount();
    if (key == "counts")
        return dialog.countsText().toStdString();
    if (key == "help")
        return dialog.helpReference().toStdString();
    if (key == "window") {
        const QWidget* window = run.watcher().modelessWindow();
        return window ? Json(window->windowTitle().toStdString()) : Json();
    }
    if (key == "undoText")
        return run.document().undo().undoText().toStdString();
    if (key == "undoSteps")
        return run.document().undo().stepCount();
    throw ScriptError(Text::tr("unknown key \"%1\"").arg(QString::fromStdString(key)));
}

/// Two texts of one set, such as "2,3" and "2-3", are equal.
static void expectSelected(ScriptRun& run, const Arguments& wanted)
{
    const int rows = run.dialog().model().rowCount();
    const QString text = wanted.text("selected");
    const QString seen = selectedMaps(run.dialog());
    if (!(host::numbersFromText(seen, rows) == host::numbersFromText(text, rows)))
        throw ScriptError(Text::tr("selected is \"%1\", not \"%2\"").arg(seen, text));
}

void expectState(ScriptRun& run, const Arguments& wanted)
{
    for (const auto& [key, value] : wanted.object().items()) {
        if (key == "menu")
            expectMenu(run, value);
        else if (key == "prompt")
            expectPrompt(run, value);
        else if (key == "refreshes")
            expectRefreshes(run, value);
        else if (key == "selected")
            expectSelected(run, wanted);
        else if (key == "buttons")
            compare(Text::tr("buttons"), sorted(listOf(run.dialog().buttonBoxTexts())),
                    sorted(value));
        else
            compare(QString::fromStdString(key), stateOf(run, key), value);
    }
}

} // namespace corvala::play

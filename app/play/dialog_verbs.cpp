// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_window.h"
#include "app/play/idle.h"
#include "app/play/input.h"
#include "app/play/stage.h"
#include "sdk/dialogs_common/qt_dialog_abstract.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>

namespace corvala::app::play {

using Json = nlohmann::json;

static void dialog(Stage& stage, const Arguments& arguments)
{
    const QString what = arguments.text("dialog");
    if (what == QLatin1String("open")) {
        const auto initialisation = static_cast<corvala::dialogs::common::DialogInitialization_e>(
            arguments.integer("initialisation", 0));
        stage.window().openStyleDialog(initialisation);
    } else if (what == QLatin1String("close")) {
        stage.dialog().dialog().close();
    } else if (what == QLatin1String("destroy")) {
        delete DialogDriver::instance();
        stage.refreshesSeen = 0;
    } else {
        throw ScriptError(Text::tr("\"dialog\" must be \"open\", \"close\" or \"destroy\""));
    }
}

static void tab(Stage& stage, const Arguments& arguments)
{
    const QString text = arguments.text("tab");
    const int index = stage.dialog().tabTexts().indexOf(text);
    if (index < 0)
        throw ScriptError(Text::tr("the dialog has no tab \"%1\"").arg(text));
    QTabBar* bar = stage.dialog().tabs().tabBar();
    click(bar, bar->tabRect(index).center());
    if (stage.dialog().tabs().currentIndex() != index)
        throw ScriptError(Text::tr("the tab \"%1\" cannot be clicked").arg(text));
}

static void clickRow(Stage& stage, std::int64_t map, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex cell = stage.dialog().cell(map, 0);
    const QRect area = stage.dialog().show(cell);
    click(stage.dialog().table().viewport(), area.center(), modifiers);
}

/// First and last map of one element of a set's text, such as "3" or "1-3".
struct MapRange
{
    std::int64_t first;
    std::int64_t last;
};

static std::vector<MapRange> rangesInOrder(const QString& text, std::int64_t count)
{
    if (text == QLatin1String("all"))
        return count > 0 ? std::vector<MapRange> {{1, count}} : std::vector<MapRange> {};
    std::vector<MapRange> ranges;
    for (const QString& part : text.split(QLatin1Char(','))) {
        const host::MapSet maps = mapsFromText(part.trimmed(), count);
        if (maps.isEmpty())
            throw ScriptError(Text::tr("\"%1\" is no set of maps").arg(text));
        ranges.push_back({maps.minimum(), maps.maximum()});
    }
    return ranges;
}

/// A click takes a row away from the selection when Ctrl is held.
static void clearSelection(Stage& stage)
{
    const QTableView& view = stage.dialog().table();
    if (!view.selectionModel()->hasSelection())
        return;
    clickRow(stage, 1, Qt::NoModifier);
    clickRow(stage, 1, Qt::ControlModifier);
}

static void select(Stage& stage, const Arguments& arguments)
{
    const QString text = arguments.text("select");
    if (text == QLatin1String("none"))
        return clearSelection(stage);
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    host::MapSet clicked;
    for (const MapRange& range : rangesInOrder(text, stage.dialog().model().rowCount())) {
        const auto first = static_cast<std::uint64_t>(range.first);
        const auto end = static_cast<std::uint64_t>(range.last) + 1;
        if (clicked.containsRange(first, end))
            continue; // a click with Ctrl would take it away again
        clicked.addRange(first, end);
        clickRow(stage, range.first, modifiers);
        modifiers = Qt::ControlModifier;
        if (range.last != range.first)
            clickRow(stage, range.last, Qt::ShiftModifier);
    }
}

static void press(Stage& stage, const QString& text)
{
    QAbstractButton& button = stage.dialog().button(text);
    if (!button.isEnabled())
        throw ScriptError(Text::tr("the button \"%1\" is disabled").arg(text));
    clickCentre(&button);
}

static void button(Stage& stage, const Arguments& arguments)
{
    press(stage, arguments.text("button"));
}

static QAbstractButton& patternButton(Stage& stage, const char* name)
{
    const QString full = QStringLiteral("mapSelectionByPattern_%1_button").arg(QLatin1String(name));
    auto* found = stage.dialog().dialog().findChild<QAbstractButton*>(full);
    if (!found || !found->isVisible() || !found->isEnabled())
        throw ScriptError(
            Text::tr("the %1 button of the pattern is not available").arg(QLatin1String(name)));
    return *found;
}

static void pattern(Stage& stage, const Arguments& arguments)
{
    QDialog& dialog = stage.dialog().dialog();
    auto* line =
        dialog.findChild<QLineEdit*>(QStringLiteral("mapSelectionByPattern_pattern_lineEdit"));
    if (!line)
        throw ScriptError(Text::tr("the dialog has no pattern field"));
    clickCentre(line);
    typeOver(&dialog, arguments.text("pattern"));
    waitUntilIdle();
    const Json apply = arguments.has("apply") ? arguments.at("apply") : Json();
    if (apply == "Return")
        pressKey(&dialog, Qt::Key_Return);
    else if (apply == "names")
        clickCentre(&patternButton(stage, "apply"));
    else if (apply == "groups")
        clickCentre(&patternButton(stage, "groups"));
    else if (apply == "clear")
        clickCentre(&patternButton(stage, "clear"));
    else if (!apply.is_null())
        throw ScriptError(
            Text::tr("\"apply\" must be \"names\", \"groups\", \"clear\", \"Return\" or null"));
}

static void key(Stage& stage, const Arguments& arguments)
{
    const QKeySequence keys(arguments.text("key"), QKeySequence::PortableText);
    if (keys.isEmpty() || keys[0] == Qt::Key_unknown)
        throw ScriptError(Text::tr("there is no key \"%1\"").arg(arguments.text("key")));
    QDialog& dialog = stage.dialog().dialog();
    if (!dialog.focusWidget() || dialog.focusWidget() == &dialog)
        stage.dialog().table().setFocus();
    pressKeys(&dialog, keys);
}

static int columnNumber(Stage& stage, const Arguments& arguments, const char* key)
{
    return stage.dialog().column(arguments.at(key));
}

/// Drags the right border of the column's header.
static void resizeColumn(Stage& stage, const Arguments& arguments)
{
    const int column = columnNumber(stage, arguments, "resizeColumn");
    const auto width = static_cast<int>(arguments.integer("width"));
    QTableView& view = stage.dialog().table();
    if (view.model()->rowCount() > 0)
        view.scrollTo(view.model()->index(view.rowAt(0), column));
    QHeaderView* header = view.horizontalHeader();
    const QPoint border(header->sectionViewportPosition(column) + header->sectionSize(column) - 1,
                        header->height() / 2);
    drag(header->viewport(), border, border + QPoint(width - header->sectionSize(column), 0));
    if (header->sectionSize(column) != width)
        throw ScriptError(Text::tr("the column has the width %1 after dragging, not %2")
                              .arg(header->sectionSize(column))
                              .arg(width));
}

std::vector<Verb> dialogVerbs()
{
    return {
        {"dialog", {"initialisation"}, dialog},   {"tab", {}, tab},       {"select", {}, select},
        {"pattern", {"apply"}, pattern},          {"button", {}, button}, {"key", {}, key},
        {"resizeColumn", {"width"}, resizeColumn}};
}

} // namespace corvala::app::play

// SPDX-License-Identifier: BSD-3-Clause
#include "play/idle.h"
#include "play/input.h"
#include "play/verbs.h"
#include "zonestyle/dialog/zone_style_dialog.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>

#include <algorithm>

namespace corvala::play {

using Json = nlohmann::json;
using corvala::sdk::ui::dialogs::ZoneStyleDialog;

static void dialog(ScriptRun& run, const Arguments& arguments)
{
    const QString what = arguments.text("dialog");
    if (what == QLatin1String("open")) {
        const auto initialisation = static_cast<corvala::dialogs::common::DialogInitialization_e>(
            arguments.integer("initialisation", 0));
        ZoneStyleDialog::getInstance(run.stage().window(), initialisation).launch();
    } else if (what == QLatin1String("close")) {
        run.dialog().dialog().close();
    } else if (what == QLatin1String("destroy")) {
        delete DialogDriver::instance();
        run.refreshesSeen = 0;
    } else {
        throw ScriptError(Text::tr("\"dialog\" must be \"open\", \"close\" or \"destroy\""));
    }
}

/// The part of a tab bar that its scroll buttons, if it shows any, do not cover.
static QRect roomForTabs(const QTabBar& bar, const QList<QToolButton*>& arrows)
{
    QRect room = bar.rect();
    for (const QToolButton* arrow : arrows)
        room.setRight(qMin(room.right(), arrow->geometry().left() - 1));
    return room;
}

/// By the scroll buttons of a bar that is too narrow for its tabs.
static void scrollTo(QTabBar& bar, int index)
{
    QList<QToolButton*> arrows = bar.findChildren<QToolButton*>();
    arrows.erase(std::remove_if(arrows.begin(), arrows.end(),
                                [](const QToolButton* arrow) { return !arrow->isVisible(); }),
                 arrows.end());
    const QRect room = roomForTabs(bar, arrows);
    for (QToolButton* arrow : arrows) {
        const bool isForward = arrow->arrowType() == Qt::RightArrow;
        const auto isBeyond = [&] {
            const int center = bar.tabRect(index).center().x();
            return isForward ? center > room.right() : center < room.left();
        };
        for (int clicks = 0; clicks < bar.count() && isBeyond(); ++clicks)
            clickCentre(arrow);
    }
}

static void tab(ScriptRun& run, const Arguments& arguments)
{
    const QString text = arguments.text("tab");
    const int index = run.dialog().tabTexts().indexOf(text);
    if (index < 0)
        throw ScriptError(Text::tr("the dialog has no tab \"%1\"").arg(text));
    QTabBar* bar = run.dialog().tabs().tabBar();
    scrollTo(*bar, index);
    click(bar, bar->tabRect(index).center());
    if (run.dialog().tabs().currentIndex() != index)
        throw ScriptError(Text::tr("the tab \"%1\" cannot be clicked").arg(text));
}

static void clickRow(ScriptRun& run, std::int64_t map, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex cell = run.dialog().cell(map, 0);
    const QRect area = run.dialog().show(cell);
    click(run.dialog().table().viewport(), area.center(), modifiers);
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
        const host::NumberSet maps = host::numbersFromText(part.trimmed(), count);
        if (maps.isEmpty())
            throw ScriptError(Text::tr("\"%1\" is no set of maps").arg(text));
        ranges.push_back({maps.minimum(), maps.maximum()});
    }
    return ranges;
}

/// A click takes a row away from the selection when Ctrl is held.
static void clearSelection(ScriptRun& run)
{
    const QTableView& view = run.dialog().table();
    if (!view.selectionModel()->hasSelection())
        return;
    clickRow(run, 1, Qt::NoModifier);
    clickRow(run, 1, Qt::ControlModifier);
}

static void select(ScriptRun& run, const Arguments& arguments)
{
    const QString text = arguments.text("select");
    if (text == QLatin1String("none"))
        return clearSelection(run);
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    host::NumberSet clicked;
    for (const MapRange& range : rangesInOrder(text, run.dialog().model().rowCount())) {
        const auto first = static_cast<std::uint64_t>(range.first);
        const auto end = static_cast<std::uint64_t>(range.last) + 1;
        if (clicked.containsRange(first, end))
            continue; // a click with Ctrl would take it away again
        clicked.addRange(first, end);
        clickRow(run, range.first, modifiers);
        modifiers = Qt::ControlModifier;
        if (range.last != range.first)
            clickRow(run, range.last, Qt::ShiftModifier);
    }
}

static void press(ScriptRun& run, const QString& text)
{
    QAbstractButton& button = run.dialog().button(text);
    if (!button.isEnabled())
        throw ScriptError(Text::tr("the button \"%1\" is disabled").arg(text));
    clickCentre(&button);
}

static void button(ScriptRun& run, const Arguments& arguments)
{
    press(run, arguments.text("button"));
}

static QAbstractButton& patternButton(ScriptRun& run, const char* name)
{
    const QString full = QStringLiteral("mapSelectionByPattern_%1_button").arg(QLatin1String(name));
    auto* found = run.dialog().dialog().findChild<QAbstractButton*>(full);
    if (!found || !found->isVisible() || !found->isEnabled())
        throw ScriptError(
            Text::tr("the %1 button of the pattern is not available").arg(QLatin1String(name)));
    return *found;
}

static void pattern(ScriptRun& run, const Arguments& arguments)
{
    QDialog& dialog = run.dialog().dialog();
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
        clickCentre(&patternButton(run, "apply"));
    else if (apply == "groups")
        clickCentre(&patternButton(run, "groups"));
    else if (apply == "clear")
        clickCentre(&patternButton(run, "clear"));
    else if (!apply.is_null())
        throw ScriptError(
            Text::tr("\"apply\" must be \"names\", \"groups\", \"clear\", \"Return\" or null"));
}

static void key(ScriptRun& run, const Arguments& arguments)
{
    const QKeySequence keys(arguments.text("key"), QKeySequence::PortableText);
    if (keys.isEmpty() || keys[0] == Qt::Key_unknown)
        throw ScriptError(Text::tr("there is no key \"%1\"").arg(arguments.text("key")));
    QDialog& dialog = run.dialog().dialog();
    if (!dialog.focusWidget() || dialog.focusWidget() == &dialog)
        run.dialog().table().setFocus();
    pressKeys(&dialog, keys);
}

static int columnNumber(ScriptRun& run, const Arguments& arguments, const char* key)
{
    return run.dialog().column(arguments.at(key));
}

/// Drags the right border of the column's header.
static void resizeColumn(ScriptRun& run, const Arguments& arguments)
{
    const int column = columnNumber(run, arguments, "resizeColumn");
    const auto width = static_cast<int>(arguments.integer("width"));
    QTableView& view = run.dialog().table();
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

} // namespace corvala::play

// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/columns/line_columns.h"

#include "zonestyle/models/line_skip_action.h"

#include <sdk/uicommon/style_mend.h>
#include <sdk/uicommon/style_writing.h>

#include <QCoreApplication>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds {

using actions::StyleAction;
using SkipAction = LineModelAbstract::SkipAction;

static QString translated(const char* text)
{
    return QCoreApplication::translate("Menu", text);
}

/// Deliberate: a step that marks nothing is mended where it is seen first, though this only reads.
static double mendedStep(const Cell& cell)
{
    const double step = cell.own<double>();
    if (step != 0.0)
        return step;
    toolbox::Set map;
    map.add(cell.map);
    const StyleMend mend;
    writeStyle(cell.column.key, &map, 1);
    return 1.0;
}

QVariant spacingText(const Cell& cell)
{
    if (cell.value(cell.column.skipMode) == SkipMode_ByIndex) {
        const double step = mendedStep(cell);
        return step == 1.0 ? QCoreApplication::translate("Cell", "Draw all")
                           : QStringLiteral("I=%1").arg(step);
    }
    const double distance = cell.own<double>();
    return distance == 0.0 ? QCoreApplication::translate("Cell", "Draw all")
                           : QStringLiteral("D=%1%").arg(distance);
}

QList<QAction*> spacingMenu(const MenuRequest& request)
{
    const QModelIndexList rows = request.rows();
    const auto entry = [&](const QString& text, SkipAction::Mode mode, double number = 0.0) {
        return new SkipAction(text, rows, request.column.skipMode,
                              style::keyAs<style::RealKey>(request.column.key), mode, number);
    };
    QList<QAction*> entries;
    // Deliberate: drawing all leaves the mode as it is, also that of distances.
    entries << new StyleAction<char>(translated(QT_TRANSLATE_NOOP("Menu", "Draw all")), rows, 1,
                                     request.column.key)
            << actions::separator();
    for (const int step : {2, 3, 4})
        entries << entry(translated(QT_TRANSLATE_NOOP("Menu", "I skip=%1")).arg(step),
                         SkipAction::Mode::Index, step);
    entries << actions::separator();
    for (const int distance : {1, 2, 3})
        entries << entry(translated(QT_TRANSLATE_NOOP("Menu", "Distance=%1")).arg(distance),
                         SkipAction::Mode::Distance, distance);
    return entries << actions::separator()
                   << entry(translated(QT_TRANSLATE_NOOP("Menu", "Enter index...")),
                            SkipAction::Mode::EnteredIndex)
                   << entry(translated(QT_TRANSLATE_NOOP("Menu", "Enter distance...")),
                            SkipAction::Mode::EnteredDistance);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds

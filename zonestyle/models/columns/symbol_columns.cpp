// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/columns/symbol_columns.h"

#include "zonestyle/actions/enter_ascii_character_action.h"
#include "zonestyle/tables/symbol_names.h"

#include <sdk/base/cvl.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds {

static bool isOffered(int shape)
{
    switch (shape) {
    case GeomShape_PieChart: return CvlAppPieChartScatterSymbolsAreEnabled();
    case GeomShape_LineArt: return CvlAppExtendedScatterSymbolsAreEnabled();
    default: return true;
    }
}

QVariant symbolText(const Cell& cell)
{
    const style::SymbolShape& symbol = *cell.column.symbol;
    if (!cell.value(symbol.isAscii))
        return choiceName(cell);
    const QString character = QString::fromStdString(cell.value(symbol.asciiShape.asciiChar));
    const QString mark = cell.value(symbol.asciiShape.useBaseFont)
        ? QString()
        : tables::nameOf(tables::kFontMarks, cell.value(symbol.asciiShape.fontOverride));
    return mark.isEmpty() ? character : character + QLatin1Char(' ') + mark;
}

QVariant shapeList(const Cell& cell)
{
    QStringList names;
    for (const style::Choice& shape : cell.column.names)
        if (isOffered(shape.value))
            names.append(tables::textOf(shape));
    return names;
}

static QList<QAction*> shapeEntries(const MenuRequest& request, bool (*isWanted)(int shape))
{
    const QModelIndexList rows = request.rows();
    QList<QAction*> entries;
    for (const style::Choice& shape : request.column.names) {
        if (!isWanted(shape.value))
            continue;
        auto* entry = new actions::StyleAction<GeomShape_e>(tables::textOf(shape), rows,
                                                            static_cast<GeomShape_e>(shape.value),
                                                            request.column.menuTarget());
        entry->setOverriddenBy(request.column.symbol->isAscii);
        entries.append(entry);
    }
    return entries << actions::separator()
                   << new actions::EnterASCIICharacterAction(rows,
                                                             request.column.symbol->asciiShape);
}

QList<QAction*> shapeMenu(const MenuRequest& request)
{
    return shapeEntries(request, isOffered);
}

QVariant lineSymbolText(const Cell& cell)
{
    return cell.value(cell.column.symbol->isAscii)
        ? tables::nameOf(cell.column.names, GeomShape_Character)
        : choiceName(cell);
}

/// Deliberate: line art is offered only where pie charts are not.
static bool isOfferedForLines(int shape)
{
    if (shape == GeomShape_LineArt && isOffered(GeomShape_PieChart))
        return false;
    const bool isFlat = shape <= GeomShape_Circle;
    return isFlat
        || ((shape == GeomShape_PieChart || shape == GeomShape_LineArt) && isOffered(shape));
}

QList<QAction*> lineShapeMenu(const MenuRequest& request)
{
    return shapeEntries(request, isOfferedForLines);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds

// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/columns/column_kinds.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds {

QVariant symbolText(const Cell& cell); ///< the shape's name, or "A (Greek)" for a character
QVariant shapeList(const Cell& cell); ///< of the shapes that are offered
QList<QAction*> shapeMenu(const MenuRequest& request); ///< the shapes, a line, "Enter character..."

QVariant lineSymbolText(const Cell& cell); ///< the shape's name, "Character" for a character
QList<QAction*> lineShapeMenu(const MenuRequest& request); ///< of fewer shapes

/// The symbol of a field map: a shape, or a character of a font. An edit of the cell writes a
/// shape, only the menu writes characters.
constexpr ColumnDescriptor symbolShape(const char* header, const style::SymbolShape& symbol)
{
    ColumnDescriptor column {header, symbol.geomShape};
    column.display = symbolText;
    column.edit = shapeList;
    column.names = symbol.shapes;
    column.symbol = &symbol;
    column.writer = writeChoice;
    column.menu = shapeMenu;
    return column.editor(EditorType_List, 1);
}

/// The symbol of a line map. Deliberate: all shapes are listed, and the menu offers few of them.
constexpr ColumnDescriptor lineSymbolShape(const char* header, const style::SymbolShape& symbol)
{
    return symbolShape(header, symbol)
        .shows(lineSymbolText)
        .lists(choiceList)
        .offers(lineShapeMenu);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds

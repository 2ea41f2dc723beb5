// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/map_activate_action.h"

#include <sdk/uicommon/style_writing.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

static QString textOf(MapActivateMode_e mode)
{
    static constexpr std::array<const char*, 4> kTexts {
        QT_TRANSLATE_NOOP("Menu", "Activate"), QT_TRANSLATE_NOOP("Menu", "Deactivate"),
        QT_TRANSLATE_NOOP("Menu", "Show selected only"), QT_TRANSLATE_NOOP("Menu", "Invert")};
    return QCoreApplication::translate("Menu", kTexts[mode]);
}

static void assign(style::NumbersKey activeSet, const QModelIndexList& indexes,
                   toolbox::AssignOp_e op)
{
    if (indexes.isEmpty())
        return;
    toolbox::CheckedStyleValue style(activeSet);
    writeStyle(style, nullptr, mapSet(indexes), op);
}

/// The host refuses a set with a map that is gone; where two sets are written, neither may be.
static bool allExist(const QModelIndexList& indexes)
{
    const QAbstractItemModel* model = indexes.first().model();
    const int rows = model ? model->rowCount() : 0;
    return std::all_of(indexes.cbegin(), indexes.cend(),
                       [rows](const QModelIndex& index) { return index.row() < rows; });
}

MapActivateAction::MapActivateAction(const QModelIndexList& selectedIndexes, MapActivateMode_e mode,
                                     style::NumbersKey activeSet)
    : Action(textOf(mode), selectedIndexes)
    , m_mode(mode)
    , m_activeSet(activeSet)
{
}

void MapActivateAction::invokeAction()
{
    if (selectedIndexes().isEmpty() || !allExist(selectedIndexes()))
        return;
    switch (m_mode) {
    case MapActivateMode_Activate: return add(selectedIndexes());
    case MapActivateMode_Deactivate: return remove(selectedIndexes());
    case MapActivateMode_ShowSelectedOnly: return showSelectedOnly();
    case MapActivateMode_Invert: return invert();
    }
}

void MapActivateAction::showSelectedOnly()
{
    add(selectedIndexes());
    remove(otherIndexes());
}

void MapActivateAction::invert()
{
    QModelIndexList shown;
    QModelIndexList hidden;
    for (const QModelIndex& index : selectedIndexes()) {
        const bool isShown = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        (isShown ? shown : hidden).append(index);
    }
    remove(shown);
    add(hidden);
}

void MapActivateAction::add(const QModelIndexList& indexes) const
{
    assign(m_activeSet, indexes, toolbox::AssignOp_Add);
}

void MapActivateAction::remove(const QModelIndexList& indexes) const
{
    assign(m_activeSet, indexes, toolbox::AssignOp_Remove);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions

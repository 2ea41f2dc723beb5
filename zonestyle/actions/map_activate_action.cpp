// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/map_activate_action.h"

#include "zonestyle/actions/style_write.h"

#include <QCoreApplication>

#include <array>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

static QString textOf(MapActivateMode_e mode)
{
    static constexpr std::array<const char*, 4> kTexts {
        QT_TRANSLATE_NOOP("Menu", "Activate"), QT_TRANSLATE_NOOP("Menu", "Deactivate"),
        QT_TRANSLATE_NOOP("Menu", "Show selected only"), QT_TRANSLATE_NOOP("Menu", "Invert")};
    return QCoreApplication::translate("Menu", kTexts[mode]);
}

static void assign(const char* activeSet, const QModelIndexList& indexes, toolbox::AssignOp_e op)
{
    if (indexes.isEmpty())
        return;
    toolbox::CheckedStyleValue style(activeSet);
    writeStyle(style, nullptr, op, mapSet(indexes));
}

MapActivateAction::MapActivateAction(const QModelIndexList& selectedIndexes, MapActivateMode_e mode,
                                     const char* activeSet)
    : Action(textOf(mode), selectedIndexes)
    , m_mode(mode)
    , m_activeSet(activeSet)
{
}

void MapActivateAction::invokeAction()
{
    if (selectedIndexes().isEmpty())
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

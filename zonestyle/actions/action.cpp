// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/action.h"

#include <vector>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

toolbox::Set mapSet(const QModelIndexList& indexes)
{
    toolbox::Set maps;
    for (int first = 0, next = 0; first < indexes.size(); first = next) {
        const int row = indexes.at(first).row();
        for (next = first + 1; next < indexes.size(); ++next) {
            if (indexes.at(next).row() != row + (next - first))
                break;
        }
        maps.addRange(row + 1, row + (next - first));
    }
    return maps;
}

Action::Action(const QString& text, const QModelIndexList& selectedIndexes)
    : QAction(text, nullptr)
    , m_selectedIndexes(selectedIndexes)
{
    connect(this, SIGNAL(triggered()), this, SLOT(invokeAction()));
}

Action::~Action()
{
    disconnect();
}

void Action::invokeAction() { }

static QModelIndexList indexesBeside(const QModelIndexList& selected)
{
    const QAbstractItemModel* model = selected.isEmpty() ? nullptr : selected.first().model();
    if (!model)
        return {};
    const int rowCount = model->rowCount();
    std::vector<bool> isSelected(static_cast<std::size_t>(rowCount));
    for (const QModelIndex& index : selected) {
        if (index.isValid() && index.row() < rowCount)
            isSelected[static_cast<std::size_t>(index.row())] = true;
    }
    QModelIndexList others;
    for (int row = 0; row < rowCount; ++row) {
        if (!isSelected[static_cast<std::size_t>(row)])
            others.append(model->index(row, selected.first().column()));
    }
    return others;
}

const QModelIndexList& Action::otherIndexes()
{
    if (!m_otherIndexesKnown) {
        m_otherIndexes = indexesBeside(m_selectedIndexes);
        m_otherIndexesKnown = true;
    }
    return m_otherIndexes;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions

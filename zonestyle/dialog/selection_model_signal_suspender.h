// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/controls/map_selection_by_pattern.h"

#include <QItemSelectionModel>
#include <QTableView>

namespace corvala::sdk::ui::dialogs::zonestyle::intern {

/// While it lives, the selection by pattern does not hear of changes of a view's selection: those
/// are the dialog's own. Afterwards it hears of the changes that the user makes, also when the view
/// has another selection model then.
class SelectionModelSignalSuspender
{
public:
    SelectionModelSignalSuspender(uicontrols::MapSelectionByPattern& listener, QTableView& view)
        : m_listener(listener)
        , m_view(view)
    {
        if (m_view.selectionModel())
            QObject::disconnect(m_view.selectionModel(), nullptr, &m_listener, nullptr);
    }

    ~SelectionModelSignalSuspender()
    {
        if (m_view.selectionModel()) {
            QObject::connect(m_view.selectionModel(), &QItemSelectionModel::selectionChanged,
                             &m_listener, &uicontrols::MapSelectionByPattern::selectionChanged,
                             Qt::UniqueConnection);
        }
    }

    SelectionModelSignalSuspender(const SelectionModelSignalSuspender&) = delete;
    SelectionModelSignalSuspender& operator=(const SelectionModelSignalSuspender&) = delete;

private:
    uicontrols::MapSelectionByPattern& m_listener;
    QTableView& m_view;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern

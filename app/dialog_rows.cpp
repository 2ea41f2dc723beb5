// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialog_rows.h"

#include "zonestyle/dialog/zone_style_dialog.h"

#include <QEvent>
#include <QItemSelectionModel>
#include <QTableView>

namespace corvala::app {

using corvala::sdk::ui::dialogs::ZoneStyleDialog;

DialogRows::DialogRows(QWidget& mainWindow)
    : QObject(&mainWindow)
{
    constexpr int kMilliseconds = 30;
    m_pause.setSingleShot(true);
    m_pause.setInterval(kMilliseconds);
    connect(&m_pause, &QTimer::timeout, this, &DialogRows::changed);
    mainWindow.installEventFilter(this);
}

void DialogRows::watchDialog()
{
    ZoneStyleDialog* const dialog = ZoneStyleDialog::m_dialogInstance;
    if (!dialog || m_dialog == dialog)
        return;
    m_dialog = dialog;
    m_table = dialog->findChild<QTableView*>();
    dialog->installEventFilter(this);
    if (m_table)
        m_table->viewport()->installEventFilter(this);
}

/// A view does not tell when it is given another selection; it is painted then.
void DialogRows::watchSelection()
{
    QItemSelectionModel* const selection = m_table ? m_table->selectionModel() : nullptr;
    if (m_selection == selection)
        return;
    if (m_selection)
        m_selection->disconnect(this);
    m_selection = selection;
    if (selection)
        connect(selection, &QItemSelectionModel::selectionChanged, &m_pause,
                QOverload<>::of(&QTimer::start));
    m_pause.start();
}

bool DialogRows::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ChildPolished: watchDialog(); break;
    case QEvent::Paint: watchSelection(); break;
    case QEvent::Show:
    case QEvent::Hide:
        if (watched == m_dialog)
            m_pause.start();
        break;
    default: break;
    }
    return QObject::eventFilter(watched, event);
}

host::NumberSet DialogRows::selectedMaps() const
{
    host::NumberSet maps;
    const QItemSelectionModel* const selection = m_table ? m_table->selectionModel() : nullptr;
    if (!selection || !m_dialog || !m_dialog->isVisible())
        return maps;
    for (const QItemSelectionRange& range : selection->selection())
        maps.addRange(static_cast<std::uint64_t>(range.top()) + 1,
                      static_cast<std::uint64_t>(range.bottom()) + 2);
    return maps;
}

} // namespace corvala::app

// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_common/document_dialog.h"

#include <sdk/signals/state_change_event_observable.h>

#include <QShowEvent>

namespace corvala::dialogs::common {

DocumentDialog::DocumentDialog(QWidget* parent)
    : QDialog(parent)
    , m_refresh([this] { readDocument(); })
{
    setAttribute(Qt::WA_QuitOnClose, false);
}

void DocumentDialog::launch()
{
    if (!isVisible())
        readDocument(); // before the size is chosen
    show();
    raise();
    activateWindow();
}

void DocumentDialog::showEvent(QShowEvent* event)
{
    m_connections.disconnectAll();
    m_connections.add(signaling::StateChangeEventObservable::getInstance().connect(
        [this](const toolbox::StateChangeEventInterface& change) {
            if (isConcernedBy(change))
                m_refresh.enableNotification();
        }));
    if (event->spontaneous())
        m_refresh.enableNotification();
    QDialog::showEvent(event);
}

void DocumentDialog::hideEvent(QHideEvent* event)
{
    m_connections.disconnectAll();
    m_refresh.disableNotification();
    QDialog::hideEvent(event);
}

} // namespace corvala::dialogs::common

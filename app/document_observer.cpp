// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/document_observer.h"

#include "host/document/document.h"

namespace corvala::app {

DocumentObserver::DocumentObserver(QObject* parent)
    : QObject(parent)
{
    m_idle.setSingleShot(true);
    m_idle.setInterval(0);
    connect(&m_idle, &QTimer::timeout, this, &DocumentObserver::changed);
    m_connection = host::Document::instance().events().connect(
        [this](const host::StateEvent&) { m_idle.start(); });
}

} // namespace corvala::app

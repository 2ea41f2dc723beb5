// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/canvas.h"

#include "host/document/document.h"

namespace corvala::plot {

struct Canvas::Subscription
{
    boost::signals2::scoped_connection connection;
};

Canvas::Canvas(QWidget* parent)
    : QWidget(parent)
    , m_subscription(std::make_shared<Subscription>())
{
    qRegisterMetaType<CvlInt64>("CvlInt64");
    m_idle.setSingleShot(true);
    m_idle.setInterval(0);
    connect(&m_idle, &QTimer::timeout, this, [this] {
        if (redraw())
            m_idle.start();
    });
    m_subscription->connection = host::Document::instance().events().connect(
        [this](const host::StateEvent& event) { documentChanged(event); });
}

void Canvas::setFrame(CvlUniqueId frame)
{
    if (frame == m_frame)
        return;
    const CvlUniqueId previous = m_frame;
    m_frame = frame;
    frameChanged(previous);
    requestRedraw();
}

void Canvas::requestRedraw()
{
    if (!m_idle.isActive())
        m_idle.start();
}

void Canvas::countRedraw()
{
    ++m_redraws;
    Q_EMIT redrawn();
}

} // namespace corvala::plot

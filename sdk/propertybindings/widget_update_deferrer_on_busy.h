// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QPointer>
#include <QWidget>

#include <boost/signals2/connection.hpp>

namespace corvala::propertybindings {

/// Keeps a widget from painting while the host runs a command; it paints once afterwards. A held
/// application lock does not defer anything.
class WidgetUpdateDeferrerOnBusy
{
public:
    explicit WidgetUpdateDeferrerOnBusy(QWidget* widget); ///< not owned; may go first
    ~WidgetUpdateDeferrerOnBusy(); ///< ends a deferral
    WidgetUpdateDeferrerOnBusy(const WidgetUpdateDeferrerOnBusy&) = delete;
    WidgetUpdateDeferrerOnBusy& operator=(const WidgetUpdateDeferrerOnBusy&) = delete;

private:
    void setDeferred(bool deferred);

    QPointer<QWidget> m_widget;
    bool m_isDeferring = false;
    boost::signals2::scoped_connection m_connection;
};

} // namespace corvala::propertybindings

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include <boost/signals2/connection.hpp>

namespace corvala::app {

/// Tells the controls of the program once per idle moment that the document changed.
class DocumentObserver : public QObject
{
    Q_OBJECT

public:
    explicit DocumentObserver(QObject* parent = nullptr);

Q_SIGNALS:
    void changed();

private:
    QTimer m_idle;
    boost::signals2::scoped_connection m_connection;
};

} // namespace corvala::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>

namespace corvala::app {

/// An X server without a screen (Xvfb) for this process alone; it ends with the object, and with
/// the process however that ends, which xvfb-run would not do. Needs no QApplication.
class PrivateXServer : private QProcess
{
public:
    PrivateXServer() = default;
    ~PrivateXServer() override;

    /// Starts the server and waits until it takes connections. Empty on success, else the reason,
    /// naming the package to install when the server is missing.
    QString launch();

    /// Such as ":99"; empty before launch.
    QString display() const { return m_display; }

protected:
    void setupChildProcess() override;

private:
    QString m_display;
};

} // namespace corvala::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <sys/types.h>

namespace corvala::app {

/// An X server without a screen (Xvfb) for this process alone; it ends with the object, and with
/// the process however that ends. Needs no QApplication.
class PrivateXServer
{
public:
    PrivateXServer() = default;
    ~PrivateXServer();
    PrivateXServer(const PrivateXServer&) = delete;
    PrivateXServer& operator=(const PrivateXServer&) = delete;

    /// Starts the server and waits until it takes connections. Empty on success, else the reason,
    /// naming the package to install when the server is missing.
    QString start();

    /// Such as ":99"; empty before start.
    QString display() const { return m_display; }

private:
    pid_t m_process = 0;
    QString m_display;
};

} // namespace corvala::app

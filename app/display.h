// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/command_line.h"
#include "app/private_x_server.h"

struct _XDisplay;

namespace corvala::app {

/// Where the program shows its windows. Must outlive the QApplication.
class Display
{
public:
    Display() = default;
    ~Display();
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    /// Chooses the platform for what the options ask for, before there is a QApplication. Drawing a
    /// picture needs an X server: a private one is started where there is none. Empty on success,
    /// else the reason.
    QString prepare(const Options& options);

private:
    QString preparePicture(const Options& options);
    bool findXServer();

    PrivateXServer m_server;
    /// Keeps the user's server from starting anew, as some do when their last client leaves.
    ::_XDisplay* m_connection = nullptr;
};

} // namespace corvala::app

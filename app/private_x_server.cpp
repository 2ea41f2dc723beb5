// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/private_x_server.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace corvala::app {

static constexpr int kMostMilliseconds = 30000;

static QString message(const char* text)
{
    return QCoreApplication::translate("Display", text);
}

PrivateXServer::~PrivateXServer()
{
    terminate();
    waitForFinished(kMostMilliseconds);
}

void PrivateXServer::setupChildProcess()
{
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    setpgid(0, 0); // what a terminal tells its programs is for the program to hear
}

QString PrivateXServer::launch()
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("Xvfb"));
    if (program.isEmpty())
        return message(QT_TRANSLATE_NOOP(
            "Display", "drawing without a screen needs Xvfb: install the package xvfb"));
    setStandardErrorFile(nullDevice());
    start(program,
          {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
           QStringLiteral("0"), QStringLiteral("1920x1200x24"), QStringLiteral("-nolisten"),
           QStringLiteral("tcp"), QStringLiteral("-noreset")});
    // The server writes its number, as one line, when it takes connections.
    while (!canReadLine() && waitForReadyRead(kMostMilliseconds)) { }
    const QByteArray number = readLine().trimmed();
    if (number.isEmpty())
        return message(QT_TRANSLATE_NOOP("Display", "Xvfb cannot be started: %1"))
            .arg(errorString());
    m_display = QLatin1Char(':') + QString::fromLatin1(number);
    return {};
}

} // namespace corvala::app

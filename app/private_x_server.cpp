// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/private_x_server.h"

#include <QCoreApplication>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace corvala::app {

static constexpr int kMostMilliseconds = 30000;

/// A pipe whose ends are closed with it; both ends stay out of other programs.
class Pipe
{
public:
    Pipe() { m_isOpen = ::pipe2(m_ends, O_CLOEXEC) == 0; }
    ~Pipe()
    {
        closeReading();
        closeWriting();
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    bool isOpen() const { return m_isOpen; }
    int reading() const { return m_ends[0]; }
    int writing() const { return m_ends[1]; }
    void closeReading() { close(m_ends[0]); }
    void closeWriting() { close(m_ends[1]); }

private:
    static void close(int& end)
    {
        if (end >= 0)
            ::close(end);
        end = -1;
    }

    int m_ends[2] = {-1, -1};
    bool m_isOpen = false;
};

/// Becomes the server; only returns in the parent. An error number on `failure` tells that there
/// is no server to become.
static pid_t spawnServer(Pipe& displayNumber, Pipe& failure)
{
    const pid_t child = ::fork();
    if (child != 0)
        return child;
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    ::fcntl(displayNumber.writing(), F_SETFD, 0);
    char number[16];
    std::snprintf(number, sizeof number, "%d", displayNumber.writing());
    const int quiet = ::open("/dev/null", O_WRONLY);
    ::dup2(quiet, STDOUT_FILENO);
    ::dup2(quiet, STDERR_FILENO);
    ::execlp("Xvfb", "Xvfb", "-displayfd", number, "-screen", "0", "1920x1200x24", "-nolisten",
             "tcp", "-noreset", static_cast<char*>(nullptr));
    const int reason = errno;
    if (::write(failure.writing(), &reason, sizeof reason) < 0)
        ::_exit(126);
    ::_exit(127);
}

/// The line that the server writes when it is ready; empty when it ends before or takes too long.
static QByteArray readLine(int end)
{
    QByteArray line;
    pollfd wait {end, POLLIN, 0};
    while (!line.endsWith('\n')) {
        char character = 0;
        if (::poll(&wait, 1, kMostMilliseconds) <= 0 || ::read(end, &character, 1) != 1)
            return {};
        line += character;
    }
    return line.trimmed();
}

static QString message(const char* text)
{
    return QCoreApplication::translate("Display", text);
}

QString PrivateXServer::start()
{
    Pipe displayNumber;
    Pipe failure;
    if (displayNumber.isOpen() && failure.isOpen())
        m_process = spawnServer(displayNumber, failure);
    if (m_process <= 0) {
        m_process = 0;
        return message(QT_TRANSLATE_NOOP("Display", "no X server can be started: %1"))
            .arg(QString::fromLocal8Bit(std::strerror(errno)));
    }
    displayNumber.closeWriting();
    failure.closeWriting();
    int reason = 0;
    if (::read(failure.reading(), &reason, sizeof reason) == sizeof reason)
        return reason == ENOENT
            ? message(QT_TRANSLATE_NOOP(
                "Display", "drawing without a screen needs Xvfb: install the package xvfb"))
            : message(QT_TRANSLATE_NOOP("Display", "Xvfb cannot be started: %1"))
                  .arg(QString::fromLocal8Bit(std::strerror(reason)));
    const QByteArray number = readLine(displayNumber.reading());
    if (number.isEmpty())
        return message(QT_TRANSLATE_NOOP("Display", "Xvfb does not start"));
    m_display = QLatin1Char(':') + QString::fromLatin1(number);
    return {};
}

PrivateXServer::~PrivateXServer()
{
    if (m_process <= 0)
        return;
    ::kill(m_process, SIGTERM);
    ::waitpid(m_process, nullptr, 0);
}

} // namespace corvala::app

// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/channel.h"

#include <unistd.h>

namespace corvala::host::io::reader {

static constexpr std::chrono::milliseconds kBetweenReports {100};

Channel::Channel()
    : m_descriptor(dup(STDOUT_FILENO))
{
    dup2(STDERR_FILENO, STDOUT_FILENO);
}

void Channel::report(const QString& file, int percent, const ReadMessage& what)
{
    const auto now = std::chrono::steady_clock::now();
    std::string name = file.toStdString();
    if (name == m_file && now - m_lastReport < kBetweenReports)
        return;
    m_lastReport = now;
    m_file = std::move(name);
    write({percent, m_file, what, false, {}});
}

void Channel::fail(const ReadFailure& failure)
{
    write({-1, failure.file.isEmpty() ? m_file : failure.file.toStdString(), failure.message, true,
           failure.badRows});
}

void Channel::write(const ReaderLine& line) const
{
    const std::string text = toJson(line) + '\n';
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t count = ::write(m_descriptor, text.data() + done, text.size() - done);
        if (count <= 0)
            return;
        done += static_cast<std::size_t>(count);
    }
}

} // namespace corvala::host::io::reader

// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/ensight_steps.h"

#include <QCoreApplication>

namespace corvala::host::io::reader {

static constexpr char kBegin[] = "BEGIN TIME STEP";

/// The first line of geometry in binary files names the coding.
static void skipCoding(EnSightStream& file)
{
    if (file.isText())
        return;
    const QString line = QString::fromUtf8(file.line().c_str()).simplified().toLower();
    if (line != QLatin1String("c binary") && line != QLatin1String("fortran binary"))
        file.seek(0);
}

static bool beginsStep(EnSightStream& file)
{
    const qint64 place = file.position();
    const std::optional<std::string> line = file.keyword();
    file.seek(place);
    return line && line->rfind(kBegin, 0) == 0;
}

void EnSightSteps::read(const EnSightStep& step, EnSightCoding coding, const Read& read)
{
    const std::unique_ptr<EnSightStream> file = EnSightStream::open(step.path, coding);
    skipCoding(*file);
    if (!beginsStep(*file)) {
        if (step.isOneOfSeveral && step.number > 0)
            file->fail(QT_TRANSLATE_NOOP("ReadMessage", "there are no time steps in it"));
        return read(*file, true);
    }
    std::vector<qint64>& ends = m_ends[step.path];
    const auto number = static_cast<std::size_t>(step.number);
    for (std::size_t i = std::min(number, ends.size()); i <= number; ++i) {
        if (i > 0)
            file->seek(ends[i - 1]);
        file->setStepped(true);
        file->expect(kBegin);
        read(*file, i == number);
        if (i == ends.size())
            ends.push_back(file->position());
    }
}

} // namespace corvala::host::io::reader

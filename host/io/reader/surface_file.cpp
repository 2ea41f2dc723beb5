// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/surface_file.h"

#include "host/io/reader/algorithm_file.h"
#include "host/io/reader/mapped_file.h"
#include "host/io/reader/ply_reader.h"
#include "host/io/reader/read_failure.h"

#include <QFile>
#include <QFileInfo>

#include <vtkSTLReader.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace corvala::host::io::reader {

/// In capitals as well.
static bool isWord(std::string_view text, std::string_view word)
{
    return std::equal(text.begin(), text.end(), word.begin(), word.end(),
                      [](char some, char low) { return some == low || some == low - 'a' + 'A'; });
}

/// Looks from the end.
static bool hasWord(std::string_view bytes, std::string_view word)
{
    for (std::size_t place = bytes.size(); place-- > 0;)
        if (isWord(bytes.substr(place, word.size()), word))
            return true;
    return false;
}

/// Text ends with "endsolid"; binary files tell the number of their triangles.
static void requireWholeStl(const MappedFile& file)
{
    static constexpr std::size_t kHeader = 84;
    static constexpr std::uint64_t kTriangle = 50;
    const std::string_view bytes = file.bytes();
    std::uint32_t triangles = 0;
    if (bytes.size() >= kHeader)
        std::memcpy(&triangles, bytes.data() + kHeader - sizeof triangles, sizeof triangles);
    const std::uint64_t binarySize = kHeader + kTriangle * triangles;
    const std::size_t start = bytes.find_first_not_of(" \t\r\n");
    const bool isText = start < bytes.size() && isWord(bytes.substr(start, 5), "solid")
        && bytes.size() != binarySize && bytes.substr(0, 1000).find('\0') > bytes.size();
    if (isText && !hasWord(bytes, "endsolid"))
        throw ReadFailure(
            file.path(),
            QT_TRANSLATE_NOOP("ReadMessage",
                              "it is cut off after %1 bytes: there is no \"endsolid\""),
            {QString::number(bytes.size())});
    if (isText || bytes.size() == binarySize)
        return;
    const bool isCut = bytes.size() < std::max<std::uint64_t>(kHeader, binarySize);
    throw ReadFailure(
        file.path(),
        isCut ? QT_TRANSLATE_NOOP("ReadMessage", "it is cut off: %1 of %2 bytes are there")
              : QT_TRANSLATE_NOOP("ReadMessage", "it is damaged: %1 bytes are there instead of %2"),
        {QString::number(bytes.size()),
         QString::number(std::max<std::uint64_t>(kHeader, binarySize))});
}

SurfaceData readSurface(const QString& path, const ProgressCall& progress)
{
    const MappedFile file(path);
    if (file.bytes().substr(0, 3) == "ply")
        return readPly(file, progress);
    if (QFileInfo(path).suffix().toLower() == QLatin1String("obj"))
        return readObj(file, progress);
    requireWholeStl(file);
    const auto reader = vtkSmartPointer<vtkSTLReader>::New();
    reader->SetFileName(QFile::encodeName(path).constData());
    return {updated(path, *reader, progress), {}, {}, {}};
}

} // namespace corvala::host::io::reader

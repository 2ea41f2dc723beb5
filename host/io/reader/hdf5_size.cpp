// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/hdf5_size.h"

#include "host/io/reader/file_format.h"
#include "host/io/reader/read_failure.h"

#include <QFileInfo>
#include <QtEndian>

#include <optional>

namespace corvala::host::io::reader {

static constexpr char kSignature[] = "\x89HDF\r\n\x1a\n";
static constexpr int kSignatureSize = 8;

/// The place of the address where the file ends depends on the version of the superblock, which
/// follows the signature.
static std::optional<qint64> fileSize(const QByteArray& start)
{
    struct Layout
    {
        int sizeOfAddresses;
        int end;
    };
    constexpr Layout kLayouts[] = {{13, 40}, {13, 44}, {9, 28}, {9, 28}};
    constexpr int kAddressSize = 8; ///< other sizes do not occur in practice
    const int version = start.size() > kSignatureSize ? start[kSignatureSize] : -1;
    if (version < 0 || version > 3)
        return std::nullopt;
    const Layout& layout = kLayouts[version];
    if (start.size() < layout.end + kAddressSize || start[layout.sizeOfAddresses] != kAddressSize)
        return std::nullopt;
    const auto end = qFromLittleEndian<qint64>(start.constData() + layout.end);
    return end > 0 ? std::optional<qint64>(end) : std::nullopt;
}

void requireWholeHdf5(const QString& path)
{
    constexpr int kLongestStart = 64;
    const QByteArray start = firstBytes(path, kLongestStart);
    if (!start.startsWith(QByteArray(kSignature, kSignatureSize)))
        return;
    const qint64 actual = QFileInfo(path).size();
    const std::optional<qint64> size = fileSize(start);
    if (size && actual < *size)
        throw ReadFailure(
            path, QT_TRANSLATE_NOOP("ReadMessage", "it is cut off: %1 of %2 bytes are there"),
            {QString::number(actual), QString::number(*size)});
}

} // namespace corvala::host::io::reader

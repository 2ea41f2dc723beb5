// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/adf_size.h"

#include "host/io/reader/file_format.h"
#include "host/io/reader/read_failure.h"

#include <QFileInfo>
#include <QtEndian>

#include <algorithm>

namespace corvala::host::io::reader {

static constexpr qint64 kBlockSize = 4096;
static constexpr char kName[] = "ADF Database Version "; ///< followed by a letter
static constexpr int kNamePlace = 4;
static constexpr int kOrderPlace = 100; ///< "L" for little endian
static constexpr int kTagPlace = 130; ///< before the places of the root and of the end
static constexpr int kEndPlace = 146; ///< a block, and an offset in it
static constexpr int kBlockBytes = 8;
static constexpr int kOffsetBytes = 4;

/// Places are hexadecimal in version A, binary in version B.
static qint64 endOf(const QByteArray& start)
{
    const QByteArray block = start.mid(kEndPlace, kBlockBytes);
    const QByteArray offset = start.mid(kEndPlace + kBlockBytes, kOffsetBytes);
    if (start[kNamePlace + static_cast<int>(sizeof kName) - 1] == 'A')
        return block.toLongLong(nullptr, 16) * kBlockSize + offset.toLongLong(nullptr, 16);
    const bool isLittle = start[kOrderPlace] == 'L';
    const auto number = [isLittle](const auto& bytes, auto zero) {
        using Number = decltype(zero);
        return static_cast<qint64>(isLittle ? qFromLittleEndian<Number>(bytes.constData())
                                            : qFromBigEndian<Number>(bytes.constData()));
    };
    const qint64 blocks = std::clamp<qint64>(number(block, quint64()), 0, qint64(1) << 48);
    return blocks * kBlockSize + number(offset, quint32());
}

/// The last block is filled up, or ends with what it holds, which may have one byte behind it.
void requireWholeAdf(const QString& path)
{
    const QByteArray start = firstBytes(path, kEndPlace + kBlockBytes + kOffsetBytes);
    if (!start.mid(kNamePlace).startsWith(kName)
        || start.size() < kEndPlace + kBlockBytes + kOffsetBytes
        || start.mid(kTagPlace, 4) != "AdF4")
        return;
    const qint64 end = endOf(start);
    const qint64 whole = (end / kBlockSize + 1) * kBlockSize;
    const qint64 actual = QFileInfo(path).size();
    const bool endsThere = actual >= end && actual <= end + 2;
    if (actual > whole)
        throw ReadFailure(path,
                          QT_TRANSLATE_NOOP("ReadMessage", "it is longer than its header says"));
    if (actual < whole && !endsThere)
        throw ReadFailure(
            path, QT_TRANSLATE_NOOP("ReadMessage", "it is cut off: %1 of %2 bytes are there"),
            {QString::number(actual), QString::number(whole)});
}

} // namespace corvala::host::io::reader

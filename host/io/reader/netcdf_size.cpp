// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/netcdf_size.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <vector>

namespace corvala::host::io::reader {

/// Walks the header of a classic netCDF file: big-endian counts, offsets and lists. Any read past
/// the end or count that cannot be makes it fail for good.
class NetcdfHeader
{
public:
    explicit NetcdfHeader(QIODevice& file)
        : m_file(file)
    {
    }

    std::optional<NetcdfSize> fileSize();

private:
    struct Array
    {
        std::int64_t begin;
        std::int64_t bytes; ///< of the whole array, or of one record
        bool isRecord;
    };

    template<class T>
    std::int64_t integer();
    std::int64_t count() { return m_version == 5 ? integer<qint64>() : integer<qint32>(); }
    std::int64_t offset() { return m_version == 1 ? integer<qint32>() : integer<qint64>(); }
    std::int64_t listLength();
    std::int64_t typeSize();
    void skip(std::int64_t bytes);
    void skipPadded(std::int64_t bytes) { skip((bytes + 3) / 4 * 4); }
    void skipName() { skipPadded(count()); }
    void readDimensions();
    void skipAttributes();
    Array readArray();
    void measure(const std::vector<Array>& arrays, NetcdfSize& size);

    QIODevice& m_file;
    int m_version = 0;
    bool m_failed = false;
    std::int64_t m_records = 0;
    std::vector<std::int64_t> m_dimensions; ///< 0 is the record dimension
};

template<class T>
std::int64_t NetcdfHeader::integer()
{
    char bytes[sizeof(T)] = {};
    m_failed = m_failed || m_file.read(bytes, sizeof bytes) != sizeof bytes;
    const std::int64_t value = m_failed ? 0 : qFromBigEndian<T>(bytes);
    m_failed = m_failed || value < 0;
    return m_failed ? 0 : value;
}

void NetcdfHeader::skip(std::int64_t bytes)
{
    m_failed =
        m_failed || bytes > m_file.size() - m_file.pos() || !m_file.seek(m_file.pos() + bytes);
}

/// An absent list has a tag and a length of zero.
std::int64_t NetcdfHeader::listLength()
{
    integer<qint32>();
    const std::int64_t length = count();
    m_failed = m_failed || length > m_file.size();
    return m_failed ? 0 : length;
}

std::int64_t NetcdfHeader::typeSize()
{
    constexpr std::int64_t kSizes[] = {0, 1, 1, 2, 4, 4, 8, 1, 2, 4, 8, 8};
    const std::int64_t type = integer<qint32>();
    m_failed = m_failed || type < 1 || type > 11;
    return m_failed ? 0 : kSizes[type];
}

void NetcdfHeader::readDimensions()
{
    for (std::int64_t left = listLength(); left > 0 && !m_failed; --left) {
        skipName();
        m_dimensions.push_back(count());
    }
}

void NetcdfHeader::skipAttributes()
{
    for (std::int64_t left = listLength(); left > 0 && !m_failed; --left) {
        skipName();
        const std::int64_t size = typeSize();
        const std::int64_t values = count();
        m_failed = m_failed || values > m_file.size();
        skipPadded(m_failed ? 0 : size * values);
    }
}

NetcdfHeader::Array NetcdfHeader::readArray()
{
    skipName();
    Array array {0, 1, false};
    const std::int64_t rank = count();
    for (std::int64_t i = 0; i < rank && !m_failed; ++i) {
        const std::int64_t dimension = count();
        m_failed = m_failed || dimension >= static_cast<std::int64_t>(m_dimensions.size());
        const std::int64_t size = m_failed ? 1 : m_dimensions[static_cast<std::size_t>(dimension)];
        array.isRecord = array.isRecord || (i == 0 && size == 0);
        if (size > 0)
            m_failed = m_failed || __builtin_mul_overflow(array.bytes, size, &array.bytes);
    }
    skipAttributes();
    const std::int64_t size = typeSize();
    m_failed = m_failed || __builtin_mul_overflow(array.bytes, size, &array.bytes);
    count(); // the stored size of the array, which saturates
    array.begin = offset();
    return array;
}

/// Raises `end` to begin + (records - 1) * step + bytes; false when that does not fit a file.
static bool extend(std::int64_t& end, std::int64_t begin, std::int64_t records, std::int64_t step,
                   std::int64_t bytes)
{
    std::int64_t own = 0;
    const bool overflows = __builtin_mul_overflow(records - 1, step, &own)
        || __builtin_add_overflow(own, begin, &own) || __builtin_add_overflow(own, bytes, &own);
    end = overflows ? end : std::max(end, own);
    return !overflows;
}

void NetcdfHeader::measure(const std::vector<Array>& arrays, NetcdfSize& size)
{
    for (const Array& array : arrays)
        if (array.isRecord)
            extend(size.recordBytes, size.recordBytes, 1, 0, (array.bytes + 3) / 4 * 4);
    size.records = m_records;
    for (const Array& array : arrays) {
        const std::int64_t records = array.isRecord ? m_records : 1;
        std::int64_t& end = array.isRecord ? size.recordsEnd : size.fixedEnd;
        if (records > 0 && !extend(end, array.begin, records, size.recordBytes, array.bytes))
            m_failed = true;
    }
}

std::optional<NetcdfSize> NetcdfHeader::fileSize()
{
    const QByteArray magic = m_file.read(4);
    m_version = magic.size() == 4 ? magic[3] : 0;
    if (!magic.startsWith("CDF") || (m_version != 1 && m_version != 2 && m_version != 5))
        return std::nullopt;
    m_records = count();
    if (m_failed && !m_file.atEnd())
        return std::nullopt; // still being written: the count of records is unknown
    readDimensions();
    skipAttributes();
    std::vector<Array> arrays;
    for (std::int64_t left = listLength(); left > 0 && !m_failed; --left)
        arrays.push_back(readArray());
    NetcdfSize size;
    measure(arrays, size);
    size.isSound = !m_failed;
    return size;
}

bool NetcdfSize::mayHave(std::int64_t actual) const
{
    constexpr std::int64_t kPadding = 3;
    const std::int64_t more = actual - bytes();
    return more <= std::max(recordBytes, kPadding)
        || (recordBytes > 0 && more % recordBytes <= kPadding);
}

std::int64_t NetcdfSize::recordsIn(std::int64_t bytes) const
{
    if (bytes < fixedEnd || recordBytes <= 0)
        return 0;
    const std::int64_t missing = std::max<std::int64_t>(recordsEnd - bytes, 0);
    return std::max<std::int64_t>(records - (missing + recordBytes - 1) / recordBytes, 0);
}

std::optional<NetcdfSize> netcdfSize(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return NetcdfHeader(file).fileSize();
}

} // namespace corvala::host::io::reader

// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/plot3d_source.h"

#include <QFile>
#include <QtEndian>

namespace corvala::host::io::reader {

class BinarySource : public Plot3DSource
{
public:
    BinarySource(const QString& path, const Plot3DLayout& layout)
        : m_file(path)
        , m_hasMarks(layout.byteCount.value_or(false))
        , m_bigEndian(layout.bigEndian.value_or(false))
        , m_realSize(layout.doublePrecision.value_or(false) ? 8 : 4)
    {
        m_good = m_file.open(QIODevice::ReadOnly);
    }

    bool readIntegers(std::size_t count, std::vector<std::int64_t>& values) override
    {
        const auto bytes = static_cast<std::int64_t>(count) * 4;
        m_good = m_good && bytes <= bytesLeft() && readMark(bytes);
        values.clear();
        for (std::size_t i = 0; m_good && i < count; ++i)
            values.push_back(readInteger());
        return m_good = m_good && readMark(bytes);
    }

    bool skip(std::int64_t reals, std::int64_t integers) override
    {
        const std::int64_t mostNumbers = bytesLeft() / 4;
        m_good = m_good && reals <= mostNumbers && integers <= mostNumbers;
        const std::int64_t bytes = reals * m_realSize + integers * 4;
        return m_good = m_good && readMark(bytes) && bytes <= bytesLeft()
            && m_file.seek(m_file.pos() + bytes) && readMark(bytes);
    }

    bool isAtEnd() const override { return m_good && m_file.atEnd(); }

private:
    std::int64_t bytesLeft() const { return m_file.size() - m_file.pos(); }

    std::int64_t readInteger()
    {
        char bytes[4] = {};
        m_good = m_good && m_file.read(bytes, 4) == 4;
        return m_bigEndian ? qFromBigEndian<qint32>(bytes) : qFromLittleEndian<qint32>(bytes);
    }

    bool readMark(std::int64_t bytes) { return !m_hasMarks || (readInteger() == bytes && m_good); }

    QFile m_file;
    bool m_hasMarks;
    bool m_bigEndian;
    int m_realSize;
    bool m_good;
};

class TextSource : public Plot3DSource
{
public:
    explicit TextSource(const Plot3DText& text)
        : m_text(text)
    {
    }

    bool readIntegers(std::size_t count, std::vector<std::int64_t>& values) override
    {
        const auto first = static_cast<std::size_t>(m_position);
        m_good = m_good && count <= m_text.leading.size() && first <= m_text.leading.size() - count;
        values.clear();
        if (m_good)
            values.assign(m_text.leading.begin() + m_position,
                          m_text.leading.begin() + m_position + static_cast<std::ptrdiff_t>(count));
        m_position += static_cast<std::int64_t>(count);
        return m_good;
    }

    bool skip(std::int64_t reals, std::int64_t integers) override
    {
        m_good = m_good && reals <= m_text.count && integers <= m_text.count
            && m_position <= m_text.count - reals - integers;
        m_position += m_good ? reals + integers : 0;
        return m_good;
    }

    bool isAtEnd() const override { return m_good && m_position == m_text.count; }

private:
    const Plot3DText& m_text;
    std::int64_t m_position = 0;
    bool m_good = true;
};

std::unique_ptr<Plot3DSource> binaryPlot3D(const QString& path, const Plot3DLayout& layout)
{
    return std::make_unique<BinarySource>(path, layout);
}

std::unique_ptr<Plot3DSource> textPlot3D(const Plot3DText& text)
{
    return std::make_unique<TextSource>(text);
}

} // namespace corvala::host::io::reader

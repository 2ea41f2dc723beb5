// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/file_bytes.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace corvala::host::io::reader {

/// How the files of an EnSight case are written.
struct EnSightCoding
{
    enum Kind { Text, Binary, RecordedBinary }; ///< the last with a byte count round each record

    Kind kind = Text;
    bool isBigEndian = false;
};

/// What can be a geometry file's coding, by its first bytes; the likely one first.
std::vector<EnSightCoding> codingsOf(const QString& path);

/// Lines and numbers of a data file of an EnSight case, which are the same in text and in binary.
/// All calls throw ReadFailure where the file does not hold what is asked for: nothing is handed
/// out that is not there, and no count is believed that does not fit the file.
class EnSightStream
{
public:
    static std::unique_ptr<EnSightStream> open(const QString& path, EnSightCoding coding);
    virtual ~EnSightStream() = default;

    QString path() const { return m_bytes.path(); }
    virtual bool isText() const = 0;
    qint64 position() const { return m_bytes.position(); }
    void seek(qint64 position) { m_bytes.seek(position); }

    /// The next line, whatever it says, without blanks around it.
    std::string line();
    /// The next line that says something; without a value at the end of the time step or file.
    std::optional<std::string> keyword();
    /// The next line is the only one of this content, or it is an error.
    void expect(const char* content);

    /// Throws unless that many numbers can follow.
    virtual void requireRoom(qint64 count) = 0;
    std::vector<std::int32_t> ints(qint64 count);
    std::int32_t oneInt() { return ints(1).front(); }
    /// A count of things that take at least one number each.
    qint64 count();
    void floats(float* target, qint64 count);
    std::vector<float> floats(qint64 count);

    /// From here on the file's steps end with a line that says so.
    void setStepped(bool stepped) { m_isStepped = stepped; }

    /// The file is not what the format says.
    [[noreturn]] void fail(const char* reason, std::initializer_list<QString> values = {}) const;

protected:
    explicit EnSightStream(const QString& path)
        : m_bytes(path)
    {
    }

    /// Without a value at the end of the file.
    virtual std::optional<std::string> nextLine() = 0;
    virtual bool isRemark(const std::string& line) const = 0;
    virtual void readInts(std::int32_t* target, qint64 count) = 0;
    virtual void readFloats(float* target, qint64 count) = 0;
    [[noreturn]] void failAtEnd(qint64 neededSize) const;

    FileBytes m_bytes;

private:
    bool m_isStepped = false;
};

} // namespace corvala::host::io::reader

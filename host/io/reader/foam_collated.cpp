// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/foam_collated.h"

#include "host/io/reader/foam_folders.h"
#include "host/io/reader/linked_copy.h"
#include "host/io/reader/read_failure.h"
#include "host/io/reader/vtk_messages.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <zlib.h>

namespace corvala::host::io::reader {

static constexpr qint64 kMostOfHeader = 1 << 16;
static const QLatin1String kPacked(".gz");

/// The blocks of a collated file, one for each processor.
class CollatedFile
{
public:
    explicit CollatedFile(const QString& path)
        : m_file(path)
    {
        static const QRegularExpression header(
            QStringLiteral("^\\s*FoamFile\\s*\\{[^{}]*class\\s+decomposedBlockData\\s*;[^{}]*\\}"),
            QRegularExpression::MultilineOption);
        if (!m_file.open(QIODevice::ReadOnly))
            return;
        const QString start = QString::fromLatin1(m_file.peek(kMostOfHeader));
        const QRegularExpressionMatch match = header.match(start);
        if (!match.hasMatch())
            return;
        m_isCollated = true;
        m_header = ownHeader(match.captured());
        m_file.seek(match.capturedEnd());
    }

    bool isCollated() const { return m_isCollated; }

    /// The next block as a file of its own; null behind the last one, and where one is cut off.
    QByteArray next()
    {
        const qint64 size = takeSize();
        if (size < 0 || size > m_file.size() - m_file.pos())
            return {};
        QByteArray block = m_file.read(size);
        char end = 0;
        if (!m_file.getChar(&end) || end != ')')
            return {};
        const QByteArray found = headerOf(block);
        if (!found.isEmpty())
            m_header = found;
        return found.isEmpty() ? m_header + block : block;
    }

private:
    /// Newer files say in front what the blocks are.
    static QByteArray ownHeader(const QString& text)
    {
        static const QRegularExpression ofData(QStringLiteral("\\bdata\\.(class|format)(\\s)"));
        if (!text.contains(ofData))
            return {};
        static const QRegularExpression outer(
            QStringLiteral("(?<!\\.)\\b(class|format)\\s+[^;]*;"));
        return QString(text).remove(outer).replace(ofData, QStringLiteral("\\1\\2")).toLatin1()
            + '\n';
    }

    static QByteArray headerOf(const QByteArray& block)
    {
        static const QRegularExpression header(QStringLiteral("^\\s*FoamFile\\s*\\{[^{}]*\\}\\n?"),
                                               QRegularExpression::MultilineOption);
        const auto match = header.match(QString::fromLatin1(block.left(kMostOfHeader)));
        return match.hasMatch() ? block.left(match.capturedEnd()) : QByteArray();
    }

    /// Goes behind the bracket in front of a block. Returns -1 when there is none.
    qint64 takeSize()
    {
        QByteArray number;
        bool isComment = false;
        for (char sign = 0; m_file.getChar(&sign);) {
            if (isComment || sign == '/') {
                isComment = sign != '\n';
            } else if (sign == '(') {
                bool isNumber = false;
                const qint64 size = number.toLongLong(&isNumber);
                return isNumber ? size : -1;
            } else if (sign >= '0' && sign <= '9') {
                number += sign;
            } else if (sign != ' ' && sign != '\n' && sign != '\r' && sign != '\t') {
                return -1;
            }
        }
        return -1;
    }

    QFile m_file;
    bool m_isCollated = false;
    QByteArray m_header; ///< of blocks that have none
};

/// The number of the processor whose data come first, of "processors4" and "processors8_4-7".
static int firstProcessor(const QString& folder)
{
    static const QRegularExpression range(QStringLiteral("_(\\d+)-\\d+$"));
    return range.match(folder).captured(1).toInt();
}

/// The file itself, or its content in a file of the helper folder.
static QString unpacked(const QString& path, const QDir& helper)
{
    if (!path.endsWith(kPacked))
        return path;
    constexpr int kPart = 1 << 20;
    QFile file(helper.filePath(QStringLiteral("unpacked")));
    bool isWritten = file.open(QIODevice::WriteOnly);
    QByteArray part(kPart, 0);
    const gzFile packed = gzopen(QFile::encodeName(path).constData(), "rb");
    for (int size = 0; packed && isWritten && (size = gzread(packed, part.data(), kPart)) > 0;)
        isWritten = file.write(part.constData(), size) == size;
    gzclose(packed);
    if (!isWritten || !file.flush())
        throw ReadFailure::ofFullDisk(helper.path());
    return file.fileName();
}

/// Whether there was anything to split.
static bool split(const QString& folder, const QDir& helper)
{
    bool isAny = false;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QString name = QDir(folder).relativeFilePath(files.next());
        const QString content = unpacked(files.filePath(), helper);
        if (name.endsWith(kPacked))
            name.chop(kPacked.size());
        CollatedFile file(content);
        isAny = isAny || file.isCollated();
        int processor = firstProcessor(folder);
        for (QByteArray block; file.isCollated() && !(block = file.next()).isNull(); ++processor)
            writeOwn(helper, QStringLiteral("processor%1/%2").arg(processor).arg(name), block);
        if (content != files.filePath())
            QFile::remove(content);
    }
    return isAny;
}

QString withSplitFiles(const QString& path, const QDir& helper)
{
    const FoamCollated collated = collatedFoldersOf(path);
    bool isAny = false;
    for (const QString& folder : collated.folders)
        isAny = split(folder, helper) || isAny;
    if (!isAny)
        return path;
    const QDir folder(collated.caseFolder);
    linkMissing(folder, helper);
    VtkMessages::showInstead(helper.path(), folder.path());
    return helper.filePath(folder.relativeFilePath(path));
}

} // namespace corvala::host::io::reader

// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/linked_copy.h"

#include "host/io/reader/read_failure.h"

#include <QFile>
#include <QFileInfo>

namespace corvala::host::io::reader {

void linkMissing(const QDir& folder, const QDir& copy)
{
    for (const QString& name : folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
        if (!copy.exists(name))
            QFile::link(folder.filePath(name), copy.filePath(name));
}

void writeOwn(const QDir& copy, const QString& relativePath, const QByteArray& content)
{
    for (int end = relativePath.indexOf('/'); end >= 0; end = relativePath.indexOf('/', end + 1)) {
        const QString folder = copy.filePath(relativePath.left(end));
        const QString target = QFileInfo(folder).symLinkTarget();
        if (!target.isEmpty())
            QFile::remove(folder);
        copy.mkpath(relativePath.left(end));
        if (!target.isEmpty())
            linkMissing(QDir(target), QDir(folder));
    }
    QFile file(copy.filePath(relativePath));
    if (QFileInfo(file).isSymLink())
        file.remove(); // not what it leads to
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush())
        throw ReadFailure::ofFullDisk(copy.path());
}

} // namespace corvala::host::io::reader

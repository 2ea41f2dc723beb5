// SPDX-License-Identifier: BSD-3-Clause
#include "host/storage/whole_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace corvala::host::storage {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(DocumentText)
};

static QString problem(const QString& file, const QString& reason)
{
    return Text::tr("%1 cannot be written: %2").arg(file, reason);
}

static QString lastError()
{
    return qt_error_string(errno);
}

QString readWhole(const QString& name, std::string& text)
{
    QFile file(name);
    const QFileInfo info(name);
    if (info.exists() && !info.isFile()) // a pipe would wait for ever
        return Text::tr("%1 cannot be read: it is no file").arg(name);
    if (!file.open(QIODevice::ReadOnly))
        return Text::tr("%1 cannot be read: %2").arg(name, file.errorString());
    text.resize(static_cast<std::size_t>(file.size()));
    const qint64 got = file.read(text.data(), file.size());
    if (got != file.size())
        return Text::tr("%1 cannot be read: %2").arg(name, file.errorString());
    return {};
}

/// Puts what was renamed in a folder on the disk.
static bool syncFolder(const QString& folder)
{
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY);
    if (descriptor < 0)
        return false;
    const bool done = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return done;
}

/// Permissions for a file that takes the place of another, or of none.
static mode_t permissionsFor(const QByteArray& file)
{
    struct stat status;
    if (::stat(file.constData(), &status) == 0)
        return status.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

/// The file behind symbolic links, also where it is not there yet.
static QString targetOf(const QString& file)
{
    constexpr int kMostLinks = 40;
    QString target = QFileInfo(file).absoluteFilePath();
    for (int i = 0; i < kMostLinks && QFileInfo(target).isSymLink(); ++i)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

/// Writes the text where the temporary file is, and all of it to the disk.
static bool writeAll(QTemporaryFile& file, const std::string& text)
{
    return file.write(text.data(), static_cast<qint64>(text.size()))
        == static_cast<qint64>(text.size())
        && file.flush() && ::fsync(file.handle()) == 0;
}

QString replaceWhole(const QString& file, const std::string& text)
{
    const QFileInfo target(targetOf(file));
    const QByteArray targetName = QFile::encodeName(target.filePath());
    if (target.isDir())
        return problem(file, Text::tr("it is a folder"));
    if (target.exists() && !target.isWritable())
        return problem(file, Text::tr("it is read-only"));
    QTemporaryFile written(target.absoluteDir().filePath(QStringLiteral(".corvala.XXXXXX")));
    if (!written.open())
        return problem(file, written.errorString());
    if (!writeAll(written, text))
        return problem(file,
                       written.error() != QFile::NoError ? written.errorString() : lastError());
    const bool isInPlace = ::fchmod(written.handle(), permissionsFor(targetName)) == 0
        && std::rename(QFile::encodeName(written.fileName()).constData(), targetName.constData())
            == 0;
    if (!isInPlace)
        return problem(file, lastError());
    written.setAutoRemove(false);
    if (!syncFolder(target.absolutePath()))
        return problem(file, lastError());
    return {};
}

} // namespace corvala::host::storage

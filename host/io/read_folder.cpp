// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/read_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace corvala::host::io {

static constexpr char kLockFile[] = ".corvala-read.lock";
static constexpr char kPrefix[] = "corvala-";
static constexpr int kMostTries = 10;

static QString lockIn(const QString& folder)
{
    return folder + QLatin1Char('/') + QLatin1String(kLockFile);
}

ReadFolder::ReadFolder()
{
    for (int i = 0; i < kMostTries && !isValid(); ++i)
        make();
}

ReadFolder::~ReadFolder()
{
    m_folder.reset();
    if (m_lock >= 0)
        close(m_lock);
}

/// Another program may take the folder for an abandoned one before the lock is set; then it is gone
/// when the lock is.
void ReadFolder::make()
{
    m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath() + QLatin1Char('/')
                                               + QLatin1String(kPrefix) + QLatin1String("XXXXXX"));
    if (!m_folder->isValid())
        return;
    const QByteArray file = QFile::encodeName(lockIn(m_folder->path()));
    const int lock = open(file.constData(), O_CREAT | O_RDWR | O_CLOEXEC, 0600);
    if (lock < 0)
        return;
    // Without locks, as on some network disks, nobody can take the folder for an abandoned one.
    const bool isTaken = flock(lock, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    struct stat status
    {
    };
    if (isTaken || fstat(lock, &status) != 0 || status.st_nlink == 0)
        close(lock);
    else
        m_lock = lock;
}

/// The lock goes last, so that what is removed in part only is still known for what it is.
static void removeFolder(const QString& path)
{
    const QDir folder(path);
    const auto kAll = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QFileInfo& entry : folder.entryInfoList(kAll)) {
        if (entry.isDir() && !entry.isSymLink())
            QDir(entry.filePath()).removeRecursively();
        else if (entry.fileName() != QLatin1String(kLockFile))
            QFile::remove(entry.filePath());
    }
    QDir(path).removeRecursively();
}

void removeAbandonedFolders(const QString& place)
{
    const QStringList names {QLatin1String(kPrefix) + QLatin1String("??????")};
    for (const QFileInfo& folder :
         QDir(place).entryInfoList(names, QDir::Dirs | QDir::NoSymLinks)) {
        if (folder.ownerId() != geteuid())
            continue;
        const QByteArray file = QFile::encodeName(lockIn(folder.filePath()));
        const int lock = open(file.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
        if (lock < 0)
            continue;
        if (flock(lock, LOCK_EX | LOCK_NB) == 0)
            removeFolder(folder.filePath());
        close(lock);
    }
}

} // namespace corvala::host::io

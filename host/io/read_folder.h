// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace corvala::host::io {

/// A private temporary folder for the files of one reading, which goes with this object. A lock in
/// it says that a program uses it; the lock ends with the program however that ends.
class ReadFolder
{
public:
    /// Makes the folder beside other temporary files.
    ReadFolder();
    ~ReadFolder();
    ReadFolder(const ReadFolder&) = delete;
    ReadFolder& operator=(const ReadFolder&) = delete;

    bool isValid() const { return m_lock >= 0; } ///< else the folder could not be made
    QString path() const { return m_folder->path(); }
    QString filePath(const QString& name) const { return m_folder->filePath(name); }

private:
    void make();

    std::unique_ptr<QTemporaryDir> m_folder;
    int m_lock = -1; ///< descriptor of the lock file
};

/// Removes the folders of this user in `place` that a program left behind when it was killed.
void removeAbandonedFolders(const QString& place);

} // namespace corvala::host::io

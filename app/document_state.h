// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/operations/operation.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <boost/signals2/connection.hpp>

#include <string>
#include <vector>

namespace corvala::app {

/// Tells contents of files apart: a checksum; empty for a file that cannot be read.
QByteArray contentOf(const QString& file);

/// Which file the open document is from, and whether it holds what that does not. Data that were
/// just opened in a document without a file are no work that could be lost; where one looks (views,
/// time, picks, the active frame) is none either. A document whose data are closed, or
/// replaced by those of other files, has no file any more: nobody means to replace a good one by
/// what is there then.
class DocumentState : public QObject
{
    Q_OBJECT

public:
    explicit DocumentState(QObject* parent = nullptr);

    const QString& file() const { return m_file; } ///< absolute path; empty without one
    bool isChanged() const;
    /// Whether another program wrote the file since this one did or read it. Reads the file.
    bool isFileChanged() const;

    /// The document is empty and has no file.
    void setNew();
    /// What was loaded differs from the file: the data were elsewhere, or did not fit.
    void setOtherThanSaved();
    /// The document was loaded from the file when that had this content, as of contentOf().
    void setContent(const QByteArray& content) { m_content = content; }

Q_SIGNALS:
    void changed();

private:
    void take(const host::Operation& operation);
    void setSaved(const QString& file); ///< the document is what the file has
    void notice(bool isClean);

    QString m_file;
    std::vector<std::string> m_data; ///< files and name of what was opened last
    QByteArray m_content; ///< of the file, as it was last read or written
    bool m_hasOtherData = false; ///< data or frames that came without an undo step
    bool m_hasLostSteps = false; ///< changes that cannot be undone any more
    boost::signals2::scoped_connection m_connection;
    boost::signals2::scoped_connection m_saved;
};

} // namespace corvala::app

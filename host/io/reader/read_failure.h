// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/text_preview.h"

#include <QCoreApplication>
#include <QString>

#include <initializer_list>

namespace corvala::host::io::reader {

/// Thrown when a file cannot be read: the file and the reason, which ends the program.
struct ReadFailure
{
    ReadFailure(const QString& failedFile, const char* reason,
                std::initializer_list<QString> values = {})
        : file(failedFile)
        , message(reason, values)
    {
    }

    ReadFailure(const QString& failedFile, const ReadMessage& reason)
        : file(failedFile)
        , message(reason)
    {
    }

    /// Temporary files cannot be written in `folder`.
    static ReadFailure ofFullDisk(const QString& folder)
    {
        return {{},
                QT_TRANSLATE_NOOP("ReadMessage",
                                  "no temporary files can be written in %1; its disk may be full"),
                {folder}};
    }

    QString file; ///< empty for the one that is being read
    ReadMessage message;
    BadRows badRows {}; ///< without which the file can be read
};

} // namespace corvala::host::io::reader

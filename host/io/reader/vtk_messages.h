// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_message.h"

#include <QStringList>

namespace corvala::host::io::reader {

/// Collects what VTK reports as errors and warnings, instead of printing it.
class VtkMessages
{
public:
    VtkMessages(); ///< installs itself for the whole program; there is one

    /// First error since the last call that says something, in words of our own where they are
    /// known; empty when there was none. Later errors mostly follow from the first.
    static ReadMessage takeError();
    /// What can be said when no more is known.
    static ReadMessage damaged();
    /// From now on, messages name `folder` in place of a temporary one.
    static void showInstead(const QString& temporary, const QString& folder);
    /// A text in which that is done.
    static QString shown(QString text);
    /// Distinct warnings since the last call.
    static QStringList takeWarnings();
    /// Forgets warnings about what was noted in other words.
    static void forgetWarnings(const QString& containing);
};

} // namespace corvala::host::io::reader

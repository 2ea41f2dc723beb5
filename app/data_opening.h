// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/io/data_reader.h"

#include <QObject>
#include <QStringList>

namespace corvala::app {

/// What to tell the user about data that were read.
struct OpenedData
{
    QString error; ///< names the file and the reason; empty on success
    QStringList notes; ///< what the reader dropped or guessed
};

/// Reads data into the active frame and waits. On failure the document is as it was.
OpenedData openAndWait(const host::io::ReadRequest& request);

/// Reads data into the active frame while the program goes on.
class DataOpener : public QObject
{
    Q_OBJECT

public:
    explicit DataOpener(QObject* parent = nullptr);

    /// Ignored while a reading runs.
    void start(const host::io::ReadRequest& request);
    void cancel() { m_reader.cancel(); }
    bool isRunning() const { return m_reader.isRunning(); }
    const host::io::ReadRequest& request() const { return m_request; }

Q_SIGNALS:
    void started();
    /// `percent` is 0 to 100, or -1 when unknown.
    void progress(int percent, const QString& what);
    /// The result of a reading that was not cancelled; `ended` follows.
    void opened(const corvala::host::io::ReadResult& result);
    void failed(const QString& error);
    /// How a table of text would be read; `ended` follows.
    void previewed(const corvala::host::io::TextPreview& preview);
    /// A table that can be read without some of its rows; `ended` follows.
    void badRowsMet(const corvala::host::io::ReadResult& result);
    void ended(bool opened);

private:
    void take(const host::io::ReadResult& result);

    host::io::DataReader m_reader;
    host::io::ReadRequest m_request;
};

} // namespace corvala::app

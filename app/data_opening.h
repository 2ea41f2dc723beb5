// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/io/data_reader.h"
#include "host/operations/operation.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace corvala::app {

/// What to tell the user about data that were read.
struct OpenedData
{
    QString error; ///< names the file and the reason; empty on success
    QStringList notes; ///< what the reader dropped or guessed, and what it offers
};

/// Where the data of a request come from, as it is kept.
host::DataOrigin originOf(const host::io::ReadRequest& request);
/// The request that reads such data again; `problem` gets what is wrong with the origin.
host::io::ReadRequest requestOf(const host::DataOrigin& origin, QString& problem);
/// Embedded data; null, with the problem, when there are none such.
std::shared_ptr<host::DataSet> embeddedData(const host::DataOrigin& origin, QString& problem);
/// Reads data and waits, embedded data too; null, with the problem, on failure.
std::shared_ptr<host::DataSet> readAndWait(const host::DataOrigin& origin, QString& problem);

/// What becomes of data that are read.
enum class DataUse {
    Replace, ///< those of the active frame
    Add ///< to those of the active frame, if it has some
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
    void start(const host::io::ReadRequest& request, DataUse use = DataUse::Replace);
    /// Reads without giving the data to a frame: one request after the other, then hands over all
    /// results. Nothing is handed over when one fails.
    using Taker = std::function<bool(const std::vector<host::io::ReadResult>& results)>;
    void start(std::vector<host::io::ReadRequest> requests, Taker taker);
    void cancel() { m_reader.cancel(); }
    bool isRunning() const { return m_reader.isRunning(); }
    const host::io::ReadRequest& request() const { return m_request; }
    DataUse use() const { return m_use; }

Q_SIGNALS:
    void started();
    /// `percent` is 0 to 100, or -1 when unknown.
    void progress(int percent, const QString& what);
    /// The result of a reading that was not cancelled; `ended` follows.
    /// `look`: what one may wonder at in what is seen at first, one sentence each.
    void opened(const corvala::host::io::ReadResult& result, const QStringList& look);
    void failed(const QString& error);
    /// How a table of text would be read; `ended` follows.
    void previewed(const corvala::host::io::TextPreview& preview);
    /// A table that can be read without some of its rows; `ended` follows.
    void badRowsMet(const corvala::host::io::ReadResult& result);
    void ended(bool opened);

private:
    void take(const host::io::ReadResult& result);
    void readNext();

    host::io::DataReader m_reader;
    host::io::ReadRequest m_request; ///< that is read, or was read last
    DataUse m_use = DataUse::Replace;
    // Of a reading for somebody else.
    std::vector<host::io::ReadRequest> m_requests;
    std::vector<host::io::ReadResult> m_results;
    Taker m_taker; ///< empty: the data go to the active frame
};

} // namespace corvala::app

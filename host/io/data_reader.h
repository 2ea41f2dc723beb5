// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"
#include "host/io/read_request.h"
#include "host/io/text_preview.h"

#include <QMetaType>
#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace corvala::host::io {

struct ReadResult
{
    std::shared_ptr<DataSet> data; ///< null on failure, and for a preview
    QStringList noteGroups; ///< the notes of the data, one sentence for each kind
    ReadOffers offers; ///< what would come of choices that were not made
    bool cancelled = false;
    QString error; ///< one sentence naming the file and the reason; empty on success
    std::optional<Plot3DLayout> detectedPlot3D; ///< every field filled in, for Plot3D files
    std::optional<TextDialect> detectedText; ///< for tables of text
    std::optional<TextPreview> preview; ///< instead of data, as the request says
    qint64 badRowCount = 0; ///< of a table that can be read without them
    QStringList badRows; ///< some of these, with line and column
};

/// Reads data files in a child process, so that the caller stays responsive, can cancel, and
/// survives files that crash a reader. Lives on the thread of the event loop it was made in.
class DataReader : public QObject
{
    Q_OBJECT

public:
    explicit DataReader(QObject* parent = nullptr);
    ~DataReader() override; ///< ends a running child

    /// Starts reading; `finished` follows exactly once, also after cancel. One reading at a time: a
    /// call while one runs is ignored.
    void start(const ReadRequest& request);
    void cancel();
    bool isRunning() const;
    qint64 processId() const; ///< of the running child, else 0

    /// Reads and waits, running a local event loop. For the command line and tests.
    static ReadResult read(const ReadRequest& request);

    /// Path of the reading program: beside the running program, in its libexec folder, or as the
    /// environment variable CORVALA_READ says. Empty when there is none.
    static QString readerProgram();

    /// File name filters for an open dialog, ";;"-separated.
    static QString nameFilters();

Q_SIGNALS:
    /// `percent` is 0 to 100, or -1 when unknown.
    void progress(int percent, const QString& what);
    void finished(const corvala::host::io::ReadResult& result);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace corvala::host::io

Q_DECLARE_METATYPE(corvala::host::io::ReadResult)

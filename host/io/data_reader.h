// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace corvala::host::io {

/// How a Plot3D file is laid out; the reader detects what is left empty.
struct Plot3DLayout
{
    std::optional<bool> ascii;
    std::optional<bool> multiGrid;
    std::optional<bool> iblank;
    std::optional<bool> byteCount; ///< Fortran record marks
    std::optional<bool> bigEndian;
    std::optional<bool> doublePrecision;
    std::optional<bool> twoDimensional;
};

struct ReadRequest
{
    QStringList files; ///< opened together as one data set
    Plot3DLayout plot3d;
};

struct ReadResult
{
    std::shared_ptr<DataSet> data; ///< null on failure
    bool cancelled = false;
    QString error; ///< one sentence naming the file and the reason; empty on success
    std::optional<Plot3DLayout> detectedPlot3D; ///< every field filled in, for Plot3D files
};

/// Reads data files in a child process, so that the caller stays responsive, can cancel, and
/// survives files that crash a reader. Lives on the thread of the event loop it was made in.
class DataReader : public QObject
{
    Q_OBJECT

public:
    explicit DataReader(QObject* parent = nullptr);
    ~DataReader() override; ///< ends a running child

    /// Starts reading; `finished` follows exactly once, also after cancel. One reading at a time.
    void start(const ReadRequest& request);
    void cancel();
    bool isRunning() const;

    /// Reads and waits, running a local event loop. For the command line and tests.
    static ReadResult read(const ReadRequest& request);

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

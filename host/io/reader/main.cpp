// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/one_thread.h"
#include "host/io/read_folder.h"
#include "host/io/reader/channel.h"
#include "host/io/reader/data_set_builder.h"
#include "host/io/reader/open_files.h"
#include "host/io/reader/rare_things.h"
#include "host/io/reader/read_failure.h"
#include "host/io/reader/resource_limits.h"
#include "host/io/reader/text/table_preview.h"
#include "host/io/reader/vtk_messages.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

#include <clocale>
#include <cstdio>
#include <cstring>
#include <exception>
#include <new>

using namespace corvala::host::io;

static std::optional<ReadRequest> loadRequest(const QDir& folder)
{
    QFile file(folder.filePath(QString::fromLatin1(kRequestFile)));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return requestFromJson(file.readAll().toStdString());
}

static void store(const QDir& folder, const char* name, const std::string& json)
{
    QFile file(folder.filePath(QString::fromLatin1(name)));
    const QByteArray text = QByteArray::fromStdString(json);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
        throw reader::ReadFailure::ofFullDisk(folder.path());
}

static void storeData(const QDir& folder, const ReadRequest& request,
                      const reader::OpenedFiles& opened, std::int64_t memoryBytes,
                      reader::Channel& channel)
{
    reader::DataSetBuilder builder(folder.path(), channel, memoryBytes);
    DataSetIndex index = builder.build(opened.files);
    index.offers.numberedFiles = opened.numbered;
    for (const QString& file : request.files)
        index.data.files.push_back(file.toStdString());
    store(folder, kIndexFile, toJson(index));
}

static void readAll(const QDir& folder, const ReadRequest& request, std::int64_t memoryBytes,
                    reader::Channel& channel)
{
    removeAbandonedFolders(QFileInfo(folder.path()).path());
    const auto preview = [&](const QString& file) {
        store(folder, kPreviewFile, toJson(reader::previewOf(file, request.text)));
    };
    if (request.purpose == ReadPurpose::Preview)
        return preview(request.files.first());
    const reader::OpenedFiles opened = reader::openFiles(request, folder, channel);
    for (const auto& file : opened.files)
        if (request.purpose == ReadPurpose::DataIfSure && !file->isSure())
            return preview(file->path());
    storeData(folder, request, opened, memoryBytes, channel);
}

/// Reads as `folder` asks. Returns the exit code.
static int run(const QDir& folder, const ReadRequest& request)
{
    reader::Channel channel;
    const std::int64_t memory = reader::limitResources(request.limits.memoryBytes);
    try {
        readAll(folder, request, memory, channel);
        return 0;
    } catch (const reader::ReadFailure& failure) {
        channel.fail(failure);
    } catch (const std::bad_alloc&) {
        const double gibibytes = static_cast<double>(memory) / (1 << 30);
        channel.fail({{},
                      QT_TRANSLATE_NOOP("ReadMessage",
                                        "it needs more than %1 GiB of memory, which is the limit"),
                      {QString::number(gibibytes, 'g', 3)}});
    } catch (const std::exception&) { // of a library, about itself
        channel.fail({{}, reader::VtkMessages::damaged()});
    }
    return 1;
}

/// For the message about a reading that crashed.
static int tellReasonOfCrash(const QString& path)
{
    reader::Channel().report(path, -1, reader::reasonOfCrash(path));
    return 0;
}

int main(int argumentCount, char** arguments)
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    setlocale(LC_NUMERIC, "C");
    if (argumentCount == 3 && std::strcmp(arguments[1], kReasonOfCrash) == 0)
        return tellReasonOfCrash(QString::fromUtf8(arguments[2]));
    const QDir folder(QString::fromUtf8(argumentCount == 2 ? arguments[1] : ""));
    const std::optional<ReadRequest> request =
        argumentCount == 2 ? loadRequest(folder) : std::nullopt;
    if (!request) {
        std::fputs("usage: corvala-read FOLDER | --reason-of-crash FILE\n"
                   "Reads data files for corvala, which writes the request into FOLDER.\n",
                   stderr);
        return 2;
    }
    runVtkInOneThread();
    const reader::VtkMessages messages;
    return run(folder, *request);
}

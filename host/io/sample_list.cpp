// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/sample_list.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <functional>

namespace corvala::host::io {

QString samplesFolder()
{
    const QString installed =
        QCoreApplication::applicationDirPath() + QStringLiteral("/../share/corvala/samples");
    return QFileInfo::exists(installed + QStringLiteral("/samples.json"))
        ? QDir::cleanPath(installed)
        : QStringLiteral(CORVALA_SAMPLES_DIR);
}

static Sample sampleFrom(const nlohmann::json& value, const QDir& folder)
{
    Sample sample;
    sample.title = QString::fromStdString(value.at("title").get<std::string>());
    sample.licence = QString::fromStdString(value.at("licence").get<std::string>());
    for (const nlohmann::json& file : value.at("files"))
        sample.files << folder.absoluteFilePath(QString::fromStdString(file.get<std::string>()));
    return sample;
}

static bool isComplete(const Sample& sample)
{
    return std::all_of(sample.files.begin(), sample.files.end(),
                       [](const QString& file) { return QFile::exists(file); });
}

std::vector<Sample> sampleList()
{
    const QDir folder(samplesFolder());
    QFile list(folder.filePath(QStringLiteral("samples.json")));
    if (!list.open(QIODevice::ReadOnly))
        return {};
    std::vector<Sample> result;
    try {
        for (const nlohmann::json& value : nlohmann::json::parse(list.readAll().toStdString()))
            result.push_back(sampleFrom(value, folder));
    } catch (const nlohmann::json::exception& fault) {
        qWarning("%s: %s", qPrintable(list.fileName()), fault.what());
    }
    result.erase(std::remove_if(result.begin(), result.end(), std::not_fn(isComplete)),
                 result.end());
    return result;
}

} // namespace corvala::host::io

// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/foam_folders.h"

#include "host/io/reader/file_format.h"
#include "host/io/reader/read_failure.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>

#include <map>
#include <set>

namespace corvala::host::io::reader {

/// The files of fields in the folder of each time, without the ending of packed ones.
using Results = std::map<QString, std::set<QString>>;

/// The folder of a case, which holds the folders "constant" and "system".
static QDir caseFolder(const QString& path)
{
    QDir folder = QFileInfo(path).dir();
    if (QFileInfo(path).fileName() == QLatin1String("controlDict"))
        folder.cdUp();
    return folder;
}

/// Of the whole domain or of a region. The folder of a mesh may hold no more than how to make it.
static bool hasMesh(const QDir& folder)
{
    QDirIterator faces(folder.filePath(QStringLiteral("constant")), {QStringLiteral("faces*")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (faces.hasNext())
        if (QFileInfo(faces.next()).dir().dirName() == QLatin1String("polyMesh"))
            return true;
    return false;
}

static Results resultsIn(const QString& path)
{
    const QDir folder(path);
    Results results;
    for (const QString& name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        bool isTime = false;
        name.toDouble(&isTime);
        if (!isTime)
            continue;
        std::set<QString>& fields = results[name];
        const QDir time(folder.filePath(name));
        QDirIterator files(time.path(), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QString field = time.relativeFilePath(files.next());
            if (files.fileInfo().size() == 0)
                continue;
            const bool isOther = field.startsWith(QLatin1String("uniform/"))
                || field.contains(QLatin1String("polyMesh/"));
            if (field.endsWith(QLatin1String(".gz")))
                field.chop(3);
            if (!isOther)
                fields.insert(field);
        }
    }
    return results;
}

/// The times and fields that are in `some` but not in `others`.
static QStringList lacking(const Results& some, const Results& others)
{
    QStringList result;
    for (const auto& [time, fields] : some) {
        const auto there = others.find(time);
        if (there == others.end() && !fields.empty())
            result << time;
        else
            for (const QString& field : fields)
                if (there->second.count(field) == 0)
                    result << time + QLatin1Char('/') + field;
    }
    return result;
}

/// By number.
static QStringList foldersLike(const QDir& folder, const char* pattern)
{
    const QRegularExpression expression(
        QRegularExpression::anchoredPattern(QString::fromLatin1(pattern)));
    std::map<int, QString> found;
    for (const QString& name : folder.entryList(QDir::Dirs)) {
        const QRegularExpressionMatch match = expression.match(name);
        if (match.hasMatch())
            found[match.captured(1).toInt()] = folder.filePath(name);
    }
    QStringList result;
    for (const auto& [number, path] : found)
        result << path;
    return result;
}

/// Clouds may have particles in some of the processors only.
static bool isOfCloud(const QString& name)
{
    return name.contains(QLatin1String("lagrangian/"));
}

static QStringList withMesh(const QStringList& processors, FoamFolders& result)
{
    QStringList found;
    for (const QString& processor : processors) {
        if (hasMesh(QDir(processor))) {
            found << processor;
            continue;
        }
        result.withoutMesh << processor;
        result.notes.emplace_back(
            QT_TRANSLATE_NOOP("ReadMessage", "%1 was left out: there is no mesh in it."),
            std::initializer_list<QString> {QDir(processor).dirName()});
    }
    return found;
}

/// What the pieces do not all have is not shown, since VTK joins them.
static void noteGaps(const QStringList& processors, FoamFolders& result)
{
    Results all;
    std::vector<Results> each;
    for (const QString& processor : processors) {
        each.push_back(resultsIn(processor));
        for (const auto& [time, fields] : each.back())
            all[time].insert(fields.begin(), fields.end());
    }
    std::set<QString> noted;
    for (std::size_t i = 0; i < each.size(); ++i)
        for (const QString& name : lacking(all, each[i]))
            if (!isOfCloud(name) && noted.insert(name).second)
                result.notes.emplace_back(
                    QT_TRANSLATE_NOOP("ReadMessage", "%1 was left out: %2 does not have it."),
                    std::initializer_list<QString> {
                        name, QDir(processors[static_cast<int>(i)]).dirName()});
}

static void noteElsewhere(const QStringList& names, const QString& folder, FoamFolders& result)
{
    for (const QString& name : names)
        result.notes.emplace_back(
            QT_TRANSLATE_NOOP("ReadMessage", "%1 was left out: only %2 has it."),
            std::initializer_list<QString> {name, folder});
}

/// What the header of a field says that it is; empty for packed files.
static QString objectIn(const QString& path)
{
    static const QRegularExpression object(QStringLiteral("\\bobject\\s+([^\\s;]+)\\s*;"));
    constexpr int kLongestHeader = 2048;
    return object.match(QString::fromLatin1(firstBytes(path, kLongestHeader))).captured(1);
}

/// VTK names fields by what they say that they are, so that the last of several takes the place of
/// the others, such as U.orig that of U.
static void noteCopies(const QString& folder, FoamFolders& result)
{
    for (const auto& [time, fields] : resultsIn(folder)) {
        std::map<QString, QStringList> files;
        for (const QString& field : fields) {
            const QString path = time + QLatin1Char('/') + field;
            const QString object = objectIn(QDir(folder).filePath(path));
            if (!object.isEmpty() && !isOfCloud(field))
                files[QFileInfo(path).path() + QLatin1Char('/') + object] << path;
        }
        for (const auto& [object, paths] : files)
            if (paths.size() > 1)
                result.notes.emplace_back(
                    QT_TRANSLATE_NOOP("ReadMessage",
                                      "%1: all of them say that they are %2; one is shown."),
                    std::initializer_list<QString> {paths.join(QStringLiteral(", ")),
                                                    QFileInfo(object).fileName()});
    }
}

/// Fields of the first time may be those that the run began with; later ones go on.
static void noteMissing(const QString& folder, FoamFolders& result)
{
    std::map<double, std::pair<QString, std::set<QString>>> steps;
    for (const auto& [time, fields] : resultsIn(folder))
        steps[time.toDouble()] = {time, fields};
    std::set<QString> known;
    bool isFirst = true;
    for (const auto& [value, step] : steps) {
        const auto& [time, fields] = step;
        for (const QString& field : known) {
            if (fields.count(field) > 0)
                continue;
            const QString path = time + QLatin1Char('/') + field;
            const ReadMessage reason(
                QDir(folder).exists(path)
                    ? QT_TRANSLATE_NOOP("ReadMessage", "it is empty")
                    : QT_TRANSLATE_NOOP("ReadMessage", "there is no such file"));
            result.notes.emplace_back(
                QT_TRANSLATE_NOOP("ReadMessage", "%1 was left out at time %4: %2: %3."),
                std::initializer_list<QString> {field, path, reason.asArgument(), time});
        }
        for (const QString& field : fields)
            if (!isFirst && !isOfCloud(field))
                known.insert(field);
        isFirst = false;
    }
}

static QStringList collatedIn(const QDir& folder)
{
    return foldersLike(folder, "processors\\d+(?:_(\\d+)-\\d+)?");
}

FoamCollated collatedFoldersOf(const QString& path)
{
    const QDir folder = caseFolder(path);
    FoamCollated result {folder.path(), collatedIn(folder)};
    const QStringList processors = foldersLike(folder, "processor(\\d+)");
    const bool areOthers = !processors.isEmpty() && hasMesh(QDir(processors.first()));
    const bool isNeeded = !result.folders.isEmpty() && !areOthers
        && hasMesh(QDir(result.folders.first()))
        && (!hasMesh(folder)
            || !lacking(resultsIn(result.folders.first()), resultsIn(folder.path())).isEmpty());
    if (!isNeeded)
        result.folders.clear();
    return result;
}

FoamFolders foamFoldersOf(const QString& path)
{
    const QDir folder = caseFolder(path);
    const QStringList processors = foldersLike(folder, "processor(\\d+)");
    const QStringList collated = collatedIn(folder);
    const Results own = hasMesh(folder) ? resultsIn(folder.path()) : Results();
    FoamFolders result;
    if (!processors.isEmpty() && hasMesh(QDir(processors.first()))) {
        const Results first = resultsIn(processors.first());
        result.isDecomposed = !hasMesh(folder) || !lacking(first, own).isEmpty();
        if (result.isDecomposed) {
            noteGaps(withMesh(processors, result), result);
            noteElsewhere(lacking(own, first), QStringLiteral("the case folder"), result);
            noteMissing(processors.first(), result);
            noteCopies(processors.first(), result);
            return result;
        }
    }
    noteMissing(folder.path(), result);
    noteCopies(folder.path(), result);
    if (collated.isEmpty())
        return result;
    const QString name = QDir(collated.first()).dirName();
    if (!hasMesh(folder))
        throw ReadFailure(
            path,
            QT_TRANSLATE_NOOP("ReadMessage",
                              "%1 has the files of several processors in one (collated), which "
                              "cannot be read; reconstruct the case, or write it uncollated"),
            {name});
    noteElsewhere(lacking(resultsIn(collated.first()), own), name, result);
    return result;
}

} // namespace corvala::host::io::reader

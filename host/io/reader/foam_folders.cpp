// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/foam_folders.h"

#include "host/io/reader/file_format.h"
#include "host/io/reader/linked_copy.h"
#include "host/io/reader/read_failure.h"
#include "host/io/reader/vtk_messages.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
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

static constexpr int kLongestHeader = 2048;

/// What the header of a field says that it is.
static QRegularExpressionMatch objectIn(const QByteArray& text)
{
    static const QRegularExpression object(QStringLiteral("\\bobject\\s+([^\\s;]+)\\s*;"));
    return object.match(QString::fromLatin1(text.left(kLongestHeader)));
}

/// Of the files in a folder of times; packed ones say nothing.
static std::vector<FoamCopy> copiesIn(const QDir& caseFolder, const QString& folder)
{
    std::vector<FoamCopy> copies;
    for (const auto& [time, fields] : resultsIn(folder)) {
        std::map<QString, std::vector<FoamCopy>> files;
        for (const QString& field : fields) {
            const QString path = QDir(folder).filePath(time + QLatin1Char('/') + field);
            const QString object = objectIn(firstBytes(path, kLongestHeader)).captured(1);
            if (!object.isEmpty() && !isOfCloud(field))
                files[QFileInfo(field).path() + QLatin1Char('/') + object].push_back(
                    {caseFolder.relativeFilePath(path), object});
        }
        for (const auto& [object, same] : files)
            for (const FoamCopy& file : same)
                if (same.size() > 1 && QFileInfo(file.path).fileName() != file.object)
                    copies.push_back(file);
    }
    return copies;
}

static void noteCopies(FoamFolders& result)
{
    for (const FoamCopy& copy : result.copies)
        result.notes.emplace_back(
            QT_TRANSLATE_NOOP("ReadMessage",
                              "%1 says that it is %2, as another file does; it is shown as %3."),
            std::initializer_list<QString> {copy.path, copy.object,
                                            QFileInfo(copy.path).fileName()});
}

QString withOwnNames(const QString& path, const std::vector<FoamCopy>& copies, const QDir& helper)
{
    if (copies.empty())
        return path;
    const QDir folder = caseFolder(path);
    if (folder != helper) {
        linkMissing(folder, helper);
        VtkMessages::showInstead(helper.path(), folder.path());
    }
    for (const FoamCopy& copy : copies) {
        QFile file(folder.filePath(copy.path));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        QByteArray content = file.readAll();
        const QRegularExpressionMatch object = objectIn(content);
        content.replace(object.capturedStart(1), object.capturedLength(1),
                        QFileInfo(copy.path).fileName().toLatin1());
        writeOwn(helper, copy.path, content);
    }
    return helper.filePath(folder.relativeFilePath(path));
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
            const QStringList sound = withMesh(processors, result);
            noteGaps(sound, result);
            noteElsewhere(lacking(own, first), QStringLiteral("the case folder"), result);
            noteMissing(processors.first(), result);
            for (const QString& processor : sound)
                for (const FoamCopy& copy : copiesIn(folder, processor))
                    result.copies.push_back(copy);
            noteCopies(result);
            return result;
        }
    }
    noteMissing(folder.path(), result);
    result.copies = copiesIn(folder, folder.path());
    noteCopies(result);
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

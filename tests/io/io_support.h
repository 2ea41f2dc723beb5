// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/data_reader.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <vtkDataArray.h>
#include <vtkDataSet.h>

namespace corvala::host::io {

/// A folder for made-up data files. Temporary folders of readers lie in it too, so that a test sees
/// what they leave behind.
class DataFolder
{
public:
    DataFolder()
        : m_folder(usualTempPath() + QStringLiteral("/data-XXXXXX"))
    {
        QDir(m_folder.path()).mkdir(QStringLiteral("tmp"));
        qputenv("TMPDIR", QFile::encodeName(m_folder.filePath(QStringLiteral("tmp"))));
#ifdef CORVALA_READ
        qputenv("CORVALA_READ", CORVALA_READ);
#endif
    }

    QString path(const QString& name) const
    {
        return m_folder.filePath(name);
    }

    /// Returns the path of the file.
    QString write(const QString& name, const QByteArray& content) const
    {
        QFileInfo(path(name)).dir().mkpath(QStringLiteral("."));
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("%s cannot be written", qPrintable(file.fileName()));
        return file.fileName();
    }

    /// Copies a folder of the samples, if wanted under another name; returns the path of the copy.
    QString copySample(const QString& name, const QString& copyName = {}) const
    {
        const QString target = copyName.isEmpty() ? name : copyName;
        const QDir source(sample(name));
        QDirIterator files(source.path(), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly))
                qFatal("%s cannot be read", qPrintable(file.fileName()));
            write(target + QLatin1Char('/') + source.relativeFilePath(file.fileName()),
                  file.readAll());
        }
        return path(target);
    }

    static QString sample(const QString& name)
    {
        return QStringLiteral(CORVALA_SOURCE_DIR "/samples/data/") + name;
    }

    QStringList leftovers() const
    {
        return QDir(path(QStringLiteral("tmp"))).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

private:
    static QString usualTempPath()
    {
        static const QString path = QDir::tempPath();
        return path;
    }

    QTemporaryDir m_folder;
};

/// A collection (.pvd) of those entries.
inline QByteArray collection(const QByteArray& entries)
{
    return "<VTKFile type=\"Collection\"><Collection>" + entries + "</Collection></VTKFile>";
}

/// A legacy VTK file.
inline QByteArray legacy(const QByteArray& body)
{
    return "# vtk DataFile Version 3.0\ntitle\nASCII\n" + body;
}

/// As QSKIP, which clang does not take under -Wpedantic; the caller returns.
inline void skip(const char* reason, int line)
{
    QTest::qSkip(reason, __FILE__, line);
}

inline ReadResult read(const QStringList& files, const Plot3DLayout& layout = {})
{
    ReadRequest request;
    request.files = files;
    request.plot3d = layout;
    return DataReader::read(request);
}

/// What must be readable.
inline std::shared_ptr<const DataSet> dataOf(const QStringList& files)
{
    const ReadResult result = read(files);
    if (!result.data)
        qFatal("%s", qPrintable(result.error));
    return result.data;
}

inline QStringList zoneNames(const DataSet& data)
{
    QStringList names;
    for (const ZoneInfo& zone : data.zones)
        names << QString::fromStdString(zone.name);
    return names;
}

/// Of the files, without what follows from them.
inline QStringList variableNames(const DataSet& data)
{
    QStringList names;
    for (const Variable& variable : data.variables)
        if (!variable.isMagnitude())
            names << QString::fromStdString(variable.name);
    return names;
}

/// All values of a variable in a zone; empty where it has none.
inline QVector<double> values(const DataSet& data, std::int64_t zone, const QString& variable)
{
    const int number = variableNames(data).indexOf(variable) + 1;
    const ZoneValues found = data.values(zone, number);
    QVector<double> result;
    for (vtkIdType i = 0; found.array && i < found.array->GetNumberOfTuples(); ++i)
        result << found.array->GetComponent(i, 0);
    return result;
}

} // namespace corvala::host::io

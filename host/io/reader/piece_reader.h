// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/data_file.h"
#include "host/io/reader/read_failure.h"
#include "host/io/reader/xml_kind.h"
#include "host/io/reader/xml_pieces.h"

#include <QDir>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>

class vtkXMLReader;

namespace corvala::host::io::reader {

class LegacyLayout;

/// Reads files of VTK's formats with the files that they name. What of them cannot be read is left
/// out with a note.
class PieceReader
{
public:
    /// Notes name files as seen from the folder of `mainFile`.
    explicit PieceReader(const QString& mainFile);

    /// A legacy or XML file, or a surface in one of the formats for these. Throws ReadFailure when
    /// nothing of it can be read.
    vtkSmartPointer<vtkDataObject> read(const QString& path, const ProgressCall& progress);
    /// Notes that a file was left out.
    void leaveOut(const ReadFailure& failure);

    std::optional<double> time; ///< that the next notes tell, in series of files
    std::vector<ReadMessage> notes;

private:
    vtkSmartPointer<vtkDataObject> readOne(const QString& path, const ProgressCall& progress);
    vtkSmartPointer<vtkDataObject> readSurface(const QString& path, const ProgressCall& progress);
    vtkSmartPointer<vtkDataObject> readLegacy(const QString& path, const ProgressCall& progress);
    vtkSmartPointer<vtkDataObject> readDamagedLegacy(const LegacyLayout& layout,
                                                     const QString& path,
                                                     const ProgressCall& progress);
    vtkSmartPointer<vtkDataObject> readXml(const QString& path, const ProgressCall& progress);
    vtkSmartPointer<vtkDataObject> readWhole(const QString& path, const XmlKind& kind,
                                             const ProgressCall& progress);
    vtkSmartPointer<vtkDataObject> readSerial(const QString& path, const XmlKind& kind,
                                              const ProgressCall& progress);
    vtkSmartPointer<vtkDataObject> readParallel(const QString& path, const XmlKind& kind,
                                                const ProgressCall& progress);
    vtkSmartPointer<vtkDataObject> readTree(const QString& path, const ProgressCall& progress);
    vtkSmartPointer<vtkDataObject> readNode(const PieceNode& node, const ProgressCall& progress);
    void leaveOutArray(const QString& path, const QString& array, const ReadFailure& failure);
    void noteLeftOver(const QString& path, const QString& reason);
    QString shortName(const QString& path) const;

    QString m_mainFile;
    QDir m_folder;
    QStringList m_open; ///< files that name each other
    std::map<int, vtkSmartPointer<vtkXMLReader>> m_readers; ///< of whole serial files, by type
};

} // namespace corvala::host::io::reader

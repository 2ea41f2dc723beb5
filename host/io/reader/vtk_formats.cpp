// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/algorithm_file.h"
#include "host/io/reader/file_time.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/piece_reader.h"
#include "host/io/reader/vtk_messages.h"
#include "host/io/reader/xml_kind.h"

#include <QFile>

#include <vtkXMLGenericDataObjectReader.h>
#include <vtkXMLReader.h>

namespace corvala::host::io::reader {

/// Files whose parts are read one by one.
class PieceFile : public DataFile
{
public:
    explicit PieceFile(const QString& path)
        : m_path(path)
        , m_reader(path)
        , m_time(fileTime(path))
    {
    }

    QString path() const override { return m_path; }
    std::vector<double> times() const override
    {
        return m_time ? std::vector<double> {*m_time} : std::vector<double>();
    }
    std::vector<ReadMessage> notes() const override { return m_reader.notes; }
    vtkSmartPointer<vtkDataObject> read(std::size_t, const ProgressCall& progress) override
    {
        return m_reader.read(m_path, progress);
    }

private:
    QString m_path;
    PieceReader m_reader;
    std::optional<double> m_time;
};

std::unique_ptr<DataFile> openLegacyVtk(const QString& path)
{
    return std::make_unique<PieceFile>(path);
}

std::unique_ptr<DataFile> openSurface(const QString& path)
{
    return std::make_unique<PieceFile>(path);
}

std::unique_ptr<DataFile> openXmlVtk(const QString& path)
{
    const XmlKind kind(path);
    if (!kind.isTree && !kind.isParallel) {
        auto reader = vtkXMLGenericDataObjectReader::CreateReader(kind.type, false);
        reader->SetFileName(QFile::encodeName(path).constData());
        auto file = std::make_unique<AlgorithmFile>(path, reader);
        VtkMessages::takeError(); // which reading gives again
        if (file->times().size() > 1)
            return file;
    }
    return std::make_unique<PieceFile>(path);
}

} // namespace corvala::host::io::reader

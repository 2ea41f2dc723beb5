// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/plot3d_format.h"

#include "host/io/reader/algorithm_file.h"
#include "host/io/reader/file_format.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/plot3d_layout.h"
#include "host/io/reader/read_failure.h"

#include <QFile>
#include <QFileInfo>

#include <vtkMultiBlockPLOT3DReader.h>

#include <algorithm>
#include <cstring>

namespace corvala::host::io::reader {

static constexpr std::int64_t kMostNumbers = 4'000'000'000; ///< of a text, with repeats

/// Grid files with their solutions and functions, over time. VTK's own detection takes text for
/// binary without an error, so the layout is found here and VTK's is off.
class Plot3DFile : public DataFile
{
public:
    Plot3DFile(const Plot3DSeries& series, const QDir& helperFolder);

    QString path() const override { return m_series.path; }
    std::vector<double> times() const override;
    vtkSmartPointer<vtkDataObject> read(std::size_t timeIndex,
                                        const ProgressCall& progress) override;
    std::vector<ReadMessage> notes() const override { return m_notes; }
    std::optional<Plot3DLayout> plot3dLayout() const override { return m_layout; }

private:
    Plot3DGrids openGrid(QString& file);
    void openCompanion(QString& file, const Plot3DGrids& grids, const Plot3DStep& step,
                       bool isFunction);
    std::optional<Plot3DText> openText(const QString& file) const;
    void makePlain(QString& file, const std::optional<Plot3DText>& text);

    Plot3DSeries m_series;
    QDir m_helperFolder;
    int m_copies = 0;
    std::optional<Plot3DLayout> m_layout; ///< of the grid file read first
    std::vector<ReadMessage> m_notes;
};

Plot3DFile::Plot3DFile(const Plot3DSeries& series, const QDir& helperFolder)
    : m_series(series)
    , m_helperFolder(helperFolder)
{
}

std::vector<double> Plot3DFile::times() const
{
    std::vector<double> result;
    for (const Plot3DStep& step : m_series.steps)
        result.push_back(step.time);
    return result;
}

/// Binary files have zeros in their first number; text has none.
static bool looksLikeText(const QString& path)
{
    const QByteArray start = firstBytes(path, 512);
    return std::all_of(start.begin(), start.end(), [](char character) {
        return std::strchr("0123456789+-.eEdD*, \t\r\n", character) && character != '\0';
    });
}

/// The scan of a text file, and nothing for a binary one.
std::optional<Plot3DText> Plot3DFile::openText(const QString& file) const
{
    if (!m_series.layout.ascii.value_or(looksLikeText(file)))
        return std::nullopt;
    const std::optional<Plot3DText> text = scanPlot3DText(file);
    if (!text)
        throw ReadFailure(
            file,
            QT_TRANSLATE_NOOP("ReadMessage", "there is something in the text that is no number"));
    if (text->count > kMostNumbers)
        throw ReadFailure(
            file, QT_TRANSLATE_NOOP("ReadMessage", "it has %1 numbers, which are more than fit"),
            {QString::number(text->count)});
    return text;
}

/// Text in a form that VTK misreads is copied, and `file` becomes the copy. To be called for a file
/// that is known to be sound: a few repeat counts would fill any disk.
void Plot3DFile::makePlain(QString& file, const std::optional<Plot3DText>& text)
{
    if (!text || text->isPlain)
        return;
    const QString copy = m_helperFolder.filePath(QStringLiteral("plain%1").arg(m_copies++));
    if (!writePlainText(file, copy))
        throw ReadFailure::ofFullDisk(m_helperFolder.path());
    file = copy;
}

Plot3DGrids Plot3DFile::openGrid(QString& file)
{
    const QString original = file;
    requireReadable(file);
    const std::optional<Plot3DText> text = openText(file);
    const std::optional<Plot3DGrids> grids =
        detectPlot3D(file, m_series.layout, text ? &*text : nullptr);
    if (!grids)
        throw ReadFailure(
            original,
            QT_TRANSLATE_NOOP("ReadMessage",
                              "its size fits no Plot3D grid (or it is cut off, or the "
                              "layout that was chosen is not the right one)"));
    if (grids->isAmbiguous)
        m_notes.emplace_back(
            QT_TRANSLATE_NOOP("ReadMessage",
                              "%1 fits more than one Plot3D layout; it was read as: %2."),
            std::initializer_list<QString> {QFileInfo(original).fileName(),
                                            describe(grids->layout)});
    m_layout = m_layout.value_or(grids->layout);
    makePlain(file, text);
    return *grids;
}

/// A companion that was guessed by its name and belongs to other grids is left out.
void Plot3DFile::openCompanion(QString& file, const Plot3DGrids& grids, const Plot3DStep& step,
                               bool isFunction)
{
    if (file.isEmpty())
        return;
    const QString original = file;
    requireReadable(file);
    const std::optional<Plot3DText> text = openText(file);
    const Plot3DFit fit = fitOfPlot3D(file, grids, text ? &*text : nullptr, isFunction);
    if (fit == Plot3DFit::CutOff)
        throw ReadFailure(original, QT_TRANSLATE_NOOP("ReadMessage", "it is cut off"));
    if (fit == Plot3DFit::Fits)
        return makePlain(file, text);
    const bool isUnmarked = fit == Plot3DFit::Unmarked;
    if (!step.areGuessed)
        throw ReadFailure(
            original,
            isUnmarked ? QT_TRANSLATE_NOOP(
                "ReadMessage", "a solution of OVERFLOW without record marks cannot be read")
                       : QT_TRANSLATE_NOOP("ReadMessage", "it does not belong to the grid file %1"),
            {step.grid});
    file.clear();
    m_notes.emplace_back(
        isUnmarked
            ? QT_TRANSLATE_NOOP("ReadMessage",
                                "%1 was left out: a solution of OVERFLOW without record marks "
                                "cannot be read.")
            : QT_TRANSLATE_NOOP("ReadMessage",
                                "%1 was left out: it does not belong to the grid file."),
        std::initializer_list<QString> {QFileInfo(original).fileName()});
}

static void setLayout(vtkMultiBlockPLOT3DReader& reader, const Plot3DLayout& layout)
{
    reader.AutoDetectFormatOff();
    reader.SetBinaryFile(!*layout.ascii);
    reader.SetMultiGrid(*layout.multiGrid);
    reader.SetIBlanking(*layout.iblank);
    reader.SetHasByteCount(*layout.byteCount);
    reader.SetDoublePrecision(*layout.doublePrecision);
    reader.SetTwoDimensionalGeometry(*layout.twoDimensional);
    if (*layout.bigEndian)
        reader.SetByteOrderToBigEndian();
    else
        reader.SetByteOrderToLittleEndian();
}

vtkSmartPointer<vtkDataObject> Plot3DFile::read(std::size_t timeIndex, const ProgressCall& progress)
{
    const Plot3DStep& listed = m_series.steps[timeIndex];
    Plot3DStep step = listed;
    const Plot3DGrids grids = openGrid(step.grid);
    openCompanion(step.solution, grids, listed, false);
    openCompanion(step.function, grids, listed, true);
    auto reader = vtkSmartPointer<vtkMultiBlockPLOT3DReader>::New();
    setLayout(*reader, grids.layout);
    reader->SetXYZFileName(QFile::encodeName(step.grid).constData());
    if (!step.solution.isEmpty())
        reader->SetQFileName(QFile::encodeName(step.solution).constData());
    if (!step.function.isEmpty())
        reader->SetFunctionFileName(QFile::encodeName(step.function).constData());
    for (const QString& name : m_series.functionNames)
        reader->AddFunctionName(name.toStdString());
    return AlgorithmFile(step.grid, reader).read(0, progress);
}

std::unique_ptr<DataFile> openPlot3D(const Plot3DSeries& series, const QDir& helperFolder)
{
    return std::make_unique<Plot3DFile>(series, helperFolder);
}

} // namespace corvala::host::io::reader

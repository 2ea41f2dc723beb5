// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/algorithm_file.h"

#include "host/io/reader/read_failure.h"
#include "host/io/reader/vtk_messages.h"

#include <vtkCallbackCommand.h>
#include <vtkCommand.h>
#include <vtkInformation.h>
#include <vtkInformationDoubleVectorKey.h>
#include <vtkNew.h>
#include <vtkStreamingDemandDrivenPipeline.h>

#include <charconv>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace corvala::host::io::reader {

AlgorithmFile::AlgorithmFile(const QString& path, vtkSmartPointer<vtkAlgorithm> reader)
    : m_path(path)
    , m_reader(std::move(reader))
{
    m_reader->UpdateInformation();
    vtkInformation* information = m_reader->GetOutputInformation(0);
    vtkInformationDoubleVectorKey* key = vtkStreamingDemandDrivenPipeline::TIME_STEPS();
    if (information && information->Has(key)) {
        const double* first = information->Get(key);
        m_times.assign(first, first + information->Length(key));
    }
}

/// A time that was stored in single precision is meant as its shortest decimal form: 0.1, and not
/// 0.10000000149.
static double meantTime(double time)
{
    const auto single = static_cast<float>(time);
    if (static_cast<double>(single) != time || !std::isfinite(time))
        return time;
    char text[32];
    const char* end = std::to_chars(text, text + sizeof text, single).ptr;
    double result = time;
    std::from_chars(text, end, result);
    return result;
}

std::vector<double> AlgorithmFile::times() const
{
    std::vector<double> result;
    for (const double time : m_times)
        result.push_back(meantTime(time));
    return result;
}

static void forwardProgress(vtkObject* caller, unsigned long, void* clientData, void*)
{
    const auto& progress = *static_cast<const ProgressCall*>(clientData);
    progress(static_cast<vtkAlgorithm*>(caller)->GetProgress());
}

/// Forwards the progress of a reader as long as it lives.
class ProgressForwarding
{
public:
    ProgressForwarding(vtkAlgorithm& reader, const ProgressCall& progress)
        : m_reader(reader)
    {
        vtkNew<vtkCallbackCommand> observer;
        observer->SetClientData(const_cast<ProgressCall*>(&progress));
        observer->SetCallback(forwardProgress);
        m_tag = reader.AddObserver(vtkCommand::ProgressEvent, observer);
    }

    ~ProgressForwarding() { m_reader.RemoveObserver(m_tag); }

    ProgressForwarding(const ProgressForwarding&) = delete;
    ProgressForwarding& operator=(const ProgressForwarding&) = delete;

private:
    vtkAlgorithm& m_reader;
    unsigned long m_tag;
};

vtkSmartPointer<vtkDataObject> updated(const QString& path, vtkAlgorithm& reader,
                                       const ProgressCall& progress, const std::vector<int>& extent)
{
    const ProgressForwarding forwarding(reader, progress);
    try {
        if (extent.empty())
            reader.Update();
        else
            reader.UpdateExtent(extent.data());
    } catch (const std::length_error&) { // a size that is no size
        VtkMessages::takeError();
        throw ReadFailure(path, VtkMessages::damaged());
    }
    const ReadMessage error = VtkMessages::takeError();
    if (!error.isEmpty())
        throw ReadFailure(path, error);
    return reader.GetOutputDataObject(0);
}

vtkSmartPointer<vtkDataObject> AlgorithmFile::read(std::size_t timeIndex,
                                                   const ProgressCall& progress)
{
    const ProgressForwarding forwarding(*m_reader, progress);
    if (m_times.empty())
        m_reader->Update();
    else
        m_reader->UpdateTimeStep(m_times[timeIndex]);
    return m_reader->GetOutputDataObject(0);
}

} // namespace corvala::host::io::reader

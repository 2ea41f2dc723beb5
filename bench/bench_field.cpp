// SPDX-License-Identifier: GPL-3.0-or-later
// What an edit of one zone costs on the field canvas, for every column of the field tables, against
// a plain redraw of the same scene, and a step of turning many zones, against as many points drawn
// by VTK alone, in one run: xvfb-run bench_field

#include "ratio_report.h"

#include "plot/field/view/field_view.h"
#include "tests/plot/field_columns.h"
#include "tests/plot/plot_document.h"

#include <QApplication>

#include <vtkActorCollection.h>
#include <vtkCamera.h>
#include <vtkPointSource.h>
#include <vtkPolyDataMapper.h>
#include <vtkProperty.h>
#include <vtkRenderWindow.h>

using namespace corvala::bench;
using namespace corvala::plot;
using namespace corvala::tests;
using benchmark::State;

namespace {

constexpr QSize kSize {800, 600};
constexpr int kFew = 100; ///< zones
constexpr int kMany = 2000;
constexpr double kLimit = 2.5; ///< times a redraw
constexpr double kTurningLimit = 2.0; ///< times as many points

/// All of many zones, in the state in which a column matters.
class Scene
{
public:
    Scene(const Column& column, int zones)
        : m_column(column)
    {
        openColumnsData(zones);
        editStyle(column.before);
        m_window->SetOffScreenRendering(1);
        m_window->SetMultiSamples(0);
        m_window->SetSize(kSize.width(), kSize.height());
        m_view.attach(m_window);
        m_view.setSize(kSize, 1.0);
        m_view.setFlat(document().activeFrame()->plotType() == PlotType_Field2D);
        m_view.scene().setFrame(document().activeFrameId());
        m_connection =
            document().events().connect([this](const auto& event) { m_view.scene().apply(event); });
        // What is made once, shaders for one, is part of neither.
        redraw();
        editStyle(m_column.change, QByteArray::number(m_column.zone));
        redraw();
    }
    ~Scene() { m_view.attach(nullptr); }

    void redraw()
    {
        m_view.scene().advance(-1);
        m_view.prepare();
        m_window->Render();
        m_window->WaitForCompletion();
    }
    /// Takes the edit of the column back, or makes it again.
    void turn()
    {
        m_isEdited = !m_isEdited;
        if (m_isEdited)
            document().undo().redo();
        else
            document().undo().undo();
    }

private:
    Column m_column;
    bool m_isEdited = true;
    vtkNew<vtkRenderWindow> m_window;
    FieldView m_view {std::make_shared<SurfaceCache>()};
    boost::signals2::scoped_connection m_connection;
};

/// What is drawn of many zones while a hand turns them.
class Turning
{
public:
    explicit Turning(int zones)
    {
        openDemo("field3d", zones);
        m_window->SetOffScreenRendering(1);
        m_window->SetMultiSamples(0);
        m_window->SetSize(kSize.width(), kSize.height());
        m_view.attach(m_window);
        m_view.setSize(kSize, 1.0);
        m_view.setFlat(false);
        m_view.scene().setFrame(document().activeFrameId());
        m_view.scene().advance(-1);
        m_view.scene().setStandIn(true);
        m_view.prepare();
        m_view.setMoved();
        step();
    }
    ~Turning() { m_view.attach(nullptr); }

    void step()
    {
        m_view.renderer().GetActiveCamera()->Azimuth(3.0);
        m_view.prepare();
        m_window->Render();
        m_window->WaitForCompletion();
    }
    vtkIdType pointCount()
    {
        vtkIdType count = 0;
        vtkActorCollection& actors = *m_view.renderer().GetActors();
        actors.InitTraversal();
        while (vtkActor* const actor = actors.GetNextActor())
            if (auto* const shown = vtkPolyDataMapper::SafeDownCast(actor->GetMapper()))
                count += actor->GetVisibility() && shown->GetInput()
                    ? shown->GetInput()->GetNumberOfPoints()
                    : 0;
        return count;
    }

private:
    vtkNew<vtkRenderWindow> m_window;
    FieldView m_view {std::make_shared<SurfaceCache>()};
};

/// The same number of points, drawn by VTK alone.
class PlainPoints
{
public:
    explicit PlainPoints(vtkIdType count)
    {
        constexpr double kPointPixels = 4.0; // as of the zones
        m_points->SetNumberOfPoints(count);
        m_mapper->SetInputConnection(m_points->GetOutputPort());
        m_actor->SetMapper(m_mapper);
        m_actor->GetProperty()->SetPointSize(kPointPixels);
        m_actor->GetProperty()->SetLighting(false);
        m_renderer->AddActor(m_actor);
        m_window->SetOffScreenRendering(1);
        m_window->SetMultiSamples(0);
        m_window->SetSize(kSize.width(), kSize.height());
        m_window->AddRenderer(m_renderer);
        m_renderer->ResetCamera();
        step();
    }

    void step()
    {
        m_renderer->GetActiveCamera()->Azimuth(3.0);
        m_renderer->ResetCameraClippingRange();
        m_window->Render();
        m_window->WaitForCompletion();
    }

private:
    vtkNew<vtkPointSource> m_points;
    vtkNew<vtkPolyDataMapper> m_mapper;
    vtkNew<vtkActor> m_actor;
    vtkNew<vtkRenderer> m_renderer;
    vtkNew<vtkRenderWindow> m_window;
};

std::string nameOf(const Column& column, int zones)
{
    return QStringLiteral("%1 in one of %2 zones").arg(column.change).arg(zones).toStdString();
}

std::unique_ptr<Scene> scene; ///< of the benchmark that runs: there is one document

/// Measures `step` over and over in the scene of a column, which benchmarks in a row share.
void measure(const std::string& name, const Column& column, int zones, void (*step)(Scene&))
{
    static std::string s_shown;
    const std::string key = nameOf(column, zones);
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](State& state) {
                                     if (!scene || s_shown != key) {
                                         scene.reset();
                                         scene = std::make_unique<Scene>(column, zones);
                                         s_shown = key;
                                     }
                                     for (auto _ : state)
                                         step(*scene);
                                 })
        ->Unit(benchmark::kMillisecond)
        ->MinTime(0.2)
        ->MeasureProcessCPUTime();
}

/// Measures steps of turning what `make` gives when it is its turn.
template<class Turned, class Make>
void measureTurning(const std::string& name, Make make)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](State& state) {
                                     scene.reset();
                                     const std::unique_ptr<Turned> turned = make();
                                     for (auto _ : state)
                                         turned->step();
                                 })
        ->Unit(benchmark::kMillisecond)
        ->MinTime(0.5)
        ->MeasureProcessCPUTime();
}

void addTurning(std::vector<Ratio>& ratios)
{
    for (const int zones : {10'000, 100'000}) {
        const std::string turning = "turning " + std::to_string(zones) + " zones";
        const std::string plain = turning + ": as many points";
        const auto count = std::make_shared<vtkIdType>(0);
        measureTurning<Turning>(turning, [=] {
            auto turned = std::make_unique<Turning>(zones);
            *count = turned->pointCount();
            return turned;
        });
        measureTurning<PlainPoints>(plain, [=] { return std::make_unique<PlainPoints>(*count); });
        ratios.push_back({turning, turning, plain, kTurningLimit});
    }
}

std::vector<Ratio> addBenchmarks()
{
    std::vector<Ratio> ratios;
    for (const Column& column : fieldColumns()) {
        for (const int zones : {kFew, kMany}) {
            if (column.before.isEmpty())
                continue; // a cell that is grey
            const std::string key = nameOf(column, zones);
            const std::string redraw = key + ": redraw";
            measure(redraw, column, zones, [](Scene& shown) { shown.redraw(); });
            measure(key, column, zones, [](Scene& shown) {
                shown.turn();
                shown.redraw();
            });
            // Streamtraces run through all maps that show them: each is made anew.
            const bool isJoint = column.change.contains("ShowStreamtraces");
            ratios.push_back({key, key, redraw, isJoint ? 0.0 : kLimit});
        }
    }
    addTurning(ratios);
    return ratios;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv); // for fonts
    benchmark::Initialize(&argc, argv);
    const std::vector<Ratio> ratios = addBenchmarks();
    RecordingReporter times;
    times.setProcessorTime();
    benchmark::RunSpecifiedBenchmarks(&times);
    scene.reset();
    return reportRatios(times, ratios) ? 0 : 1;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "field_columns.h"
#include "host/style/schema.h"
#include "pictures.h"
#include "plot/field/view/field_view.h"
#include "plot_document.h"
#include "tests/support/rows.h"

#include <vtkRenderWindow.h>
#include <vtkUnsignedCharArray.h>

#include <QImage>
#include <QtTest>

using namespace corvala;
using namespace corvala::plot;
using namespace corvala::tests;

static constexpr QSize kSize {240, 120};

static const char* neighbourOf(Zone zone)
{
    return zone == Ordered ? "9" : zone == OrderedSheet ? "6" : zone == Triangles ? "8" : "3";
}

/// Between a zone and its neighbour.
static double middleOf(Zone zone)
{
    return zone == OrderedSheet ? 0.6 : zone == Triangles ? -1.8 : -0.6;
}

/// A zone and its neighbour, on either side of the middle, seen from a place that does not move,
/// without axes and legends.
class ShownPair
{
public:
    ShownPair(Zone zone, const QString& before)
    {
        openColumnsData(9);
        activate("all", false);
        activate(QByteArray::number(zone).constData(), true);
        activate(neighbourOf(zone), true);
        editStyle(before);
        placeCamera(middleOf(zone));
        m_window->SetOffScreenRendering(1);
        m_window->SetMultiSamples(0);
        m_window->SetSize(kSize.width(), kSize.height());
        m_view.attach(m_window);
        m_view.setSize(kSize, 1.0);
        m_view.scene().setFrame(document().activeFrameId());
        m_connection =
            document().events().connect([this](const auto& event) { m_view.scene().apply(event); });
    }
    ~ShownPair() { m_view.attach(nullptr); }

    /// The part of the zone, and that of its neighbour.
    std::pair<QImage, QImage> parts()
    {
        m_view.scene().advance(-1);
        m_view.prepare();
        m_window->Render();
        const int width = kSize.width() / 2;
        const auto part = [&](int first) {
            vtkNew<vtkUnsignedCharArray> pixels;
            m_window->GetPixelData(first, 0, first + width - 1, kSize.height() - 1, 0, pixels);
            return QImage(pixels->GetPointer(0), width, kSize.height(), 3 * width,
                          QImage::Format_RGB888)
                .mirrored();
        };
        return {part(0), part(width)};
    }

private:
    void placeCamera(double x)
    {
        const bool isFlat = document().activeFrame()->plotType() == PlotType_Field2D;
        CameraState camera;
        camera.isFitted = false;
        if (isFlat)
            x += 1.65; // there is more room for axes on the left than on the right
        camera.focalPoint = {x, 1.8, isFlat ? 0.0 : 0.4};
        camera.position = {x, isFlat ? 1.8 : -6.0, isFlat ? 30.0 : 6.5};
        camera.viewUp = {0.0, isFlat ? 1.0 : 0.0, isFlat ? 0.0 : 1.0};
        camera.parallelScale = 2.9;
        m_view.setFlat(isFlat);
        m_view.setCamera(camera);
    }

    vtkNew<vtkRenderWindow> m_window;
    FieldView m_view {std::make_shared<SurfaceCache>()};
    boost::signals2::scoped_connection m_connection;
};

class tst_FieldColumns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columns_data()
    {
        const Rows<Column> row;
        for (const Column& column : fieldColumns())
            row(column.change, column);
    }

    /// A value shows in the part of its zone, and nowhere else; and nowhere while its cell in the
    /// tables is grey.
    void columns()
    {
        const auto [column] = currentRow<Column>();
        QStringList states = column.grey.split('|', Qt::SkipEmptyParts);
        if (!column.before.isEmpty())
            states.prepend("");
        for (const QString& state : states) {
            ShownPair shown(column.zone, column.before + " " + state);
            const auto [zone, beside] = shown.parts();
            editStyle(column.change, QByteArray::number(column.zone));
            const auto [newZone, newBeside] = shown.parts();
            const double change = shareOfChange(zone, newZone);
            QVERIFY2(state.isEmpty() ? change > 0.002 : zone == newZone, qPrintable(state));
            // Maps that look otherwise are drawn apart, which may round a pixel otherwise.
            QVERIFY2(shareOfChange(beside, newBeside) < 0.0003, qPrintable("beside: " + state));
            QVERIFY(!state.isEmpty() || shareOfColor(beside, Qt::white) < 0.999);
            document().undo().undo();
            QVERIFY2(zone == shown.parts().first, qPrintable("undone: " + state));
        }
    }

    void noColumnIsLeftOut()
    {
        QStringList shown = {"Group"}; // picks maps, and is not drawn
        for (const Column& column : fieldColumns())
            if (!column.before.isEmpty())
                shown << column.change.section('=', 0, 0);
        const auto& schema = host::Schema::instance();
        for (const host::AttributeId id : schema.inScope(style::Scope::FieldMap)) {
            QStringList path;
            for (const std::string& name : schema.at(id).names)
                path << QString::fromStdString(name);
            QVERIFY2(shown.contains(path.mid(1).join('/')), qPrintable(path.join('/')));
        }
    }
};

QTEST_MAIN(tst_FieldColumns)

#include "tst_field_columns.moc"

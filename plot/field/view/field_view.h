// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/surface_cache.h"
#include "plot/field/scene/field_scene.h"
#include "plot/field/view/decorations.h"
#include "plot/field/view/drawing_parts.h"
#include "plot/field/view/space_axes.h"
#include "plot/field/view/space_grid.h"

#include <QCoreApplication>
#include <QSize>

#include <vtkLight.h>
#include <vtkNew.h>
#include <vtkRenderer.h>

#include <memory>

class QPainter;
class vtkRenderWindow;

namespace corvala::plot {

/// From where a field plot is seen.
struct CameraState
{
    bool isFitted = true; ///< shows all of `fitBox`, in a window of any size
    vtkBoundingBox fitBox; ///< invalid: everything that there is
    bool isOfAll = true; ///< `fitBox` is what there is by itself
    /// What is fitted in space is seen from the direction in which this lies of the focal point.
    std::array<double, 3> position {{0.5, -1.0, 0.6}};
    std::array<double, 3> focalPoint {{0, 0, 0}};
    std::array<double, 3> viewUp {{0, 0, 1}};
    double parallelScale = 1.0; ///< half the height of what is seen in parallel
    bool isParallel = false; ///< in space; a flat plot always is
};

/// A scene with its camera, in a render window of its owner: the part of a field plot that is the
/// same on the screen and in an image.
class FieldView
{
    Q_DECLARE_TR_FUNCTIONS(corvala::plot::FieldView)

public:
    explicit FieldView(std::shared_ptr<SurfaceCache> cache);
    ~FieldView();

    FieldScene& scene() { return *m_scene; }
    const FieldScene& scene() const { return *m_scene; }
    vtkRenderer& renderer() { return *m_back; }

    /// The window must outlive the view, or be detached by passing null.
    void attach(vtkRenderWindow* window);

    /// A flat plot looks down on the X-Y plane and cannot be turned.
    void setFlat(bool flat);
    bool isFlat() const { return m_flat; }

    /// Size of the picture in its pixels, which every place and length here is given in; each is
    /// drawn as `magnification` by `magnification` pixels of the window.
    void setSize(const QSize& size, double magnification);
    CameraState camera() const;
    void setCamera(const CameraState& state);
    /// Moves in a flat plot by pixels, and magnifies about a point of the picture (from top left).
    void pan(const QPointF& pixels);
    void magnify(double factor, const QPointF& center);
    /// Shows everything in space from a direction, with another one upwards.
    void lookFrom(const std::array<double, 3>& direction, const std::array<double, 3>& up);
    /// In space; what is in the middle keeps its size.
    void setParallel(bool isParallel);
    bool isParallel() const { return m_isParallel; }
    /// Fills the plot with a part of the picture, from top left, which may be larger than the plot.
    void zoomToBox(const QRectF& box);
    /// The same with a box in the coordinates of the scene, in the direction of the present view.
    void zoomTo(const vtkBoundingBox& box);
    /// False when all that is drawn lies beside what is seen.
    bool seesSomething() const;
    /// Whether the view follows from what is drawn.
    bool isFitted() const { return m_isFitted; }
    bool hasGrid() const { return m_axes.hasGrid; }
    /// Place of the plot in the window, from bottom left, of pixels so many times smaller.
    QRect pixelsOfPlot(double magnification) const;
    /// The user took hold of the camera.
    void setMoved() { m_isFitted = false; }
    /// Shows what was fitted last, as when the user moves it no longer.
    void setFitted() { m_isFitted = true; }
    /// What is shown will be another time of the same things: a fitted view widens for what would
    /// lie outside, and stays as it is otherwise.
    void widen() { m_widens = true; }

    /// A grey from 0 to 1; white unless it is told otherwise.
    void setPaperColor(double grey) { m_paper->SetBackground(grey, grey, grey); }

    /// Brings what depends on scene and camera up to date; call before drawing.
    void prepare();
    /// Whether what is translucent is drawn by depth, as it is at first: else it is blended in one
    /// go, weighed by depth, which takes as long as if it were opaque.
    void setSorted(bool isSorted) { m_back->SetUseDepthPeeling(isSorted); }
    bool isSorted() const { return m_back->GetUseDepthPeeling() != 0; }
    /// How much of a picture is drawn at a time; all of it, unless it is told otherwise.
    DrawingParts& parts() { return m_parts; }
    const DrawingParts& parts() const { return m_parts; }
    /// Remarks that the picture is not complete.
    void setCut(bool isCut) { m_isCut = isCut; }
    /// Axes, legends and remarks, over the drawing.
    void paintDecorations(QPainter& painter);

    /// Boxes round what is drawn of some maps, over the drawing.
    void paintOutlines(QPainter& painter, const host::NumberSet& maps) const;

    /// As of the scene; for the ranges of axes and the places of legends what is seen.
    std::optional<double> proposal(style::Key value, int index) const;

    /// The zone at a point of the picture, from top left; 0 for none.
    CvlInt64 zoneAt(const QPointF& point);
    /// Coordinates of what is seen there, as FieldScene::placeAt.
    std::optional<std::array<double, 3>> placeAt(const QPointF& point);
    /// What there is to know of that point in a line, such as coordinates, the zone and a value;
    /// empty beside the plot. Of a surface nothing yet while isProbing.
    QString probe(const QPointF& point);
    bool isProbing() const { return m_scene->isProbing(); }
    /// The contour group of the legend there; 0 for none.
    int legendAt(const QPointF& point) const;
    /// Moves the legend of a group within the picture, until the next `prepare`.
    void moveLegend(int group, const QPointF& pixels);
    /// Its upper left corner, in percent of the picture; nothing when the group has no legend.
    std::optional<QPointF> legendCorner(int group) const;

private:
    double pixelsPerUnit() const;
    void setViewport();
    ViewScale viewScale() const;
    void updateFitBox(const vtkBoundingBox& box);
    void layOutPlot(double yTexts);
    SpaceView spaceView() const;
    void showGrid(const vtkBoundingBox& box);
    PlaneWindow planeWindow() const;
    /// Of an axis, by twice its number and 1 for the upper end; nothing where it has none, as
    /// ranges that are set in space.
    std::optional<double> seenEnd(int number) const;
    PickRay rayAt(const QPointF& point);
    void placeCamera();
    void fitFlat(const vtkBoundingBox& box);
    void fitSpace(const vtkBoundingBox& box);
    void standAt(double distance); ///< from what is looked at
    void standAway(double least); ///< in front of everything
    std::array<double, 3> middleOf(const QRectF& box);

    vtkNew<vtkRenderer> m_paper; ///< the whole window; the others draw in the plot only
    vtkNew<vtkRenderer> m_back;
    vtkNew<vtkRenderer> m_front;
    vtkNew<vtkLight> m_light; ///< goes with the camera
    std::unique_ptr<FieldScene> m_scene;
    DrawingParts m_parts;
    SpaceGrid m_grid;
    vtkRenderWindow* m_window = nullptr; // not owned
    bool m_isCut = false;
    bool m_flat = false;
    bool m_isFitted = true; ///< as in CameraState
    bool m_followsScene = true; ///< the fit still grows with a scene that is being made
    bool m_widens = false; ///< the same, but it keeps what it had
    vtkBoundingBox m_fitBox;
    bool m_isParallel = false;
    std::array<double, 3> m_fitFrom = CameraState().position; ///< a direction
    std::array<double, 3> m_fitUp = CameraState().viewUp;
    QSize m_size {1, 1};
    double m_magnification = 1.0;
    FieldLayout m_layout;
    std::vector<FieldLegend> m_legends;
    std::optional<VectorKey> m_vectorKey;
    AxesStyle m_axes;
    TimeText m_time;
    QRectF m_timePlace; ///< empty without a text
};

} // namespace corvala::plot

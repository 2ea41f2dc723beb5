// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/canvas.h"

#include <QElapsedTimer>
#include <QHash>
#include <QImage>
#include <QTimer>

#include <memory>
#include <optional>

class QLabel;
class QStackedLayout;

namespace corvala::plot {

/// Draws the active frame, of whatever plot type, with the canvas for it, and follows the changes
/// of the document. Canvases are made when they are first needed. Whatever changes until the next
/// idle moment costs one drawing; what takes longer is worked on in slices, with an unfinished
/// picture now and then.
class FrameView : public QWidget
{
    Q_OBJECT

public:
    explicit FrameView(QWidget* parent = nullptr);
    ~FrameView() override;

    /// Shown while there are no data; owned by the view from now on.
    void setStartPage(QWidget* page);

    /// The canvas that draws at present; null for a frame without data.
    Canvas* canvas() const { return m_canvas; }
    /// Drawings so far; tells how far requests were coalesced.
    int redrawCount() const { return m_redraws; }
    /// True while a drawing or work in slices is pending.
    bool isBusy() const
    {
        return m_isPainting || m_idle.isActive() || (m_canvas && m_canvas->isBeingMoved());
    }

    /// As of the canvas, also for a frame without data.
    QString paint(QPaintDevice& device, Paper paper, const WorkWatch& watch = {});
    /// The same, as pictureImage.
    QImage render(const QSize& size, QString* error, Paper paper = Paper::White);
    bool hasPreviousView() const { return !m_formerViews.value(m_key).isEmpty(); }
    QString problem() const;

public Q_SLOTS:
    /// Draws at the next idle moment.
    void requestRedraw();
    /// As Canvas::setPicksPlaces.
    void setPicksPlaces(bool picksPlaces);
    /// As Canvas::setZoomsToBox.
    void setZoomsToBox(bool zooms);
    /// Shows the whole of what is drawn, as at the start.
    void fitView();
    /// As Canvas::setOutlined, for what is shown at present.
    void setOutlined(const host::NumberSet& maps);
    /// Keeps the present view for showPreviousView; call before changing it.
    void rememberView();
    /// Goes back to the view before the last change of it, in the present frame and plot type.
    void showPreviousView();
    /// Puts pending work in slices aside; what is drawn so far stays, with a remark.
    void cancelWork();
    /// Takes up again what was put aside.
    void resumeWork();

Q_SIGNALS:
    /// A click on a field plot; as Canvas::picked.
    void zonePicked(CvlInt64 zone, bool activate);
    /// As zonePicked, for line plots.
    void lineMapPicked(CvlInt64 lineMap, bool activate);
    /// Work in slices that takes longer goes on; `done` of `total` pieces are ready.
    void workProgressed(CvlInt64 done, CvlInt64 total);
    /// As Canvas::placePicked.
    void placePicked(double x, double y, double z);
    /// The picture shows all that there is to show.
    void completed();
    /// What the mouse is over, as Canvas::probe; empty when there is nothing.
    void probed(const QString& text);
    /// As of the canvas that is shown.
    void boxEnded();
    void menuWanted(CvlInt64 number, const QPoint& place);
    /// The last of a series of workProgressed.
    void workEnded(bool cancelled);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    enum Kind { Field, Line, KindCount };
    using ViewKey = QPair<CvlUniqueId, int>; ///< frame and plot type

    void documentChanged(const host::StateEvent& event);
    void showFrame(const ViewKey& key);
    void showHint();
    /// Hands what is seen of frames to the document.
    void keepViews();
    Canvas* canvasOf(Kind kind);
    void redraw();
    void draw();
    void workAndDraw();
    void endWork(bool cancelled);
    void probe();

    struct Subscription;
    std::unique_ptr<Subscription> m_subscription;
    QStackedLayout* m_layout = nullptr; // not owned
    QLabel* m_hint = nullptr; // not owned
    QWidget* m_startPage = nullptr; // not owned
    Canvas* m_canvases[KindCount] = {}; // not owned
    Canvas* m_canvas = nullptr; // not owned
    ViewKey m_key {0, 0}; ///< of what is shown
    QHash<ViewKey, std::any> m_views; ///< of what was shown before
    QHash<ViewKey, QList<std::any>> m_formerViews; ///< the last one was seen last
    QTimer m_idle;
    QTimer m_probe; ///< runs until the mouse is told what it is over
    std::optional<QPointF> m_hover; ///< where the mouse is; nothing: elsewhere
    int m_redraws = 0;
    QElapsedTimer m_work; ///< since slices began
    qint64 m_nextDrawing = 0; ///< milliseconds of work when the picture is next refreshed
    bool m_isWorking = false;
    CvlInt64 m_drawnPieces = 0; ///< of the scene, at the last drawing
    bool m_isStale = false; ///< the picture has to be drawn from its beginning
    bool m_isReporting = false;
    bool m_isPainting = false; ///< a picture beside that of the window, which waits
    bool m_isChanged = false; ///< the document, since then
    bool m_picksPlaces = false;
    bool m_zoomsToBox = false;
};

} // namespace corvala::plot

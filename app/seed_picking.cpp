// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/seed_picking.h"

#include "app/details/details_dock.h"
#include "host/document/document.h"
#include "plot/field/scene/volume_looks.h"
#include "plot/frame_view.h"

#include <QShortcut>

namespace corvala::app {

using host::Document;

/// Shows the streamtraces, too: a point without its line would tell nothing.
static void addSeed(double x, double y, double z)
{
    constexpr const auto& streams = style::streamtraces;
    const host::Frame* const frame = Document::instance().activeFrame();
    if (!frame)
        return;
    const auto& points = frame->text(streams.points);
    QStringList numbers =
        QString::fromStdString(points).simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    auto place = static_cast<int>(plot::pointsIn(points).size()); // before what is no point
    for (const double number : {x, y, z})
        numbers.insert(place++, QString::number(number, 'g', 7));
    host::UndoHistory& undo = Document::instance().undo();
    undo.begin(UndoKind_StyleGroup);
    Document::instance().execute(host::SetStyle {host::pathOf(streams.points),
                                                 numbers.join(QLatin1Char(' ')).toStdString()});
    if (!frame->isOn(streams.show))
        Document::instance().execute(host::SetStyle {host::pathOf(streams.show), true});
    undo.end(host::UndoHistory::Closing::OneStep);
}

void letPickSeeds(DetailsDock& details, plot::FrameView& view)
{
    auto* escape = new QShortcut(Qt::Key_Escape, &details);
    escape->setContext(Qt::ApplicationShortcut);
    escape->setEnabled(false);
    QObject::connect(escape, &QShortcut::activated, &details, &DetailsDock::endPicking);
    QObject::connect(&details, &DetailsDock::pickingSwitched, &view,
                     &plot::FrameView::setPicksPlaces);
    QObject::connect(&details, &DetailsDock::pickingSwitched, escape, &QShortcut::setEnabled);
    QObject::connect(&view, &plot::FrameView::placePicked, &details, addSeed);
}

} // namespace corvala::app

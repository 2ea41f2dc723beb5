// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/document/document.h"
#include "host/document/line_map_name.h"
#include "plot/common/nice_steps.h"
#include "plot/field/view/field_view.h"

#include <QLocale>
#include <QStringList>

/// What a field view tells of a point of its picture.
namespace corvala::plot {

static QString shown(double value)
{
    return QString::number(value, 'g', 5);
}

static QString counted(std::int64_t number)
{
    return QLocale(QLocale::English).toString(static_cast<qlonglong>(number));
}

/// Points of an ordered zone are known by their indices.
static QString pointText(const host::ZoneInfo& zone, std::int64_t point)
{
    if (!zone.ordered)
        return counted(point);
    QStringList indices;
    std::int64_t rest = point - 1;
    for (const std::int64_t size : zone.dimensions) {
        indices << QString::number(rest % size + 1);
        rest /= size;
    }
    return QStringLiteral("(%1)").arg(indices.join(QStringLiteral(", ")));
}

QString FieldView::probe(const QPointF& point)
{
    const host::Frame* const drawn = host::Document::instance().frame(m_scene->frameId());
    if (!drawn || !drawn->hasData() || !m_layout.plot.contains(point)
        || !m_scene->bounds().IsValid())
        return {};
    const PickRay ray = rayAt(point);
    const auto found = m_scene->probe(ray);
    const PlaneWindow window = planeWindow();
    const double seen =
        m_flat ? window.yMaximum - window.yMinimum : m_scene->bounds().GetMaxLength();
    QStringList parts;
    QStringList place;
    for (std::size_t axis = 0; axis < (m_flat ? 2U : 3U); ++axis)
        if (m_flat || found)
            place << tr("%1 = %2").arg(
                m_axes.titles[axis],
                shown(withoutNoise(m_flat ? ray.from[axis] : found->place[axis], seen)));
    if (!place.isEmpty())
        parts << place.join(QStringLiteral(", "));
    if (found) {
        const host::ZoneInfo& zone = drawn->data()->zone(found->zone);
        QStringList what {
            tr("Zone %1: %2").arg(found->zone).arg(QString::fromStdString(zone.name))};
        if (found->cell > 0)
            what << tr("cell %1").arg(counted(found->cell));
        if (found->point > 0)
            what << tr("point %1").arg(pointText(zone, found->point));
        parts << what.join(QStringLiteral(", "));
    }
    if (found && found->value)
        parts << tr("%1 = %2").arg(QString::fromStdString(host::shownVariableName(
                                       drawn->data(), m_scene->groups().variable(1))),
                                   shown(*found->value));
    return parts.join(QStringLiteral("  |  "));
}

} // namespace corvala::plot

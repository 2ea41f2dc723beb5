// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/scene_notes.h"

#include "host/document/line_map_name.h"
#include "host/style/schema.h"
#include "plot/common/number_list.h"
#include "plot/field/scene/map_style.h"

#include <QCoreApplication>
#include <QStringList>

#include <utility>

namespace corvala::plot {

namespace {

class Notes
{
    Q_DECLARE_TR_FUNCTIONS(corvala::plot::Notes)

public:
    explicit Notes(const NoteFacts& facts)
        : m_facts(facts)
    {
    }

    std::vector<SceneNote> all() const;

private:
    std::optional<SceneNote> blanking() const;
    std::optional<SceneNote> constraints() const;
    std::optional<SceneNote> axes() const;
    std::optional<SceneNote> levels() const;
    std::optional<SceneNote> lines() const;
    std::optional<SceneNote> volumes() const;
    std::optional<SceneNote> slices() const;
    std::optional<SceneNote> slice(int number) const;
    std::optional<SceneNote> isoSurfaces() const;
    std::optional<SceneNote> isoValues() const;
    std::optional<SceneNote> streamtraces() const;
    std::optional<SceneNote> points() const;
    std::optional<SceneNote> vectors() const;
    std::optional<SceneNote> scatter() const;
    std::optional<SceneNote> inside() const;
    std::optional<SceneNote> lacking() const;

    int number(style::Key key, int index = -1) const { return m_facts.frame.integer(key, index); }
    double real(style::RealKey key, int index = -1) const { return m_facts.frame.real(key, index); }
    const std::string& text(style::TextKey key, int index = -1) const
    {
        return m_facts.frame.text(key, index);
    }
    QString nameOf(CvlInt64 variable) const
    {
        return QString::fromStdString(host::shownVariableName(m_facts.frame.data(), variable));
    }
    /// Whether a layer that is on shows something of a map for which `counts` holds.
    template<class Counts>
    bool shows(FieldLayer layer, Counts counts) const
    {
        if (!isLayerOn(m_facts.frame, layer))
            return false;
        for (const std::uint32_t map : m_facts.maps) {
            const ShownMap shown {m_facts.frame, map, m_facts.frame.candidateZone(map)};
            const auto look = lookOf(layer, shown, m_facts.groups);
            if (look && counts(*look))
                return true;
        }
        return false;
    }
    bool showsWithin(const ShownMap& shown) const;
    bool isClosed(const ShownMap& shown) const;
    /// Whether a value is none of a group; not while these are not known.
    bool isBeyond(double value, int group) const
    {
        return m_facts.groups.hasRange(group)
            && (value < m_facts.groups.minimum(group) || value > m_facts.groups.maximum(group));
    }

    const NoteFacts& m_facts;
};

bool anyLook(const BlockLook&)
{
    return true;
}

std::optional<SceneNote> Notes::blanking() const
{
    constexpr const auto& value = style::blanking.value;
    if (!m_facts.isAllBlanked)
        return std::nullopt;
    QStringList constraints;
    for (int i = 1; i <= value.constraint.kCount; ++i)
        if (number(value.constraint.include, i) != 0)
            constraints << tr("%1 (\"%2\")").arg(i).arg(nameOf(number(value.constraint.var, i)));
    return SceneNote {tr("Value blanking takes away every cell of the active zones, by constraint "
                         "%1.")
                          .arg(constraints.join(QStringLiteral(", "))),
                      value.include, tr("Switch Off Value Blanking"),
                      frameValue(value.include, false)};
}

/// Those that take nothing away, whatever the data are.
std::optional<SceneNote> Notes::constraints() const
{
    constexpr const auto& constraint = style::blanking.value.constraint;
    if (number(style::blanking.value.include) == 0)
        return std::nullopt;
    for (int i = 1; i <= constraint.kCount; ++i) {
        const bool hasVariables = number(constraint.var, i) != 0
            && (number(constraint.comparedWith, i) == ComparedWith_Constant
                || number(constraint.comparedVar, i) != 0);
        if (number(constraint.include, i) != 0 && !hasVariables)
            return SceneNote {
                tr("Blanking constraint %1 takes nothing away: it has no variable.").arg(i),
                number(constraint.var, i) == 0 ? constraint.var : constraint.comparedVar,
                tr("Switch Off the Constraint"), frameValue(constraint.include, false, i)};
    }
    return std::nullopt;
}

std::optional<SceneNote> Notes::axes() const
{
    struct Axis
    {
        const char* name;
        const style::FieldAxis& style;
    };
    const Axis kAxes[] = {
        {"X", style::fieldAxes.x}, {"Y", style::fieldAxes.y}, {"Z", style::fieldAxes.z}};
    const int count = m_facts.frame.plotType() == PlotType_Field3D ? 3 : 2;
    for (int i = 0; i < count; ++i) {
        const style::FieldAxis& axis = kAxes[i].style;
        const double least = real(axis.rangeMin);
        const double most = real(axis.rangeMax);
        if (number(axis.automaticRange) == 0 && !(least < most))
            return SceneNote {tr("The %1 axis has the range of the data: its minimum, %2, is not "
                                 "below its maximum, %3.")
                                  .arg(QLatin1String(kAxes[i].name))
                                  .arg(least)
                                  .arg(most),
                              axis.rangeMin, tr("Keep the Range of the Data"),
                              frameValue(axis.automaticRange, true)};
    }
    return std::nullopt;
}

std::optional<SceneNote> Notes::levels() const
{
    constexpr const auto& groups = style::contourGroups;
    for (int group = 1; group <= style::ContourGroups::kCount; ++group) {
        const double lowest = real(groups.levelMin, group);
        const double highest = real(groups.levelMax, group);
        if (number(groups.automaticLevels, group) != 0 || lowest < highest
            || !m_facts.groups.hasRange(group))
            continue;
        return SceneNote {
            tr("Contour group %1 has levels by the data: its lowest level, %2, is not "
               "below its highest, %3.")
                .arg(group)
                .arg(lowest)
                .arg(highest),
            groups.levelMin, tr("Keep Levels by the Data"),
            frameValue(groups.automaticLevels, true, group)};
    }
    return std::nullopt;
}

std::optional<SceneNote> Notes::lines() const
{
    constexpr const auto& groups = style::contourGroups;
    for (int group = 1; group <= style::ContourGroups::kCount; ++group) {
        const QString rest = numbersIn(text(groups.moreLines, group)).rest;
        if (!rest.isEmpty() && m_facts.groups.hasRange(group))
            return SceneNote {tr("The list of more lines of contour group %1 ends before \"%2\", "
                                 "which is no number.")
                                  .arg(group)
                                  .arg(rest),
                              groups.moreLines,
                              {},
                              {},
                              group};
    }
    return std::nullopt;
}

/// What is switched on and has nothing to be drawn of.
std::optional<SceneNote> Notes::volumes() const
{
    constexpr const auto& vector = style::globalVector;
    const bool hasStreams = number(style::streamtraces.show) != 0;
    style::Key shown = hasStreams ? style::Key(style::streamtraces.show) : style::Key();
    if (number(style::isoSurfaces.show) != 0)
        shown = style::isoSurfaces.show;
    for (int slice = 1; slice <= style::Slices::kCount; ++slice)
        if (number(style::slices.show, slice) != 0)
            shown = style::slices.show;
    if (shown.isValid() && m_facts.frame.plotType() != PlotType_Field3D)
        return SceneNote {tr("Slices, iso-surfaces and streamtraces are drawn in 3D plots only."),
                          shown};
    const bool hasVectors =
        number(vector.uVar) != 0 || number(vector.vVar) != 0 || number(vector.wVar) != 0;
    if (hasStreams && !hasVectors)
        return SceneNote {tr("No streamtrace is drawn: no vector variables are chosen."),
                          vector.uVar};
    return std::nullopt;
}

std::optional<SceneNote> Notes::slice(int slice) const
{
    constexpr const char* kNames[] = {"X", "Y", "Z", "I", "J", "K"};
    const int plane = number(style::slices.plane, slice);
    const int group = ContourGroups::kPlace + plane;
    const bool isOfIndex = plane >= SlicePlane_I;
    const double position = real(style::slices.position, slice);
    const auto layer = static_cast<FieldLayer>(static_cast<int>(FieldLayer::Slice1) + slice - 1);
    const auto isThere = [](const BlockLook& look) {
        return look.recipe.surfaces.surfaces != SurfacesToPlot_None;
    };
    const bool isBeside = number(style::slices.automaticPosition, slice) == 0
        && (isOfIndex ? !shows(layer, isThere) : isBeyond(position, group));
    if (!isBeside || !shows(layer, anyLook))
        return std::nullopt;
    const QString where = QLatin1String(kNames[plane]);
    const QString text = isOfIndex
        ? tr("Slice %1 shows nothing: no zone that shows slices has a plane %2 = %3.")
              .arg(slice)
              .arg(where)
              .arg(position)
        : tr("Slice %1 at %2 = %3 lies outside the zones that show slices (%4 to %5).")
              .arg(slice)
              .arg(where)
              .arg(position)
              .arg(m_facts.groups.minimum(group))
              .arg(m_facts.groups.maximum(group));
    return SceneNote {text, style::slices.position, tr("Move It to the Middle"),
                      frameValue(style::slices.automaticPosition, true, slice)};
}

std::optional<SceneNote> Notes::slices() const
{
    for (int number = 1; number <= style::Slices::kCount; ++number)
        if (const auto note = slice(number))
            return note;
    return std::nullopt;
}

std::optional<SceneNote> Notes::isoSurfaces() const
{
    constexpr int kGroup = ContourGroups::kIso;
    const ContourGroups& groups = m_facts.groups;
    const bool isConstant =
        groups.hasRange(kGroup) && groups.minimum(kGroup) == groups.maximum(kGroup);
    if (!isConstant || !shows(FieldLayer::IsoSurfaces, anyLook))
        return isoValues();
    return SceneNote {
        tr("No iso-surface is drawn: its variable \"%1\" is %2 in all zones that show "
           "them.")
            .arg(nameOf(groups.variable(kGroup)))
            .arg(groups.minimum(kGroup)),
        style::isoSurfaces.var};
}

std::optional<SceneNote> Notes::isoValues() const
{
    constexpr const auto& iso = style::isoSurfaces;
    constexpr style::RealKey kValues[] = {iso.value1, iso.value2, iso.value3};
    constexpr int kGroup = ContourGroups::kIso;
    if (number(iso.automaticValues) != 0)
        return std::nullopt;
    for (int i = 0; i < number(iso.count); ++i) {
        const double value = real(kValues[i]);
        if (isBeyond(value, kGroup) && shows(FieldLayer::IsoSurfaces, anyLook))
            return SceneNote {
                tr("The iso-surface value %1 lies outside the values of \"%2\" (%3 to "
                   "%4).")
                    .arg(value)
                    .arg(nameOf(m_facts.groups.variable(kGroup)))
                    .arg(m_facts.groups.minimum(kGroup))
                    .arg(m_facts.groups.maximum(kGroup)),
                kValues[i], tr("Take Values of the Data"), frameValue(iso.automaticValues, true)};
    }
    return std::nullopt;
}

std::optional<SceneNote> Notes::streamtraces() const
{
    constexpr const auto& streams = style::streamtraces;
    if (!m_facts.startsOutside)
        return std::nullopt;
    SceneNote note {tr("No streamtrace is drawn: the rake and all points lie outside the cells of "
                       "the zones that show streamtraces."),
                    streams.automaticRake};
    if (number(streams.automaticRake) == 0) {
        note.caption = tr("Lay the Rake Across the Data");
        note.mending = frameValue(streams.automaticRake, true);
    }
    return note;
}

std::optional<SceneNote> Notes::points() const
{
    constexpr const auto& streams = style::streamtraces;
    const NumberList list = numbersIn(text(streams.points));
    const bool isWhole = list.rest.isEmpty() && list.numbers.size() % 3 == 0;
    if (isWhole || !shows(FieldLayer::Streamtraces, anyLook))
        return std::nullopt;
    return SceneNote {list.rest.isEmpty()
                          ? tr("The last of the points besides the rake has no three coordinates.")
                          : tr("The points besides the rake end before \"%1\", which is no number.")
                                .arg(list.rest),
                      streams.points};
}

std::optional<SceneNote> Notes::vectors() const
{
    const ContourGroups& groups = m_facts.groups;
    QStringList names;
    for (int group = ContourGroups::kVector; group < ContourGroups::kVector + 3; ++group) {
        if (groups.hasRange(group)
            && (groups.minimum(group) != 0.0 || groups.maximum(group) != 0.0))
            return std::nullopt;
        if (groups.hasRange(group))
            names << nameOf(groups.variable(group));
    }
    if (names.isEmpty() || !shows(FieldLayer::Vectors, anyLook))
        return std::nullopt;
    return SceneNote {tr("No arrow is drawn: the vectors (%1) are zero in all active zones.")
                          .arg(names.join(QStringLiteral(", "))),
                      style::globalVector.uVar};
}

std::optional<SceneNote> Notes::scatter() const
{
    constexpr int kGroup = ContourGroups::kSize;
    const ContourGroups& groups = m_facts.groups;
    const auto hasOwnSizes = [](const BlockLook& look) { return look.recipe.sizes.areOwn; };
    if (number(style::globalScatter.automaticRange) == 0 || !groups.hasRange(kGroup)
        || groups.minimum(kGroup) < groups.maximum(kGroup)
        || !shows(FieldLayer::Scatter, hasOwnSizes))
        return std::nullopt;
    return SceneNote {
        tr("All symbols have one size: their size variable \"%1\" is %2 in all active "
           "zones.")
            .arg(nameOf(groups.variable(kGroup)))
            .arg(groups.minimum(kGroup)),
        style::globalScatter.var};
}

/// Whether the map shows something that lies within its zone.
bool Notes::showsWithin(const ShownMap& shown) const
{
    for (std::size_t i = 0; i < kFieldLayerCount; ++i) {
        const auto layer = static_cast<FieldLayer>(i);
        if (placeOf(layer).isWithin && isLayerOn(m_facts.frame, layer)
            && lookOf(layer, shown, m_facts.groups))
            return true;
    }
    return false;
}

/// Whether opaque faces stand all round the zone of the map.
bool Notes::isClosed(const ShownMap& shown) const
{
    const MapStyle style(shown);
    const int surfaces = style.number(style::fieldMap.surfaces.surfacesToPlot);
    return (surfaces == SurfacesToPlot_BoundaryCellFaces
            || surfaces == SurfacesToPlot_ExposedCellFaces || surfaces == SurfacesToPlot_All)
        && style.translucency() == 0 && style.blanking().tests.empty()
        && (style.showsHiddenLines() || style.showsShade() || style.showsFlood(m_facts.groups));
}

std::optional<SceneNote> Notes::inside() const
{
    host::NumberSet closed;
    for (const std::uint32_t map : m_facts.maps) {
        const ShownMap shown {m_facts.frame, map, m_facts.frame.candidateZone(map)};
        if (!showsWithin(shown))
            continue;
        if (!isClosed(shown))
            return std::nullopt;
        closed.add(map);
    }
    if (closed.isEmpty())
        return std::nullopt;
    constexpr style::Key kSurfaces = style::fieldMap.surfaces.surfacesToPlot;
    return SceneNote {
        tr("Slices, iso-surfaces and streamtraces are hidden: opaque faces stand all "
           "round the zones that show them."),
        kSurfaces, tr("Hide These Faces"),
        host::SetStyle {host::pathOf(kSurfaces), double {SurfacesToPlot_None}, closed}};
}

/// Zones whose faces are not seen, as they do not have what these are coloured by.
std::optional<SceneNote> Notes::lacking() const
{
    std::vector<CvlInt64> zones;
    for (const CvlInt64 map : m_facts.lackingMaps) {
        const ShownMap shown {m_facts.frame, map, m_facts.frame.candidateZone(map)};
        const bool isShaded = isLayerOn(m_facts.frame, FieldLayer::Shade)
            && lookOf(FieldLayer::Shade, shown, m_facts.groups);
        if (!isShaded)
            zones.push_back(shown.zone);
    }
    if (zones.empty())
        return std::nullopt;
    return SceneNote {
        tr("%Ln zone(s) have no values of \"%1\", the variable of contour group %2, "
           "and are not colored by it: \"%3\" is the first.",
           nullptr, static_cast<int>(zones.size()))
            .arg(nameOf(m_facts.groups.variable(m_facts.lackingGroup)))
            .arg(m_facts.lackingGroup)
            .arg(QString::fromStdString(m_facts.frame.data()->zone(zones.front()).name)),
        style::contourGroups.var};
}

std::vector<SceneNote> Notes::all() const
{
    using Note = std::optional<SceneNote> (Notes::*)() const;
    std::vector<SceneNote> notes;
    for (const Note note :
         {&Notes::blanking, &Notes::constraints, &Notes::axes, &Notes::levels, &Notes::lines,
          &Notes::volumes, &Notes::slices, &Notes::isoSurfaces, &Notes::streamtraces,
          &Notes::points, &Notes::vectors, &Notes::scatter, &Notes::inside, &Notes::lacking})
        if (auto found = (this->*note)())
            notes.push_back(std::move(*found));
    return notes;
}

} // namespace

std::vector<SceneNote> notesOn(const NoteFacts& facts)
{
    return Notes(facts).all();
}

} // namespace corvala::plot

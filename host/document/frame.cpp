// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/frame.h"

namespace corvala::host {

Frame::Frame(CvlUniqueId id)
    : m_id(id)
    , m_values(Scope::Frame)
{
    m_maps.fieldStyle.setVolumeQuery(
        [this](CvlInt64 map) { return fieldMaps().hasVolumeZones(map); });
}

PlotType_e Frame::plotType() const
{
    return static_cast<PlotType_e>(m_values.integer(Schema::instance().at(style::plotType)));
}

bool Frame::isFieldPlot() const
{
    return plotType() == PlotType_Field2D || plotType() == PlotType_Field3D;
}

bool Frame::isLinePlot() const
{
    return plotType() == PlotType_LineXY || plotType() == PlotType_LinePolar;
}

CvlInt64 Frame::shownMapCount() const
{
    return isFieldPlot() ? fieldMapCount() : isLinePlot() ? lineMapCount() : 0;
}

bool Frame::isOn(style::SwitchKey key, int index) const
{
    return integer(key, index) != 0;
}

std::int32_t Frame::integer(style::Key key, int index) const
{
    return m_values.integer(Schema::instance().at(key), index);
}

double Frame::real(style::RealKey key, int index) const
{
    return m_values.real(Schema::instance().at(key), index);
}

const std::string& Frame::text(style::TextKey key, int index) const
{
    return std::get<std::string>(m_values.get(Schema::instance().at(key), index));
}

std::int32_t Frame::fieldInteger(AttributeId attribute, CvlInt64 map) const
{
    return m_maps.fieldStyle.integer(Schema::instance().at(attribute), map);
}

double Frame::fieldReal(AttributeId attribute, CvlInt64 map) const
{
    return m_maps.fieldStyle.real(Schema::instance().at(attribute), map);
}

std::int32_t Frame::lineInteger(AttributeId attribute, CvlInt64 map) const
{
    return m_maps.lineStyle.integer(Schema::instance().at(attribute), map);
}

double Frame::lineReal(AttributeId attribute, CvlInt64 map) const
{
    return m_maps.lineStyle.real(Schema::instance().at(attribute), map);
}

} // namespace corvala::host

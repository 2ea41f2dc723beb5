// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/picked_objects.h"

#include "host/document/document.h"
#include "host/document/line_map_name.h"

#include <QCoreApplication>
#include <QLocale>

namespace corvala::app {

using host::Document;

struct PickedObjects
{
    Q_DECLARE_TR_FUNCTIONS(PickedObjects)
};

CvlInt64 mapOfObject(CvlInt64 number)
{
    const host::Frame* const frame = Document::instance().activeFrame();
    if (!frame || number < 1)
        return 0;
    if (frame->isFieldPlot())
        return frame->fieldMaps().mapOfZone(number);
    return number <= frame->lineMapCount() ? number : 0;
}

/// Zones or line maps, as the active frame shows.
static std::vector<CvlInt64> pickedObjects()
{
    std::vector<CvlInt64> numbers;
    const host::Frame* const frame = Document::instance().activeFrame();
    if (!frame)
        return numbers;
    const int wanted = frame->isFieldPlot() ? PickType_Zone : PickType_LineMap;
    for (const host::Pick& pick : frame->picks())
        if (pick.type == wanted && mapOfObject(pick.number) != 0)
            numbers.push_back(pick.number);
    return numbers;
}

host::NumberSet pickedMaps()
{
    host::NumberSet maps;
    for (const CvlInt64 number : pickedObjects())
        maps.add(static_cast<std::uint32_t>(mapOfObject(number)));
    return maps;
}

CvlInt64 pickedObject()
{
    const std::vector<CvlInt64> numbers = pickedObjects();
    return numbers.empty() ? 0 : numbers.front();
}

QString pickedText()
{
    const auto count = static_cast<int>(pickedObjects().size());
    if (count < 2)
        return objectText(pickedObject());
    return PickedObjects::tr("%Ln object(s) picked", nullptr, count);
}

void pickObject(CvlInt64 number)
{
    const host::Frame* const frame = Document::instance().activeFrame();
    std::vector<host::Pick> picks;
    if (frame && number > 0)
        picks.push_back({frame->isFieldPlot() ? PickType_Zone : PickType_LineMap, number});
    Document::instance().execute(host::SetPicks {picks});
}

static QString counted(std::int64_t count)
{
    return QLocale(QLocale::English).toString(static_cast<qlonglong>(count));
}

QString objectText(CvlInt64 number)
{
    const host::Frame* const frame = Document::instance().activeFrame();
    if (mapOfObject(number) == 0)
        return {};
    if (!frame->isFieldPlot())
        return PickedObjects::tr("Line %1: %2")
            .arg(number)
            .arg(QString::fromStdString(host::shownLineMapName(*frame, number)));
    const host::ZoneInfo& zone = frame->data()->zone(number);
    const QString name = QString::fromStdString(zone.name);
    return zone.cellCount > 0
        ? PickedObjects::tr("Zone %1: %2, %3 cells").arg(number).arg(name, counted(zone.cellCount))
        : PickedObjects::tr("Zone %1: %2, %3 points")
              .arg(number)
              .arg(name, counted(zone.pointCount));
}

} // namespace corvala::app

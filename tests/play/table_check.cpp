// SPDX-License-Identifier: BSD-3-Clause
#include "tests/play/table_check.h"

#include "host/document/document.h"
#include "sdk/base/cvl.h"
#include "sdk/dialogs_common/qt_dialog_abstract.h"

#include <QColor>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableView>

namespace corvala::tests {

using host::Document;
using host::Frame;
using play::DialogDriver;

namespace {

enum class Kind { Check, Number, Percent, Color, Choice };

/// How a column shows a style value; `tab` is empty for the columns that all tabs share.
struct Shown
{
    const char* tab;
    const char* header;
    std::vector<std::string> path;
    Kind kind;
};

} // namespace

static const std::vector<Shown>& shownValues()
{
    static const std::vector<Shown> all {
        {"", "Group\nNumber", {"FieldMap", "Group"}, Kind::Number},
        {"Mesh", "Show\nMesh", {"FieldMap", "Mesh", "Show"}, Kind::Check},
        {"Mesh", "Mesh\nType", {"FieldMap", "Mesh", "MeshType"}, Kind::Choice},
        {"Mesh", "Line\nPattern", {"FieldMap", "Mesh", "LinePattern"}, Kind::Choice},
        {"Contour", "Contour\nType", {"FieldMap", "Contour", "ContourType"}, Kind::Choice},
        {"Contour", "Line\nPattern", {"FieldMap", "Contour", "LinePattern"}, Kind::Choice},
        {"Definitions", "Show in\nLegend", {"LineMap", "Assign", "ShowInLegend"}, Kind::Choice},
        {"Mesh", "Mesh\nColor", {"FieldMap", "Mesh", "Color"}, Kind::Color},
        {"Mesh", "Pattern\nLength", {"FieldMap", "Mesh", "PatternLength"}, Kind::Percent},
        {"Mesh", "Line\nThickness", {"FieldMap", "Mesh", "LineThickness"}, Kind::Percent},
        {"Contour", "Show\nContour", {"FieldMap", "Contour", "Show"}, Kind::Check},
        {"Contour", "Line\nColor", {"FieldMap", "Contour", "Color"}, Kind::Color},
        {"Contour", "Pattern\nLength", {"FieldMap", "Contour", "PatternLength"}, Kind::Percent},
        {"Contour", "Line\nThickness", {"FieldMap", "Contour", "LineThickness"}, Kind::Percent},
        {"Shade", "Show\nShade", {"FieldMap", "Shade", "Show"}, Kind::Check},
        {"Shade", "Shade\nColor", {"FieldMap", "Shade", "Color"}, Kind::Color},
    };
    return all;
}

static const Shown* shownBy(const QString& tab, const QString& header)
{
    for (const Shown& shown : shownValues()) {
        if (header == QLatin1String(shown.header)
            && (!*shown.tab || tab == QLatin1String(shown.tab)))
            return &shown;
    }
    return nullptr;
}

static QVariant storedCheck(bool isOn)
{
    return static_cast<int>(isOn ? Qt::Checked : Qt::Unchecked);
}

/// What the cell should show by the style tree; invalid for values that are not looked at here.
static QVariant stored(const Frame& frame, const Shown& shown, std::int64_t map)
{
    const host::Schema& schema = host::Schema::instance();
    const host::AttributeId id = schema.find(shown.path);
    if (id < 0)
        return QStringLiteral("no style value");
    const bool isLine = shown.path.front() == "LineMap";
    const host::MapTable& table = isLine ? frame.lineStyle() : frame.fieldStyle();
    const host::Attribute& attribute = schema.at(id);
    switch (shown.kind) {
    case Kind::Check: return storedCheck(table.integer(attribute, map) != 0);
    case Kind::Number: return QString::number(table.integer(attribute, map));
    case Kind::Percent: return QString::number(table.real(attribute, map), 'f', 2) + '%';
    case Kind::Choice:
        return QString::fromUtf8(
            attribute.choices.nameOf(static_cast<int>(table.integer(attribute, map))));
    case Kind::Color: break;
    }
    const auto palette = static_cast<int>(table.integer(attribute, map));
    if (palette < 0 || palette > 63)
        return {}; // a group's colour
    const host::Rgb color = Document::instance().color(palette);
    return QColor(color.red, color.green, color.blue).name();
}

static QVariant seen(const QModelIndex& cell, Kind kind)
{
    if (kind == Kind::Check)
        return cell.data(Qt::CheckStateRole).toInt();
    if (kind == Kind::Color)
        return cell.data().value<QColor>().name();
    return cell.data().toString();
}

/// The name of a map, with its dynamic text filled in, or of the zone that it shows.
static QVariant storedName(const Frame& frame, std::int64_t map)
{
    const CvlInt64 zone =
        frame.isLinePlot() ? 0 : CvlUtilFieldMapGetCandidateZoneForFrame(frame.id(), map);
    if (zone > 0)
        return QString::fromStdString(frame.data()->zone(zone).name);
    char* text = frame.isLinePlot() ? CvlUtilLineMapGetNameForFrame(frame.id(), map) : nullptr;
    const QVariant name = text ? QString::fromUtf8(text) : QVariant();
    CvlUtilStringDealloc(&text);
    return name;
}

static QString cellDifference(const Frame& frame, const QModelIndex& cell, const QString& tab)
{
    const QString header = cell.model()->headerData(cell.column(), Qt::Horizontal).toString();
    const std::int64_t map = cell.row() + 1;
    const auto report = [&](const QVariant& is, const QVariant& should) {
        return is == should ? QString()
                            : QStringLiteral("%1 of map %2 is \"%3\", not \"%4\"")
                                  .arg(header)
                                  .arg(map)
                                  .arg(is.toString(), should.toString());
    };
    const bool isShowColumn =
        header == QLatin1String("Show\nZone") || header == QLatin1String("Show\nMap");
    if (isShowColumn) {
        const host::NumberSet& active =
            frame.isLinePlot() ? frame.activeLineMaps() : frame.activeFieldMaps();
        return report(seen(cell, Kind::Check),
                      storedCheck(active.contains(static_cast<std::uint32_t>(map))));
    }
    if (header == QLatin1String("Zone\nName") || header == QLatin1String("Map\nName")) {
        const QVariant name = storedName(frame, map);
        return name.isValid() ? report(cell.data(), name) : QString();
    }
    const Shown* shown = shownBy(tab, header);
    const QVariant should = shown ? stored(frame, *shown, map) : QVariant();
    return should.isValid() ? report(seen(cell, shown->kind), should) : QString();
}

static QString visibleCellsDifference(const Frame& frame, const DialogDriver& dialog)
{
    const QTableView& view = dialog.table();
    const QString tab = dialog.tabTexts().value(dialog.tabs().currentIndex());
    const int first = qMax(0, view.rowAt(0));
    for (int row = first; row < view.model()->rowCount(); ++row) {
        if (view.rowViewportPosition(row) > view.viewport()->height())
            break;
        for (int column = 0; column < view.model()->columnCount(); ++column) {
            const QString difference = cellDifference(frame, view.model()->index(row, column), tab);
            if (!difference.isEmpty())
                return difference;
        }
    }
    return {};
}

static QString selectionDifference(const QTableView& view)
{
    const QAbstractItemModel& model = *view.model();
    for (const QItemSelectionRange& range : view.selectionModel()->selection()) {
        if (range.model() != &model || !range.isValid() || range.bottom() >= model.rowCount()
            || range.right() >= model.columnCount())
            return QStringLiteral("the selection holds rows %1 to %2 of %3")
                .arg(range.top())
                .arg(range.bottom())
                .arg(model.rowCount());
    }
    const QModelIndex current = view.currentIndex();
    if (current.isValid() && current.row() >= model.rowCount())
        return QStringLiteral("the current row is %1 of %2")
            .arg(current.row())
            .arg(model.rowCount());
    return {};
}

static QString frameDifference(const QTableView& view)
{
    const auto differ = [](const char* what, int is, int should) {
        return QStringLiteral("%1: %2, not %3").arg(QLatin1String(what)).arg(is).arg(should);
    };
    const QHeaderView& columns = *view.horizontalHeader();
    const QHeaderView& rows = *view.verticalHeader();
    if (columns.count() != view.model()->columnCount())
        return differ("header sections", columns.count(), view.model()->columnCount());
    if (rows.count() != view.model()->rowCount())
        return differ("row sections", rows.count(), view.model()->rowCount());
    const bool byPixels = view.horizontalScrollMode() == QAbstractItemView::ScrollPerPixel;
    const QScrollBar& bar = *view.horizontalScrollBar();
    if (byPixels && columns.offset() != bar.value())
        return differ("header offset", columns.offset(), bar.value());
    if (columns.model() != view.model() || rows.model() != view.model())
        return QStringLiteral("a header has another model than the table");
    return {};
}

QString tableDifference(const DialogDriver& dialog)
{
    if (!DialogDriver::instance() || !DialogDriver::instance()->isVisible())
        return {};
    const auto* view = DialogDriver::instance()->findChild<QTableView*>();
    const Frame* frame = Document::instance().activeFrame();
    const bool hasTables =
        frame && frame->plotType() != PlotType_None && frame->plotType() != PlotType_Annotation;
    if (!view || !view->isVisible() || !view->model() || !hasTables)
        return {};
    const auto maps = static_cast<int>(frame->shownMapCount());
    if (view->model()->rowCount() != maps)
        return QStringLiteral("the table has %1 rows for %2 maps")
            .arg(view->model()->rowCount())
            .arg(maps);
    for (const QString& difference : {frameDifference(*view), selectionDifference(*view)}) {
        if (!difference.isEmpty())
            return difference;
    }
    return visibleCellsDifference(*frame, dialog);
}

} // namespace corvala::tests

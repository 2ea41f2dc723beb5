// SPDX-License-Identifier: BSD-3-Clause
#include "play/style_report.h"

#include "host/document/document.h"
#include "play/arguments.h"
#include "play/idle.h"
#include "play/menu_entries.h"
#include "sdk/dialogs_common/qt_dialog_abstract.h"

#include <QAction>
#include <QBrush>
#include <QColor>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QSaveFile>
#include <QTabWidget>
#include <QTableView>

namespace corvala::play {

using Json = nlohmann::ordered_json;

QString colorText(const QColor& color)
{
    return color.name().toUpper();
}

static Json jsonOf(const QVariant& value)
{
    switch (static_cast<QMetaType::Type>(value.type())) {
    case QMetaType::QStringList: {
        Json list = Json::array();
        for (const QString& text : value.toStringList())
            list.push_back(text.toStdString());
        return list;
    }
    case QMetaType::Bool: return value.toBool();
    case QMetaType::Double: return value.toDouble();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong: return value.toLongLong();
    default: break;
    }
    const bool isEnumeration =
        QMetaType::typeFlags(value.userType()).testFlag(QMetaType::IsEnumeration);
    return isEnumeration ? Json(value.toInt()) : Json(value.toString().toStdString());
}

static bool isEmpty(const QVariant& value)
{
    return !value.isValid() || (value.type() == QVariant::String && value.toString().isEmpty());
}

Json describeCell(const DialogDriver& dialog, const QModelIndex& cell)
{
    static constexpr struct
    {
        const char* key;
        int role;
    } values[] = {{"display", Qt::DisplayRole},
                  {"edit", Qt::EditRole},
                  {"check", Qt::CheckStateRole},
                  {"role256", Qt::UserRole},
                  {"toolTip", Qt::ToolTipRole}};
    Json description = Json::object();
    for (const auto& [key, role] : values) {
        const QVariant value = cell.data(role);
        if (value.type() == QVariant::Color)
            description["color"] = colorText(value.value<QColor>()).toStdString();
        else if (!isEmpty(value))
            description[key] = jsonOf(value);
    }
    description["relevant"] = dialog.isRelevant(cell);
    description["editable"] = bool(cell.flags() & Qt::ItemIsEditable);
    description["checkable"] = bool(cell.flags() & Qt::ItemIsUserCheckable);
    return description;
}

static Json describeColumn(const DialogDriver& dialog, int column)
{
    const QAbstractItemModel& model = dialog.model();
    const QTableView& view = dialog.table();
    const auto brush = model.headerData(column, Qt::Horizontal, Qt::BackgroundRole).value<QBrush>();
    return {{"header", model.headerData(column, Qt::Horizontal).toString().toStdString()},
            {"brush", colorText(brush.color()).toStdString()},
            {"editorType", dialog.editorType(column)},
            {"editorOption", dialog.editorOption(column)},
            {"visual", view.horizontalHeader()->visualIndex(column)},
            {"width", view.columnWidth(column)}};
}

static Json describeMenu(const DialogDriver& dialog, int column)
{
    QTableView& view = dialog.table();
    QObject owner;
    const QList<QAction*> actions = dialog.actions(*view.selectionModel(), column);
    for (QAction* action : actions)
        action->setParent(&owner);
    return describeActions(actions, &view);
}

static Json describeRow(const DialogDriver& dialog, std::int64_t map)
{
    Json cells = Json::array();
    for (int column = 0; column < dialog.model().columnCount(); ++column)
        cells.push_back(describeCell(dialog, dialog.cell(map, column)));
    return {{"map", map}, {"cells", cells}};
}

static Json describeTable(const DialogDriver& dialog, const host::NumberSet& maps)
{
    Json table {{"columns", Json::array()}, {"rows", Json::array()}, {"menus", Json::array()}};
    for (int column = 0; column < dialog.model().columnCount(); ++column) {
        table["columns"].push_back(describeColumn(dialog, column));
        table["menus"].push_back(describeMenu(dialog, column));
    }
    for (const std::uint32_t map : maps) {
        if (map > static_cast<std::uint32_t>(dialog.model().rowCount()))
            break;
        table["rows"].push_back(describeRow(dialog, map));
    }
    return table;
}

QString selectedMaps(const DialogDriver& dialog)
{
    host::NumberSet maps;
    for (const QItemSelectionRange& range : dialog.table().selectionModel()->selection())
        maps.addRange(static_cast<std::uint64_t>(range.top()) + 1,
                      static_cast<std::uint64_t>(range.bottom()) + 2);
    return QString::fromStdString(host::toText(maps, dialog.model().rowCount()));
}

Json styleReport(const DialogDriver& dialog, const QString& maps)
{
    const host::Frame* frame = host::Document::instance().activeFrame();
    const host::NumberSet shownMaps = host::numbersFromText(maps, dialog.model().rowCount());
    QTabWidget& tabs = dialog.tabs();
    const int current = tabs.currentIndex();
    Json report;
    report["plotType"] = frame ? int(frame->plotType()) : 0;
    report["title"] = dialog.dialog().windowTitle().toStdString();
    report["page"] = dialog.page().toStdString();
    report["tabs"] = Json::array();
    report["buttons"] = jsonOf(dialog.buttonBoxTexts());
    report["tab"] = dialog.tabTexts().value(current).toStdString();
    report["selected"] = selectedMaps(dialog).toStdString();
    for (int i = 0; i < tabs.count(); ++i) {
        tabs.setCurrentIndex(i);
        waitUntilIdle();
        const std::string text = dialog.tabTexts().value(i).toStdString();
        report["tabs"].push_back({{"page", tabs.widget(i)->objectName().toStdString()},
                                  {"text", text},
                                  {"help", dialog.helpReference().toStdString()}});
        report["tables"][text] = describeTable(dialog, shownMaps);
    }
    tabs.setCurrentIndex(current);
    return report;
}

QString writeStyleReport(const DialogDriver& dialog, const QString& maps, const QString& fileName)
{
    std::string text;
    try {
        text = styleReport(dialog, maps).dump(2, ' ', false, Json::error_handler_t::replace);
    } catch (const ScriptError& error) {
        return error.message();
    }
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write((text + '\n').c_str()) < 0 || !file.commit())
        return Text::tr("%1 cannot be written: %2").arg(fileName, file.errorString());
    return {};
}

} // namespace corvala::play

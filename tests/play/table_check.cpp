// SPDX-License-Identifier: BSD-3-Clause
#include "tests/play/table_check.h"

#include "host/document/document.h"
#include "play/dialog_driver.h"
#include "sdk/dialogs_common/qt_dialog_abstract.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QScrollBar>
#include <QTableView>

namespace corvala::tests {

using host::Document;
using host::Frame;
using play::DialogDriver;

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

QString tableDifference()
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
    const QString difference = frameDifference(*view);
    return difference.isEmpty() ? selectionDifference(*view) : difference;
}

} // namespace corvala::tests

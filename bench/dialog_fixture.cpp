// SPDX-License-Identifier: BSD-3-Clause
#include "dialog_fixture.h"

#include "host/document/document.h"
#include "samples/demo_data.h"
#include "zonestyle/models/model_abstract.h"

#include <QAction>
#include <QCoreApplication>
#include <QItemSelectionModel>
#include <QTabWidget>
#include <QTableView>

#include <stdexcept>

namespace corvala::bench {

using sdk::ui::dialogs::ZoneStyleDialog;

DialogFixture::DialogFixture(std::int64_t maps)
{
    std::string error;
    if (!samples::openDemo("field2d", maps, error))
        throw std::runtime_error(error);
    m_window.show();
    dialog().launch();
    runUntilIdle();
}

DialogFixture::~DialogFixture()
{
    delete ZoneStyleDialog::m_dialogInstance;
}

ZoneStyleDialog& DialogFixture::dialog() const
{
    return ZoneStyleDialog::getInstance(const_cast<QMainWindow&>(m_window),
                                        corvala::dialogs::common::DialogInitialization_None);
}

QTableView& DialogFixture::table() const
{
    return *dialog().findChild<QTableView*>();
}

QTabWidget& DialogFixture::tabs() const
{
    return *dialog().findChild<QTabWidget*>(QStringLiteral("plotAttr_FD_PageGroup"));
}

QItemSelection rowsOf(const QAbstractItemModel& model, Rows rows)
{
    const int last = rows == Rows::One ? 0 : model.rowCount() - 1;
    const int step = rows == Rows::Alternate ? 2 : 1;
    QItemSelection selection;
    if (rows == Rows::All) {
        selection.append(
            QItemSelectionRange(model.index(0, 0), model.index(last, model.columnCount() - 1)));
        return selection;
    }
    for (int row = 0; row <= last; row += step)
        selection.append(
            QItemSelectionRange(model.index(row, 0), model.index(row, model.columnCount() - 1)));
    return selection;
}

void DialogFixture::select(Rows rows) const
{
    QItemSelectionModel& selection = *table().selectionModel();
    selection.clearSelection();
    selection.select(rowsOf(*table().model(), rows), QItemSelectionModel::Select);
    runUntilIdle();
}

void DialogFixture::triggerMenu(int column, int entry) const
{
    auto& model =
        *qobject_cast<sdk::ui::dialogs::zonestyle::intern::models::ModelAbstract*>(table().model());
    const QList<QAction*> actions = model.columnActions(table().selectionModel(), column);
    actions.at(entry)->trigger();
    qDeleteAll(actions);
    runUntilIdle();
}

void DialogFixture::undo() const
{
    host::Document::instance().undo().undo();
    runUntilIdle();
}

void DialogFixture::changeOneValue()
{
    m_value = m_value == 2.0 ? 0.0 : 2.0;
    const host::NumberSet first = host::allUpTo(1);
    host::Document::instance().execute(
        host::SetStyle {{"FieldMap", "Mesh", "MeshType"}, m_value, first});
    runUntilIdle();
}

void DialogFixture::runUntilIdle()
{
    constexpr int kRounds = 4; // the idle performer, the refresh, the repaint
    for (int i = 0; i < kRounds; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

} // namespace corvala::bench

// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/action.h"
#include "zonestyle/actions/style_write.h"
#include "zonestyle/controls/selected_rows.h"
#include "zonestyle/dialog/zone_style_dialog.h"
#include "zonestyle/views/style_table_view.h"

#include <sdk/base/cvl.h>
#include <sdk/common/app_lock.h>
#include <sdk/common/common.h>
#include <sdk/dialogs_lineplot/line_map_create_dialog.h>

#include <QMessageBox>
#include <QPointer>

namespace corvala::sdk::ui::dialogs {

namespace actions = zonestyle::intern::actions;

static QModelIndexList selectedRows(const QTableView& view)
{
    return view.selectionModel() ? uicontrols::selectedRows(*view.selectionModel())
                                 : QModelIndexList();
}

/// Hands the line maps of the selected rows to a host function.
static void applyToSelectedMaps(const QTableView& view, CvlBool (*apply)(CvlSetHandle))
{
    const AppLock lock(ImplicitMacroRecording_None);
    CvlSetHandle maps = CvlUtilSetAlloc(true);
    if (!maps)
        return;
    bool complete = true;
    for (const QModelIndex& row : selectedRows(view))
        complete = CvlUtilSetAddMember(maps, row.row() + 1, true) != 0;
    if (complete && !CvlUtilSetIsEmpty(maps))
        apply(maps);
    CvlUtilSetDealloc(&maps);
}

void ZoneStyleDialog::on_plotAttr_MaptoolsCreateMap_Button_clicked(bool)
{
    corvala::dialogs::lineplot::LineMapCreateDialog::getInstance(this).launch();
}

void ZoneStyleDialog::on_plotAttr_MaptoolsCopyMap_Button_clicked(bool)
{
    const toolbox::Set maps = actions::mapSet(selectedRows(*m_tableView));
    if (maps.isEmpty())
        return;
    const AppLock lock(ImplicitMacroRecording_None);
    copyLineMaps(maps);
}

void ZoneStyleDialog::on_plotAttr_MaptoolsDeleteMap_Button_clicked(bool)
{
    if (selectedRows(*m_tableView).isEmpty())
        return;
    const QPointer<ZoneStyleDialog> self(this);
    const ModelAbstract* const askedFor = m_currentModel;
    const auto answer = QMessageBox::warning(
        this, tr("Linemap Delete"), tr("Are you sure you want to\ndelete the selected mappings?"),
        QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel);
    if (!self || answer != QMessageBox::Ok || m_currentModel != askedFor)
        return;
    const toolbox::Set maps = actions::mapSet(selectedRows(*m_tableView)); // that are left
    if (!maps.isEmpty())
        deleteLineMaps(maps);
}

/// One undo step: undoing it brings the maps back, active as they were.
void ZoneStyleDialog::deleteLineMaps(toolbox::Set const& lineMaps)
{
    const AppLock lock(ImplicitMacroRecording_None);
    CvlUtilUndoStateBegin(UndoKind_LineMapsDeleted);
    toolbox::CheckedStyleValue activeMaps("ActiveLineMaps");
    actions::writeStyle(activeMaps, nullptr, toolbox::AssignOp_Remove, lineMaps);
    CvlUtilLineMapDelete(lineMaps.handle());
    CvlUtilUndoStateEnd(false, true);
}

void ZoneStyleDialog::on_plotAttr_MaptoolsMoveToTop_Button_clicked(bool)
{
    applyToSelectedMaps(*m_tableView, CvlUtilLineMapShiftToTop);
}

void ZoneStyleDialog::on_plotAttr_MaptoolsMoveToBottom_Button_clicked(bool)
{
    applyToSelectedMaps(*m_tableView, CvlUtilLineMapShiftToBottom);
}

} // namespace corvala::sdk::ui::dialogs

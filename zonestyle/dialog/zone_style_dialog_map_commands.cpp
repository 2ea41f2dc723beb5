// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/action.h"
#include "zonestyle/controls/selected_rows.h"
#include "zonestyle/dialog/zone_style_dialog.h"
#include "zonestyle/dialog/zone_style_form.h"
#include "zonestyle/views/style_table_view.h"

#include <sdk/base/cvl.h>
#include <sdk/common/app_lock.h>
#include <sdk/common/common.h>
#include <sdk/dialogs_lineplot/line_map_create_dialog.h>
#include <sdk/uicommon/question.h>
#include <sdk/uicommon/style_writing.h>

#include <QPointer>
#include <QTabWidget>

namespace corvala::sdk::ui::dialogs {

namespace actions = zonestyle::intern::actions;

/// None while no table of line maps is shown: the table may still have the rows of zones selected.
QModelIndexList ZoneStyleDialog::selectedLineMapRows()
{
    const bool showsLineMaps = getCurrentTabWidget() == m_form->lineTabs
        && m_form->lineTabs->currentWidget() == m_tableView->parentWidget()
        && m_tableView->selectionModel();
    return showsLineMaps ? uicontrols::selectedRows(*m_tableView->selectionModel())
                         : QModelIndexList();
}

/// Hands the line maps of some rows to a host function.
static void applyToMaps(const QModelIndexList& rows, CvlBool (*apply)(CvlSetHandle))
{
    const AppLock lock(ImplicitMacroRecording_None);
    CvlSetHandle maps = CvlUtilSetAlloc(true);
    if (!maps)
        return;
    bool complete = true;
    for (const QModelIndex& row : rows)
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
    const toolbox::Set maps = actions::mapSet(selectedLineMapRows());
    if (maps.isEmpty())
        return;
    const AppLock lock(ImplicitMacroRecording_None);
    copyLineMaps(maps);
}

void ZoneStyleDialog::on_plotAttr_MaptoolsDeleteMap_Button_clicked(bool)
{
    const toolbox::Set maps = actions::mapSet(selectedLineMapRows());
    if (maps.isEmpty())
        return;
    const QPointer<ZoneStyleDialog> self(this);
    const bool isConfirmed = ask(this, QMessageBox::Warning, tr("Linemap Delete"),
                                 tr("Are you sure you want to\ndelete the selected mappings?"),
                                 QMessageBox::Ok, QMessageBox::Cancel, QMessageBox::Cancel);
    if (self && isConfirmed)
        deleteLineMaps(maps);
}

/// One undo step: undoing it brings the maps back, active as they were.
void ZoneStyleDialog::deleteLineMaps(toolbox::Set const& lineMaps)
{
    const AppLock lock(ImplicitMacroRecording_None);
    CvlUtilUndoStateBegin(UndoKind_LineMapsDeleted);
    toolbox::CheckedStyleValue activeMaps(style::activeLineMaps);
    writeStyle(activeMaps, nullptr, lineMaps, toolbox::AssignOp_Remove);
    CvlUtilLineMapDelete(lineMaps.handle());
    CvlUtilUndoStateEnd(false, true);
}

void ZoneStyleDialog::on_plotAttr_MaptoolsMoveToTop_Button_clicked(bool)
{
    applyToMaps(selectedLineMapRows(), CvlUtilLineMapShiftToTop);
}

void ZoneStyleDialog::on_plotAttr_MaptoolsMoveToBottom_Button_clicked(bool)
{
    applyToMaps(selectedLineMapRows(), CvlUtilLineMapShiftToBottom);
}

} // namespace corvala::sdk::ui::dialogs

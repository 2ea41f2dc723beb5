// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/controls/selected_rows.h"
#include "zonestyle/controls/table_column_header.h"
#include "zonestyle/dialog/focus_keeper.h"
#include "zonestyle/dialog/selection_model_signal_suspender.h"
#include "zonestyle/dialog/view_models.h"
#include "zonestyle/dialog/zone_style_dialog.h"
#include "zonestyle/dialog/zone_style_form.h"
#include "zonestyle/models/model_abstract.h"
#include "zonestyle/models/model_for_page_map.h"
#include "zonestyle/views/style_table_view.h"

#include <sdk/uicommon/edit_session.h>
#include <sdk/uicommon/on_idle_action_performer_single_shot.h>

#include <QGridLayout>
#include <QTabWidget>

namespace corvala::sdk::ui::dialogs {

using uicontrols::TableColumnHeader;
using zonestyle::intern::FocusKeeper;
using zonestyle::intern::SelectionModelSignalSuspender;
using zonestyle::intern::ViewModel;
using zonestyle::intern::models::ModelAbstract;

namespace {

struct SectionMove
{
    int from;
    int to;
};

/// Visual places, moved one after the other. Deliberate: they put the columns of the definitions
/// tables in reading order, which is not the order of their models.
constexpr SectionMove kXYDefinitionMoves[] = {{5, 9}, {4, 6}, {3, 5}};
constexpr SectionMove kPolarDefinitionMoves[] = {{5, 7}, {4, 6}, {3, 5}};

template<std::size_t N>
void moveSections(QHeaderView& header, const SectionMove (&moves)[N])
{
    for (const SectionMove& move : moves)
        header.moveSection(move.from, move.to);
}

} // namespace

void ZoneStyleDialog::createViewModels()
{
    for (const ViewModel& entry : zonestyle::intern::viewModels()) {
        const auto* page = findChild<QWidget*>(QString::fromLatin1(entry.page));
        std::unique_ptr<ModelAbstract> model(entry.make());
        if (!m_modelForPageMap->add(page, model.get(), entry.plotType))
            continue;
        ModelAbstract* registered = model.release();
        if (page != m_form->linePages[MappingStyleTab_Definitions])
            continue;
        if (entry.plotType == PlotType_LineXY)
            moveSections(*getHeaderForModel(registered), kXYDefinitionMoves);
        else
            moveSections(*getHeaderForModel(registered), kPolarDefinitionMoves);
    }
}

/// Plot types without tables leave the view as it is.
void ZoneStyleDialog::setupTableView()
{
    QTabWidget* tabWidget = getCurrentTabWidget();
    QWidget* page = tabWidget ? tabWidget->currentWidget() : nullptr;
    ModelAbstract* model = page ? m_modelForPageMap->modelFor(page) : nullptr;
    if (!model)
        return;
    m_currentModel = model;
    if (m_tableView->parentWidget() != page || m_tableView->model() != model)
        showTable(*page, *model);
    else
        m_tableView->adoptPlotType();
    makeSelectionFitModel();
    saveLastTab();
}

/// The view is on no page while its header, model and selection model are exchanged: a layout that
/// measured it in between would ask a header for columns that the model does not have.
void ZoneStyleDialog::showTable(QWidget& page, ModelAbstract& model)
{
    const FocusKeeper focus(*this, *m_tableView);
    EditSession::closeAll();
    TableColumnHeader* header = getHeaderForModel(&model);
    replaceColumnHeader(header);
    QItemSelectionModel* previous = m_tableView->selectionModel();
    QItemSelectionModel* target = getSelectionModelFor(&model);
    if (previous)
        uicontrols::SelectedRows::of(*previous).settle();
    {
        const SelectionModelSignalSuspender suspender(*m_mapSelection, *m_tableView);
        m_tableView->setModel(&model, tabKey(page));
        m_tableView->setSelectionModel(target);
        if (previous && previous != target)
            copySelection(target, previous);
    }
    configureColumnHeader(header);
    m_countPerformer->enableNotification();
    addTableViewAndFilterTo(&page);
    setTabOrder(m_form->lineTabs, m_tableView.get());
    m_mapSelection->setTabOrderAfter(*m_tableView);
}

/// Line pages are told apart by their place in the form, field pages by their place among the tabs.
int ZoneStyleDialog::tabKey(QWidget& page)
{
    const int shown = m_form->fieldTabs->indexOf(&page);
    return shown >= 0 ? shown : formPosition(page);
}

/// A header belongs to one model: it must not be attached to the view while that shows another
/// one, and a header that is still a child of the view is deleted when the view gets the next. What
/// it recorded comes back before the view sizes its columns: the plot type may be another one
/// since.
void ZoneStyleDialog::replaceColumnHeader(TableColumnHeader* header)
{
    m_tableView->setParent(nullptr);
    header->setModel(m_currentModel);
    if (m_lastHeader && m_lastHeader != header) {
        m_lastHeader->recordSections();
        disconnect(m_lastHeader, nullptr, m_tableView.get(), nullptr);
        m_lastHeader->setParent(nullptr);
    }
    m_tableView->setHorizontalHeader(header);
    header->restoreSections();
    header->show();
    m_mapSelection->setParent(nullptr);
}

/// The layout makes them children of the page; shown before, they would be windows of their own.
void ZoneStyleDialog::addTableViewAndFilterTo(QWidget* page)
{
    if (m_tableView->parentWidget() == page)
        return;
    QLayout* layout = page->layout();
    if (!layout)
        layout = new QVBoxLayout(page);
    if (auto* grid = qobject_cast<QGridLayout*>(layout)) {
        grid->addWidget(m_tableView.get(), 0, 0);
        grid->addWidget(m_mapSelection.get(), 1, 0);
    } else {
        layout->addWidget(m_tableView.get());
        layout->addWidget(m_mapSelection.get());
    }
    m_tableView->show();
    m_mapSelection->show();
}

TableColumnHeader* ZoneStyleDialog::getHeaderForModel(ModelAbstract* model)
{
    std::unique_ptr<TableColumnHeader>& header = m_headers[model];
    if (header)
        return header.get();
    header = std::make_unique<TableColumnHeader>(Qt::Horizontal);
    header->setModel(model);
    header->setStretchLastSection(false);
    header->setCascadingSectionResizes(false);
    connect(header.get(), &QHeaderView::sectionResized, this,
            &ZoneStyleDialog::headerSectionResized);
    return header.get();
}

/// Columns that two tabs share by title keep the width that the user gave them.
void ZoneStyleDialog::configureColumnHeader(TableColumnHeader* header)
{
    if (m_lastHeader && m_lastHeader != header)
        header->copySectionSizes(*m_lastHeader);
    m_lastHeader = header;
}

void ZoneStyleDialog::headerSectionResized(int logicalIndex, int, int)
{
    m_tableView->rememberColumnWidth(logicalIndex);
}

void ZoneStyleDialog::destroyHeaders()
{
    m_lastHeader = nullptr;
    m_headers.clear();
}

} // namespace corvala::sdk::ui::dialogs

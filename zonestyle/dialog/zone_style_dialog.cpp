// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/dialog/zone_style_dialog.h"

#include "zonestyle/actions/prompt_parent.h"
#include "zonestyle/controls/map_selection_by_pattern.h"
#include "zonestyle/controls/table_column_header.h"
#include "zonestyle/dialog/zone_style_form.h"
#include "zonestyle/dialog/zone_style_tabs.h"
#include "zonestyle/models/model_abstract.h"
#include "zonestyle/models/model_for_page_map.h"
#include "zonestyle/views/style_table_view.h"

#include <sdk/common_ui/find_main_window.h>
#include <sdk/dialogs_common/tab_widget_launch_help_action.h>
#include <sdk/propertymanager/plot_type_dependent_relevance.h>
#include <sdk/propertymanager/relevance_expression.h>
#include <sdk/signals/signal_connection_collection.h>
#include <sdk/signals/state_change_event_observable.h>
#include <sdk/uicommon/edit_session.h>
#include <sdk/uicommon/on_idle_action_performer_single_shot.h>

#include <QDialogButtonBox>
#include <QLayout>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include <boost/make_shared.hpp>

#include <utility>

namespace corvala::sdk::ui::dialogs {

using corvala::dialogs::common::TabWidgetLaunchHelpAction;
using uicontrols::MapSelectionByPattern;
using zonestyle::intern::models::ModelForPageMap;
using zonestyle::intern::views::StyleTableView;

ZoneStyleDialog* ZoneStyleDialog::m_dialogInstance = nullptr;

static QWidget& promptParent()
{
    return ZoneStyleDialog::getInstance(corvala::ui::findMainWindow(),
                                        corvala::dialogs::common::DialogInitialization_None);
}

/// From the start: an action may be used before the dialog was ever asked for.
[[maybe_unused]] static const bool kIsPromptParent =
    (zonestyle::intern::actions::setPromptParentProvider(promptParent), true);

ZoneStyleDialog& ZoneStyleDialog::getInstance(QWidget& parent,
                                              DialogInitialization_e initialization)
{
    if (!m_dialogInstance)
        m_dialogInstance = new ZoneStyleDialog(parent);
    if (initialization == corvala::dialogs::common::DialogInitialization_SelectPickedObjects)
        m_dialogInstance->m_pickPerformer->enableNotification();
    return *m_dialogInstance;
}

boost::shared_ptr<property::RelevanceInterface const> ZoneStyleDialog::relevance()
{
    using namespace corvala::propertymanager;
    static const RelevanceExpression expression =
        RelevanceExpression(boost::make_shared<FieldPlotTypeDependentRelevance>(true))
        || RelevanceExpression(boost::make_shared<LinePlotTypeDependentRelevance>(true));
    return expression.relevance();
}

ZoneStyleDialog::ZoneStyleDialog(QWidget& parent)
    : QtDialogAbstract(parent, relevance())
    , m_form(std::make_unique<zonestyle::intern::ZoneStyleForm>())
    , m_stateChangePerformer(
          std::make_unique<OnIdleActionPerformerSingleShot>([this] { processStateChange(); }))
    , m_pickPerformer(
          std::make_unique<OnIdleActionPerformerSingleShot>([this] { selectPickedObjects(); }))
    , m_countPerformer(
          std::make_unique<OnIdleActionPerformerSingleShot>([this] { showSelectionCounts(); }))
    , m_tableView(std::make_unique<StyleTableView>())
    , m_mapSelection(std::make_unique<MapSelectionByPattern>())
    , m_modelForPageMap(std::make_unique<ModelForPageMap>())
    , m_connections(std::make_unique<signaling::SignalConnectionCollection>())
{
    m_tableView->setPreferredNumberOfRows(24);
    m_tableView->setPreferredNumberOfColumns(10);
    m_tableView->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_form->setupUi(*this);
    installHelpAction();
    createViewModels();
    m_connections->add(signaling::StateChangeEventObservable::getInstance().connect(
        [this](const toolbox::StateChangeEventInterface& event) { stateChanged(event); }));
    m_form->dialogButtonBoxStack->setCurrentWidget(m_form->finalButtonsPage);
    restoreLastTab();
    applyAvailableMappingTabs();
    updateZoneStyleDialog();
    setDefaultButton(m_form->buttonBox->button(QDialogButtonBox::Close));
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    connect(m_mapSelection.get(), &MapSelectionByPattern::patternChanged, this,
            &ZoneStyleDialog::selectionPatternChanged);
}

/// The view must go at once after the header that it shows.
ZoneStyleDialog::~ZoneStyleDialog()
{
    EditSession::closeAll();
    destroyHeaders();
    destroySelectionModels();
    m_tableView.reset();
    m_mapSelection.reset();
    m_modelForPageMap->clear();
    m_modelForPageMap.reset();
    m_dialogInstance = nullptr;
    m_form.reset();
    m_connections.reset();
}

void ZoneStyleDialog::installHelpAction()
{
    using namespace zonestyle::intern;
    std::map<QWidget*, QString> references;
    for (std::size_t i = 0; i < kFieldTabs.size(); ++i)
        references[m_form->fieldPages[i]] = QString::fromLatin1(kFieldTabs[i].helpReference);
    for (std::size_t i = 0; i < kLineTabs.size(); ++i)
        references[m_form->linePages[i]] = QString::fromLatin1(kLineTabs[i].helpReference);
    m_helpAction = new TabWidgetLaunchHelpAction(std::move(references), m_form->lineTabs);
    setHelpAction(m_helpAction);
}

void ZoneStyleDialog::setVisible(bool visible)
{
    if (visible && !isVisible()) {
        catchUp();
        if (!std::exchange(m_hasBeenShown, true)) {
            adoptPreferredSize();
            m_tableView->setFocus();
        }
    }
    if (!visible && isVisible())
        finishEditing();
    QtDialogAbstract::setVisible(visible);
}

/// An editor in the table commits as it does when the focus goes elsewhere; what is open over the
/// dialog goes with it.
void ZoneStyleDialog::finishEditing()
{
    if (m_tableView->isVisible())
        m_tableView->finishEditing();
    EditSession::closeAll();
}

/// What is left of the screen beside the frame of a window.
static QSize roomOnScreen(const QWidget& window)
{
    constexpr QSize kFrame(16, 48);
    const QWidget& place = window.parentWidget() ? *window.parentWidget() : window;
    return place.screen()->availableSize() - kFrame;
}

/// Tabs scroll, and what has a comfortable width gets by with what it shows.
void ZoneStyleDialog::allowNarrow()
{
    for (QTabWidget* tabs : {m_form->fieldTabs, m_form->lineTabs}) {
        tabs->setUsesScrollButtons(true);
        for (QToolButton* arrow : tabs->tabBar()->findChildren<QToolButton*>())
            arrow->setFocusPolicy(Qt::NoFocus); // the arrow keys scroll
    }
    m_mapSelection->setLeastWidths();
    constexpr int kMargin = 16;
    for (QPushButton* button : findChildren<QPushButton*>()) {
        const int icon = button->icon().isNull() ? 0 : button->iconSize().width() + kMargin / 4;
        button->setMinimumWidth(icon + kMargin
                                + button->fontMetrics().horizontalAdvance(button->text()));
    }
    for (QWidget* inner : findChildren<QWidget*>()) // sizes that are not shown yet are remembered
        inner->updateGeometry();
    layout()->activate();
}

/// The sizes that the form had without a table are still remembered: tab widgets that are not
/// visible do not hear that their pages want more room.
void ZoneStyleDialog::adoptPreferredSize()
{
    for (QWidget* container :
         {static_cast<QWidget*>(m_form->fieldTabs), static_cast<QWidget*>(m_form->lineTabs),
          static_cast<QWidget*>(m_form->plotTypeStackedWidget)})
        container->updateGeometry();
    const QSize room = roomOnScreen(*this);
    if (minimumSizeHint().width() > room.width())
        allowNarrow();
    resize(sizeHint().expandedTo(minimumSizeHint()).boundedTo(room));
}

} // namespace corvala::sdk::ui::dialogs

// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/dynamic_line_map_text_edit_dialog.h"

#include "zonestyle/views/dynamic_line_map_text_edit_properties_manager.h"

#include <sdk/dialogs_common/launch_help_action.h>
#include <sdk/propertybindings/button_binding.h>
#include <sdk/propertybindings/line_edit_property_binding.h>

#include <QCoreApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QStandardItemModel>
#include <QToolButton>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

namespace {

struct Token
{
    const char* description;
    const char* text;
};

constexpr Token kTokens[] = {
    {QT_TRANSLATE_NOOP("DynamicLineMapText", "Zone name"), "&ZN&"},
    {QT_TRANSLATE_NOOP("DynamicLineMapText", "Zone number"), "&Z#&"},
    {QT_TRANSLATE_NOOP("DynamicLineMapText", "Dependent variable name"), "&DV&"},
    {QT_TRANSLATE_NOOP("DynamicLineMapText", "Dependent variable number"), "&D#&"},
    {QT_TRANSLATE_NOOP("DynamicLineMapText", "Independent variable name"), "&IV&"},
    {QT_TRANSLATE_NOOP("DynamicLineMapText", "Independent variable number"), "&I#&"},
    {QT_TRANSLATE_NOOP("DynamicLineMapText", "Map number"), "&M#&"},
    {QT_TRANSLATE_NOOP("DynamicLineMapText", "X-Axis number"), "&X#&"},
    {QT_TRANSLATE_NOOP("DynamicLineMapText", "Y-Axis number"), "&Y#&"},
};

constexpr char kHelpReference[] = "polar.html#polar/mapping-style-and-creation/-mapping-names";

} // namespace

struct DynamicLineMapTextEditDialog::Bindings
{
    propertybindings::LineEditPropertyBinding text;
    propertybindings::ButtonBinding insert;
};

DynamicLineMapTextEditDialog::DynamicLineMapTextEditDialog(const QPoint& globalPosition,
                                                           QWidget* parent, Commit commit,
                                                           const QString& rawName, CvlInt64 lineMap)
    : PopupDialogBase(globalPosition, parent, std::move(commit))
    , m_properties(std::make_unique<propertymanager::DynamicLineMapTextEditPropertiesManager>(
          rawName.toStdString()))
{
    setupUi();
    m_lineEdit->setAccessibleName(tr("Name of line map %1").arg(lineMap));
    m_bindings.reset(new Bindings {
        {m_lineEdit, m_properties->text()},
        {m_insertButton, [this] { insertCurrentToken(); }, m_properties->relevance()},
    });
    auto* help =
        new corvala::dialogs::common::LaunchHelpAction(QLatin1String(kHelpReference), this);
    connect(m_helpButton, &QToolButton::clicked, help, &QAction::trigger);
    m_lineEdit->setFocus();
    m_lineEdit->end(false);
    m_lineEdit->home(true);
}

DynamicLineMapTextEditDialog::~DynamicLineMapTextEditDialog() = default;

void DynamicLineMapTextEditDialog::setupUi()
{
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* panel = new QFrame(this); // the window itself has no background
    panel->setFrameShape(QFrame::StyledPanel);
    panel->setAutoFillBackground(true);
    outer->addWidget(panel);
    auto* rows = new QVBoxLayout(panel);
    rows->setContentsMargins(2, 2, 2, 2);
    rows->setSpacing(2);
    auto* nameRow = new QHBoxLayout;
    nameRow->setSpacing(0);
    m_lineEdit = new QLineEdit(this);
    m_lineEdit->setObjectName(QStringLiteral("lineEdit"));
    m_lineEdit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_lineEdit->setStyleSheet(
        QStringLiteral("QLineEdit{\nborder:solid;\nborder-width:1px;\nborder-color:black;\n}"));
    m_lineEdit->installEventFilter(this);
    nameRow->addWidget(m_lineEdit, 1);
    m_insertButton = addToolButton(*nameRow, QStringLiteral("insertToolButton"),
                                   QStringLiteral(":/icons/plus.svg"), tr("Insert token"));
    m_helpButton = addToolButton(*nameRow, QStringLiteral("helpToolButton"),
                                 QStringLiteral(":/help.svg"), tr("Help"));
    QFont helpFont = m_helpButton->font();
    helpFont.setPointSize(9);
    helpFont.setBold(true);
    m_helpButton->setFont(helpFont);
    rows->addLayout(nameRow);
    m_listView = new QListView(this);
    m_listView->setObjectName(QStringLiteral("listView"));
    rows->addWidget(m_listView);
    setUpTokenList();
    setTabOrder(m_lineEdit, m_listView);
}

QToolButton* DynamicLineMapTextEditDialog::addToolButton(QHBoxLayout& layout,
                                                         const QString& objectName,
                                                         const QString& icon, const QString& text)
{
    auto* button = new QToolButton(this);
    button->setObjectName(objectName);
    button->setIcon(QIcon(icon));
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    layout.addWidget(button);
    return button;
}

void DynamicLineMapTextEditDialog::setUpTokenList()
{
    auto* tokens = new QStandardItemModel(this);
    for (const Token& token : kTokens) {
        auto* item =
            new QStandardItem(QCoreApplication::translate("DynamicLineMapText", token.description));
        item->setData(QString::fromLatin1(token.text));
        tokens->appendRow(item);
    }
    m_listView->setModel(tokens);
    m_listView->setAccessibleName(tr("Tokens"));
    m_listView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_listView->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_listView->setAutoScroll(true);
    m_listView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_listView->setTextElideMode(Qt::ElideNone);
    m_listView->setResizeMode(QListView::Adjust);
    const int frame = 2 * m_listView->frameWidth();
    m_listView->setMinimumSize(m_listView->sizeHintForColumn(0) + frame,
                               tokens->rowCount() * m_listView->sizeHintForRow(0) + frame);
    m_listView->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_listView->installEventFilter(this);
    connect(
        m_listView->selectionModel(), &QItemSelectionModel::currentChanged, this,
        [this](const QModelIndex& current) { m_properties->tokenChosen().set(current.isValid()); });
    connect(m_listView, &QListView::doubleClicked, this, [this] { insertCurrentToken(); });
}

void DynamicLineMapTextEditDialog::insertCurrentToken()
{
    m_lineEdit->insert(m_listView->currentIndex().data(Qt::UserRole + 1).toString());
    m_lineEdit->setFocus();
}

/// A line edit drops its selection with the focus; here a token is to take the place of what was
/// selected when the hand went to the list.
void DynamicLineMapTextEditDialog::leaveSelected(QEvent& focusOut)
{
    const int start = m_lineEdit->selectionStart();
    const int length = m_lineEdit->selectionLength();
    m_lineEdit->event(&focusOut);
    if (length > 0)
        m_lineEdit->setSelection(start, length);
}

bool DynamicLineMapTextEditDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_lineEdit && event->type() == QEvent::FocusOut) {
        leaveSelected(*event);
        return true;
    }
    const int key =
        event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : Qt::Key_unknown;
    if (watched == m_lineEdit && key == Qt::Key_Down) {
        if (!m_listView->currentIndex().isValid())
            m_listView->setCurrentIndex(m_listView->model()->index(0, 0));
        m_listView->setFocus();
        return true;
    }
    if (watched != m_listView || key != Qt::Key_Space)
        return PopupDialogBase::eventFilter(watched, event);
    if (m_properties->tokenChosen().get())
        insertCurrentToken();
    return true;
}

std::optional<QString> DynamicLineMapTextEditDialog::enteredText() const
{
    return m_lineEdit->text();
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views

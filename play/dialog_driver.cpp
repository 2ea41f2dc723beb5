// SPDX-License-Identifier: BSD-3-Clause
#include "play/dialog_driver.h"

#include "play/arguments.h"
#include "sdk/dialogs_common/launch_help_action.h"
#include "sdk/dialogs_common/qt_dialog_abstract.h"
#include "zonestyle/dialog/zone_style_dialog.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialogButtonBox>
#include <QItemSelectionModel>
#include <QLabel>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTableView>

namespace corvala::play {

using corvala::dialogs::common::QtDialogAbstract;
using corvala::sdk::ui::dialogs::ZoneStyleDialog;

static QString withoutMnemonic(QString text)
{
    return text.remove(QLatin1Char('&'));
}

template<class Widget>
static Widget& childOf(const QWidget& dialog, const QString& name = {})
{
    Widget* found = dialog.findChild<Widget*>(name);
    if (!found)
        throw ScriptError(
            Text::tr("the dialog has no \"%1\"")
                .arg(name.isEmpty() ? QLatin1String(Widget::staticMetaObject.className()) : name));
    return *found;
}

QtDialogAbstract* DialogDriver::instance()
{
    return ZoneStyleDialog::m_dialogInstance;
}

QtDialogAbstract& DialogDriver::dialog() const
{
    QtDialogAbstract* dialog = instance();
    if (!dialog || !dialog->isVisible())
        throw ScriptError(Text::tr("the dialog is not open"));
    return *dialog;
}

QTableView& DialogDriver::table() const
{
    return childOf<QTableView>(dialog());
}

QAbstractItemModel& DialogDriver::model() const
{
    QAbstractItemModel* model = table().model();
    if (!model)
        throw ScriptError(Text::tr("the dialog shows no table"));
    return *model;
}

QString DialogDriver::page() const
{
    return childOf<QStackedWidget>(dialog(), QStringLiteral("plotTypeStackedWidget"))
        .currentWidget()
        ->objectName();
}

QTabWidget& DialogDriver::tabs() const
{
    const bool isField = page() == QLatin1String("fieldMapPage");
    return childOf<QTabWidget>(dialog(),
                               isField ? QStringLiteral("plotAttr_FD_PageGroup")
                                       : QStringLiteral("plotAttr_LP_PageGroup"));
}

QStringList DialogDriver::tabTexts() const
{
    QStringList texts;
    const QTabWidget& widget = tabs();
    for (int i = 0; i < widget.count(); ++i)
        texts << withoutMnemonic(widget.tabText(i));
    return texts;
}

QAbstractButton& DialogDriver::button(const QString& text) const
{
    for (QAbstractButton* button : dialog().findChildren<QAbstractButton*>()) {
        if (button->isVisible() && withoutMnemonic(button->text()) == text)
            return *button;
    }
    throw ScriptError(Text::tr("the dialog has no button \"%1\"").arg(text));
}

QStringList DialogDriver::buttonBoxTexts() const
{
    QStringList texts;
    for (const QAbstractButton* button :
         childOf<QDialogButtonBox>(dialog(), QStringLiteral("buttonBox")).buttons())
        texts << withoutMnemonic(button->text());
    return texts;
}

QString DialogDriver::countsText() const
{
    return childOf<QLabel>(dialog(), QStringLiteral("mapSelectionByPattern_counts_label")).text();
}

QString DialogDriver::helpReference() const
{
    const auto* action =
        qobject_cast<corvala::dialogs::common::LaunchHelpAction*>(dialog().helpAction());
    return action ? action->reference() : QString();
}

int DialogDriver::column(const nlohmann::json& name) const
{
    const QAbstractItemModel& columns = model();
    if (name.is_number_integer()) {
        const auto number = name.get<std::int64_t>();
        if (number >= 0 && number < columns.columnCount())
            return static_cast<int>(number);
    }
    for (int i = 0; name.is_string() && i < columns.columnCount(); ++i) {
        const QString header = columns.headerData(i, Qt::Horizontal).toString();
        if (header == QString::fromStdString(name.get<std::string>()))
            return i;
    }
    throw ScriptError(Text::tr("the table has no column %1").arg(shown(name)));
}

QModelIndex DialogDriver::cell(std::int64_t map, int column) const
{
    const QAbstractItemModel& cells = model();
    if (map < 1 || map > cells.rowCount())
        throw ScriptError(Text::tr("the table has no map %1").arg(map));
    return cells.index(static_cast<int>(map) - 1, column);
}

QModelIndexList DialogDriver::cells(const host::NumberSet& maps, int column) const
{
    QModelIndexList cells;
    for (const std::uint32_t map : maps)
        cells << cell(map, column);
    return cells;
}

static void requireInvoked(bool invoked, const char* method)
{
    if (!invoked)
        throw ScriptError(Text::tr("the table does not answer %1").arg(QLatin1String(method)));
}

bool DialogDriver::isRelevant(const QModelIndex& cell) const
{
    bool relevant = false;
    requireInvoked(QMetaObject::invokeMethod(&model(), "isRelevant", Q_RETURN_ARG(bool, relevant),
                                             Q_ARG(QModelIndex, cell)),
                   "isRelevant");
    return relevant;
}

static int askColumn(QAbstractItemModel& model, const char* method, int column)
{
    int answer = 0;
    requireInvoked(
        QMetaObject::invokeMethod(&model, method, Q_RETURN_ARG(int, answer), Q_ARG(int, column)),
        method);
    return answer;
}

int DialogDriver::editorType(int column) const
{
    return askColumn(model(), "columnEditorType", column);
}

int DialogDriver::editorOption(int column) const
{
    return askColumn(model(), "columnEditorOption", column);
}

QList<QAction*> DialogDriver::actions(QItemSelectionModel& selection, int column) const
{
    QList<QAction*> actions;
    requireInvoked(
        QMetaObject::invokeMethod(&model(), "columnActions", Q_RETURN_ARG(QList<QAction*>, actions),
                                  Q_ARG(QItemSelectionModel*, &selection), Q_ARG(int, column)),
        "columnActions");
    return actions;
}

bool DialogDriver::setData(const QModelIndexList& cells, const QVariant& value, int role) const
{
    bool accepted = false;
    requireInvoked(QMetaObject::invokeMethod(
                       &model(), "setDataForIndexes", Q_RETURN_ARG(bool, accepted),
                       Q_ARG(QModelIndexList, cells), Q_ARG(QVariant, value), Q_ARG(int, role)),
                   "setDataForIndexes");
    return accepted;
}

QRect DialogDriver::show(const QModelIndex& cell) const
{
    QTableView& view = table();
    view.scrollTo(cell);
    const QRect rectangle = view.visualRect(cell) & view.viewport()->rect();
    if (rectangle.isEmpty())
        throw ScriptError(Text::tr("the cell cannot be brought into view"));
    return rectangle;
}

int DialogDriver::firstVisibleMap() const
{
    return table().rowAt(0) + 1;
}

int DialogDriver::refreshCount() const
{
    const QtDialogAbstract* dialog = instance();
    return dialog ? dialog->property("refreshCount").toInt() : 0;
}

} // namespace corvala::play

// SPDX-License-Identifier: BSD-3-Clause
#include "tests/models/table_fixture.h"

#include "samples/demo_data.h"
#include "zonestyle/actions/select_color_action.h"

#include <QAction>
#include <QColor>

namespace corvala::tests {

using host::Document;
using sdk::ui::dialogs::zonestyle::intern::actions::SelectColorAction;

bool openDemo(const char* name, int scale)
{
    Document::instance().clear();
    std::string error;
    const bool isOpen = samples::openDemo(name, scale, error);
    if (!isOpen)
        qWarning("%s: %s", name, error.c_str());
    takeWrites();
    return isOpen;
}

static std::vector<std::string> names(const QString& path)
{
    std::vector<std::string> names;
    for (const QString& name : path.split('.'))
        names.push_back(name.toStdString());
    return names;
}

bool setStyle(const QString& path, const std::string& maps, double value, CvlInt64 index)
{
    host::SetStyle set {names(path), value, {}, index};
    if (host::NumberSet numbers; host::fromText(maps, 1000000, numbers))
        set.maps = numbers;
    const bool isDone = Document::instance().execute(set).isDone();
    takeWrites();
    return isDone;
}

static QString valueText(const host::StyleInput& value)
{
    if (const auto* number = std::get_if<double>(&value))
        return QString::number(*number, 'g', 10);
    if (const auto* isOn = std::get_if<bool>(&value))
        return *isOn ? "true" : "false";
    if (const auto* text = std::get_if<std::string>(&value))
        return '"' + QString::fromStdString(*text) + '"';
    return QString::fromStdString(host::toText(std::get<host::NumberSet>(value), 0));
}

static QString writeText(const host::SetStyle& write, const host::Outcome& outcome)
{
    QStringList names;
    for (const std::string& name : write.path)
        names << QString::fromStdString(name);
    QString text = names.join('.');
    if (write.maps && !write.maps->isEmpty())
        text += ' ' + QString::fromStdString(host::toText(*write.maps, 0));
    text += write.op == AssignOp_Add ? " + " : write.op == AssignOp_Remove ? " - " : " = ";
    text += valueText(write.value);
    return outcome.isDone() ? text : text + QString(" (%1)").arg(outcome.result);
}

QString takeWrites()
{
    static QStringList texts;
    static const boost::signals2::scoped_connection recorder =
        Document::instance().executed().connect(
            [](const host::Operation& operation, const host::Outcome& outcome) {
                if (const auto* write = std::get_if<host::SetStyle>(&operation))
                    texts << writeText(*write, outcome);
            });
    const QString taken = texts.join("; ");
    texts.clear();
    return taken;
}

QString cellText(const ModelAbstract& model, int row, int column)
{
    const QModelIndex cell = model.index(row, column);
    const QVariant display = cell.data();
    const QVariant check = cell.data(Qt::CheckStateRole);
    QString text = display.userType() == QMetaType::QColor ? display.value<QColor>().name()
                                                           : display.toString();
    const QString hint = cell.data(Qt::AccessibleTextRole).toString();
    if (!hint.isEmpty() && !check.isValid())
        text += ' ' + hint;
    if (check.isValid())
        text += check == Qt::Checked ? "[x]" : "[ ]";
    return model.isRelevant(cell) ? text : '(' + text + ')';
}

QString rowText(const ModelAbstract& model, int row)
{
    QStringList texts;
    for (int column = 0; column < model.columnCount(); ++column)
        texts << cellText(model, row, column);
    return texts.join('|');
}

QString columnText(const ModelAbstract& model, int column)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts << cellText(model, row, column);
    return texts.join('|');
}

QModelIndexList cells(const ModelAbstract& model, const QList<int>& rows, int column)
{
    QModelIndexList indexes;
    for (const int row : rows)
        indexes << model.index(row, column);
    return indexes;
}

ColumnMenu::ColumnMenu(const ModelAbstract& model, const QList<int>& rows, int column)
    : m_selection(const_cast<ModelAbstract*>(&model))
{
    for (const QModelIndex& index : cells(model, rows))
        m_selection.select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    m_actions = model.columnActions(&m_selection, column);
}

ColumnMenu::~ColumnMenu()
{
    qDeleteAll(m_actions);
}

static QString entryText(const QAction& action)
{
    if (action.isSeparator())
        return "-";
    if (const auto* color = qobject_cast<const SelectColorAction*>(&action))
        return color->offersGroupColors() ? "<colors and groups>" : "<colors>";
    return action.isEnabled() ? action.text() : '(' + action.text() + ')';
}

QString ColumnMenu::text() const
{
    QStringList texts;
    for (const QAction* action : m_actions)
        texts << entryText(*action);
    return texts.join('|');
}

bool ColumnMenu::choose(const QString& entry)
{
    for (QAction* action : qAsConst(m_actions)) {
        if (action->text() == entry && action->isEnabled()) {
            action->trigger();
            return true;
        }
    }
    return false;
}

} // namespace corvala::tests

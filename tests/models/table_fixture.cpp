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
    host::NumberSet set;
    host::StyleWrite request;
    request.path = names(path);
    if (!maps.empty() && host::fromText(maps, 1000000, set))
        request.objects = &set;
    request.value = value;
    request.offset1 = index;
    const StyleWriteResult_e result = Document::instance().write(request);
    takeWrites();
    return result <= StyleWrite_Unchanged;
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

static QString writeText(const host::StyleWriteRecord& record)
{
    QStringList names;
    for (const std::string& name : record.path)
        names << QString::fromStdString(name);
    QString text = names.join('.');
    if (!record.objects.isEmpty())
        text += ' ' + QString::fromStdString(host::toText(record.objects, 0));
    text += record.op == 1 ? " + " : record.op == 2 ? " - " : " = ";
    text += valueText(record.value);
    return record.result > StyleWrite_Unchanged ? text + QString(" (%1)").arg(record.result) : text;
}

QString takeWrites()
{
    QStringList texts;
    for (const host::StyleWriteRecord& record : Document::instance().writeRecords())
        texts << writeText(record);
    Document::instance().clearWriteRecords();
    return texts.join("; ");
}

QString cellText(const ModelAbstract& model, int row, int column)
{
    const QModelIndex cell = model.index(row, column);
    const QVariant display = cell.data();
    const QVariant check = cell.data(Qt::CheckStateRole);
    QString text = display.userType() == QMetaType::QColor ? display.value<QColor>().name()
                                                           : display.toString();
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

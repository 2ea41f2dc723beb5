// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/document.h"
#include "zonestyle/models/model_abstract.h"

#include <QItemSelectionModel>
#include <QStringList>

#include <memory>

namespace corvala::tests {

using sdk::ui::dialogs::zonestyle::intern::models::ModelAbstract;

/// A chain of table models, the head first.
template<class Model>
ModelAbstract* makeChain()
{
    return new Model(nullptr);
}
template<class Model, class Next, class... Others>
ModelAbstract* makeChain()
{
    return new Model(makeChain<Next, Others...>());
}

/// A document with nothing but embedded data; false, with a warning, when there is no such.
bool openDemo(const char* name, int scale = 0);

/// One style write of a caller that is no user: the path as in "FieldMap.Mesh.Show"; `maps` as in
/// "1-3", empty for a value of the frame. False when it is refused.
bool setStyle(const QString& path, const std::string& maps, double value, CvlInt64 index = -1);

/// The style writes since the last call, such as "FieldMap.Mesh.Show 1-3 = true"; a set operation
/// is marked + or -, a refused write ends with its code as in "(6)".
QString takeWrites();

/// A cell as a person reads it: text, "[x]", "[ ]", a colour and the text on it; in parentheses
/// when greyed.
QString cellText(const ModelAbstract& model, int row, int column);
QString rowText(const ModelAbstract& model, int row); ///< cells from the first, separated by "|"
QString columnText(const ModelAbstract& model, int column); ///< the cells of all rows

/// Cells of one column; the rows in that order.
QModelIndexList cells(const ModelAbstract& model, const QList<int>& rows, int column = 0);

/// The menu of a column for some selected rows, as it would open.
class ColumnMenu
{
public:
    ColumnMenu(const ModelAbstract& model, const QList<int>& rows, int column);
    ~ColumnMenu();

    /// Entries separated by "|"; "-" is a line, "<...>" a colour chooser, "(...)" disabled.
    QString text() const;
    bool choose(const QString& entry); ///< false when it is not there or disabled
    const QList<QAction*>& actions() const { return m_actions; }

private:
    QItemSelectionModel m_selection;
    QList<QAction*> m_actions;
};

} // namespace corvala::tests

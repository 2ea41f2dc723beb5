// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/controls/item_sub_model_abstract.h"
#include "zonestyle/models/editor_type.h"

#include <sdk/base/types.h>
#include <sdk/signals/signal_connection_collection.h>
#include <sdk/toolbox/set.h>

#include <QList>

class QAction;
class QItemSelectionModel;

namespace corvala::toolbox {
class StateChangeEventInterface;
}

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// One link of the table of a tab: its rows are the maps of one frame (row r is map r + 1), its
/// columns are style attributes. It holds no values; each is read from the host when it is asked
/// for. The frame is the one that was active at construction, and again whenever another frame
/// becomes active.
class ModelAbstract : public uicontrols::ItemSubModelAbstract
{
    Q_OBJECT

public:
    /// Takes ownership of the sub model, which may be null.
    explicit ModelAbstract(ModelAbstract* subModel);

    static const QBrush& IdentityHeaderBrush();
    static const QBrush& PrimaryHeaderBrush();
    static const QBrush& SecondaryHeaderBrush();

    Qt::ItemFlags localFlags(const QModelIndex& index) const override;
    void* localInternalPointer(int row, int column, const QModelIndex& parent) const override;

    /// To screen readers a cell that does not apply says so, and a check box names its column.
    QVariant data(const QModelIndex& index, int role) const override;

    // Whether a cell of the whole table applies; one that does not is shown greyed.
    Q_INVOKABLE virtual bool isRelevant(const QModelIndex& index) const;
    // New entries for the menu of a column, for the rows selected now. The caller owns them.
    virtual QList<QAction*> localActions(QItemSelectionModel* selection, int column) const = 0;
    // Whether one of the link's own cells applies.
    virtual bool isLocalRelevant(const QModelIndex& index) const = 0;
    // An EditorType_e.
    virtual int localEditorType(int column) const;
    // How wide the column's delegate makes it; what the number means is the delegate's business.
    virtual int localEditorOption(int column) const;

    // Whether localActions gives any, for whatever rows; cheaper than to ask it.
    virtual bool localHasActions(int column) const;
    // What is wrong with a text that an editor of one of the link's own columns is to deliver;
    // empty for one that fits.
    virtual QString localTextProblem(int column, const QString& text) const;

    /// The local operations of the same names, by a column of the whole table. A column beyond the
    /// chain has no actions and no editor.
    Q_INVOKABLE QList<QAction*> columnActions(QItemSelectionModel* selection, int column) const;
    Q_INVOKABLE int columnEditorType(int column) const;
    Q_INVOKABLE int columnEditorOption(int column) const;
    bool columnHasActions(int column) const;
    QString columnTextProblem(int column, const QString& text) const;

    /// The maps whose rows the indexes are in.
    static toolbox::Set toMapSet(const QModelIndexList& indexes);

    /// The frame of the table is the active one, and it has data.
    bool isForCurrentFrame() const;

    /// As Qt's, but for Qt::MatchWildcard: see NamePattern for the pattern, and the cost per row is
    /// that of reading the cell.
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits = 1,
                          Qt::MatchFlags flags = Qt::MatchFlags(Qt::MatchStartsWith
                                                                | Qt::MatchWrap)) const override;

protected:
    CvlUniqueId frameId() const { return m_frameId; }

private:
    const ModelAbstract* linkOf(int& column) const;
    void stateChanged(const toolbox::StateChangeEventInterface& event);

    CvlUniqueId m_frameId;
    ModelAbstract* m_subModel; ///< owned by the base class; null at the end of the chain
    signaling::SignalConnectionCollection m_connections;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models

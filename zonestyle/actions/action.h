// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QAction>
#include <QModelIndexList>

#include <sdk/toolbox/set.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// The numbers of the maps whose rows the indexes are in.
toolbox::Set mapSet(const QModelIndexList& indexes);

/// Something to do to the maps of some table rows: an entry of a context menu, or an edit that is
/// triggered as soon as it is made. The rows are those at construction; without rows every action
/// does nothing. Who receives an action owns it.
class Action : public QAction
{
    Q_OBJECT

public:
    /// All indexes must be of one model.
    Action(const QString& text, const QModelIndexList& selectedIndexes);
    ~Action() override;

    const QModelIndexList& selectedIndexes() const { return m_selectedIndexes; }

public Q_SLOTS:
    // Does what the action stands for; called when it is triggered.
    virtual void invokeAction();

public:
    /// All maps of the rows have the value already that the action would write. False for an
    /// action that asks for its value, and without rows.
    virtual bool isPresentValue() const { return false; }

protected:
    /// The same column in every row of the model that is not selected; found out once.
    const QModelIndexList& otherIndexes();
    toolbox::Set selectedMaps() const { return mapSet(m_selectedIndexes); }
    /// The map whose values prompts start from; there must be one.
    CvlInt64 firstMap() const { return m_selectedIndexes.first().row() + 1; }

private:
    QModelIndexList m_selectedIndexes;
    QModelIndexList m_otherIndexes;
    bool m_otherIndexesKnown = false;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions

// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/model_abstract.h"

#include "zonestyle/actions/action.h"
#include "zonestyle/models/name_pattern.h"

#include <sdk/base/cvl.h>
#include <sdk/signals/state_change_event_observable.h>

#include <QCoreApplication>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

ModelAbstract::ModelAbstract(ModelAbstract* subModel)
    : ItemSubModelAbstract(subModel)
    , m_frameId(CvlUtilFrameGetUniqueID())
    , m_subModel(subModel)
{
    m_connections.add(signaling::StateChangeEventObservable::getInstance().connect(
        [this](const toolbox::StateChangeEventInterface& event) { stateChanged(event); }));
}

const QBrush& ModelAbstract::IdentityHeaderBrush()
{
    static const QBrush brush(QColor(0x3A, 0x5A, 0x95));
    return brush;
}

const QBrush& ModelAbstract::PrimaryHeaderBrush()
{
    static const QBrush brush(QColor(0x1F, 0x73, 0x1C));
    return brush;
}

const QBrush& ModelAbstract::SecondaryHeaderBrush()
{
    static const QBrush brush(QColor(0xC2, 0x48, 0x09));
    return brush;
}

Qt::ItemFlags ModelAbstract::localFlags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = ItemSubModelAbstract::localFlags(index);
    flags &= ~(Qt::ItemIsEditable | Qt::ItemIsUserCheckable);
    return flags | Qt::ItemIsSelectable | Qt::ItemIsEnabled;
}

void* ModelAbstract::localInternalPointer(int, int, const QModelIndex&) const
{
    return nullptr;
}

QVariant ModelAbstract::data(const QModelIndex& index, int role) const
{
    if (role == Qt::AccessibleDescriptionRole && index.isValid())
        return isRelevant(index) ? QVariant()
                                 : QCoreApplication::translate("Cell", "Does not apply");
    const QVariant value = ItemSubModelAbstract::data(index, role);
    if (role != Qt::AccessibleTextRole || value.isValid()
        || !ItemSubModelAbstract::data(index, Qt::CheckStateRole).isValid())
        return value;
    const QVariant shown = ItemSubModelAbstract::data(index, Qt::DisplayRole);
    return shown.isValid() ? shown
                           : headerData(index.column(), Qt::Horizontal).toString().simplified();
}

bool ModelAbstract::isRelevant(const QModelIndex& index) const
{
    if (ownsColumn(index.column()))
        return isLocalRelevant(index);
    return m_subModel && m_subModel->isRelevant(toSubModel(index));
}

int ModelAbstract::localEditorType(int) const
{
    return EditorType_None;
}

bool ModelAbstract::localHasActions(int) const
{
    return false;
}

int ModelAbstract::localEditorOption(int) const
{
    return 0;
}

QString ModelAbstract::localTextProblem(int, const QString&) const
{
    return {};
}

/// The link that owns a column, which becomes its own number there; null beyond the chain.
const ModelAbstract* ModelAbstract::linkOf(int& column) const
{
    const ModelAbstract* link = this;
    while (link && !link->ownsColumn(column)) {
        column -= link->localColumnCount({});
        link = link->m_subModel;
    }
    return link;
}

QList<QAction*> ModelAbstract::columnActions(QItemSelectionModel* selection, int column) const
{
    const ModelAbstract* link = linkOf(column);
    return link ? link->localActions(selection, column) : QList<QAction*>();
}

bool ModelAbstract::columnHasActions(int column) const
{
    const ModelAbstract* link = linkOf(column);
    return link && link->localHasActions(column);
}

int ModelAbstract::columnEditorType(int column) const
{
    const ModelAbstract* link = linkOf(column);
    return link ? link->localEditorType(column) : EditorType_None;
}

int ModelAbstract::columnEditorOption(int column) const
{
    const ModelAbstract* link = linkOf(column);
    return link ? link->localEditorOption(column) : 0;
}

QString ModelAbstract::columnTextProblem(int column, const QString& text) const
{
    const ModelAbstract* link = linkOf(column);
    return link ? link->localTextProblem(column, text) : QString();
}

toolbox::Set ModelAbstract::toMapSet(const QModelIndexList& indexes)
{
    return actions::mapSet(indexes);
}

bool ModelAbstract::isForCurrentFrame() const
{
    return CvlUtilDataSetIsAvailable() && CvlUtilFrameGetUniqueID() == m_frameId;
}

QModelIndexList ModelAbstract::match(const QModelIndex& start, int role, const QVariant& value,
                                     int hits, Qt::MatchFlags flags) const
{
    constexpr int kMatchType = 0x0F;
    if ((flags & kMatchType) != Qt::MatchWildcard)
        return ItemSubModelAbstract::match(start, role, value, hits, flags);
    int column = start.column();
    const ModelAbstract* link = start.isValid() ? linkOf(column) : nullptr;
    if (!link)
        return {};
    const NamePattern pattern(value.toString(),
                              flags.testFlag(Qt::MatchCaseSensitive) ? Qt::CaseSensitive
                                                                     : Qt::CaseInsensitive);
    const int rows = rowCount();
    const int toTry = flags.testFlag(Qt::MatchWrap) ? rows : rows - start.row();
    QModelIndexList found;
    for (int tried = 0; tried < toTry && (hits < 0 || found.size() < hits); ++tried) {
        const int row = (start.row() + tried) % rows;
        const QModelIndex cell = link->createIndex(row, column);
        if (pattern.matches(link->localData(cell, role).toString()))
            found.append(index(row, start.column()));
    }
    return found;
}

void ModelAbstract::stateChanged(const toolbox::StateChangeEventInterface& event)
{
    if (event.stateChange() == StateCode_ActiveFrameChanged)
        m_frameId = CvlUtilFrameGetUniqueID();
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models

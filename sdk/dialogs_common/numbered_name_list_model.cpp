// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/private/numbered_name_list_model.h"

#include <sdk/common/common.h>
#include <sdk/toolbox/set.h>

#include <algorithm>
#include <iterator>

namespace corvala::dialogs::common {

NumberedNameListModel::NumberedNameListModel(QObject* parent)
    : QAbstractListModel(parent)
{
}

void NumberedNameListModel::listZones()
{
    list(CvlUtilZoneGetEnabled(), &sdk::zoneNameWithIndexFormattedForFrame, false);
}

void NumberedNameListModel::listVariables(bool offerNone)
{
    list(CvlUtilVarGetEnabled(), &sdk::variableNameWithIndexFormattedForAliasesForFrame, offerNone);
}

void NumberedNameListModel::list(CvlSetHandle numbers, Formatter format, bool offerNone)
{
    beginResetModel();
    m_frame = CvlUtilFrameGetUniqueID();
    m_format = format;
    m_filter.clear();
    m_all.assign(offerNone ? 1 : 0, 0);
    const toolbox::SetMembers members(numbers);
    std::copy(members.begin(), members.end(), std::back_inserter(m_all));
    CvlUtilSetDealloc(&numbers);
    m_shown = m_all;
    endResetModel();
}

bool NumberedNameListModel::setFilter(const QString& text)
{
    if (text == m_filter)
        return false;
    beginResetModel();
    // What contains a longer text contains every part of it: look at what is left only.
    if (!text.contains(m_filter, Qt::CaseInsensitive))
        m_shown = m_all;
    m_filter = text;
    const auto misses = [this](CvlInt64 number) {
        return !textOf(number).contains(m_filter, Qt::CaseInsensitive);
    };
    if (m_filter.isEmpty())
        m_shown = m_all;
    else
        m_shown.erase(std::remove_if(m_shown.begin(), m_shown.end(), misses), m_shown.end());
    endResetModel();
    return true;
}

CvlInt64 NumberedNameListModel::numberAt(int row) const
{
    const auto index = static_cast<std::size_t>(row);
    return index < m_shown.size() ? m_shown[index] : 0;
}

int NumberedNameListModel::rowOf(CvlInt64 number) const
{
    const auto found = std::lower_bound(m_shown.begin(), m_shown.end(), number);
    return found != m_shown.end() && *found == number
        ? static_cast<int>(std::distance(m_shown.begin(), found))
        : -1;
}

int NumberedNameListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

QVariant NumberedNameListModel::data(const QModelIndex& index, int role) const
{
    // The edit role is what combo boxes and completers compare.
    if (!index.isValid() || index.row() >= rowCount()
        || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    return textOf(numberAt(index.row()));
}

QString NumberedNameListModel::textOf(CvlInt64 number) const
{
    return number == 0 ? tr("None") : QString::fromStdString(m_format(m_frame, number));
}

} // namespace corvala::dialogs::common

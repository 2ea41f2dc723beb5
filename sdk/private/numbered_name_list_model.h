// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/cvl.h>

#include <QAbstractListModel>

#include <vector>

namespace corvala::dialogs::common {

/// The enabled zones or variables of the active frame as a list of texts such as "3: Inlet". Holds
/// the numbers only; a name is read when it is shown.
class NumberedNameListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit NumberedNameListModel(QObject* parent);

    /// Take the list from the document again; the filter is dropped. With `offerNone` the first
    /// entry is "None" and stands for 0.
    void listZones();
    void listVariables(bool offerNone = false);

    /// Leaves the entries whose text contains this, ignoring case. False when it did already.
    bool setFilter(const QString& text);

    CvlInt64 numberAt(int row) const; ///< 0 for a row that does not exist
    int rowOf(CvlInt64 number) const; ///< -1 when it is not listed

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    using Formatter = std::string (*)(CvlUniqueId frame, CvlInt64 number);

    void list(CvlSetHandle numbers, Formatter format, bool offerNone);
    QString textOf(CvlInt64 number) const;

    CvlUniqueId m_frame = 0;
    Formatter m_format = nullptr;
    QString m_filter;
    std::vector<CvlInt64> m_all; ///< ascending
    std::vector<CvlInt64> m_shown; ///< those of m_all that match the filter
};

} // namespace corvala::dialogs::common

// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QTest>

#include <tuple>
#include <utility>
#include <vector>

namespace corvala::tests {

template<class... Values>
std::tuple<Values...> currentRow();

/// The rows of a data-driven test, with values of any type:
///
///     void reads_data() { const Rows<QString, int> row; row("negative", "-1", -1); }
///     void reads() { const auto [text, number] = currentRow<QString, int>(); ... }
template<class... Values>
class Rows
{
public:
    Rows()
    {
        QTest::addColumn<int>("row");
        s_rows.clear();
    }

    void operator()(const char* name, Values... values) const
    {
        QTest::newRow(name) << static_cast<int>(s_rows.size());
        s_rows.emplace_back(std::move(values)...);
    }
    void operator()(const QString& name, Values... values) const
    {
        operator()(qPrintable(name), std::move(values)...);
    }

private:
    friend std::tuple<Values...> currentRow<Values...>();

    static inline std::vector<std::tuple<Values...>> s_rows; ///< of the test that runs
};

/// The row that the test runs with; the types are those of its Rows.
template<class... Values>
std::tuple<Values...> currentRow()
{
    QFETCH(int, row);
    return Rows<Values...>::s_rows.at(static_cast<std::size_t>(row));
}

} // namespace corvala::tests

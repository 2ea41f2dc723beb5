// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/frame.h"
#include "vocabulary/style.h"

#include <QString>

#include <array>
#include <cstddef>
#include <vector>

namespace corvala::app {

/// Holds while a value of the frame is a switch that is on, one of a choice, or within a range. No
/// key: always.
struct DetailCondition
{
    style::Key key = {};
    int least = 1;
    int most = least;
};

/// One value of the frame on a page. An indexed value is that of the index chosen on the page.
struct DetailRow
{
    enum class Proposal {
        WhileFollowing,
        AtZero, ///< 0 follows from the data, too, and is never seen
        BesideOwn ///< what is seen in the plot is told where it is not what was set
    };

    style::Key key;
    const char* text; ///< beside its field; in the translation context "PlotDetails"
    style::SwitchKey follows = {}; ///< while it is on, the value follows from the data
    std::array<DetailCondition, 2> matters = {}; ///< only while all of them hold
    Proposal proposal = Proposal::WhileFollowing;
};

/// A view of a static array.
class DetailRows
{
public:
    template<std::size_t N>
    constexpr DetailRows(const DetailRow (&rows)[N]) // implicit: a page is its array
        : m_begin(rows)
        , m_end(rows + N)
    {
    }
    template<std::size_t N>
    constexpr DetailRows(const std::array<DetailRow, N>& rows)
        : m_begin(rows.data())
        , m_end(rows.data() + N)
    {
    }
    constexpr const DetailRow* begin() const { return m_begin; }
    constexpr const DetailRow* end() const { return m_end; }

private:
    const DetailRow* m_begin;
    const DetailRow* m_end;
};

/// A button that gives values their defaults.
struct DetailReset
{
    const char* text = nullptr; ///< in the translation context "PlotDetails"; null without a button
    style::Key after = {}; ///< the row that it stands below
    std::array<style::Key, 3> keys = {};
};

/// What is set per frame of one subject.
struct DetailPage
{
    const char* name; ///< of the object
    const char* title; ///< in the translation context "PlotDetails"
    style::SwitchKey layer; ///< the button that leads here; not valid without one
    const char* indexText; ///< what the indexes count, or null
    DetailRows rows;
    /// The value, one of the rows, that has places clicked in the plot; not valid without one.
    style::TextKey places = {};
    DetailReset reset = {};
    bool isOfLines = false; ///< is of line plots, else of field plots

    /// Whether the frame is of the kind that it sets something for.
    bool isFor(const host::Frame& frame) const
    {
        return isOfLines ? frame.isLinePlot() : frame.isFieldPlot();
    }
    /// How many indexes there are; 0 without.
    constexpr int indexCount() const
    {
        for (const DetailRow& row : rows)
            if (const int count = style::entryOf(row.key).indexCount)
                return count;
        return 0;
    }
};

/// All pages, in the order in which they are offered.
const std::vector<DetailPage>& detailPages();

/// Of a page, in the language of the user.
QString shownTitle(const DetailPage& page);

} // namespace corvala::app

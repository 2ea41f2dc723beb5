// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/details/detail_field.h"
#include "app/details/detail_pages.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QComboBox;
class QFormLayout;
class QPushButton;

namespace corvala::app {

/// The values of one page, with the index that those of several are shown for.
class DetailPageWidget : public QWidget
{
    Q_OBJECT

public:
    /// What is in force for a value that follows from the data; nothing when that is not known.
    using Proposal = std::function<std::optional<double>(style::Key value, int index)>;

    DetailPageWidget(const DetailPage& page, Proposal proposal, QWidget* parent = nullptr);

    void refresh(const host::Frame& frame);
    /// Lets the button go with which places are picked.
    void endPicking();

Q_SIGNALS:
    /// Whether clicks in the plot are to give places.
    void pickingSwitched(bool isOn);

protected:
    void hideEvent(QHideEvent* event) override;

private:
    struct Line
    {
        DetailField* field; // owned by its widget
        style::SwitchKey follows;
        std::optional<double> proposed = {}; ///< while it follows from the data
    };

    void addIndexChoice(QFormLayout& form);
    void addField(QFormLayout& form, const DetailRow& row);
    void addPicking(QFormLayout& form);
    void chooseIndex(int index);
    int shownIndex() const; ///< -1 without indexes
    bool follows(const Line& line, const host::Frame& frame) const;
    void refreshLine(Line& line, const host::Frame& frame);
    void keepProposals(style::Key written);

    const DetailPage& m_page;
    Proposal m_proposal;
    QComboBox* m_index = nullptr; // not owned; null without indexes
    QPushButton* m_picking = nullptr; // not owned; null where no places are picked
    std::vector<Line> m_lines;
};

} // namespace corvala::app

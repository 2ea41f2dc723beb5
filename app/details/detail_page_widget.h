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
class QLabel;
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
    /// Of an indexed value, from 1; others are shown anyway.
    void showIndex(int index);
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
        const DetailRow* row;
        QLabel* seen; // not owned; null where nothing is told
        std::optional<double> proposed = {}; ///< while it follows from the data
    };

    void addIndexChoice(QFormLayout& form);
    void addField(QFormLayout& form, const DetailRow& row);
    QLabel* addSeen(QFormLayout& form);
    void addPicking(QFormLayout& form);
    void addReset(QFormLayout& form);
    void chooseIndex(int index);
    void refreshActive();
    int shownIndex() const; ///< -1 without indexes
    host::StyleOutput read(style::Key key, const host::Frame& frame) const;
    bool holds(const DetailCondition& condition, const host::Frame& frame) const;
    bool follows(const Line& line, const host::Frame& frame) const;
    bool matters(const Line& line, const host::Frame& frame) const;
    void refreshLine(Line& line, const host::Frame& frame);
    void tellSeen(Line& line, const host::Frame& frame);
    void keepProposals(style::Key written);
    void reset();

    const DetailPage& m_page;
    Proposal m_proposal;
    QComboBox* m_index = nullptr; // not owned; null without indexes
    QPushButton* m_picking = nullptr; // not owned; null where no places are picked
    QPushButton* m_reset = nullptr; // not owned; null without one
    std::vector<Line> m_lines;
};

} // namespace corvala::app

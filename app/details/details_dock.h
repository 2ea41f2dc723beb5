// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/details/detail_page_widget.h"

#include <QDockWidget>

#include <vector>

class QComboBox;
class QStackedWidget;

namespace corvala::app {

/// What is set for the plot as a whole and not for each map, a page to a subject. Every edit is
/// seen on the plot at once. It goes while there are no data and comes back with them, from run to
/// run too.
class DetailsDock : public QDockWidget
{
    Q_OBJECT

public:
    /// `proposal` says what is in force for values that follow from the data.
    explicit DetailsDock(DetailPageWidget::Proposal proposal, QWidget* parent = nullptr);
    ~DetailsDock() override;

    /// Shows what the document says.
    void refresh();
    /// Opens the page of this name.
    void openPage(const QString& name);
    /// Opens the page that shows this value; of an indexed one that of the index, from 1.
    void openPageOf(style::Key value, int index);
    /// Lets the button go with which places are picked.
    void endPicking();

Q_SIGNALS:
    /// Whether clicks in the plot are to give places.
    void pickingSwitched(bool isOn);

protected:
    void showEvent(QShowEvent* event) override;

private:
    /// What places are picked in; another one ends that.
    struct Subject
    {
        CvlUniqueId frame = 0;
        const host::DataSet* data = nullptr; ///< compared only; null without a plot
        PlotType_e plotType {};
    };

    void showWithData(bool hasData);
    void offerPages(const host::Frame& frame);
    void showChosen();

    QComboBox* m_choice; // not owned; the pages for plots of one kind
    QStackedWidget* m_stack; // not owned
    std::vector<DetailPageWidget*> m_pages; // not owned
    QString m_otherPage; ///< chosen for plots of the other kind
    bool m_comesWithData; ///< it was open when there were data
    Subject m_subject;
};

} // namespace corvala::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QToolBar>

#include <memory>
#include <vector>

class QAction;
class QLabel;
class QSlider;

namespace corvala::host {
class DataSet;
}

namespace corvala::app {

/// Goes through the solution times of transient data; hidden for other data.
class TimeBar : public QToolBar
{
    Q_OBJECT

public:
    explicit TimeBar(QWidget* parent = nullptr);
    ~TimeBar() override;

    /// Shows what the document says.
    void refresh();

private:
    void readTimes(const std::shared_ptr<const host::DataSet>& dataSet);
    int positionOf(double time) const;
    void goTo(int position);

    QSlider* m_slider; // not owned
    QLabel* m_value; // not owned
    QAction* m_earlier; // not owned
    QAction* m_later; // not owned
    std::shared_ptr<const host::DataSet> m_data; ///< whose times these are
    std::vector<double> m_times;
};

} // namespace corvala::app

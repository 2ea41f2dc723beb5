// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/time_player.h"

#include <QToolBar>

#include <memory>
#include <vector>

class QAction;
class QLabel;
class QSlider;

namespace corvala::host {
class DataSet;
}
namespace corvala::ui {
class NumberField;
}

namespace corvala::app {

class BarSwitch;

/// Goes through the solution times of transient data; hidden for other data.
class TimeBar : public QToolBar
{
    Q_OBJECT

public:
    /// `isBusy` says whether the picture of the present time is not complete yet.
    explicit TimeBar(std::function<bool()> isBusy, QWidget* parent = nullptr);
    ~TimeBar() override;

    /// Shows what the document says; other data, or another plot, end the playing.
    void refresh();
    void stop() { m_player.stop(); }
    /// Its commands, for a menu.
    const QList<QAction*>& commands() const { return m_commands; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAction* addCommand(const char* name, const char* icon, const QString& text, const QString& tip,
                        const QKeySequence& keys);
    void makeCommands();
    void makeFields();
    void readTimes(const std::shared_ptr<const host::DataSet>& dataSet);
    int positionOf(double time) const;
    int count() const { return static_cast<int>(m_times.size()); }
    /// As the user wishes, which ends the playing.
    void choose(int position);
    void goTo(int position);
    void goOn();
    void takeEntry();
    void showPlaying(bool isPlaying);
    void showPosition(double time);

    TimePlayer m_player;
    QList<QAction*> m_commands;
    // Not owned.
    BarSwitch* m_switch = nullptr;
    QAction* m_first = nullptr;
    QAction* m_earlier = nullptr;
    QAction* m_play = nullptr;
    QAction* m_later = nullptr;
    QAction* m_last = nullptr;
    QAction* m_loop = nullptr;
    QAction* m_text = nullptr; ///< shows the time in the picture
    QSlider* m_slider = nullptr;
    ui::NumberField* m_entry = nullptr;
    QLabel* m_position = nullptr;
    std::shared_ptr<const host::DataSet> m_data; ///< whose times these are
    std::vector<double> m_times;
    double m_shown = 0.0; ///< the time in the entry, unless another one is being typed
};

} // namespace corvala::app

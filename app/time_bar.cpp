// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/time_bar.h"

#include "app/bar_switch.h"
#include "app/command_tips.h"
#include "app/help_reference.h"
#include "app/icons.h"
#include "host/document/document.h"
#include "plot/common/scene_note.h"
#include "sdk/common_ui/number_field.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <limits>
#include <utility>

namespace corvala::app {

TimeBar::TimeBar(std::function<bool()> isBusy, QWidget* parent)
    : QToolBar(tr("Solution time"), parent)
    , m_player(std::move(isBusy))
{
    setObjectName(QStringLiteral("timeBar"));
    m_switch = new BarSwitch(*this);
    setHelpReference(*this, QStringLiteral("window.html#time"));
    makeCommands();
    makeFields();
    connect(&m_player, &TimePlayer::stepWanted, this, &TimeBar::goOn);
    connect(&m_player, &TimePlayer::switched, this, &TimeBar::showPlaying);
    showPlaying(false);
}

TimeBar::~TimeBar() = default;

QAction* TimeBar::addCommand(const char* name, const char* icon, const QString& text,
                             const QString& tip, const QKeySequence& keys)
{
    QAction* const command = addAction(commandIcon(icon), text);
    setUpCommand(*command, name, keys, tip);
    m_commands << command;
    return command;
}

void TimeBar::makeCommands()
{
    m_first = addCommand("timeFirst", "media-skip-backward", tr("&First Time"),
                         tr("Go to the first solution time"), QStringLiteral("Alt+Home"));
    m_earlier = addCommand("timeEarlier", "media-seek-backward", tr("Step &Back"),
                           tr("Go to the solution time before"), QStringLiteral("Alt+Left"));
    m_play = addCommand("timePlay", "media-playback-start", tr("&Play"),
                        tr("Go through the solution times, or stop"), QStringLiteral("F7"));
    m_later = addCommand("timeLater", "media-seek-forward", tr("Step For&ward"),
                         tr("Go to the next solution time"), QStringLiteral("Alt+Right"));
    m_last = addCommand("timeLast", "media-skip-forward", tr("&Last Time"),
                        tr("Go to the last solution time"), QStringLiteral("Alt+End"));
    m_loop = addCommand("timeLoop", "media-playlist-repeat", tr("L&oop"),
                        tr("Play from the first time again after the last one"), {});
    m_text = addCommand("timeText", "time-text", tr("&Time in the Picture"),
                        tr("Show the solution time in the plot and in saved pictures"), {});
    m_loop->setCheckable(true);
    m_text->setCheckable(true);
    const auto chooseOn = [this](QAction* command, auto position) {
        connect(command, &QAction::triggered, this, [this, position] { choose(position()); });
    };
    chooseOn(m_first, [] { return 0; });
    chooseOn(m_earlier, [this] { return m_slider->value() - 1; });
    chooseOn(m_later, [this] { return m_slider->value() + 1; });
    chooseOn(m_last, [this] { return count() - 1; });
    connect(m_play, &QAction::triggered, this, [this] {
        if (m_player.isPlaying()) {
            m_player.stop();
            return;
        }
        if (m_slider->value() + 1 == count())
            goTo(0);
        m_player.start();
    });
    connect(m_text, &QAction::triggered, this, [](bool isShown) {
        host::Document::instance().execute(plot::frameValue(style::timeText.show, isShown));
    });
}

void TimeBar::makeFields()
{
    m_slider = new QSlider(Qt::Horizontal, this);
    m_slider->setObjectName(QStringLiteral("solutionTime"));
    m_slider->setAccessibleName(tr("Solution time"));
    m_slider->setPageStep(1);
    m_slider->setMinimumWidth(80);
    m_entry = new ui::NumberField(ui::NumberField::kSignificantDigits, this);
    m_entry->setObjectName(QStringLiteral("timeEntry"));
    m_entry->setAccessibleName(tr("Solution time"));
    m_entry->setToolTip(tr("Type a time: the nearest one is shown"));
    m_entry->setButtonSymbols(QAbstractSpinBox::NoButtons);
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    m_entry->setLimits(-kInfinity, kInfinity);
    m_entry->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral(" 0.000000e+000 ")));
    m_entry->installEventFilter(this);
    m_position = new QLabel(this);
    m_position->setObjectName(QStringLiteral("timePosition"));
    m_position->setMargin(4);
    auto* const label = new QLabel(tr("Ti&me:"), this);
    label->setBuddy(m_entry);
    label->setMargin(4);
    insertWidget(m_first, label);
    insertWidget(m_loop, m_slider);
    insertWidget(m_loop, m_entry);
    insertWidget(m_loop, m_position);
    connect(m_slider, &QSlider::valueChanged, this, &TimeBar::choose);
    connect(m_entry, &QDoubleSpinBox::editingFinished, this, &TimeBar::takeEntry);
}

bool TimeBar::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (event->type() == QEvent::KeyPress
        && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)) {
        takeEntry();
        return true;
    }
    return QToolBar::eventFilter(watched, event);
}

void TimeBar::readTimes(const std::shared_ptr<const host::DataSet>& dataSet)
{
    if (dataSet == m_data)
        return;
    m_player.stop();
    m_data = dataSet;
    m_times = dataSet ? dataSet->solutionTimes() : std::vector<double>();
    const QSignalBlocker blocker(m_slider);
    m_slider->setRange(0, std::max(0, count() - 1));
}

/// The last time that is not after `time`.
int TimeBar::positionOf(double time) const
{
    const auto after = std::upper_bound(m_times.begin(), m_times.end(), time);
    return std::max(0, static_cast<int>(after - m_times.begin()) - 1);
}

void TimeBar::goTo(int position)
{
    if (position >= 0 && position < count())
        host::Document::instance().execute(
            host::SetSolutionTime {m_times[static_cast<std::size_t>(position)]});
}

void TimeBar::choose(int position)
{
    m_player.stop();
    goTo(position);
}

void TimeBar::goOn()
{
    const host::Frame* const frame = host::Document::instance().activeFrame();
    if (!frame || frame->sharedData() != m_data) {
        m_player.stop();
        return;
    }
    const int next = positionOf(frame->solutionTime()) + 1;
    if (next < count())
        goTo(next);
    else if (m_loop->isChecked())
        goTo(0);
    else
        m_player.stop();
}

/// The time that is nearest to what was typed.
void TimeBar::takeEntry()
{
    const std::optional<double> typed = m_entry->number();
    const host::Frame* const frame = host::Document::instance().activeFrame();
    if (!typed || !frame || m_times.empty() || *typed == frame->solutionTime())
        return;
    int position = positionOf(*typed);
    const auto at = [this](int place) { return m_times[static_cast<std::size_t>(place)]; };
    if (position + 1 < count() && at(position + 1) - *typed < *typed - at(position))
        ++position;
    choose(position);
    m_entry->setNumber(at(position)); // also where it is the present one
}

void TimeBar::showPlaying(bool isPlaying)
{
    m_play->setIcon(commandIcon(isPlaying ? "media-playback-pause" : "media-playback-start"));
    m_play->setText(isPlaying ? tr("Sto&p") : tr("&Play"));
}

void TimeBar::showPosition(double time)
{
    const int position = positionOf(time);
    const QSignalBlocker blocker(m_slider);
    m_slider->setValue(position);
    m_position->setText(tr("%1 / %2").arg(position + 1).arg(count()));
    if (std::exchange(m_shown, time) != time || !m_entry->hasFocus()) // what is typed stays
        m_entry->setNumber(time);
    for (QAction* const command : {m_first, m_earlier})
        command->setEnabled(position > 0);
    for (QAction* const command : {m_later, m_last})
        command->setEnabled(position + 1 < count());
}

void TimeBar::refresh()
{
    const host::Frame* const frame = host::Document::instance().activeFrame();
    readTimes(frame ? frame->sharedData() : nullptr);
    const bool isShown = frame && frame->isFieldPlot() && m_times.size() > 1;
    m_switch->setNeeded(isShown);
    for (QAction* const command : std::as_const(m_commands))
        command->setEnabled(isShown);
    if (!isShown) {
        m_player.stop();
        return;
    }
    m_text->setChecked(frame->isOn(style::timeText.show));
    showPosition(frame->solutionTime());
}

} // namespace corvala::app

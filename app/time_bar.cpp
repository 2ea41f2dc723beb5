// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/time_bar.h"

#include "app/help_reference.h"
#include "host/document/document.h"

#include <QAction>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>

#include <algorithm>

namespace corvala::app {

TimeBar::TimeBar(QWidget* parent)
    : QToolBar(tr("Solution time"), parent)
    , m_slider(new QSlider(Qt::Horizontal, this))
    , m_value(new QLabel(this))
{
    setObjectName(QStringLiteral("timeBar"));
    setHelpReference(*this, QStringLiteral("window.html#time"));
    auto* label = new QLabel(tr("Solution &time:"), this);
    label->setBuddy(m_slider);
    addWidget(label);
    m_earlier = addAction(style()->standardIcon(QStyle::SP_MediaSkipBackward), tr("Earlier"));
    addWidget(m_slider);
    m_later = addAction(style()->standardIcon(QStyle::SP_MediaSkipForward), tr("Later"));
    addWidget(m_value);
    m_slider->setObjectName(QStringLiteral("solutionTime"));
    m_slider->setPageStep(1);
    m_value->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral(" 0.000000e+000 ")));
    connect(m_slider, &QSlider::valueChanged, this, &TimeBar::goTo);
    connect(m_earlier, &QAction::triggered, this, [this] { goTo(m_slider->value() - 1); });
    connect(m_later, &QAction::triggered, this, [this] { goTo(m_slider->value() + 1); });
}

TimeBar::~TimeBar() = default;

void TimeBar::readTimes(const std::shared_ptr<const host::DataSet>& dataSet)
{
    if (dataSet == m_data)
        return;
    m_data = dataSet;
    m_times = dataSet ? dataSet->solutionTimes() : std::vector<double>();
    const QSignalBlocker blocker(m_slider);
    m_slider->setRange(0, std::max(0, static_cast<int>(m_times.size()) - 1));
}

/// The last time that is not after `time`.
int TimeBar::positionOf(double time) const
{
    const auto after = std::upper_bound(m_times.begin(), m_times.end(), time);
    return std::max(0, static_cast<int>(after - m_times.begin()) - 1);
}

void TimeBar::goTo(int position)
{
    if (position >= 0 && position < static_cast<int>(m_times.size()))
        host::Document::instance().execute(
            host::SetSolutionTime {m_times[static_cast<std::size_t>(position)]});
}

void TimeBar::refresh()
{
    const host::Frame* frame = host::Document::instance().activeFrame();
    readTimes(frame ? frame->sharedData() : nullptr);
    setVisible(frame && frame->isFieldPlot() && m_times.size() > 1);
    if (m_times.empty())
        return;
    const int position = positionOf(frame->solutionTime());
    const QSignalBlocker blocker(m_slider);
    m_slider->setValue(position);
    m_value->setText(QString::number(frame->solutionTime(), 'g', 7));
    m_earlier->setEnabled(position > 0);
    m_later->setEnabled(position + 1 < static_cast<int>(m_times.size()));
}

} // namespace corvala::app

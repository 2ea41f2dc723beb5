// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/plot_type_choice.h"

#include "app/command_tips.h"
#include "app/help_reference.h"
#include "host/document/document.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

namespace corvala::app {

using host::Document;

static constexpr struct
{
    PlotType_e type;
    const char* text;
} kPlotTypes[] = {
    {PlotType_Field2D, QT_TRANSLATE_NOOP("corvala::app::PlotTypeChoice", "2D field plot")},
    {PlotType_Field3D, QT_TRANSLATE_NOOP("corvala::app::PlotTypeChoice", "3D field plot")},
    {PlotType_LineXY, QT_TRANSLATE_NOOP("corvala::app::PlotTypeChoice", "XY line plot")},
    {PlotType_LinePolar, QT_TRANSLATE_NOOP("corvala::app::PlotTypeChoice", "Polar line plot")},
};

PlotTypeChoice::PlotTypeChoice(QWidget* parent)
    : QWidget(parent)
    , m_types(new QComboBox(this))
{
    setHelpReference(*this, QStringLiteral("window.html#types"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(tr("Plot t&ype:"), this);
    label->setBuddy(m_types);
    layout->addWidget(label);
    layout->addWidget(m_types);
    m_types->setObjectName(QStringLiteral("plotType"));
    auto* const group = new QActionGroup(this);
    for (const auto& [type, text] : kPlotTypes) {
        auto* const command = new QAction(tr(text), group);
        command->setCheckable(true);
        describe(*command, tr("Show this kind of plot"));
        connect(command, &QAction::triggered, this,
                [this, position = m_types->count()] { choose(position); });
        m_commands << command;
        m_types->addItem(tr(text), int(type));
    }
    connect(m_types, QOverload<int>::of(&QComboBox::activated), this, &PlotTypeChoice::choose);
}

void PlotTypeChoice::choose(int position)
{
    Document::instance().execute(
        host::SetStyle {host::pathOf(style::plotType), m_types->itemData(position).toDouble()});
}

void PlotTypeChoice::refresh()
{
    const host::Frame* frame = Document::instance().activeFrame();
    m_types->setEnabled(frame && frame->hasData());
    m_types->setCurrentIndex(frame ? m_types->findData(int(frame->plotType())) : -1);
    for (int i = 0; i < m_commands.size(); ++i) {
        m_commands[i]->setEnabled(m_types->isEnabled());
        m_commands[i]->setChecked(i == m_types->currentIndex());
    }
}

} // namespace corvala::app

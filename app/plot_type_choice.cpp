// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/plot_type_choice.h"

#include "app/help_reference.h"
#include "host/document/document.h"

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
    for (const auto& [type, text] : kPlotTypes)
        m_types->addItem(tr(text), int(type));
    connect(m_types, QOverload<int>::of(&QComboBox::activated), this, [this](int position) {
        Document::instance().execute(
            host::SetStyle {host::pathOf(style::plotType), m_types->itemData(position).toDouble()});
    });
}

QComboBox& PlotTypeChoice::field() const
{
    return *m_types;
}

void PlotTypeChoice::refresh()
{
    const host::Frame* frame = Document::instance().activeFrame();
    m_types->setEnabled(frame && frame->hasData());
    m_types->setCurrentIndex(frame ? m_types->findData(int(frame->plotType())) : -1);
}

} // namespace corvala::app

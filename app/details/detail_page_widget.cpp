// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/details/detail_page_widget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

namespace corvala::app {

static QString shownText(const char* text)
{
    return QCoreApplication::translate("PlotDetails", text);
}

DetailPageWidget::DetailPageWidget(const DetailPage& page, Proposal proposal, QWidget* parent)
    : QWidget(parent)
    , m_page(page)
    , m_proposal(std::move(proposal))
{
    auto* form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows); // in a narrow panel
    for (const DetailRow& row : page.rows) {
        if (!m_index && style::entryOf(row.key).indexCount > 0)
            addIndexChoice(*form);
        addField(*form, row);
        if (page.places.isValid() && row.key == page.places)
            addPicking(*form);
    }
    chooseIndex(1);
}

void DetailPageWidget::addIndexChoice(QFormLayout& form)
{
    m_index = new QComboBox(this);
    m_index->setObjectName(QStringLiteral("index"));
    for (int index = 1; index <= m_page.indexCount(); ++index)
        m_index->addItem(QString::number(index));
    form.addRow(shownText(m_page.indexText), m_index);
    connect(m_index, QOverload<int>::of(&QComboBox::activated), this,
            [this](int position) { chooseIndex(position + 1); });
}

void DetailPageWidget::addField(QFormLayout& form, const DetailRow& row)
{
    DetailField* field = DetailField::make(row.key, *this);
    const style::Entry& entry = style::entryOf(row.key);
    field->widget().setObjectName(QLatin1String(entry.path[entry.length() - 1]));
    field->widget().setToolTip(QCoreApplication::translate("StyleValues", entry.label));
    if (auto* const box = qobject_cast<QCheckBox*>(&field->widget())) {
        box->setText(shownText(row.text));
        form.addRow(box);
    } else {
        form.addRow(shownText(row.text), &field->widget());
    }
    connect(field, &DetailField::written, this, [this, field] { keepProposals(field->key()); });
    m_lines.push_back({field, row.follows});
}

void DetailPageWidget::addPicking(QFormLayout& form)
{
    m_picking = new QPushButton(tr("Pick in the Plot"), this);
    m_picking->setObjectName(QStringLiteral("pick"));
    m_picking->setCheckable(true);
    m_picking->setToolTip(tr("Each click in the plot adds a point, until Esc"));
    form.addRow(QString(), m_picking);
    connect(m_picking, &QPushButton::toggled, this, &DetailPageWidget::pickingSwitched);
}

void DetailPageWidget::endPicking()
{
    if (m_picking)
        m_picking->setChecked(false);
}

void DetailPageWidget::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    endPicking();
}

void DetailPageWidget::chooseIndex(int index)
{
    for (const Line& line : m_lines)
        line.field->setIndex(index);
    const host::Frame* const frame = host::Document::instance().activeFrame();
    if (frame && frame->hasData())
        refresh(*frame);
}

void DetailPageWidget::refresh(const host::Frame& frame)
{
    for (Line& line : m_lines)
        refreshLine(line, frame);
}

int DetailPageWidget::shownIndex() const
{
    return m_index ? m_index->currentIndex() + 1 : -1;
}

bool DetailPageWidget::follows(const Line& line, const host::Frame& frame) const
{
    return line.follows.isValid()
        && frame.values().integer(host::Schema::instance().at(line.follows), shownIndex()) != 0;
}

void DetailPageWidget::refreshLine(Line& line, const host::Frame& frame)
{
    const bool isFollowing = follows(line, frame);
    line.field->widget().setEnabled(!isFollowing);
    line.proposed = isFollowing ? m_proposal(line.field->key(), shownIndex()) : std::nullopt;
    if (line.proposed)
        line.field->showInstead(*line.proposed);
    else
        line.field->refresh(frame);
}

/// Values that follow from the data no longer begin with what was in force.
void DetailPageWidget::keepProposals(style::Key written)
{
    const host::Frame* const frame = host::Document::instance().activeFrame();
    for (Line& line : m_lines) {
        const bool isSetFree = line.follows.isValid() && line.follows == written && line.proposed;
        if (isSetFree && frame && !follows(line, *frame))
            line.field->write(*std::exchange(line.proposed, {}));
    }
}

} // namespace corvala::app

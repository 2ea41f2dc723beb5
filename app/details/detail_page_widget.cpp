// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/details/detail_page_widget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
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
        if (page.reset.text && row.key == page.reset.after)
            addReset(*form);
    }
    chooseIndex(1);
}

static bool isReset(const DetailReset& reset, style::Key key)
{
    return std::any_of(reset.keys.begin(), reset.keys.end(),
                       [key](style::Key other) { return other.isValid() && other == key; });
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
    connect(field, &DetailField::written, this, [this, field] {
        keepProposals(field->key());
        refreshActive();
    });
    const bool tellsSeen = row.proposal == DetailRow::Proposal::BesideOwn;
    m_lines.push_back({field, &row, tellsSeen ? addSeen(form) : nullptr});
}

/// Below the field that was added last.
QLabel* DetailPageWidget::addSeen(QFormLayout& form)
{
    auto* seen = new QLabel(this);
    seen->setToolTip(tr("The axes of a flat plot have one scale, and the view can be moved"));
    form.addRow(QString(), seen);
    seen->hide();
    return seen;
}

void DetailPageWidget::addReset(QFormLayout& form)
{
    m_reset = new QPushButton(shownText(m_page.reset.text), this);
    m_reset->setObjectName(QStringLiteral("reset"));
    m_reset->setToolTip(tr("All that the data can say follows from them again"));
    form.addRow(QString(), m_reset);
    connect(m_reset, &QPushButton::clicked, this, &DetailPageWidget::reset);
}

/// In one undo step.
void DetailPageWidget::reset()
{
    host::UndoHistory& undo = host::Document::instance().undo();
    undo.begin(UndoKind_StyleGroup);
    for (const Line& line : m_lines)
        if (isReset(m_page.reset, line.row->key))
            line.field->writeDefault();
    undo.end(host::UndoHistory::Closing::OneStep);
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

void DetailPageWidget::showIndex(int index)
{
    if (m_index && index > 0)
        m_index->setCurrentIndex(index - 1);
}

void DetailPageWidget::chooseIndex(int index)
{
    for (const Line& line : m_lines)
        line.field->setIndex(index);
    refreshActive();
}

void DetailPageWidget::refreshActive()
{
    const host::Frame* const frame = host::Document::instance().activeFrame();
    if (frame && frame->hasData())
        refresh(*frame);
}

void DetailPageWidget::refresh(const host::Frame& frame)
{
    for (Line& line : m_lines)
        refreshLine(line, frame);
    if (m_reset)
        m_reset->setEnabled(std::any_of(m_lines.begin(), m_lines.end(), [&](const Line& line) {
            return isReset(m_page.reset, line.row->key) && !line.field->hasDefault(frame);
        }));
}

int DetailPageWidget::shownIndex() const
{
    return m_index ? m_index->currentIndex() + 1 : -1;
}

host::StyleOutput DetailPageWidget::read(style::Key key, const host::Frame& frame) const
{
    const int index = style::entryOf(key).indexCount > 0 ? shownIndex() : -1;
    return host::Document::instance().read(frame.id(), key, 0, index).value_or(0);
}

bool DetailPageWidget::holds(const DetailCondition& condition, const host::Frame& frame) const
{
    if (!condition.key.isValid())
        return true;
    const int value = std::get<std::int32_t>(read(condition.key, frame));
    return value >= condition.least && value <= condition.most;
}

bool DetailPageWidget::matters(const Line& line, const host::Frame& frame) const
{
    const auto& conditions = line.row->matters;
    return std::all_of(conditions.begin(), conditions.end(),
                       [&](const DetailCondition& condition) { return holds(condition, frame); });
}

bool DetailPageWidget::follows(const Line& line, const host::Frame& frame) const
{
    const DetailRow& row = *line.row;
    return row.proposal == DetailRow::Proposal::AtZero
        ? std::get<std::int32_t>(read(row.key, frame)) == 0
        : row.follows.isValid() && holds({row.follows}, frame);
}

void DetailPageWidget::refreshLine(Line& line, const host::Frame& frame)
{
    const bool isFollowing = follows(line, frame);
    line.field->widget().setEnabled(!(isFollowing && line.row->follows.isValid())
                                    && matters(line, frame));
    line.proposed = isFollowing ? m_proposal(line.field->key(), shownIndex()) : std::nullopt;
    if (line.proposed)
        line.field->showInstead(*line.proposed);
    else
        line.field->refresh(frame);
    if (line.seen)
        tellSeen(line, frame);
}

void DetailPageWidget::tellSeen(Line& line, const host::Frame& frame)
{
    const auto seen = m_proposal(line.row->key, shownIndex());
    const bool isTold = seen && line.field->widget().isEnabled()
        && *seen != std::get<double>(read(line.row->key, frame));
    if (isTold)
        line.seen->setText(tr("in the plot: %1").arg(QString::number(*seen, 'g', 5)));
    line.seen->setVisible(isTold);
}

/// Values that follow from the data no longer begin with what was in force.
void DetailPageWidget::keepProposals(style::Key written)
{
    const host::Frame* const frame = host::Document::instance().activeFrame();
    std::vector<std::pair<DetailField*, double>> kept; // each write shows the page anew
    for (const Line& line : m_lines) {
        const bool isSetFree =
            line.row->follows.isValid() && line.row->follows == written && line.proposed;
        if (isSetFree && frame && !follows(line, *frame))
            kept.emplace_back(line.field, *line.proposed);
    }
    for (const auto& [field, value] : kept)
        field->write(value);
}

} // namespace corvala::app

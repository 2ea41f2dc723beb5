// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/details/details_dock.h"

#include "app/help_reference.h"
#include "app/user_settings.h"

#include <QAction>
#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace corvala::app {

static const QString kComesWithData = QStringLiteral("windows/plotDetailsComesWithData");

namespace {

/// Scrolls up and down only: it is never narrower than what it shows.
class PageScrollArea : public QScrollArea
{
public:
    explicit PageScrollArea(QWidget* parent)
        : QScrollArea(parent)
    {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }

    QSize minimumSizeHint() const override
    {
        const int width = widget() ? widget()->minimumSizeHint().width() : 0;
        return {width + verticalScrollBar()->sizeHint().width(),
                QScrollArea::minimumSizeHint().height()};
    }
};

} // namespace

DetailsDock::DetailsDock(DetailPageWidget::Proposal proposal, QWidget* parent)
    : QDockWidget(tr("Plot Details"), parent)
    , m_comesWithData(userSettings().value(kComesWithData).toBool())
{
    setObjectName(QStringLiteral("plotDetails"));
    toggleViewAction()->setText(tr("Plot &Details"));
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    m_choice = new QComboBox(content);
    m_choice->setObjectName(QStringLiteral("page"));
    m_stack = new QStackedWidget(content);
    layout->addWidget(m_choice);
    layout->addWidget(m_stack, 1);
    for (const DetailPage& page : detailPages()) {
        auto* scroll = new PageScrollArea(m_stack);
        m_pages.push_back(new DetailPageWidget(page, proposal, scroll));
        connect(m_pages.back(), &DetailPageWidget::pickingSwitched, this,
                &DetailsDock::pickingSwitched);
        m_pages.back()->setObjectName(QLatin1String(page.name));
        scroll->setWidget(m_pages.back());
        m_stack->addWidget(scroll);
    }
    connect(m_choice, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        showChosen();
        refresh();
    });
    setWidget(content);
    hide();
}

DetailsDock::~DetailsDock() = default;

/// Where a page stands among all; -1 for none of this name.
static int positionOf(const QString& name)
{
    const std::vector<DetailPage>& pages = detailPages();
    const auto found = std::find_if(pages.begin(), pages.end(), [&](const DetailPage& page) {
        return name == QLatin1String(page.name);
    });
    return found == pages.end() ? -1 : static_cast<int>(found - pages.begin());
}

void DetailsDock::showChosen()
{
    const QString name = m_choice->currentData().toString();
    m_stack->setCurrentIndex(positionOf(name));
    setHelpReference(*this, QStringLiteral("plot-details.html#") + name);
}

/// The pages for plots like this one; back from another kind, the page that was chosen before.
void DetailsDock::offerPages(const host::Frame& frame)
{
    const QString chosen = m_choice->currentData().toString();
    const int position = positionOf(chosen);
    if (position >= 0 && detailPages()[static_cast<std::size_t>(position)].isFor(frame))
        return;
    const QSignalBlocker blocker(m_choice);
    m_choice->clear();
    for (const DetailPage& page : detailPages())
        if (page.isFor(frame))
            m_choice->addItem(shownTitle(page), QLatin1String(page.name));
    m_choice->setCurrentIndex(std::max(m_choice->findData(std::exchange(m_otherPage, chosen)), 0));
    showChosen();
}

void DetailsDock::openPage(const QString& name)
{
    refresh();
    m_choice->setCurrentIndex(m_choice->findData(name));
    show();
    raise();
    m_stack->currentWidget()->setFocus();
}

void DetailsDock::openPageOf(style::Key value, int index)
{
    const std::vector<DetailPage>& pages = detailPages();
    for (std::size_t i = 0; i < pages.size(); ++i)
        if (std::any_of(pages[i].rows.begin(), pages[i].rows.end(),
                        [value](const DetailRow& row) { return row.key == value; })) {
            m_pages[i]->showIndex(index);
            openPage(QLatin1String(pages[i].name));
        }
}

void DetailsDock::endPicking()
{
    for (DetailPageWidget* const page : m_pages)
        page->endPicking();
}

void DetailsDock::showEvent(QShowEvent* event)
{
    QDockWidget::showEvent(event);
    refresh();
}

void DetailsDock::showWithData(bool hasData)
{
    toggleViewAction()->setEnabled(hasData);
    if (hasData ? !m_comesWithData : isHidden())
        return;
    m_comesWithData = !hasData;
    userSettings().setValue(kComesWithData, m_comesWithData);
    setVisible(hasData);
}

/// Costs nothing while it is closed, and then what one page shows.
void DetailsDock::refresh()
{
    const host::Frame* const frame = host::Document::instance().activeFrame();
    const bool hasPlot = frame && frame->hasData() && (frame->isFieldPlot() || frame->isLinePlot());
    showWithData(frame && frame->hasData());
    widget()->setEnabled(hasPlot);
    if (hasPlot)
        offerPages(*frame);
    const Subject subject = hasPlot
        ? Subject {host::Document::instance().activeFrameId(), &*frame->data(), frame->plotType()}
        : Subject();
    const Subject before = std::exchange(m_subject, subject);
    if (before.frame != subject.frame || before.data != subject.data
        || before.plotType != subject.plotType)
        endPicking();
    if (isVisible() && hasPlot)
        m_pages[static_cast<std::size_t>(m_stack->currentIndex())]->refresh(*frame);
}

} // namespace corvala::app

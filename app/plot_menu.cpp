// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/plot_menu.h"

#include "app/document_observer.h"
#include "app/icons.h"
#include "app/picked_objects.h"
#include "app/view_commands.h"
#include "host/document/document.h"
#include "plot/frame_view.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMainWindow>
#include <QMenu>

#include <memory>

namespace corvala::app {

using host::Document;

/// What the numbers of zones and line maps are about at present.
struct Subject
{
    CvlUniqueId frame = 0;
    int plotType = 0;
    std::shared_ptr<const host::DataSet> data; ///< kept, so that no other has its address
    CvlInt64 mapCount = 0;

    static Subject present()
    {
        const host::Frame* const frame = Document::instance().activeFrame();
        return frame
            ? Subject {frame->id(), frame->plotType(), frame->sharedData(), frame->shownMapCount()}
            : Subject();
    }
    bool isPresent() const
    {
        const Subject now = present();
        return frame != 0 && frame == now.frame && plotType == now.plotType && data == now.data
            && mapCount == now.mapCount;
    }
};

PlotMenu::PlotMenu(QMainWindow& window, plot::FrameView& view, const ViewCommands& views)
    : QObject(&window)
    , m_window(window)
    , m_views(views)
{
    connect(&view, &plot::FrameView::menuWanted, this, &PlotMenu::open);
    view.installEventFilter(this);
}

bool PlotMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ContextMenu
        && static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard) {
        const auto& view = static_cast<const QWidget&>(*watched);
        open(pickedObject(), view.mapToGlobal(view.rect().center()));
        return true;
    }
    return QObject::eventFilter(watched, event);
}

static host::NumberSet activeMaps()
{
    const host::Frame& frame = *Document::instance().activeFrame();
    return frame.isFieldPlot() ? frame.activeFieldMaps() : frame.activeLineMaps();
}

static void showMaps(const host::NumberSet& maps, AssignOp_e op = AssignOp_None)
{
    const bool isField = Document::instance().activeFrame()->isFieldPlot();
    const style::Key key =
        isField ? style::Key(style::activeFieldMaps) : style::Key(style::activeLineMaps);
    Document::instance().execute(host::SetStyle {host::pathOf(key), maps, {}, -1, op});
}

static host::NumberSet allMaps()
{
    return host::allUpTo(Document::instance().activeFrame()->shownMapCount());
}

static constexpr int kLongestTitle = 50; ///< in average characters; a zone may have a long name

void PlotMenu::addObjectCommands(QMenu& menu, CvlInt64 number)
{
    const bool isField = Document::instance().activeFrame()->isFieldPlot();
    const auto map = static_cast<std::uint32_t>(mapOfObject(number));
    const QFontMetrics metrics = menu.fontMetrics();
    menu.addAction(metrics
                       .elidedText(objectText(number), Qt::ElideMiddle,
                                   kLongestTitle * metrics.averageCharWidth())
                       .replace(QLatin1Char('&'), QLatin1String("&&")))
        ->setEnabled(false);
    menu.addSeparator();
    menu.addAction(commandIcon("zone-pick"),
                   isField ? tr("&Pick This Zone") : tr("&Pick This Line"), this,
                   [this, number] { Q_EMIT pickWanted(number, false); });
    menu.addAction(commandIcon("zone-hide"),
                   isField ? tr("&Hide This Zone") : tr("&Hide This Line"), this,
                   [map] { showMaps(host::NumberSet::bitmapOf(1, map), AssignOp_Remove); });
    menu.addAction(commandIcon("zone-show-only"),
                   isField ? tr("Show &Only This Zone") : tr("Show &Only This Line"), this,
                   [map] { showMaps(host::NumberSet::bitmapOf(1, map)); });
    menu.addAction(commandIcon("style-dialog"),
                   isField ? tr("&Style of This Zone...") : tr("&Style of This Line..."), this,
                   [this, number] { Q_EMIT pickWanted(number, true); });
    menu.addSeparator();
}

/// The menu goes when its numbers stand for other things.
void PlotMenu::open(CvlInt64 number, const QPoint& place)
{
    const Subject subject = Subject::present();
    if (!subject.data)
        return;
    auto* const menu = new QMenu(&m_window);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("plotMenu"));
    if (mapOfObject(number) != 0)
        addObjectCommands(*menu, number);
    const bool isField = Document::instance().activeFrame()->isFieldPlot();
    menu->addAction(commandIcon("zone-show"),
                    isField ? tr("Show &All Zones") : tr("Show &All Lines"), this,
                    [] { showMaps(allMaps(), AssignOp_Add); })
        ->setEnabled(!(activeMaps() == allMaps()));
    menu->addSeparator();
    menu->addActions({&m_views.zoomBox(), &m_views.fit()});
    if (auto* const copy = m_window.findChild<QAction*>(QStringLiteral("copyPicture"))) {
        menu->addSeparator();
        menu->addAction(copy);
    }
    auto* const observer = new DocumentObserver(menu);
    const auto closeWhenStale = [menu, subject] {
        if (!subject.isPresent())
            menu->close();
    };
    connect(observer, &DocumentObserver::changed, menu, closeWhenStale);
    menu->popup(place);
}

} // namespace corvala::app

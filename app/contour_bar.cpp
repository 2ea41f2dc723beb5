// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/contour_bar.h"

#include "app/bar_field.h"
#include "app/bar_switch.h"
#include "app/details/detail_field.h"
#include "app/help_reference.h"
#include "host/document/document.h"
#include "host/document/line_map_name.h"
#include "plot/common/scene_note.h"
#include "sdk/common_ui/combo_box_auto_filter.h"

#include <QAbstractItemView>
#include <QAction>
#include <QActionGroup>
#include <QCompleter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QToolButton>

namespace corvala::app {

static constexpr int kGroup = 1;
static constexpr const auto& kStyle = style::contourGroups;

ContourBar::ContourBar(QWidget* parent)
    : QToolBar(tr("Contour variable"), parent)
    , m_variable(new ui::ComboBoxAutoFilter(this))
    , m_colors(new QToolButton(this))
{
    constexpr int kFewestLetters = 12; // beside the style dialog there is little room
    constexpr int kMostLetters = 22;
    const int letter = fontMetrics().averageCharWidth();
    setObjectName(QStringLiteral("contourBar"));
    m_switch = new BarSwitch(*this);
    setHelpReference(*this, QStringLiteral("window.html#contour"));
    auto* const label = new QLabel(tr("Co&ntour:"), this);
    label->setBuddy(m_variable);
    label->setMargin(4);
    m_variable->setObjectName(QStringLiteral("contourVariable"));
    m_variable->setAccessibleName(tr("Variable of contour group 1"));
    m_variable->setMinimumWidth(kFewestLetters * letter);
    m_variable->setMaximumWidth(kMostLetters * letter);
    m_variable->lineEdit()->installEventFilter(this);
    m_variable->installEventFilter(this); // has keys and focus of its entry
    connect(m_variable, &ui::ComboBoxAutoFilter::selectionComplete, this, [this] {
        m_variable->lineEdit()->setCursorPosition(0); // a long name shows its beginning
        write(kStyle.var, double(m_variable->currentIndex()));
        leaveField(*m_variable);
    });
    makeColorMenu();
    addWidget(label);
    addWidget(m_variable);
    addWidget(m_colors);
}

ContourBar::~ContourBar() = default;

void ContourBar::chooseVariable()
{
    if (isHidden() && toggleViewAction()->isEnabled())
        toggleViewAction()->trigger();
    goToField(*this, *m_variable);
}

static bool isEscape(const QEvent& event)
{
    return event.type() == QEvent::KeyPress
        && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

/// Whether the focus goes; the list of what is found takes it in passing.
static bool isLeaving(const QEvent& event)
{
    return event.type() == QEvent::FocusOut
        && static_cast<const QFocusEvent&>(event).reason() != Qt::PopupFocusReason;
}

bool ContourBar::eventFilter(QObject* watched, QEvent* event)
{
    if (isEscape(*event) || isLeaving(*event))
        showDrawn();
    if (watched == m_variable && isEscape(*event))
        leaveField(*m_variable);
    if (watched == m_variable->lineEdit() && event->type() == QEvent::Paint
        && !m_variable->lineEdit()->hasFocus()) {
        paintName();
        return true;
    }
    return QToolBar::eventFilter(watched, event);
}

/// A name that is too long shows its beginning, unless something is typed.
void ContourBar::paintName()
{
    auto* const entry = m_variable->lineEdit();
    constexpr int kMargin = 2; // of texts in such a field
    QPainter painter(entry);
    const QRect place = entry->rect().adjusted(kMargin, 0, -kMargin, 0);
    painter.setPen(entry->palette().color(QPalette::Text));
    painter.drawText(place, Qt::AlignVCenter,
                     entry->fontMetrics().elidedText(entry->text(), Qt::ElideRight, place.width()));
}

void ContourBar::makeColorMenu()
{
    const int height = fontMetrics().height();
    auto* const menu = new QMenu(m_colors);
    auto* const group = new QActionGroup(menu);
    for (const style::Choice& choice : style::entryOf(kStyle.colorMap).choices) {
        QAction* const map = menu->addAction(
            colorMapIcon(static_cast<ColorMap_e>(choice.value), {height, height}),
            QCoreApplication::translate("StyleValues", choice.name), this,
            [this, value = choice.value] { write(kStyle.colorMap, double(value)); });
        map->setCheckable(true);
        map->setData(choice.value);
        group->addAction(map);
        m_colorMaps << map;
    }
    menu->addSeparator();
    m_reversed = menu->addAction(tr("Re&versed"), this,
                                 [this](bool isOn) { write(kStyle.reversesColors, isOn); });
    m_reversed->setCheckable(true);
    menu->addAction(tr("&Range and Levels..."), this,
                    [this] { Q_EMIT detailsWanted(QStringLiteral("contour")); });
    m_colors->setObjectName(QStringLiteral("contourColors"));
    m_colors->setMenu(menu);
    m_colors->setPopupMode(QToolButton::InstantPopup);
    m_colors->setToolButtonStyle(Qt::ToolButtonIconOnly);
    m_colors->setIconSize({4 * height, height});
    m_colors->setToolTip(tr("Colors, range and levels of contour group 1"));
    m_colors->setAccessibleName(m_colors->toolTip());
}

void ContourBar::write(style::Key value, const host::StyleInput& to)
{
    host::Document::instance().execute(plot::frameValue(value, to, kGroup));
}

/// The list is made anew only when names differ.
void ContourBar::showVariables(const host::Frame& frame)
{
    QStringList names {tr("None")};
    for (CvlInt64 number = 1; number <= frame.data()->variableCount(); ++number)
        names << QStringLiteral("%1: %2").arg(number).arg(
            QString::fromStdString(host::shownVariableName(frame.data(), number)));
    if (names != m_names) {
        m_names = names;
        m_variable->setEntries(names);
        m_variable->completer()->popup()->installEventFilter(this); // has the keys while it is open
    }
    const int shown = frame.integer(kStyle.var, kGroup);
    if (m_variable->currentIndex() != shown)
        m_variable->setCurrentIndex(shown);
    m_variable->setToolTip(tr("%1\nVariable of contour group 1: type a part of its name to find it")
                               .arg(m_variable->itemText(shown)));
}

/// In place of what was typed.
void ContourBar::showDrawn()
{
    const host::Frame* const frame = host::Document::instance().activeFrame();
    if (!frame || !frame->hasData())
        return;
    m_variable->setCurrentIndex(frame->integer(kStyle.var, kGroup));
    m_variable->setEditText(m_variable->itemText(m_variable->currentIndex()));
}

void ContourBar::showColors(const host::Frame& frame)
{
    const int shown = frame.integer(kStyle.colorMap, kGroup);
    m_reversed->setChecked(frame.isOn(kStyle.reversesColors, kGroup));
    m_colors->setIcon(colorMapIcon(static_cast<ColorMap_e>(shown), m_colors->iconSize()));
    for (QAction* const map : std::as_const(m_colorMaps))
        map->setChecked(map->data().toInt() == shown);
}

void ContourBar::refresh()
{
    const host::Frame* const frame = host::Document::instance().activeFrame();
    const bool isShown = frame && frame->hasData() && frame->isFieldPlot();
    m_switch->setNeeded(isShown);
    if (!isShown)
        return;
    showVariables(*frame);
    showColors(*frame);
}

} // namespace corvala::app

// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_prompt/color_chooser_widget.h"

#include <sdk/base/cvl.h>
#include <sdk/dialogs_common/launch_help_action.h>
#include <vocabulary/colors.h>

#include <QAbstractButton>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QToolButton>

#include <algorithm>
#include <cstdlib>

namespace corvala::dialogs::prompt {

namespace {

using style::kFirstGroupColor;
using style::kPaletteColors;
using style::kRgbColor;

constexpr int kColumns = 8;

/// A swatch: the colour, a text on it where the colour alone would not say what it stands for.
class ColorButton : public QAbstractButton
{
public:
    explicit ColorButton(QWidget* parent)
        : QAbstractButton(parent)
    {
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::ClickFocus);
    }

    void setColor(const QColor& color) { m_color = color; }
    void setPresent(bool isPresent)
    {
        m_isPresent = isPresent;
        update();
    }

    QSize sizeHint() const override
    {
        const int side = fontMetrics().height() + 6;
        return {side, side};
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const bool isMarked = hasFocus() || underMouse();
        painter.fillRect(rect(), isMarked ? palette().highlight() : palette().button());
        const QRect swatch = rect().adjusted(3, 3, -3, -3);
        painter.fillRect(swatch, m_color);
        painter.setPen(palette().color(QPalette::Dark));
        painter.drawRect(swatch.adjusted(0, 0, -1, -1));
        if (m_isPresent) {
            painter.setPen(QPen(palette().color(QPalette::ButtonText), 2));
            painter.drawRect(rect().adjusted(1, 1, -1, -1));
        }
        painter.setPen(qGray(m_color.rgb()) < 128 ? Qt::white : Qt::black);
        painter.drawText(swatch, Qt::AlignCenter, text());
    }

private:
    QColor m_color;
    bool m_isPresent = false;
};

} // namespace

static QString nameOf(int color, const QColor& rgb)
{
    if (color == kRgbColor)
        return ColorChooserWidget::tr("By RGB");
    if (color >= kFirstGroupColor)
        return ColorChooserWidget::tr("By contour group %1").arg(color - kFirstGroupColor + 1);
    return QStringLiteral("%1: %2").arg(QString::number(color), rgb.name().toUpper());
}

static QString labelOf(int color)
{
    if (color == kRgbColor)
        return ColorChooserWidget::tr("RGB");
    return color >= kFirstGroupColor ? QString::number(color - kFirstGroupColor + 1) : QString();
}

ColorChooserWidget::ColorChooserWidget(QWidget* parent, bool offerGroupColors,
                                       ShowHelpButton_e showHelpButton)
    : QWidget(parent)
    , m_offersGroupColors(offerGroupColors)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setSpacing(0);
    int row = 0;
    for (int color = 0; color < kPaletteColors; ++color) {
        row = color / kColumns;
        addColorButton(color, row, color % kColumns, 1);
    }
    if (offerGroupColors) {
        ++row;
        for (int color = kFirstGroupColor; color < kRgbColor; ++color)
            addColorButton(color, row, color - kFirstGroupColor, 1);
        addColorButton(kRgbColor, ++row, 0, kColumns);
    }
    if (showHelpButton == ShowHelpButton_Yes)
        addHelpButton();
    setAccessibleName(tr("Color"));
    // A menu gives the keyboard only to a widget that takes the focus; Tab goes to the swatches.
    setFocusPolicy(Qt::ClickFocus);
    makeCurrent(0);
}

void ColorChooserWidget::addColorButton(int color, int row, int column, int columnSpan)
{
    auto* button = new ColorButton(this);
    button->setObjectName(QStringLiteral("color_%1").arg(color));
    button->setText(labelOf(color));
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    button->installEventFilter(this);
    connect(button, &QAbstractButton::clicked, this, [this, color] { selectColor(color); });
    static_cast<QGridLayout*>(layout())->addWidget(button, row, column, 1, columnSpan);
    m_cells.push_back({color, row, column, button});
}

void ColorChooserWidget::addHelpButton()
{
    auto* button = new QToolButton(this);
    button->setDefaultAction(
        new common::LaunchHelpAction(QStringLiteral("colors.html#colors/color-chooser"), this));
    button->setAutoRaise(true);
    auto* grid = static_cast<QGridLayout*>(layout());
    grid->addWidget(button, grid->rowCount(), 0, 1, kColumns, Qt::AlignRight);
}

QAbstractButton* ColorChooserWidget::colorButton(int color) const
{
    for (const Cell& cell : m_cells) {
        if (cell.color == color)
            return cell.button;
    }
    return nullptr;
}

void ColorChooserWidget::setPresentColor(int color)
{
    m_presentColor = colorButton(color) ? color : -1;
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
        const bool isPresent = m_cells[i].color == color;
        static_cast<ColorButton*>(m_cells[i].button)->setPresent(isPresent);
        m_cells[i].button->setAccessibleDescription(isPresent ? tr("Present color") : QString());
        if (isPresent)
            makeCurrent(i);
    }
}

boost::signals2::connection
ColorChooserWidget::connectColorSelected(boost::function<void(int)> slot)
{
    return m_colorSelected.connect(std::move(slot));
}

void ColorChooserWidget::showEvent(QShowEvent* event)
{
    readColors();
    QWidget::showEvent(event);
}

void ColorChooserWidget::readColors()
{
    for (const Cell& cell : m_cells) {
        uint8_t red = 0;
        uint8_t green = 0;
        uint8_t blue = 0;
        CvlUtilColorGetRGB(cell.color, &red, &green, &blue);
        const QColor rgb(red, green, blue);
        static_cast<ColorButton*>(cell.button)->setColor(rgb);
        const QString name = nameOf(cell.color, rgb);
        cell.button->setToolTip(name);
        cell.button->setAccessibleName(name);
    }
}

bool ColorChooserWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        const auto found =
            std::find_if(m_cells.begin(), m_cells.end(),
                         [watched](const Cell& cell) { return cell.button == watched; });
        if (found != m_cells.end())
            makeCurrent(static_cast<std::size_t>(std::distance(m_cells.begin(), found)));
    } else if (event->type() == QEvent::KeyPress) {
        if (handleKey(*static_cast<QKeyEvent*>(event)))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

bool ColorChooserWidget::handleKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Left: moveBy(0, -1); return true;
    case Qt::Key_Right: moveBy(0, 1); return true;
    // Past the first and last row the keys go on to the menu that the chooser may be part of.
    case Qt::Key_Up: return moveBy(-1, 0);
    case Qt::Key_Down: return moveBy(1, 0);
    case Qt::Key_Home: moveBy(0, -kColumns); return true;
    case Qt::Key_End: moveBy(0, kColumns); return true;
    case Qt::Key_Return:
    case Qt::Key_Enter: m_cells[m_current].button->click(); return true;
    default: return false;
    }
}

/// Goes to the cell of that row that is nearest to that column; false without such a row.
bool ColorChooserWidget::moveBy(int rows, int columns)
{
    const int row = m_cells[m_current].row + rows;
    const int column = m_cells[m_current].column + columns;
    const Cell* nearest = nullptr;
    for (const Cell& cell : m_cells) {
        if (cell.row == row
            && (!nearest || std::abs(cell.column - column) < std::abs(nearest->column - column)))
            nearest = &cell;
    }
    if (nearest)
        nearest->button->setFocus(Qt::OtherFocusReason);
    return nearest != nullptr;
}

/// The current cell is the one that Tab reaches.
void ColorChooserWidget::makeCurrent(std::size_t cell)
{
    m_cells[m_current].button->setFocusPolicy(Qt::ClickFocus);
    m_current = cell;
    m_cells[m_current].button->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(m_cells[m_current].button);
}

void ColorChooserWidget::selectColor(int color)
{
    const QPointer<ColorChooserWidget> guard(this);
    Q_EMIT colorSelected(color);
    if (guard)
        m_colorSelected(color);
}

} // namespace corvala::dialogs::prompt

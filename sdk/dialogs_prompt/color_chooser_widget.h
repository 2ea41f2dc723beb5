// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QWidget>

#include <boost/function.hpp>
#include <boost/signals2/signal.hpp>

#include <vector>

class QAbstractButton;
class QKeyEvent;

namespace corvala::dialogs::prompt {

enum ShowHelpButton_e : int { ShowHelpButton_No = 0, ShowHelpButton_Yes = 1 };

/// A grid of the colours that a colour style value can have: the palette 0 to 63, and, when asked
/// for, "by contour group" 101 to 108 and "by RGB" 109. One tab stop; arrows move, Return and Space
/// choose. The button of a colour has the object name "color_" and its number.
class ColorChooserWidget : public QWidget
{
    Q_OBJECT

public:
    ColorChooserWidget(QWidget* parent, bool offerGroupColors, ShowHelpButton_e showHelpButton);

    bool offersGroupColors() const { return m_offersGroupColors; }

    /// The button of a colour; null for a number that is not offered.
    QAbstractButton* colorButton(int color) const;

    /// Marks the button of a colour, which becomes the current one, as the present colour; a number
    /// that is not offered marks none.
    void setPresentColor(int color);
    int presentColor() const { return m_presentColor; } ///< -1 for none

    boost::signals2::connection connectColorSelected(boost::function<void(int)> slot);

Q_SIGNALS:
    void colorSelected(int color);

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addColorButton(int color, int row, int column, int columnSpan);
    void addHelpButton();
    void readColors();
    void makeCurrent(std::size_t cell);
    void selectColor(int color);
    bool handleKey(const QKeyEvent& event);
    bool moveBy(int rows, int columns);

    struct Cell
    {
        int color;
        int row;
        int column;
        QAbstractButton* button; // owned by this widget
    };

    bool m_offersGroupColors;
    std::vector<Cell> m_cells;
    std::size_t m_current = 0;
    int m_presentColor = -1;
    boost::signals2::signal<void(int)> m_colorSelected;
};

} // namespace corvala::dialogs::prompt

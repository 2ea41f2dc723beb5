// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QObject>
#include <QPersistentModelIndex>
#include <QPoint>

#include <functional>

class QAbstractItemView;
class QMouseEvent;
class QPainter;
class QRect;

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

/// The hint at what a right click opens: a small drop arrow in the cell under the mouse and in the
/// current one. A click on the arrow opens it, too.
class CellArrow : public QObject
{
    Q_OBJECT

public:
    /// The view must outlive it. `opens` tells whether a right click on a cell opens anything;
    /// `open` is called when a click on an arrow is over.
    CellArrow(QAbstractItemView& view, std::function<bool(const QModelIndex&)> opens,
              std::function<void(const QModelIndex&)> open);

    /// To be called when the cells have been painted.
    void paint(QPainter& painter) const;

protected:
    bool eventFilter(QObject* viewport, QEvent* event) override;

private:
    QRect arrowOf(const QModelIndex& index) const;
    void paintIn(const QModelIndex& index, QPainter& painter) const;
    QModelIndex hoveredCell() const;
    void hover(const QPoint& position);
    bool press(const QMouseEvent& event);
    bool release(const QMouseEvent& event);

    QAbstractItemView& m_view;
    std::function<bool(const QModelIndex&)> m_opens;
    std::function<void(const QModelIndex&)> m_open;
    QPoint m_mouse = {-1, -1}; ///< outside while the mouse is not over the cells
    QPersistentModelIndex m_pressed; ///< the cell whose arrow the button was pressed on
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views

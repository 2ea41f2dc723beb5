// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QRect>
#include <QTimer>

#include <functional>

class QWidget;

namespace corvala::app {

/// What the window manager adds to the size of a window, or likely does where it has not answered
/// yet.
QSize frameOf(const QWidget& window);

/// An area moved, and made smaller where it is too large, so that all of it lies on one of the
/// screens: that which has most of it, else the nearest one. Without screens it stays as it is.
QRect fitted(const QRect& area, const QList<QRect>& screens);

/// Moves the window, and makes it smaller as far as it can be, so that all of it is on a screen.
void keepOnScreen(QWidget& window);

/// Keeps where a window stands from show to show and from run to run: the corner of its frame and
/// the size within, in device independent pixels, as they were when it was last neither maximised,
/// minimised nor full-screen; and whether it was maximised. The window comes there before it is
/// mapped, wholly on a screen of today, and once more when the window manager has given it a frame.
/// A size that only follows from the screen is not kept: on a larger one the former is there again.
class WindowPlace : public QObject
{
    Q_OBJECT

public:
    /// To be made before the window, which owns it, is shown. `name` tells windows apart in the
    /// settings; `first` gives the place, as above, of a window that has none yet.
    WindowPlace(QWidget& window, const QString& name, std::function<QRect()> first);

    /// The size that the window has now is what the screen allows.
    void takeAsFitted();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void come();
    void settle();
    void note();
    void save();
    bool isNormal() const;

    QWidget& m_window;
    QString m_name;
    std::function<QRect()> m_first;
    QRect m_place; ///< that is kept; null until the window has one
    QRect m_wanted; ///< where it came to: that which is kept, or the first one
    QRect m_fitted; ///< where the screen, and nobody else, put the window; null when it fits
    QSize m_frame; ///< of the window, when it had the place
    QTimer m_noting; ///< window managers tell of a state later than of the size that comes with it
    bool m_isSettled = false;
};

} // namespace corvala::app

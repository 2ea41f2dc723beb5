// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

class QDropEvent;
class QLabel;
class QWidget;

namespace corvala::app {

/// Takes files and folders that are dropped on a window, and shows over its plot what dropping them
/// would do, or why it cannot be done.
class FileDrops : public QObject
{
    Q_OBJECT

public:
    /// `obstacle` says why nothing can be opened at present; empty when it can. The window owns
    /// the object; the sign shows over `plot`, a child of it.
    FileDrops(QWidget& window, QWidget& plot, std::function<QString()> obstacle);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void dropped(const QStringList& files);

private:
    void answer(QDropEvent& event);
    void take(QDropEvent& event);
    void show(const QString& text, bool isRefusal);

    QWidget& m_plot;
    std::function<QString()> m_obstacle;
    QLabel* m_sign; // owned by the plot
};

} // namespace corvala::app

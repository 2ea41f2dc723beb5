// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace corvala::app {

/// How far long work has come, with a button to cancel it; hidden while there is none.
class WorkProgress : public QWidget
{
    Q_OBJECT

public:
    explicit WorkProgress(QWidget* parent = nullptr);

    void begin(const QString& what);
    /// `percent` is 0 to 100, or -1 when unknown.
    void advance(int percent, const QString& what);
    void end();

Q_SIGNALS:
    void cancelled();

private:
    QLabel* m_what; // not owned
    QProgressBar* m_bar; // not owned
    QPushButton* m_cancel; // not owned
};

} // namespace corvala::app

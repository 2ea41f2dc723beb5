// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;

namespace corvala::app {

/// A line above the plot that tells something without interrupting, until the user closes it.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget* parent = nullptr);

    /// Shows the text, and a button when it has a caption; an empty text hides the bar.
    void tell(const QString& text, const QString& caption = {},
              const std::function<void()>& command = {});

private:
    QLabel* m_text; // not owned
    QPushButton* m_button; // not owned
    std::function<void()> m_command;
};

} // namespace corvala::app

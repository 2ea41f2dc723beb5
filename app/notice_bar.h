// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QStringList>

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

    /// Shows the text, and a button when it has a caption; an empty text hides the bar. Returns the
    /// number of the note.
    int tell(const QString& text, const QString& caption = {},
             const std::function<void()>& command = {});
    /// Adds a button that lists these sentences to what is shown.
    void addDetails(const QStringList& sentences);
    /// The note with this number is the last one, and the user has not closed it.
    bool isShown(int note) const { return note == m_note && !isHidden(); }

private:
    void showDetails();

    QLabel* m_text; // not owned
    QPushButton* m_button; // not owned
    QPushButton* m_details; // not owned
    QStringList m_sentences;
    std::function<void()> m_command;
    int m_note = 0;
};

} // namespace corvala::app

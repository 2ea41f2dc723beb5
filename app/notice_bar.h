// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QStringList>

#include <functional>
#include <vector>

class QLabel;
class QPushButton;

namespace corvala::app {

/// A line above the plot that tells something without interrupting, until the user closes it or
/// something else is told. What is told in passing lies over it, and over one another, and gives
/// back the note under it.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget* parent = nullptr);

    /// Shows the text in place of all other ones, and a button when it has a caption; an empty text
    /// hides the bar.
    void tell(const QString& text, const QString& caption = {},
              const std::function<void()>& command = {});
    /// Shows the text over the other ones, or in place of the note with the number `former` where
    /// that is there; an empty text takes that away only. Returns the number of the note; 0 for an
    /// empty text.
    int tellInPassing(int former, const QString& text, const QString& caption = {},
                      const std::function<void()>& command = {});
    /// Adds a button that lists these sentences to what is shown.
    void addDetails(const QStringList& sentences);
    /// The note with this number is on show, perhaps under others: the user has not closed it.
    bool isShown(int note) const;

private:
    struct Note
    {
        int number;
        QString text;
        QString caption; ///< of the button; empty for none
        std::function<void()> command;
        QStringList sentences;
    };

    void close();
    void showLast();
    void showDetails();

    QLabel* m_text; // not owned
    QPushButton* m_button; // not owned
    QPushButton* m_details; // not owned
    std::vector<Note> m_notes; ///< the last one is shown
    int m_lastNumber = 0;
};

} // namespace corvala::app

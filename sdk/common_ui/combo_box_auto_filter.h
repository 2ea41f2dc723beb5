// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QComboBox>

namespace corvala::ui {

/// A combo box for long lists: what the user types finds the entries that contain it. Its cost to
/// show and to measure does not grow with the number of entries. As in every combo box, the USER
/// property is the current text.
class ComboBoxAutoFilter : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBoxAutoFilter(QWidget* parent = nullptr);

    /// Hides QComboBox::setEditable, whose entry would come with a completer of its own.
    void setEditable(bool editable);

    /// With true (the default) a list of the entries that contain the typed text is shown while
    /// typing; with false the entry that begins with it is completed in place.
    void setFilterWhileTyping(bool filter);
    bool filtersWhileTyping() const { return m_filtersWhileTyping; }

    /// Replaces all entries; much quicker than addItems for long lists. No entry is current.
    void setEntries(const QStringList& entries);

    /// Shows the rows of a model, which is not owned unless the combo box is its parent. Use this
    /// instead of setModel, which the completer would not follow. No entry is current.
    void setListModel(QAbstractItemModel* entries);

    /// Position of the entry that a text stands for: equal to it, else equal ignoring case, else
    /// the first that contains it, ignoring case. -1 when there is none or the text is empty.
    int entryFor(const QString& text) const;

    void showPopup() override;
    void hidePopup() override;

Q_SIGNALS:
    /// The user chose: by Return in the entry, by a click, or by closing the list other than by
    /// Escape. The entry is current and in the edit field. Sent once per choice; not sent when the
    /// typed text stands for no entry, in which case the former entry comes back.
    void selectionComplete();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setUpCompleter();
    void entryActivated();
    void completeSelection();

    bool m_filtersWhileTyping = true;
    bool m_isListClosing = false;
    bool m_isListCancelled = false;
};

} // namespace corvala::ui

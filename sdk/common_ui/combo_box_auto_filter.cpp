// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/common_ui/combo_box_auto_filter.h"

#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QStringListModel>
#include <QTimer>

#include <utility>

namespace corvala::ui {

static constexpr int kMinimumContentsLength = 12; // characters
static constexpr int kVisibleEntries = 15;

static bool isReturn(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Without this a list view measures every entry before it shows the first.
static void makeUniform(QAbstractItemView* view)
{
    if (auto* list = qobject_cast<QListView*>(view))
        list->setUniformItemSizes(true);
}

ComboBoxAutoFilter::ComboBoxAutoFilter(QWidget* parent)
    : QComboBox(parent)
{
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kMinimumContentsLength);
    setMaxVisibleItems(kVisibleEntries);
    makeUniform(view());
    connect(this, QOverload<int>::of(&QComboBox::activated), this,
            &ComboBoxAutoFilter::entryActivated);
    setEditable(true);
}

void ComboBoxAutoFilter::setEditable(bool editable)
{
    if (editable == isEditable())
        return;
    QComboBox::setEditable(editable);
    if (editable)
        setUpCompleter();
}

void ComboBoxAutoFilter::setFilterWhileTyping(bool filter)
{
    m_filtersWhileTyping = filter;
    if (isEditable())
        setUpCompleter();
}

void ComboBoxAutoFilter::setUpCompleter()
{
    auto* completer = new QCompleter(model(), lineEdit());
    completer->setCompletionColumn(modelColumn());
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setMaxVisibleItems(kVisibleEntries);
    if (m_filtersWhileTyping) {
        completer->setFilterMode(Qt::MatchContains);
        makeUniform(completer->popup());
    } else {
        completer->setCompletionMode(QCompleter::InlineCompletion);
    }
    setCompleter(completer);
    connect(completer, QOverload<const QModelIndex&>::of(&QCompleter::activated), this,
            &ComboBoxAutoFilter::completeSelection);
}

void ComboBoxAutoFilter::setEntries(const QStringList& entries)
{
    setListModel(new QStringListModel(entries, this));
}

void ComboBoxAutoFilter::setListModel(QAbstractItemModel* entries)
{
    setModel(entries);
    if (isEditable())
        setUpCompleter();
    setCurrentIndex(-1);
}

int ComboBoxAutoFilter::entryFor(const QString& text) const
{
    if (text.isEmpty())
        return -1;
    int sameIgnoringCase = -1;
    int containing = -1;
    for (int row = 0; row < count(); ++row) {
        const QString entry = itemText(row);
        if (entry == text)
            return row;
        if (sameIgnoringCase < 0 && entry.compare(text, Qt::CaseInsensitive) == 0)
            sameIgnoringCase = row;
        else if (containing < 0 && entry.contains(text, Qt::CaseInsensitive))
            containing = row;
    }
    return sameIgnoringCase >= 0 ? sameIgnoringCase : containing;
}

void ComboBoxAutoFilter::showPopup()
{
    m_isListCancelled = false;
    QComboBox::showPopup();
    view()->installEventFilter(this); // last, to see the keys before the list's own filter
}

void ComboBoxAutoFilter::hidePopup()
{
    const bool wasOpen = view()->isVisible();
    const bool wasCancelled = std::exchange(m_isListCancelled, false);
    QComboBox::hidePopup();
    if (!wasOpen || wasCancelled)
        return;
    // The list closes before the entry that was clicked becomes current.
    m_isListClosing = true;
    QTimer::singleShot(0, this, [this] {
        if (std::exchange(m_isListClosing, false) && isVisible())
            completeSelection();
    });
}

void ComboBoxAutoFilter::keyPressEvent(QKeyEvent* event)
{
    if (!isEditable() || !isReturn(*event)) {
        QComboBox::keyPressEvent(event);
        return;
    }
    QAbstractItemView* found = m_filtersWhileTyping ? completer()->popup() : nullptr;
    if (found && found->isVisible()) {
        if (found->currentIndex().isValid()) {
            event->ignore(); // the completer takes the entry
            return;
        }
        found->hide();
    }
    completeSelection();
    event->accept(); // a dialog's default button is not meant
}

bool ComboBoxAutoFilter::eventFilter(QObject* watched, QEvent* event)
{
    // The list closes by Escape when the key is offered to shortcuts, before it is pressed.
    if (watched == view()
        && (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress))
        m_isListCancelled = static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    return QComboBox::eventFilter(watched, event);
}

void ComboBoxAutoFilter::entryActivated()
{
    // Stepping through the entries by arrow keys or wheel activates them as well.
    if (std::exchange(m_isListClosing, false))
        completeSelection();
}

void ComboBoxAutoFilter::completeSelection()
{
    const bool isCurrentEntry = currentText() == itemText(currentIndex());
    const int entry = isCurrentEntry ? currentIndex() : entryFor(currentText());
    setCurrentIndex(entry >= 0 ? entry : currentIndex());
    if (entry < 0) {
        setEditText(itemText(currentIndex()));
        return;
    }
    Q_EMIT selectionComplete();
}

} // namespace corvala::ui

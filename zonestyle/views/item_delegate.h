// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QAbstractItemView>
#include <QItemDelegate>
#include <QPen>
#include <QPointer>

#include <functional>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

/// Draws and edits the cells of a column of a style table. A cell that is not relevant is greyed,
/// also when it is selected, and is not edited in place. Must be a delegate of one view alone.
class ItemDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit ItemDelegate(QAbstractItemView& view); ///< becomes a child of the view

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    /// Width in which the contents of the cell are not cut.
    int fittingWidth(const QStyleOptionViewItem& option, const QModelIndex& index) const;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    /// Fills the editor once; a refresh of the table does not touch what the user has typed since.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Writes to this one cell, and makes it the current one, as soon as the view is done with the
    /// editor: a write may ask the user.
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    /// A text that is cut off is the tool tip of its cell, unless the cell has another one.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    void drawDisplay(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect,
                     const QString& text) const override;
    void drawFocus(QPainter* painter, const QStyleOptionViewItem& option,
                   const QRect& rect) const override;

    // The size that a cell's contents ask for; the width of the column and height of its rows.
    virtual QSize contentsSize(const QStyleOptionViewItem& option, const QModelIndex& index) const;
    // Makes the editor for a cell that can be edited.
    virtual QWidget* makeEditor(QWidget* parent, const QModelIndex& index) const;
    // Shows the value of the cell in a new editor.
    virtual void fillEditor(QWidget* editor, const QModelIndex& index) const;
    // What an editor is to write; an invalid value writes nothing.
    virtual QVariant editedValue(const QWidget& editor) const;

    // Writes when the view is done with its editor or event, unless the maps are others by then: a
    // write may ask the user, and the question may outlive the view.
    static void writeLater(QAbstractItemModel& model, const std::function<void()>& write);

    QAbstractItemView* view() const { return m_view; }
    const QPen& framePen() const { return m_darkGreyPen; }
    /// The option as a cell is painted: enabled when it is relevant, greyed when it is not.
    QStyleOptionViewItem cellOption(const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const;

private:
    QPointer<QAbstractItemView> m_view; ///< not owned
    QPen m_blackPen;
    QPen m_darkGreyPen;
};

/// What is wrong with a text that is to be entered in a cell; empty for one that fits.
QString problemOf(const QString& text, const QModelIndex& index);

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views

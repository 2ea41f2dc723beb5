// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/views/item_delegate.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

/// Cells that show a colour as a framed swatch. The colour is the value that the cell displays;
/// a text for accessibility, if the cell has one, says what else the colour follows and is written
/// on the swatch.
class ColorItemDelegate : public ItemDelegate
{
    Q_OBJECT

public:
    using ItemDelegate::ItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    QSize contentsSize(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void drawSwatch(QPainter& painter, const QStyleOptionViewItem& cell, const QColor& color,
                    const QString& hint) const;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views

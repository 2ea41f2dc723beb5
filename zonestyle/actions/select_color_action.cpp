// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/select_color_action.h"

#include "zonestyle/actions/style_action.h"
#include <sdk/dialogs_prompt/color_chooser_widget.h>
#include <sdk/signals/signal_connection_collection.h>
#include <sdk/uicommon/style_writing.h>

#include <QMenu>
#include <QPointer>

#include <algorithm>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

using corvala::dialogs::prompt::ColorChooserWidget;

class SelectColorAction::Private
{
public:
    void colorSelected(int color);
    int sharedColor() const;
    void closeMenus();

    SelectColorAction* q;
    QModelIndexList selectedIndexes;
    bool offerGroupColors;
    StyleTarget target;
    signaling::SignalConnectionCollection connections;
};

void SelectColorAction::Private::colorSelected(int color)
{
    const QPointer<SelectColorAction> self(q);
    runAction<StyleAction<int>>(QString(), selectedIndexes, color, target);
    if (self)
        closeMenus();
}

/// -1 when the rows have several.
int SelectColorAction::Private::sharedColor() const
{
    const auto style = accessor<toolbox::CheckedStyleValue>(target);
    const auto colorOf = [&style](const QModelIndex& row) {
        return style.read<int>(row.row() + 1).value_or(-1);
    };
    const int first = selectedIndexes.isEmpty() ? -1 : colorOf(selectedIndexes.first());
    const bool isShared =
        std::all_of(selectedIndexes.begin(), selectedIndexes.end(),
                    [&](const QModelIndex& row) { return colorOf(row) == first; });
    return isShared ? first : -1;
}

/// A click inside the widget of an action does not close the menu that it is in.
void SelectColorAction::Private::closeMenus()
{
    for (QWidget* widget : q->associatedWidgets()) {
        if (qobject_cast<QMenu*>(widget))
            widget->close();
    }
}

SelectColorAction::SelectColorAction(const QModelIndexList& selectedIndexes, bool offerGroupColors,
                                     const StyleTarget& target)
    : QWidgetAction(nullptr)
    , d(new Private {this, selectedIndexes, offerGroupColors, target, {}})
{
}

SelectColorAction::~SelectColorAction() = default;

bool SelectColorAction::offersGroupColors() const
{
    return d->offerGroupColors;
}

QWidget* SelectColorAction::createWidget(QWidget* parent)
{
    auto* chooser = new ColorChooserWidget(parent, d->offerGroupColors,
                                           corvala::dialogs::prompt::ShowHelpButton_No);
    chooser->setPresentColor(d->sharedColor());
    d->connections.add(
        chooser->connectColorSelected([this](int color) { d->colorSelected(color); }));
    return chooser;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions

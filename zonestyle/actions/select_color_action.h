// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/style_target.h"

#include <QModelIndexList>
#include <QWidgetAction>

#include <memory>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// A colour chooser inside a menu: writes the chosen colour to the selected maps and closes the
/// menu.
class SelectColorAction : public QWidgetAction
{
    Q_OBJECT

public:
    /// `offerGroupColors` adds the colours that follow a contour group or RGB.
    SelectColorAction(const QModelIndexList& selectedIndexes, bool offerGroupColors,
                      const StyleTarget& target);
    ~SelectColorAction() override;

    bool offersGroupColors() const;

protected:
    QWidget* createWidget(QWidget* parent) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions

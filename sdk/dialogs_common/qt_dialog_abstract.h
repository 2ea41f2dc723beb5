// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/dialogs_common/dialog_interface.h>
#include <sdk/property/relevance_interface.h>

#include <QAction>
#include <QDialog>
#include <QPointer>

#include <boost/shared_ptr.hpp>

#include <optional>

class QAbstractButton;

namespace corvala::dialogs::common {

/// Base of the host's modeless dialogs. Closing one hides it; it comes back where it was.
class QtDialogAbstract : public QDialog, public virtual DialogInterface
{
    Q_OBJECT

public:
    /// `relevance` belongs to the command that launches the dialog (see LaunchDialogAction); an
    /// open dialog neither closes nor is disabled by it. It may be null: always relevant.
    QtDialogAbstract(QWidget& parent,
                     boost::shared_ptr<property::RelevanceInterface const> relevance);
    ~QtDialogAbstract() override;

    void launch() override;
    void drop() override;
    void done(int result) override;

    /// Lets the dialog become narrower than what it shows, which scrolls then. For hosts with
    /// little room; to be called after it was first shown, since it prefers to show everything.
    virtual void allowNarrow() { }

    const boost::shared_ptr<property::RelevanceInterface const>& dialogRelevance() const
    {
        return m_relevance;
    }

    /// Binds the Help key to the action, which the dialog owns from now on; the one before is
    /// deleted. Null takes the help away. No button is added.
    void setHelpAction(QAction* action);
    QAction* helpAction() const { return m_helpAction; }

    /// The push button that Return presses, except in a field for text; other buttons are ignored.
    void setDefaultButton(QAbstractButton* button);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    boost::shared_ptr<property::RelevanceInterface const> m_relevance;
    QPointer<QAction> m_helpAction;
    std::optional<QPoint> m_lastPosition;
};

} // namespace corvala::dialogs::common

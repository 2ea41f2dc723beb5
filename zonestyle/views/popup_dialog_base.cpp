// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/popup_dialog_base.h"

#include <sdk/uicommon/edit_session.h>

#include <QCloseEvent>
#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>

#include <utility>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

struct PopupDialogBase::Private
{
    Commit commit;
    std::optional<QString> entered; ///< to be committed
    QEventLoop* loop = nullptr; ///< of run(), while it waits
    int resultAtClose = QDialog::Rejected;
    bool closeSeen = false;
};

PopupDialogBase::PopupDialogBase(const QPoint& globalPosition, QWidget* parent, Commit commit)
    : QDialog(parent)
    , d(std::make_unique<Private>())
{
    d->commit = std::move(commit);
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
    setResult(Accepted); // a click elsewhere closes the pop-up and commits
    move(globalPosition);
}

PopupDialogBase::~PopupDialogBase()
{
    if (d->loop)
        d->loop->quit();
}

void PopupDialogBase::run(PopupDialogBase* popup)
{
    const QPointer<PopupDialogBase> guard(popup);
    waitFor(*popup);
    if (!guard)
        return;
    guard->commitEntered();
    if (guard) // a commit may ask the user
        guard->deleteLater();
}

void PopupDialogBase::waitFor(PopupDialogBase& popup)
{
    const QPointer<PopupDialogBase> guard(&popup);
    const EditSession session([guard] {
        if (guard)
            guard->reject();
    });
    QEventLoop loop; // QDialog::exec would reset the result
    popup.d->loop = &loop;
    popup.moveOntoScreen();
    popup.show();
    if (guard && guard->isVisible())
        loop.exec(QEventLoop::DialogExec);
    if (guard)
        guard->d->loop = nullptr;
}

void PopupDialogBase::commitEntered()
{
    const Commit commit = std::exchange(d->commit, nullptr);
    const std::optional<QString> text = std::exchange(d->entered, std::nullopt);
    if (commit && text)
        commit(*text);
}

/// Near the right and bottom borders a pop-up opens towards the other side.
void PopupDialogBase::moveOntoScreen()
{
    const QScreen* screen = QGuiApplication::screenAt(pos());
    if (!screen)
        return;
    adjustSize();
    const QRect room = screen->availableGeometry();
    move(qMax(room.left(), qMin(x(), room.right() + 1 - width())),
         qMax(room.top(), qMin(y(), room.bottom() + 1 - height())));
}

/// Qt closes a pop-up on a click elsewhere, and then rejects it.
void PopupDialogBase::closeEvent(QCloseEvent* event)
{
    d->resultAtClose = result();
    d->closeSeen = true;
    QDialog::closeEvent(event);
}

void PopupDialogBase::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    if (event->spontaneous())
        return;
    if (result() == Accepted || (d->closeSeen && d->resultAtClose == Accepted))
        d->entered = enteredText();
    if (d->loop)
        d->loop->quit(); // commits when this is over: the pop-up may go while the user is asked
    else
        commitEntered();
}

void PopupDialogBase::keyPressEvent(QKeyEvent* event)
{
    QDialog::keyPressEvent(event);
    if (!isVisible())
        return;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab: accept(); break;
    case Qt::Key_Cancel: reject(); break;
    default: break;
    }
}

bool PopupDialogBase::focusNextPrevChild(bool next)
{
    if (!next)
        return QDialog::focusNextPrevChild(next);
    if (isVisible())
        accept();
    return true;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views

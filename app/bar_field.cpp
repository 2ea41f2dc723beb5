// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/bar_field.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

namespace corvala::app {

static constexpr int kOpeningMilliseconds = 250; ///< that a bar takes to slide out

namespace {

/// Closes the rest of a toolbar when its field has lost the focus.
class Visit : public QObject
{
public:
    Visit(QComboBox& field, QToolButton& rest)
        : QObject(&field)
        , m_rest(rest)
    {
        field.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::FocusOut)
            return QObject::eventFilter(watched, event);
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason)
            return false;
        if (m_rest.isChecked())
            m_rest.click();
        deleteLater();
        return false;
    }

private:
    QToolButton& m_rest;
};

} // namespace

static void enter(QComboBox& field)
{
    field.setFocus(Qt::ShortcutFocusReason);
    field.lineEdit()->selectAll();
}

void goToField(QToolBar& bar, QComboBox& field)
{
    bar.window()->activateWindow();
    // Qt gives the button for the rest of a toolbar no other handle than its name.
    auto* const rest = bar.findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
    if (field.isVisible() || !rest || !rest->isVisible()) {
        enter(field);
        return;
    }
    if (!rest->isChecked())
        rest->click();
    new Visit(field, *rest);
    QTimer::singleShot(kOpeningMilliseconds, &field, [&field] { enter(field); });
}

void leaveField(QComboBox& field)
{
    if (auto* const window = qobject_cast<QMainWindow*>(field.window()))
        window->centralWidget()->setFocus();
}

} // namespace corvala::app

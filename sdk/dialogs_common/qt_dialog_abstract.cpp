// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_common/qt_dialog_abstract.h"

#include <QAction>
#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace corvala::dialogs::common {

static bool isReturn(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Keys of an editable combo box come to the box itself, not to its line edit.
static bool isTextField(const QWidget* widget)
{
    const auto* comboBox = qobject_cast<const QComboBox*>(widget);
    return qobject_cast<const QLineEdit*>(widget) || (comboBox && comboBox->isEditable());
}

DialogInterface::~DialogInterface() = default;

QtDialogAbstract::QtDialogAbstract(QWidget& parent,
                                   boost::shared_ptr<property::RelevanceInterface const> relevance)
    : QDialog(&parent)
    , m_relevance(std::move(relevance))
{
    // A program that keeps its main window hidden goes on when its last dialog is closed.
    setAttribute(Qt::WA_QuitOnClose, false);
}

QtDialogAbstract::~QtDialogAbstract() = default;

void QtDialogAbstract::launch()
{
    if (!isVisible() && m_lastPosition && QGuiApplication::screenAt(*m_lastPosition))
        move(*m_lastPosition);
    if (isMinimized())
        setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void QtDialogAbstract::drop()
{
    close();
}

void QtDialogAbstract::done(int result)
{
    if (isVisible())
        m_lastPosition = pos();
    QDialog::done(result);
}

void QtDialogAbstract::setHelpAction(QAction* action)
{
    if (action == m_helpAction)
        return;
    delete m_helpAction;
    m_helpAction = action;
    if (!action)
        return;
    action->setParent(this);
    action->setShortcuts({QKeySequence(Qt::Key_F1), QKeySequence(Qt::Key_Help)});
    addAction(action);
}

void QtDialogAbstract::setDefaultButton(QAbstractButton* button)
{
    if (auto* pushButton = qobject_cast<QPushButton*>(button))
        pushButton->setDefault(true);
}

void QtDialogAbstract::keyPressEvent(QKeyEvent* event)
{
    if (isReturn(*event) && isTextField(focusWidget())) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace corvala::dialogs::common

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/help_commands.h"

#include "app/help_reference.h"
#include "app/help_window.h"
#include "app/icons.h"
#include "sdk/dialogs_common/launch_help_action.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>

namespace corvala::app {

using corvala::dialogs::common::LaunchHelpAction;

HelpCommands::HelpCommands(QObject* parent)
    : QObject(parent)
{
    auto* contents = new QAction(commandIcon("help-contents"), tr("&Contents"), this);
    contents->setObjectName(QStringLiteral("helpContents"));
    contents->setShortcuts(QKeySequence::HelpContents);
    contents->setStatusTip(tr("Opens the help at what has the focus (F1)"));
    connect(contents, &QAction::triggered, this,
            [this] { open(helpReferenceOf(QApplication::focusWidget())); });
    m_actions << contents
              << add(tr("&Mouse and Keys"), tr("What the mouse and which keys do what"),
                     QStringLiteral("mouse-keys.html"))
              << add(tr("&File Formats"), tr("Which files can be opened, and what of them is read"),
                     QStringLiteral("formats.html"))
              << add(tr("&Scripts"), tr("How scripts and options drive the program"),
                     QStringLiteral("scripts.html"));
    LaunchHelpAction::setHandler([this](const QString& reference) { open(reference); });
    qApp->installEventFilter(this);
}

HelpCommands::~HelpCommands()
{
    LaunchHelpAction::setHandler({});
}

QAction* HelpCommands::add(const QString& text, const QString& tip, const QString& page)
{
    auto* action = new QAction(text, this);
    action->setStatusTip(tip);
    connect(action, &QAction::triggered, this, [this, page] { open(page); });
    return action;
}

void HelpCommands::open(const QString& reference)
{
    if (!m_window)
        m_window = std::make_unique<HelpWindow>();
    m_window->open(reference);
}

bool HelpCommands::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const widget = qobject_cast<QWidget*>(watched);
    const bool isAsking = event->type() == QEvent::KeyPress && widget
        && !QApplication::activePopupWidget()
        && static_cast<QKeyEvent*>(event)->matches(QKeySequence::HelpContents);
    if (!isAsking)
        return false;
    open(helpReferenceOf(widget));
    return true;
}

} // namespace corvala::app

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/help_commands.h"

#include "app/command_tips.h"
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
    QAction* contents = add(tr("&Contents"), tr("Open the help at what has the focus"),
                            [] { return helpReferenceOf(QApplication::focusWidget()); });
    contents->setObjectName(QStringLiteral("helpContents"));
    contents->setIcon(commandIcon("help-contents"));
    contents->setShortcuts(QKeySequence::HelpContents);
    describe(*contents, contents->statusTip());
    const auto addPage = [this](const char* icon, const QString& text, const QString& tip,
                                const char* page) {
        add(text, tip, [page] { return QString::fromLatin1(page); })->setIcon(commandIcon(icon));
    };
    addPage("input-keyboard", tr("&Mouse and Keys"), tr("Tell what the mouse and the keys do"),
            "mouse-keys.html");
    addPage("text-x-generic", tr("&File Formats"),
            tr("Tell which files can be opened, and what of them is read"), "formats.html");
    addPage("text-x-script", tr("&Scripts"), tr("Tell how scripts and options drive the program"),
            "scripts.html");
    LaunchHelpAction::setHandler([this](const QString& reference) { open(reference); });
    qApp->installEventFilter(this);
}

HelpCommands::~HelpCommands()
{
    LaunchHelpAction::setHandler({});
}

QAction* HelpCommands::add(const QString& text, const QString& tip,
                           const std::function<QString()>& reference)
{
    auto* action = new QAction(text, this);
    describe(*action, tip);
    connect(action, &QAction::triggered, this, [this, reference] { open(reference()); });
    m_actions << action;
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
    if (event->type() != QEvent::KeyPress || QApplication::activePopupWidget()
        || !static_cast<QKeyEvent*>(event)->matches(QKeySequence::HelpContents))
        return false;
    const auto* const widget = qobject_cast<QWidget*>(watched);
    if (widget)
        open(helpReferenceOf(widget));
    return widget != nullptr;
}

} // namespace corvala::app

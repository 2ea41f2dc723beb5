// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_common/launch_help_action.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QUrl>

namespace corvala::dialogs::common {

namespace {

struct HelpState
{
    QString lastRequest;
    std::function<void(const QString&)> handler;
};

} // namespace

static HelpState& helpState()
{
    static HelpState state;
    return state;
}

static void openInstalledPage(const QString& reference)
{
    const QDir folder(QCoreApplication::applicationDirPath() + "/../share/corvala/help");
    const QString page = folder.absoluteFilePath(reference.section('#', 0, 0));
    if (!QFileInfo::exists(page))
        return;
    QUrl url = QUrl::fromLocalFile(page);
    url.setFragment(reference.section('#', 1));
    QDesktopServices::openUrl(url);
}

LaunchHelpAction::LaunchHelpAction(QString reference, QObject* parent)
    : QAction(QIcon(QStringLiteral(":/help.svg")), tr("Help"), parent)
    , m_reference(std::move(reference))
{
    connect(this, &QAction::triggered, this, &LaunchHelpAction::launch);
}

QString LaunchHelpAction::lastRequest()
{
    return helpState().lastRequest;
}

void LaunchHelpAction::setHandler(std::function<void(const QString&)> handler)
{
    helpState().handler = std::move(handler);
}

void LaunchHelpAction::launch()
{
    const QString asked = reference();
    if (asked.isEmpty())
        return;
    helpState().lastRequest = asked;
    const auto handler = helpState().handler; // it may set another one
    if (handler)
        handler(asked);
    else
        openInstalledPage(asked);
}

} // namespace corvala::dialogs::common

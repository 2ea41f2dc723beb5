// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>

#include <functional>
#include <memory>

class QAction;

namespace corvala::app {

class HelpWindow;

/// The commands that open the help, and who shows what the help buttons of dialogs ask for.
class HelpCommands : public QObject
{
    Q_OBJECT

public:
    explicit HelpCommands(QObject* parent);
    ~HelpCommands() override;

    const QList<QAction*>& actions() const { return m_actions; } ///< for a menu

    void open(const QString& reference); ///< such as "contour.html#contour/modification"

protected:
    /// F1 in windows that have no command of their own for it.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAction* add(const QString& text, const QString& tip,
                 const std::function<QString()>& reference);

    QList<QAction*> m_actions;
    std::unique_ptr<HelpWindow> m_window; ///< made when it is first wanted
};

} // namespace corvala::app

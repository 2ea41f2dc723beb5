// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/document.h"
#include "play/stage.h"

#include <QAction>
#include <QMainWindow>

namespace corvala::tests {

/// A stage without canvas and readers; its window undoes and redoes by keys.
class BareStage : public play::Stage
{
public:
    BareStage()
    {
        addCommand(QKeySequence::Undo, [](auto& history) { history.undo(); });
        addCommand(QKeySequence::Redo, [](auto& history) { history.redo(); });
        m_window.show();
    }

    QWidget& window() override { return m_window; }
    QString openFiles(const host::DataOrigin&) override
    {
        return QStringLiteral("this stage reads no files");
    }
    std::shared_ptr<host::DataSet> readData(const host::DataOrigin&, QString& problem) override
    {
        problem = QStringLiteral("this stage reads no files");
        return nullptr;
    }
    host::Outcome add(const host::AddData& addition) override
    {
        return host::Document::instance().execute(addition);
    }
    QString saveCanvas(const QString&) override
    {
        return QStringLiteral("this stage has no canvas");
    }

private:
    template<class Command>
    void addCommand(const QKeySequence& keys, Command command)
    {
        auto* action = new QAction(&m_window);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::ApplicationShortcut);
        QObject::connect(action, &QAction::triggered, [command] {
            host::UndoHistory& history = host::Document::instance().undo();
            if (!history.isBracketOpen())
                command(history);
        });
        m_window.addAction(action);
    }

    QMainWindow m_window;
};

} // namespace corvala::tests

// SPDX-License-Identifier: BSD-3-Clause
/// Plays scripts without the canvases and the readers, so that they run under the sanitizers:
///     player SCRIPT
#include "play/player.h"
#include "host/document/document.h"
#include "host/undo/gesture_tracker.h"
#include "play/stage.h"

#include <QApplication>
#include <QLocale>
#include <QMainWindow>
#include <QTimer>

#include <cstdio>

using namespace corvala;

namespace {

class BareStage : public play::Stage
{
public:
    BareStage() { m_window.show(); }

    QWidget& window() override { return m_window; }
    QString openFiles(const QStringList&) override
    {
        return QStringLiteral("this player reads no files");
    }
    QImage canvasImage(QString* error) override
    {
        *error = QStringLiteral("this player has no canvas");
        return {};
    }

private:
    QMainWindow m_window;
};

} // namespace

static int playInWindow(const QString& script)
{
    BareStage stage;
    const QString problem = play::playScript(script, stage);
    if (!problem.isEmpty())
        std::fprintf(stderr, "%s\n", qUtf8Printable(problem));
    return problem.isEmpty() ? 0 : 1;
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale::c());
    const host::GestureTracker gestures(host::Document::instance().undo());
    const QString script = QApplication::arguments().value(1);
    QTimer::singleShot(0, [&] { QApplication::exit(playInWindow(script)); });
    return QApplication::exec();
}

// SPDX-License-Identifier: BSD-3-Clause
/// Plays scripts without the canvases and the readers, so that they run under the sanitizers:
///     player SCRIPT
#include "play/player.h"
#include "host/document/document.h"
#include "host/undo/gesture_tracker.h"
#include "tests/play/bare_stage.h"

#include <QApplication>
#include <QLocale>
#include <QTimer>

#include <cstdio>

using namespace corvala;

static int playInWindow(const QString& script)
{
    tests::BareStage stage;
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

// SPDX-License-Identifier: BSD-3-Clause
/// Drives the dialog with random gestures and compares it with the document now and then:
///     random_gestures [--gestures N] [--seed S] [--trace]
#include "host/document/document.h"
#include "host/undo/gesture_tracker.h"
#include "play/idle.h"
#include "samples/demo_data.h"
#include "tests/play/bare_stage.h"
#include "tests/play/gesture_driver.h"
#include "tests/play/table_check.h"
#include "tests/play/watchdog.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>
#include <QTimer>

#include <cstdio>
#include <random>

using namespace corvala;
using namespace corvala::tests;

/// Gestures between two comparisons.
static constexpr int kPace = 25;

static QString aboutGesture(unsigned seed, int gesture)
{
    return QStringLiteral("--seed %1, gesture %2: ").arg(seed).arg(gesture);
}

static int drive(int gestures, unsigned seed)
{
    std::string error;
    if (!samples::openDemo("field2d", 0, error))
        return 1;
    BareStage stage;
    GestureDriver driver(stage, seed);
    for (int gesture = 1; gesture <= gestures; ++gesture) {
        Watchdog::setAbout(qPrintable(aboutGesture(seed, gesture)));
        driver.step();
        if (gesture % kPace == 0 || gesture == gestures) {
            play::waitUntilIdle();
            const QString difference = tableDifference();
            if (!difference.isEmpty()) {
                std::fprintf(stderr, "%s%s\n", qPrintable(aboutGesture(seed, gesture)),
                             qPrintable(difference));
                return 1;
            }
        }
        Watchdog::end();
    }
    std::printf("%d gestures with seed %u\n", gestures, seed);
    return 0;
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale::c());
    QCommandLineParser parser;
    parser.addOption({"gestures", "How many.", "N", "2000"});
    parser.addOption({"seed", "Of the random numbers; another one each time if missing.", "S"});
    parser.addOption({"trace", "Print every gesture."});
    parser.addHelpOption();
    parser.process(application);
    const unsigned seed =
        parser.isSet("seed") ? parser.value("seed").toUInt() : std::random_device()();
    std::printf("seed %u\n", seed);
    std::fflush(stdout);
    Watchdog::start(parser.isSet("trace"));
    const host::GestureTracker tracker(host::Document::instance().undo());
    QTimer::singleShot(0,
                       [&] { QApplication::exit(drive(parser.value("gestures").toInt(), seed)); });
    return QApplication::exec();
}

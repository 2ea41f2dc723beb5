// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/document.h"
#include "host/undo/gesture_tracker.h"
#include "samples/demo_data.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace corvala;
using host::Document;

class tst_GestureTracker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void oneClickIsOneStep();
    void eachClickIsAStep();
    void changesAroundAPromptAreOneStep();
    void changesWithoutAGestureAreStepsOfTheirOwn();
};

static void setMeshColor(int map, int color)
{
    host::MapSet maps;
    maps.add(static_cast<std::uint32_t>(map));
    host::StyleWrite request;
    request.path = {"FieldMap", "Mesh", "Color"};
    request.objects = &maps;
    request.value = double(color);
    QCOMPARE(Document::instance().write(request), StyleWrite_Ok);
}

/// As the window system would: a click that goes to the widget itself passes no event loop.
static void click(QWidget& widget)
{
    QTest::mouseClick(widget.windowHandle(), Qt::LeftButton, {}, widget.rect().center());
    QCoreApplication::processEvents();
}

static int steps()
{
    return Document::instance().undo().stepCount();
}

void tst_GestureTracker::init()
{
    std::string error;
    QVERIFY(samples::openDemo("field2d", 0, error));
    for (int map = 1; map <= 3; ++map)
        setMeshColor(map, 50);
    Document::instance().undo().clear();
}

void tst_GestureTracker::oneClickIsOneStep()
{
    const host::GestureTracker tracker(Document::instance().undo());
    QPushButton button;
    connect(&button, &QPushButton::clicked, [] {
        setMeshColor(1, 7);
        setMeshColor(2, 8);
    });
    button.show();
    click(button);
    QCOMPARE(steps(), 1);
    QVERIFY(Document::instance().undo().undo());
    QCOMPARE(steps(), 0);
}

void tst_GestureTracker::eachClickIsAStep()
{
    const host::GestureTracker tracker(Document::instance().undo());
    QPushButton button;
    int color = 7;
    connect(&button, &QPushButton::clicked, [&color] { setMeshColor(1, color++); });
    button.show();
    click(button);
    QTest::keyClick(button.windowHandle(), Qt::Key_Space);
    QCoreApplication::processEvents();
    QCOMPARE(steps(), 2);
}

/// The prompt runs an event loop of its own, in which the first gesture must not end.
void tst_GestureTracker::changesAroundAPromptAreOneStep()
{
    const host::GestureTracker tracker(Document::instance().undo());
    QPushButton button;
    connect(&button, &QPushButton::clicked, [] {
        setMeshColor(1, 7);
        QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Yes);
        QTimer::singleShot(0, &box, [&box] {
            setMeshColor(2, 8);
            QTest::keyClick(box.windowHandle(), Qt::Key_Return);
            QCoreApplication::processEvents();
        });
        box.exec();
        setMeshColor(3, 9);
    });
    button.show();
    click(button);
    QCOMPARE(steps(), 1);
    QTRY_VERIFY(!Document::instance().undo().isInGesture());
}

void tst_GestureTracker::changesWithoutAGestureAreStepsOfTheirOwn()
{
    const host::GestureTracker tracker(Document::instance().undo());
    setMeshColor(1, 7);
    setMeshColor(2, 8);
    QCOMPARE(steps(), 2);
}

QTEST_MAIN(tst_GestureTracker)
#include "tst_gesture_tracker.moc"

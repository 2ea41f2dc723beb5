// SPDX-License-Identifier: BSD-3-Clause
#include "tests/views/dialog_fixture.h"

#include "play/idle.h"
#include "play/input.h"
#include "play/script_run.h"
#include "play/style_report.h"
#include "sdk/toolbox/style_value.h"

#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

namespace corvala::tests {

void runUntilIdle()
{
    play::waitUntilIdle();
}

void change(const QString& path, const std::string& maps, double value)
{
    if (!setStyle(path, maps, value))
        qFatal("%s is not written", qPrintable(path));
    runUntilIdle();
}

static toolbox::StyleValue styleValueOf(const QString& path)
{
    std::vector<std::string> names;
    for (const QString& name : path.split('.'))
        names.push_back(name.toStdString());
    return toolbox::StyleValue(names);
}

int styleValue(const QString& path, int map)
{
    return styleValueOf(path).read<int>(map).value_or(-1);
}

QString styleValues(const QString& path, int maps)
{
    QStringList values;
    for (int map = 1; map <= maps; ++map)
        values << QString::number(styleValue(path, map));
    return values.join(' ');
}

DialogFixture::DialogFixture(const char* demo, int scale)
{
    if (!openDemo(demo, scale))
        qFatal("no data");
    dialog().launch();
    runUntilIdle();
    takeRefreshes();
}

DialogFixture::~DialogFixture()
{
    delete ZoneStyleDialog::m_dialogInstance;
}

ZoneStyleDialog& DialogFixture::dialog()
{
    return ZoneStyleDialog::getInstance(m_stage.window(),
                                        dialogs::common::DialogInitialization_None);
}

StyleTableView& DialogFixture::table()
{
    return *dialog().findChild<StyleTableView*>();
}

ModelAbstract& DialogFixture::model()
{
    return *qobject_cast<ModelAbstract*>(table().model());
}

QLineEdit& DialogFixture::patternField()
{
    return *dialog().findChild<QLineEdit*>("mapSelectionByPattern_pattern_lineEdit");
}

QPushButton& DialogFixture::button(const char* objectName)
{
    return *dialog().findChild<QPushButton*>(objectName);
}

void DialogFixture::play(const nlohmann::json& line)
{
    play::ScriptRun(m_stage, {}).play(line);
}

QString DialogFixture::tabs()
{
    QStringList texts = m_driver.tabTexts();
    const int current = tabWidget().currentIndex();
    if (current >= 0)
        texts[current].prepend('*');
    return texts.join('|');
}

void DialogFixture::clickTab(const QString& text)
{
    if (m_driver.tabTexts().contains(text))
        play({{"tab", text.toStdString()}});
}

QString DialogFixture::selected() const
{
    return play::selectedMaps(m_driver);
}

void DialogFixture::select(const QList<int>& maps)
{
    table().clearSelection();
    for (const int map : maps)
        clickCell(map, 0, Qt::ControlModifier);
}

QRect DialogFixture::cellRect(int map, int column)
{
    return m_driver.show(m_driver.cell(map, column));
}

void DialogFixture::clickCell(int map, int column, Qt::KeyboardModifiers modifiers)
{
    // Beside the middle, where a check box would be.
    const QPoint position = cellRect(map, column).topLeft() + QPoint(3, 3);
    play::click(table().viewport(), position, modifiers);
    runUntilIdle();
}

void DialogFixture::doubleClickCell(int map, int column)
{
    play::doubleClick(table().viewport(), cellRect(map, column).center());
    runUntilIdle();
}

void DialogFixture::clickCheckBox(int map, int column, Qt::KeyboardModifiers modifiers)
{
    play::click(table().viewport(), cellRect(map, column).center(), modifiers);
    runUntilIdle();
}

void DialogFixture::rightClick(int map, int column)
{
    const QPoint position = cellRect(map, column).center();
    const QPointer<QWidget> viewport = table().viewport();
    play::pressMouse(viewport, position, Qt::RightButton);
    play::releaseMouse(viewport, position, Qt::RightButton);
    runUntilIdle();
}

void DialogFixture::key(int key, Qt::KeyboardModifiers modifiers)
{
    table().setFocus();
    play::pressKey(&dialog(), key, modifiers);
    runUntilIdle();
}

int DialogFixture::takeRefreshes()
{
    const int before = m_refreshes;
    m_refreshes = dialog().property("refreshCount").toInt();
    return m_refreshes - before;
}

PopupResponder::PopupResponder(Answer answer)
    : m_answers {std::move(answer)}
{
    for (const auto kind : {play::WindowWatcher::Menu, play::WindowWatcher::Popup})
        m_watcher.setHandler(kind, [this](QWidget& popup) { respond(popup); });
}

PopupResponder& PopupResponder::then(Answer answer)
{
    m_answers << std::move(answer);
    return *this;
}

void PopupResponder::respond(QWidget& popup)
{
    ++m_shown;
    const QPointer<QWidget> guard = &popup;
    if (m_answers.isEmpty())
        popup.close();
    else
        m_answers.takeFirst()(popup);
    if (QTest::currentTestFailed() && guard)
        guard->close(); // which the answer was to do
}

static void endBy(QWidget& popup, int endKey)
{
    if (endKey == 0)
        play::click(&popup, QPoint(-20, -20));
    else
        play::pressKey(&popup, endKey);
}

PopupResponder::Answer PopupResponder::end(int endKey)
{
    return [endKey](QWidget& popup) { endBy(popup, endKey); };
}

} // namespace corvala::tests

// SPDX-License-Identifier: BSD-3-Clause
#include "tests/views/dialog_fixture.h"

#include "sdk/toolbox/style_value.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

namespace corvala::tests {

void runUntilIdle()
{
    for (int i = 0; i < 4; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

static void sendKey(QWidget& receiver, int key, const QString& text)
{
    const QPointer<QWidget> guard(&receiver);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        if (guard)
            QCoreApplication::sendEvent(&receiver, &event);
    }
}

void typeText(QWidget& receiver, const QString& text)
{
    for (const QChar character : text)
        sendKey(receiver, 0, character);
}

void pressKey(QWidget& receiver, int key)
{
    sendKey(receiver, key, {});
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
    m_window.show();
    dialog().launch();
    if (!QTest::qWaitForWindowExposed(&dialog()))
        qFatal("no window");
    runUntilIdle();
    takeRefreshes();
}

DialogFixture::~DialogFixture()
{
    delete ZoneStyleDialog::m_dialogInstance;
}

ZoneStyleDialog& DialogFixture::dialog()
{
    return ZoneStyleDialog::getInstance(m_window, dialogs::common::DialogInitialization_None);
}

StyleTableView& DialogFixture::table()
{
    return *dialog().findChild<StyleTableView*>();
}

ModelAbstract& DialogFixture::model()
{
    return *qobject_cast<ModelAbstract*>(table().model());
}

QTabWidget& DialogFixture::tabWidget()
{
    for (const char* name : {"plotAttr_FD_PageGroup", "plotAttr_LP_PageGroup"}) {
        auto* tabWidget = dialog().findChild<QTabWidget*>(name);
        if (tabWidget->isVisible())
            return *tabWidget;
    }
    qFatal("no page is shown");
}

QLineEdit& DialogFixture::patternField()
{
    return *dialog().findChild<QLineEdit*>("mapSelectionByPattern_pattern_lineEdit");
}

QPushButton& DialogFixture::button(const char* objectName)
{
    return *dialog().findChild<QPushButton*>(objectName);
}

QString DialogFixture::tabs()
{
    QStringList texts;
    const QTabWidget& tabWidget = this->tabWidget();
    for (int tab = 0; tab < tabWidget.count(); ++tab)
        texts << (tab == tabWidget.currentIndex() ? "*" : "") + tabWidget.tabText(tab);
    return texts.join('|');
}

void DialogFixture::clickTab(const QString& text)
{
    QTabBar& bar = *tabWidget().tabBar();
    for (int tab = 0; tab < bar.count(); ++tab) {
        if (bar.tabText(tab) == text)
            QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
    }
    runUntilIdle();
}

QString DialogFixture::selected() const
{
    host::MapSet maps;
    const auto* table = ZoneStyleDialog::m_dialogInstance->findChild<StyleTableView*>();
    for (const QModelIndex& row : table->selectionModel()->selectedRows())
        maps.add(static_cast<std::uint32_t>(row.row() + 1));
    return QString::fromStdString(host::toText(maps, 0));
}

void DialogFixture::select(const QList<int>& maps)
{
    table().clearSelection();
    for (const int map : maps)
        clickCell(map, 0, Qt::ControlModifier);
}

QRect DialogFixture::cellRect(int map, int column)
{
    const QModelIndex cell = model().index(map - 1, column);
    table().scrollTo(cell);
    return table().visualRect(cell);
}

void DialogFixture::clickCell(int map, int column, Qt::KeyboardModifiers modifiers)
{
    // Beside the middle, where a check box would be.
    const QPoint position = cellRect(map, column).topLeft() + QPoint(3, 3);
    QTest::mouseClick(table().viewport(), Qt::LeftButton, modifiers, position);
    runUntilIdle();
}

void DialogFixture::doubleClickCell(int map, int column)
{
    const QPoint position = cellRect(map, column).center();
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, position);
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, position);
    runUntilIdle();
}

void DialogFixture::clickCheckBox(int map, int column, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseClick(table().viewport(), Qt::LeftButton, modifiers,
                      cellRect(map, column).center());
    runUntilIdle();
}

/// Through the window, which makes the request for a menu from the button press.
void DialogFixture::rightClick(int map, int column)
{
    const QPoint position = table().viewport()->mapTo(&dialog(), cellRect(map, column).center());
    QTest::mouseClick(dialog().windowHandle(), Qt::RightButton, {}, position);
    runUntilIdle();
}

void DialogFixture::key(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&table(), static_cast<Qt::Key>(key), modifiers);
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
    qApp->installEventFilter(this);
}

PopupResponder::~PopupResponder() = default;

PopupResponder& PopupResponder::then(Answer answer)
{
    m_answers << std::move(answer);
    return *this;
}

static void endBy(QWidget& popup, int endKey)
{
    if (endKey == 0) {
        QTest::mouseClick(popup.windowHandle(), Qt::LeftButton, {}, QPoint(-20, -20));
        return;
    }
    pressKey(popup.focusWidget() ? *popup.focusWidget() : popup, endKey);
}

PopupResponder::Answer PopupResponder::chooseEntry(const QString& text)
{
    return [text](QWidget& popup) {
        auto* menu = qobject_cast<QMenu*>(&popup);
        for (QAction* action : menu ? menu->actions() : QList<QAction*>()) {
            if (action->text() == text && !text.isEmpty()) {
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
                return;
            }
        }
        popup.close();
    };
}

PopupResponder::Answer PopupResponder::typeAndEnd(const QString& text, int endKey)
{
    return [text, endKey](QWidget& popup) {
        auto* field = popup.findChild<QLineEdit*>();
        field->selectAll();
        typeText(*field, text);
        endBy(popup, endKey);
    };
}

PopupResponder::Answer PopupResponder::end(int endKey)
{
    return [endKey](QWidget& popup) { endBy(popup, endKey); };
}

bool PopupResponder::eventFilter(QObject* watched, QEvent* event)
{
    auto* widget = qobject_cast<QWidget*>(watched);
    const bool isPopup = widget && event->type() == QEvent::Show && widget->isWindow()
        && widget->windowType() == Qt::Popup;
    if (!isPopup)
        return false;
    ++m_shown;
    const Answer answer =
        m_answers.isEmpty() ? [](QWidget& popup) { popup.close(); } : m_answers.takeFirst();
    const QPointer<QWidget> popup(widget);
    QMetaObject::invokeMethod(
        this,
        [popup, answer] {
            if (popup)
                answer(*popup);
        },
        Qt::QueuedConnection);
    return false;
}

} // namespace corvala::tests

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/command_line.h"
#include "app/details/detail_pages.h"
#include "app/help_commands.h"
#include "app/help_pages.h"
#include "app/help_reference.h"
#include "app/help_window.h"
#include "app/style_dialog.h"
#include "host/document/document.h"
#include "play/dialog_driver.h"
#include "play/style_report.h"
#include "samples/demo_data.h"
#include "tests/support/rows.h"

#include <QApplication>
#include <QDialog>
#include <QDirIterator>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QSet>
#include <QShortcut>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QWindow>

using namespace corvala;
using namespace corvala::app;
using corvala::tests::currentRow;
using corvala::tests::Rows;

static QString read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

static QString htmlOf(const QString& reference)
{
    return read(QLatin1Char(':') + helpUrl(reference).path());
}

static QString plain(const QString& html)
{
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText().replace(QChar::Nbsp, QLatin1Char(' ')).simplified();
}

/// What stands above the first heading of a page, and under the heading of the reference.
static QString sectionOf(const QString& reference)
{
    const QStringList parts = htmlOf(reference).split(QStringLiteral("<h2"));
    const QString anchor = QStringLiteral("id=\"%1\"").arg(reference.section('#', 1));
    QString text = plain(parts.first());
    for (const QString& part : parts.mid(1))
        if (!reference.contains('#') || part.section('>', 0, 0).contains(anchor))
            text += QLatin1Char(' ') + plain("<h2" + part);
    return text;
}

/// All that matches a group of a pattern.
static QStringList all(const QString& pattern, const QString& text)
{
    QStringList found;
    auto matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext())
        found << matches.next().captured(1);
    return found;
}

/// The pages of the help, what refers to them, and the window that shows them.
class tst_Help : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        host::Document::instance().clear();
        std::string error;
        QVERIFY2(samples::openDemo("field2d", 1, error), error.c_str());
    }

    void tells_data()
    {
        const Rows<QString, QStringList> row; // reference, what must stand there
        for (const QString& page : QDir(":/corvala/help").entryList())
            for (const QString& link : all("href=\"([^\"]*)\"", htmlOf(page)))
                row(page + " to " + link, link.startsWith('#') ? page + link : link, {});
        for (const char* folder : {"/sdk", "/zonestyle", "/app"}) {
            QDirIterator files(CORVALA_SOURCE_DIR + QLatin1String(folder), {"*.cpp", "*.h"},
                               QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext())
                for (const QString& reference :
                     all("\"([-a-z0-9]+\\.html(?:#[^\" ]+)?)\"", read(files.next())))
                    row(files.fileName() + ' ' + reference, reference, {});
        }
        for (const DetailPage& page : detailPages()) {
            QStringList labels;
            for (const DetailRow& value : page.rows)
                labels << QString::fromUtf8(value.text);
            row(page.name, QStringLiteral("plot-details.html#") + page.name, labels);
        }
        offerAllLineTabs();
        for (const char* demo : {"field2d", "field3d", "xy", "polar"}) {
            std::string error;
            samples::openDemo(demo, 0, error);
            QWidget window;
            openStyleDialog(window, corvala::dialogs::common::DialogInitialization_None);
            const nlohmann::ordered_json report = play::styleReport(play::DialogDriver(), "none");
            for (const auto& tab : report.at("tabs")) {
                QStringList titles;
                for (const auto& column : report.at("tables").at(tab.at("text")).at("columns"))
                    titles << QString::fromStdString(column.at("header")).replace('\n', ' ');
                row(QString::fromStdString(demo + (' ' + tab.at("text").get<std::string>())),
                    QString::fromStdString(tab.at("help")), titles);
            }
        }
    }
    void tells()
    {
        const auto [reference, names] = currentRow<QString, QStringList>();
        const QString html = htmlOf(reference);
        QVERIFY2(!html.isEmpty(), "there is no such page");
        const QString anchor = reference.section('#', 1);
        QVERIFY2(anchor.isEmpty() || all(" id=\"([^\"]*)\"", html).count(anchor) == 1,
                 "there is no such anchor, or two");
        for (const QString& name : names)
            QVERIFY2(sectionOf(reference).contains(name), qPrintable(name));
    }

    void everyPageIsListedAndTranslated()
    {
        QStringList listed {"help_pages.qrc", "index.html"};
        for (const HelpEntry& entry : helpContents())
            listed << entry.reference.section('#', 0, 0);
        const auto partsOf = [](const QString& html) {
            QStringList parts = all("((?:id|href)=\"[^\"]*\"|<tr>|<h\\d|<pre>)", html);
            parts.sort();
            return parts;
        };
        const QDir pages(CORVALA_SOURCE_DIR "/help");
        for (const QString& file : pages.entryList(QDir::Files)) {
            QVERIFY2(listed.contains(file), qPrintable(file));
            QCOMPARE(partsOf(read(pages.filePath("de/" + file))),
                     file.endsWith(".html") ? partsOf(read(pages.filePath(file))) : QStringList());
        }
    }

    void manualsListTheOptions()
    {
        const auto optionsIn = [](QString text) {
            const QStringList found = all("--([a-z0-9-]+)", text.remove('\\'));
            return QSet<QString>(found.begin(), found.end()) - QSet<QString> {"help-all"};
        };
        for (const char* manual : {"/packaging/corvala.1", "/help/scripts.html"})
            QCOMPARE(optionsIn(read(CORVALA_SOURCE_DIR + QString(manual))), optionsIn(usageText()));
    }

    void f1OpensThePageOfWhatIsAroundTheFocus()
    {
        const HelpCommands commands(nullptr);
        QWidget bar;
        setHelpReference(bar, "window.html#layers");
        QLineEdit field(&bar);
        QTest::keyClick(&field, Qt::Key_F1);
        QStringList opened;
        for (const QWidget* window : QApplication::topLevelWidgets())
            if (qobject_cast<const HelpWindow*>(window))
                opened << window->findChild<QTextBrowser*>()->source().toString();
        QCOMPARE(opened, {helpUrl("window.html#layers").toString()});
    }

    void isReadWhileAPromptIsOpen()
    {
        HelpWindow window;
        QDialog prompt;
        prompt.setModal(true);
        prompt.show();
        QVERIFY(QTest::qWaitForWindowExposed(&prompt));
        window.open("polar.html#polar/map-layer/curve-types");
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto& page = *window.findChild<QTextBrowser*>();
        QCOMPARE(page.cursorForPosition({15, 25}).block().text(), QString("Curves"));
        const auto& list = *window.findChild<QListWidget*>();
        const QPoint entry = list.visualItemRect(list.item(1)).center();
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                          list.viewport()->mapTo(&window, entry));
        QCOMPARE(page.source(), helpUrl("window.html"));
        prompt.accept();
        QVERIFY(window.isVisible());
    }

    void searches()
    {
        HelpWindow window;
        window.open("index.html");
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto& list = *window.findChild<QListWidget*>();
        auto& page = *window.findChild<QTextBrowser*>("helpPage");
        auto& search = *window.findChild<QLineEdit*>("helpSearch");
        const int contents = list.count();
        QTest::keyClicks(&search, "weighting VARIABLE");
        QCOMPARE(list.count(), 1);
        QTest::keyClick(&search, Qt::Key_Return);
        QCOMPARE(page.source(), helpUrl("polar.html"));
        QCOMPARE(page.textCursor().selectedText(), QString("weighting variable"));
        QCOMPARE(page.extraSelections().size(), 1);
        search.clear();
        QCOMPARE(list.count(), contents);
        QCOMPARE(page.extraSelections().size(), 0);
        const QShortcut everywhere(QKeySequence("Alt+Left"), &window, nullptr, nullptr,
                                   Qt::ApplicationShortcut);
        QTest::keyClick(window.windowHandle(), Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(page.source(), helpUrl("index.html"));
    }
};

QTEST_MAIN(tst_Help)
#include "tst_help.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/language.h"
#include "app/main_window.h"
#include "app/picture_size_dialog.h"
#include "app/style_dialog.h"
#include "host/document/document.h"
#include "host/io/sample_list.h"
#include "play/idle.h"
#include "zonestyle/dialog/zone_style_dialog.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSet>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace corvala;
using namespace corvala::app;
using Text = QPair<QString, QString>; // context and English text

/// A language whose words are a third longer and stand in brackets; remembers what it was asked.
class Pseudo : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        const QString english = QString::fromUtf8(text);
        m_asked.insert({QString::fromUtf8(context), english});
        const QString longer(std::max(1, english.size() / 3), QLatin1Char('~'));
        return QStringLiteral("\u27e6") + english + longer + QStringLiteral("\u27e7");
    }
    bool isEmpty() const override { return false; }
    const QSet<Text>& asked() const { return m_asked; }

private:
    mutable QSet<Text> m_asked;
};

/// Whether a text is no words: a number, a sign, or the name of something in the data.
static bool isNeutral(const QString& text, const QSet<QString>& names)
{
    static const QRegularExpression word(QStringLiteral("[^\\W\\d_]{2,}"));
    if (!word.match(text).hasMatch())
        return true;
    for (const QString& name : names)
        if (text == name || text.endsWith(QLatin1Char(' ') + name))
            return true;
    return false;
}

static QSet<QString> namesOfData()
{
    QSet<QString> names {QStringLiteral("corvala"), QStringLiteral("Qt")};
    for (const host::io::Sample& sample : host::io::sampleList())
        names.insert(sample.title);
    const host::Frame* const frame = host::Document::instance().activeFrame();
    if (!frame || !frame->hasData())
        return names;
    names.insert(QString::fromStdString(frame->data()->title));
    for (const host::ZoneInfo& zone : frame->data()->zones)
        names.insert(QString::fromStdString(zone.name));
    for (const host::Variable& variable : frame->data()->variables)
        names.insert(QString::fromStdString(variable.name));
    return names;
}

/// The texts of a widget itself, without those of its children.
static QStringList textsOf(const QWidget& widget)
{
    QStringList texts {widget.toolTip(), widget.isWindow() ? widget.windowTitle() : QString()};
    for (const QAction* const action : widget.actions())
        texts << action->text() << action->toolTip() << action->statusTip();
    if (const auto* const label = qobject_cast<const QLabel*>(&widget))
        texts << label->text();
    else if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
        texts << button->text();
    else if (const auto* const group = qobject_cast<const QGroupBox*>(&widget))
        texts << group->title();
    else if (const auto* const box = qobject_cast<const QComboBox*>(&widget))
        for (int i = 0; i < box->count(); ++i)
            texts << box->itemText(i);
    else if (const auto* const tabs = qobject_cast<const QTabBar*>(&widget))
        for (int i = 0; i < tabs->count(); ++i)
            texts << tabs->tabText(i);
    else if (const auto* const view = qobject_cast<const QAbstractItemView*>(&widget))
        for (int i = 0; view->model() && i < view->model()->columnCount(); ++i)
            texts << view->model()->headerData(i, Qt::Horizontal).toString()
                  << view->model()->index(0, i).data().toString();
    texts.removeAll(QString());
    return texts;
}

/// A label or button whose text does not fit into it.
static bool isCut(const QWidget& widget)
{
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    const auto* const button = qobject_cast<const QAbstractButton*>(&widget);
    const auto* const tool = qobject_cast<const QToolButton*>(&widget);
    const bool isIcon = tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly;
    if (!widget.isVisible() || isIcon
        || (label && (label->wordWrap() || label->pixmap(Qt::ReturnByValue).isNull() == false)))
        return false;
    const QString text = label ? label->text() : button ? button->text() : QString();
    const int icon = button && !button->icon().isNull() ? button->iconSize().width() : 0;
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width() + icon
        > widget.width() + 2;
}

class tst_Texts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("XDG_CONFIG_HOME", m_settings.path().toUtf8());
        QCoreApplication::installTranslator(&m_language);
    }
    void everyTextIsMarked_data();
    void everyTextIsMarked();
    void everyMarkedTextIsGathered();
    void userChooses_data();
    void userChooses();

private:
    void check(const QWidget& window);

    QTemporaryDir m_settings; ///< no recent files
    Pseudo m_language;
    QStringList m_problems;
};

void tst_Texts::check(const QWidget& window)
{
    const QSet<QString> names = namesOfData();
    QList<const QWidget*> widgets {&window};
    for (const QWidget* const child : window.findChildren<QWidget*>())
        widgets << child;
    for (const QWidget* const widget : widgets) {
        for (const QString& text : textsOf(*widget))
            if (!text.contains(QChar(0x27e6)) && !isNeutral(text, names))
                m_problems << QStringLiteral("not marked: \"%1\" in %2 %3")
                                  .arg(text, QLatin1String(widget->metaObject()->className()),
                                       widget->objectName());
        if (isCut(*widget))
            m_problems << QStringLiteral("cut: %1").arg(textsOf(*widget).join(QLatin1Char('|')));
    }
    m_problems.removeDuplicates();
}

void tst_Texts::everyTextIsMarked_data()
{
    QTest::addColumn<QString>("demo");
    for (const char* demo : {"", "field3d", "transient", "xy", "polar"})
        QTest::addRow("%s", *demo ? demo : "no data") << QString::fromLatin1(demo);
}

void tst_Texts::everyTextIsMarked()
{
    QFETCH(QString, demo);
    m_problems.clear();
    host::Document::instance().clear();
    MainWindow window;
    offerAllLineTabs();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    if (!demo.isEmpty()) {
        window.openDemo(demo);
        QWidget& dialog = openStyleDialog(window, dialogs::common::DialogInitialization_None);
        auto* const tabs = dialog.findChild<QTabWidget*>();
        for (int i = 0; tabs && i < tabs->count(); ++i) {
            tabs->setCurrentIndex(i);
            play::waitUntilIdle();
            check(dialog);
        }
        dialog.close();
    }
    for (QMenu* const menu : window.findChildren<QMenu*>())
        Q_EMIT menu->aboutToShow();
    check(window);
    check(PictureSizeDialog(QStringLiteral("a.png"), &window));
    QVERIFY2(m_problems.isEmpty(), qPrintable(m_problems.join(QLatin1Char('\n'))));
}

/// What was asked for above is what the script found in the sources.
void tst_Texts::everyMarkedTextIsGathered()
{
    QFile file(QStringLiteral(CORVALA_SOURCE_DIR "/translations/corvala_de.ts"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&file);
    QSet<Text> gathered;
    QString context;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("name"))
            context = reader.readElementText();
        else if (reader.isStartElement() && reader.name() == QLatin1String("source"))
            gathered.insert({context, reader.readElementText()});
    }
    QVERIFY(!gathered.isEmpty());
    QStringList missing;
    for (const Text& text : m_language.asked())
        if (!gathered.contains(text) && !text.first.startsWith(QLatin1Char('Q'))
            && !isNeutral(text.second, {}))
            missing << text.first + QStringLiteral(": ") + text.second;
    for (const QString& text : missing)
        qWarning().noquote() << "not gathered:" << text;
    QVERIFY(missing.isEmpty());
}

void tst_Texts::userChooses_data()
{
    QTest::addColumn<QStringList>("languages");
    QTest::addColumn<bool>("isEnglish");
    QTest::newRow("German") << QStringList {QStringLiteral("de-AT")} << false;
    QTest::newRow("English first")
        << QStringList {QStringLiteral("en-GB"), QStringLiteral("de")} << true;
    QTest::newRow("the second") << QStringList {QStringLiteral("xx"), QStringLiteral("de-DE")}
                                << false;
}

void tst_Texts::userChooses()
{
    QFETCH(QStringList, languages);
    QFETCH(bool, isEnglish);
    QCoreApplication::removeTranslator(&m_language);
    setUpLanguage(languages);
    const QString text = QCoreApplication::translate("corvala::app::MainMenus", "&Open...");
    for (QTranslator* const texts : QCoreApplication::instance()->findChildren<QTranslator*>())
        delete texts;
    QCOMPARE(text.startsWith(QLatin1String("&Open")), isEnglish);
}

QTEST_MAIN(tst_Texts)
#include "tst_texts.moc"

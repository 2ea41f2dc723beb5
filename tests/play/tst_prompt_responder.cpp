// SPDX-License-Identifier: BSD-3-Clause
#include "play/arguments.h"
#include "play/prompt_responder.h"
#include "play/script.h"
#include "play/window_watcher.h"
#include "sdk/dialogs_prompt/enter_three_int_values_dialog.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QTest>

using namespace corvala::play;
using Json = nlohmann::json;

/// Asks for something; the answer as text, empty when the prompt was refused.
struct Prompt
{
    QString (*ask)();
};

static QString askNumber()
{
    bool accepted = false;
    const double value =
        QInputDialog::getDouble(nullptr, QStringLiteral("Size"), QStringLiteral("Size [%]"), 2.5,
                                0.01, 100.0, 2, &accepted);
    return accepted ? QString::number(value) : QString();
}

static QString askText()
{
    bool accepted = false;
    const QString text =
        QInputDialog::getText(nullptr, QStringLiteral("Name"), QStringLiteral("&Name:"),
                              QLineEdit::Normal, QStringLiteral("old"), &accepted);
    return accepted ? text : QString();
}

static QString askItem()
{
    bool accepted = false;
    const QString text =
        QInputDialog::getItem(nullptr, QStringLiteral("Pick"), QStringLiteral("Variable"),
                              {"X", "Y", "Pressure"}, 1, false, &accepted);
    return accepted ? text : QString();
}

static QString askQuestion()
{
    const auto answer =
        QMessageBox::question(nullptr, QStringLiteral("Layer"), QStringLiteral("Switch it on?"));
    return answer == QMessageBox::Yes ? QStringLiteral("yes") : QString();
}

static QString askThreeNumbers()
{
    auto& dialog = corvala::dialogs::prompt::EnterThreeIntValuesDialog::getInstance(nullptr);
    dialog.setTitle(QStringLiteral("Enter Range"));
    dialog.setLabels(QStringLiteral("&Begin"), QStringLiteral("&End"), QStringLiteral("&Skip"));
    dialog.setRanges({1, 100}, {0, 100}, {1, 100});
    dialog.setValues(1, 0, 1);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const auto [first, last, step] = dialog.values();
    return QStringLiteral("%1,%2,%3").arg(first).arg(last).arg(step);
}

Q_DECLARE_METATYPE(Prompt)

class tst_PromptResponder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replies_data();
    void replies();
    void refusesBadReplies_data();
    void refusesBadReplies();
    void describesPrompts_data();
    void describesPrompts();
    void wantsAReplyForEveryPrompt();
};

/// Runs the prompt with replies queued; the error of the responder, if any.
static QString run(Prompt prompt, PromptResponder& responder, QString* answer)
{
    QWidget mainWindow;
    WindowWatcher watcher(mainWindow);
    watcher.setHandler(WindowWatcher::Prompt,
                       [&responder](QWidget& window) { responder.answer(window); });
    *answer = prompt.ask();
    try {
        watcher.check();
    } catch (const ScriptError& error) {
        return error.message();
    }
    return {};
}

void tst_PromptResponder::replies_data()
{
    QTest::addColumn<Prompt>("prompt");
    QTest::addColumn<QString>("reply");
    QTest::addColumn<QString>("answer");

    QTest::newRow("number as it stands") << Prompt {askNumber} << R"("OK")"
                                         << "2.5";
    QTest::newRow("number") << Prompt {askNumber} << "7.25"
                            << "7.25";
    QTest::newRow("number typed as text") << Prompt {askNumber} << R"("3")"
                                          << "3";
    QTest::newRow("number cancelled") << Prompt {askNumber} << R"("cancel")"
                                      << "";
    QTest::newRow("number that is too large") << Prompt {askNumber} << R"({"refused": 101})"
                                              << "";
    QTest::newRow("text") << Prompt {askText} << R"("new")"
                          << "new";
    QTest::newRow("any character")
        << Prompt {askText} << QStringLiteral(R"("Größe \ud83d\ude00 ñ")")
        << QString::fromUtf8("Größe \xF0\x9F\x98\x80 ñ");
    QTest::newRow("item by text") << Prompt {askItem} << R"("Pressure")"
                                  << "Pressure";
    QTest::newRow("item by position") << Prompt {askItem} << R"({"position": 1})"
                                      << "X";
    QTest::newRow("item as it stands") << Prompt {askItem} << R"("OK")"
                                       << "Y";
    QTest::newRow("yes") << Prompt {askQuestion} << R"("OK")"
                         << "yes";
    QTest::newRow("no") << Prompt {askQuestion} << R"("cancel")"
                        << "";
    QTest::newRow("several fields") << Prompt {askThreeNumbers} << "[2, 9, 3]"
                                    << "2,9,3";
    QTest::newRow("the first field") << Prompt {askThreeNumbers} << "5"
                                     << "5,0,1";
}

void tst_PromptResponder::replies()
{
    QFETCH(Prompt, prompt);
    QFETCH(QString, reply);
    PromptResponder responder;
    responder.queue(Json::array({Json::parse(reply.toStdString())}));
    QString answer;
    QCOMPARE(run(prompt, responder, &answer), QString());
    QTEST(answer, "answer");
    QVERIFY(!responder.hasUnusedReplies());
}

void tst_PromptResponder::refusesBadReplies_data()
{
    QTest::addColumn<Prompt>("prompt");
    QTest::addColumn<QString>("reply");
    QTest::addColumn<QString>("named");

    QTest::newRow("unknown item") << Prompt {askItem} << R"("Density")"
                                  << "Density";
    QTest::newRow("position outside") << Prompt {askItem} << R"({"position": 4})"
                                      << "4";
    QTest::newRow("value that is accepted") << Prompt {askNumber} << R"({"refused": 50})"
                                            << "50";
    QTest::newRow("value for a question") << Prompt {askQuestion} << "3"
                                          << "takes no value";
    QTest::newRow("position without a list") << Prompt {askNumber} << R"({"position": 1})"
                                             << "no list";
    QTest::newRow("too many fields") << Prompt {askThreeNumbers} << "[1, 2, 3, 4]"
                                     << "3 fields";
}

void tst_PromptResponder::refusesBadReplies()
{
    QFETCH(Prompt, prompt);
    QFETCH(QString, reply);
    QFETCH(QString, named);
    PromptResponder responder;
    responder.queue(Json::array({Json::parse(reply.toStdString())}));
    QString answer;
    const QString error = run(prompt, responder, &answer);
    QVERIFY2(error.contains(named), qPrintable(error));
    QVERIFY2(answer.isEmpty(), "a prompt that went wrong is cancelled");
}

void tst_PromptResponder::describesPrompts_data()
{
    QTest::addColumn<Prompt>("prompt");
    QTest::addColumn<QString>("description");

    QTest::newRow("number") << Prompt {askNumber}
                            << R"({"title": "Size", "label": "Size [%]", "value": 2.5, "min": 0.01,
                                   "max": 100.0, "decimals": 2, "default": "OK"})";
    QTest::newRow("item") << Prompt {askItem}
                          << R"({"title": "Pick", "value": "Y", "items": ["X", "Y", "Pressure"]})";
    QTest::newRow("question") << Prompt {askQuestion}
                              << R"({"title": "Layer", "label": "Switch it on?",
                                     "buttons": ["Yes", "No"], "default": "Yes"})";
    QTest::newRow("three numbers")
        << Prompt {askThreeNumbers}
        << R"({"title": "Enter Range", "labels": ["&Begin", "&End", "&Skip"],
               "value": [1, 0, 1], "min": [1, 0, 1]})";
}

void tst_PromptResponder::describesPrompts()
{
    QFETCH(Prompt, prompt);
    QFETCH(QString, description);
    PromptResponder responder;
    responder.queue({"cancel"});
    QString answer;
    QCOMPARE(run(prompt, responder, &answer), QString());
    const Json wanted = Json::parse(description.toStdString());
    for (const auto& [key, value] : wanted.items())
        QCOMPARE(shown(responder.lastPrompt().value(key, Json())), shown(value));
}

void tst_PromptResponder::wantsAReplyForEveryPrompt()
{
    PromptResponder responder;
    QString answer;
    const QString error = run({askNumber}, responder, &answer);
    QVERIFY2(error.contains(QLatin1String("\"Size\"")), qPrintable(error));
    QVERIFY(answer.isEmpty());
    for (const char* bad :
         {"[null]", R"([{"place": 3}])", R"("OK")", "[[]]", R"([{"position": 1, "refused": 2}])"})
        QVERIFY_EXCEPTION_THROWN(responder.queue(Json::parse(bad)), ScriptError);
    QVERIFY(!responder.hasUnusedReplies());
}

QTEST_MAIN(tst_PromptResponder)
#include "tst_prompt_responder.moc"

// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/common_ui/number_field.h"
#include "tests/support/rows.h"

#include <QLineEdit>
#include <QtTest>

using namespace corvala::tests;
using corvala::ui::NumberField;

/// What a typed text means, in a field from 0.01 to 5000.
class tst_NumberField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data()
    {
        const Rows<QLocale, int, QString, QVariant> row;
        const QLocale german(QLocale::German);
        const QLocale english(QLocale::English, QLocale::UnitedStates);
        row("decimal comma", german, 2, "0,45", QVariant(0.45));
        row("point all the same", german, 2, "0.45", QVariant(0.45));
        row("no group in German", german, 2, "1.234", QVariant(1.234));
        row("group and comma", german, 2, "1.234,5", QVariant());
        row("no group in English", english, 2, "1,234", QVariant());
        row("more decimals", english, 2, " 0.4567 ", QVariant(0.4567));
        row("largest", english, 2, "5000", QVariant(5000.0));
        row("too large", english, 2, "5000.1", QVariant());
        row("too small", english, 2, "0", QVariant());
        row("word", english, 2, "abc", QVariant());
        row("nothing", english, 2, "", QVariant());
        row("whole", english, 0, "7", QVariant(7.0));
        row("not whole", english, 0, "7.5", QVariant());
    }

    void reads()
    {
        const auto [locale, decimals, text, number] = currentRow<QLocale, int, QString, QVariant>();
        NumberField field(decimals);
        field.setLocale(locale);
        field.setLimits(0.01, 5000.0);
        field.setNumber(3.0);
        QLineEdit other;
        field.selectAll();
        field.show(); // what is typed replaces what is selected
        QTest::keyClicks(&field, text.isEmpty() ? QStringLiteral("\b") : text);
        QFocusEvent leaves(QEvent::FocusOut);
        QCoreApplication::sendEvent(&field, &leaves);
        const auto read = field.number();
        QCOMPARE(read ? QVariant(*read) : QVariant(), number);
        QCOMPARE(field.hasAcceptableInput(), number.isValid());
        QCOMPARE(field.findChild<QLineEdit*>()->text(), text);
    }

    void showsWhatWasSet()
    {
        NumberField field(2);
        field.setLimits(0.0001, 100.0);
        field.setNumber(0.456);
        QCOMPARE(field.text(), "0.46");
        QCOMPARE(field.number(), 0.456); // until something else is typed
        field.setNumber(0.0001);
        QCOMPARE(field.text(), "0.0001"); // "0.00" would not fit
    }
};

QTEST_MAIN(tst_NumberField)

#include "tst_number_field.moc"

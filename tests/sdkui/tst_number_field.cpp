// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/common_ui/number_field.h"

#include <QLineEdit>
#include <QtTest>

using corvala::ui::NumberField;

/// What a typed text means, in a field from 0.01 to 5000.
class tst_NumberField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void showsWhatWasSet();
};

void tst_NumberField::reads_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("number");
    const QLocale german(QLocale::German);
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    QTest::newRow("decimal comma") << german << 2 << "0,45" << QVariant(0.45);
    QTest::newRow("point all the same") << german << 2 << "0.45" << QVariant(0.45);
    QTest::newRow("no group in German") << german << 2 << "1.234" << QVariant(1.234);
    QTest::newRow("group and comma") << german << 2 << "1.234,5" << QVariant();
    QTest::newRow("no group in English") << english << 2 << "1,234" << QVariant();
    QTest::newRow("more decimals") << english << 2 << " 0.4567 " << QVariant(0.4567);
    QTest::newRow("largest") << english << 2 << "5000" << QVariant(5000.0);
    QTest::newRow("too large") << english << 2 << "5000.1" << QVariant();
    QTest::newRow("too small") << english << 2 << "0" << QVariant();
    QTest::newRow("word") << english << 2 << "abc" << QVariant();
    QTest::newRow("nothing") << english << 2 << "" << QVariant();
    QTest::newRow("whole") << english << 0 << "7" << QVariant(7.0);
    QTest::newRow("not whole") << english << 0 << "7.5" << QVariant();
}

void tst_NumberField::reads()
{
    QFETCH(QLocale, locale);
    QFETCH(int, decimals);
    QFETCH(QString, text);
    QFETCH(QVariant, number);
    NumberField field(decimals);
    field.setLocale(locale);
    field.setLimits(0.01, 5000.0);
    field.setNumber(3.0);
    QLineEdit other;
    field.show();
    field.selectAll();
    QTest::keyClicks(&field, text.isEmpty() ? QStringLiteral("\b") : text);
    QFocusEvent leaves(QEvent::FocusOut);
    QCoreApplication::sendEvent(&field, &leaves);
    const auto read = field.number();
    QCOMPARE(read ? QVariant(*read) : QVariant(), number);
    QCOMPARE(field.hasAcceptableInput(), number.isValid());
    QCOMPARE(field.findChild<QLineEdit*>()->text(), text);
}

void tst_NumberField::showsWhatWasSet()
{
    NumberField field(2);
    field.setLimits(0.0001, 100.0);
    field.setNumber(0.456);
    QCOMPARE(field.text(), "0.46");
    QCOMPARE(field.number(), 0.456); // until something else is typed
    field.setNumber(0.0001);
    QCOMPARE(field.text(), "0.0001"); // "0.00" would not fit
}

QTEST_MAIN(tst_NumberField)

#include "tst_number_field.moc"

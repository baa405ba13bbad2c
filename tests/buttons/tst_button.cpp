// SPDX-License-Identifier: MIT
#include "buttonstate.h"
#include "paintwatch.h"
#include "pointer.h"
#include "propertyrecord.h"
#include "testprogram.h"

#include <OlvButton>

#include <QSignalSpy>
#include <QTest>

#include <utility>

namespace {

using Call = void (*)(OlvButton &button);

} // namespace

Q_DECLARE_METATYPE(Call)

class TestButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsAtRestWithItsDefaults();
    void takesACaptionAndAParent();
    void setsStyleWithTheColourFirst();
    void settersStoreTheirProperties();
    void repaintsOnlyWhereItSaysSo_data();
    void repaintsOnlyWhereItSaysSo();
    void checkingFromCodeEmitsNothing();
    void staysCheckedWhenNoLongerCheckable();
    void valueIsStoredAsItIsAndReadAsBool_data();
    void valueIsStoredAsItIsAndReadAsBool();
    void keepsFiveCustomShadesOrMore_data();
    void keepsFiveCustomShadesOrMore();
    void survivesPropertiesOfOtherTypes();
};

void TestButton::startsAtRestWithItsDefaults()
{
    OlvButton button;
    QCOMPARE(button.dynamicPropertyNames(),
             QList<QByteArray>(
                 { "isChecked", "isCheckable", "value", "type", "color", "state", "hovered" }));
    for (const char *name : { "isChecked", "isCheckable", "value", "hovered" }) {
        QCOMPARE(button.property(name).userType(), int(QMetaType::Bool));
        QCOMPARE(button.property(name).toBool(), false);
    }
    for (const char *name : { "type", "color", "state" }) {
        QCOMPARE(button.property(name).userType(), int(QMetaType::QString));
    }
    QCOMPARE(button.property("type").toString(), QString());
    QCOMPARE(button.property("color").toString(), QStringLiteral("primary"));
    QCOMPARE(stateOf(button), QStringLiteral("init"));
    QVERIFY(!button.property("content").isValid());
    QCOMPARE(button.sizeHint(), QWidget().sizeHint());
    QVERIFY(!button.isChecked());
    QVERIFY(!button.isCheckable());
}

void TestButton::takesACaptionAndAParent()
{
    QWidget parent;
    auto *plain = new OlvButton(&parent);
    QCOMPARE(plain->parentWidget(), &parent);
    auto *captioned = new OlvButton(QStringLiteral("确定"), &parent);
    QCOMPARE(captioned->parentWidget(), &parent);
    QCOMPARE(captioned->property("content"), QVariant(QStringLiteral("确定")));
    QCOMPARE(captioned->property("color").toString(), QStringLiteral("primary"));
}

void TestButton::setsStyleWithTheColourFirst()
{
    OlvButton button;
    const PropertyRecord record(&button);
    QCOMPARE(button.setOlvStyle(QStringLiteral("success"), QStringLiteral("plain")), &button);
    QCOMPARE(record.lines,
             QStringList({ QStringLiteral("type plain"), QStringLiteral("color success") }));
}

void TestButton::settersStoreTheirProperties()
{
    OlvButton button;
    button.setText(QStringLiteral("text"));
    QCOMPARE(button.property("content"), QVariant(QStringLiteral("text")));
    button.setChecked(true);
    QCOMPARE(button.property("isChecked"), QVariant(true));
    QVERIFY(button.isChecked());
    button.setCheckable(true);
    QCOMPARE(button.property("isCheckable"), QVariant(true));
    QVERIFY(button.isCheckable());
    button.setProperty("isChecked", 0);
    QVERIFY(!button.isChecked());
    button.setProperty("isCheckable", QStringLiteral("false"));
    QVERIFY(!button.isCheckable());
}

void TestButton::repaintsOnlyWhereItSaysSo_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<bool>("repaints");
    const auto row = [](const char *name, bool repaints, Call call) {
        QTest::newRow(name) << call << repaints;
    };
    row("setOlvStyle", true, [](OlvButton &button) { button.setOlvStyle({}, {}); });
    row("setText", true, [](OlvButton &button) { button.setText({}); });
    row("setChecked", true, [](OlvButton &button) { button.setChecked(false); });
    row("setCheckable", false, [](OlvButton &button) { button.setCheckable(true); });
    row("setColor", false, [](OlvButton &button) { button.setColor(QStringList()); });
    row("setValue", false, [](OlvButton &button) { button.setValue(true); });
    row("enter", true, [](OlvButton &button) { Pointer::enter(button); });
    row("leave", true, [](OlvButton &button) { Pointer::leave(button); });
    row("press", true, [](OlvButton &button) { Pointer::press(button); });
    row("release outside", true, [](OlvButton &button) { Pointer::release(button); });
    row("release inside", true, [](OlvButton &button) {
        button.setProperty("hovered", true);
        Pointer::release(button);
    });
}

void TestButton::repaintsOnlyWhereItSaysSo()
{
    QFETCH(Call, call);
    QFETCH(bool, repaints);
    OlvButton button;
    PaintWatch watch(button);
    QVERIFY(watch.showWindow());
    // the second call finds every value as it is already, and asks for the repaint all the same
    for (int round = 1; round <= 2; ++round) {
        call(button);
        QCOMPARE(watch.takeWhole(), repaints ? 1 : 0);
    }
}

void TestButton::checkingFromCodeEmitsNothing()
{
    OlvButton button;
    QSignalSpy clicked(&button, &OlvButton::clicked);
    QSignalSpy toggled(&button, &OlvButton::toggled);
    QSignalSpy valueChanged(&button, &OlvWidget::valueChanged);
    button.setCheckable(true);
    button.setChecked(true);
    button.setChecked(false);
    button.setValue(true);
    QCOMPARE(clicked.count() + toggled.count() + valueChanged.count(), 0);
}

void TestButton::staysCheckedWhenNoLongerCheckable()
{
    OlvButton button;
    button.setCheckable(true);
    button.setChecked(true);
    button.setCheckable(false);
    QVERIFY(button.isChecked());
}

void TestButton::valueIsStoredAsItIsAndReadAsBool_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<bool>("value");
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("integer 5") << QVariant(5) << true;
    QTest::newRow("integer 0") << QVariant(0) << false;
    QTest::newRow("text") << QVariant(QStringLiteral("yes")) << true;
    QTest::newRow("invalid") << QVariant() << false;
}

void TestButton::valueIsStoredAsItIsAndReadAsBool()
{
    QFETCH(QVariant, stored);
    QFETCH(bool, value);
    OlvButton button;
    button.setValue(stored);
    QCOMPARE(button.property("value"), stored);
    QCOMPARE(button.getValue(), QVariant(value));
    QCOMPARE(button.getValue().userType(), int(QMetaType::Bool));
}

void TestButton::keepsFiveCustomShadesOrMore_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("isKept");
    QTest::newRow("none") << 0 << false;
    QTest::newRow("four") << 4 << false;
    QTest::newRow("five") << 5 << true;
    QTest::newRow("six") << 6 << true;
}

/** No button draws with them: that they are kept shows in who shares their characters. */
void TestButton::keepsFiveCustomShadesOrMore()
{
    QFETCH(int, count);
    QFETCH(bool, isKept);
    OlvButton button;
    QString last = QString::number(255);
    last.detach();
    QStringList shades;
    for (int i = 1; i < count; ++i) {
        shades.append(QString::number(i));
    }
    if (count > 0) {
        shades.append(last);
    }
    button.setColor(std::exchange(shades, QStringList()));
    QCOMPARE(!last.isDetached(), isKept);
    button.setColor({ QString(), QString(), QString(), QString(), QString() });
    QVERIFY(last.isDetached());
}

void TestButton::survivesPropertiesOfOtherTypes()
{
    OlvButton button(QStringLiteral("text"));
    for (const char *name :
         { "isChecked", "isCheckable", "value", "type", "color", "state", "hovered", "content" }) {
        for (const QVariant &value : { QVariant(), QVariant(QPoint(1, 2)), QVariant(-1.5),
                                       QVariant(QStringList({ QStringLiteral("x") })) }) {
            button.setProperty(name, value);
            QVERIFY(!button.grab().isNull());
            Pointer::click(button);
            Pointer::leave(button);
        }
    }
    QCOMPARE(stateOf(button), QStringLiteral("init"));
}

ADD_TEST(TestButton, QApplication)
#include "tst_button.moc"

// SPDX-License-Identifier: MIT
#include "paintwatch.h"
#include "pointer.h"

#include <OlvButton>

#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>

namespace {

QString stateOf(const OlvButton &button)
{
    return button.property("state").toString();
}

} // namespace

class TestButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsAtRestWithItsDefaults();
    void takesACaptionAndAParent();
    void hasTwoSignalsAndASlotInOrder();
    void setsStyleWithTheColourFirst();
    void settersStoreTheirProperties();
    void repaintsOnlyWhereItSaysSo_data();
    void repaintsOnlyWhereItSaysSo();
    void checkingFromCodeEmitsNothing();
    void staysCheckedWhenNoLongerCheckable();
    void valueIsStoredAsItIsAndReadAsBool_data();
    void valueIsStoredAsItIsAndReadAsBool();
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

void TestButton::hasTwoSignalsAndASlotInOrder()
{
    const QMetaObject &meta = OlvButton::staticMetaObject;
    QCOMPARE(meta.className(), "OlvButton");
    QCOMPARE(meta.superClass(), &OlvWidget::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
    struct Method
    {
        QMetaMethod::MethodType type;
        QByteArray signature;
        QList<QByteArray> parameters;
    };
    const QVector<Method> methods{
        { QMetaMethod::Signal, "clicked()", {} },
        { QMetaMethod::Signal, "toggled(bool)", { "checked" } },
        { QMetaMethod::Slot, "click(bool)", { "checked" } },
        { QMetaMethod::Slot, "click()", {} },
    };
    QCOMPARE(meta.methodCount() - meta.methodOffset(), methods.count());
    for (int i = 0; i < methods.count(); ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        QCOMPARE(method.methodType(), methods.at(i).type);
        QCOMPARE(method.methodSignature(), methods.at(i).signature);
        QCOMPARE(method.parameterNames(), methods.at(i).parameters);
        QCOMPARE(method.access(), QMetaMethod::Public);
    }
    QVERIFY(meta.method(meta.methodOffset() + 3).attributes() & QMetaMethod::Cloned);
}

void TestButton::setsStyleWithTheColourFirst()
{
    OlvButton button;
    QList<QByteArray> order;
    class Watcher : public QObject
    {
    public:
        explicit Watcher(QList<QByteArray> *names)
            : m_names(names)
        { }
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            if (event->type() == QEvent::DynamicPropertyChange) {
                m_names->append(static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName());
            }
            return QObject::eventFilter(watched, event);
        }

    private:
        QList<QByteArray> *m_names;
    } watcher(&order);
    button.installEventFilter(&watcher);
    QCOMPARE(button.setOlvStyle(QStringLiteral("success"), QStringLiteral("plain")), &button);
    QCOMPARE(button.property("color").toString(), QStringLiteral("success"));
    QCOMPARE(button.property("type").toString(), QStringLiteral("plain"));
    QCOMPARE(order, QList<QByteArray>({ "type", "color" }));
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
    QTest::addColumn<QString>("call");
    QTest::addColumn<bool>("repaints");
    QTest::newRow("setOlvStyle") << QStringLiteral("setOlvStyle") << true;
    QTest::newRow("setText") << QStringLiteral("setText") << true;
    QTest::newRow("setChecked") << QStringLiteral("setChecked") << true;
    QTest::newRow("setCheckable") << QStringLiteral("setCheckable") << false;
    QTest::newRow("setColor") << QStringLiteral("setColor") << false;
    QTest::newRow("setValue") << QStringLiteral("setValue") << false;
    QTest::newRow("enter") << QStringLiteral("enter") << true;
    QTest::newRow("leave") << QStringLiteral("leave") << true;
    QTest::newRow("press") << QStringLiteral("press") << true;
    QTest::newRow("release outside") << QStringLiteral("release outside") << true;
    QTest::newRow("release inside") << QStringLiteral("release inside") << true;
}

void TestButton::repaintsOnlyWhereItSaysSo()
{
    QFETCH(QString, call);
    QFETCH(bool, repaints);
    OlvButton button;
    PaintWatch watch(button);
    QVERIFY(watch.showWindow());
    const QHash<QString, std::function<void()>> calls{
        { QStringLiteral("setOlvStyle"),
          [&] {
              button.setOlvStyle({}, {});
          } },
        { QStringLiteral("setText"),
          [&] {
              button.setText({});
          } },
        { QStringLiteral("setChecked"),
          [&] {
              button.setChecked(false);
          } },
        { QStringLiteral("setCheckable"),
          [&] {
              button.setCheckable(true);
          } },
        { QStringLiteral("setColor"),
          [&] {
              button.setColor(QStringList());
          } },
        { QStringLiteral("setValue"),
          [&] {
              button.setValue(true);
          } },
        { QStringLiteral("enter"),
          [&] {
              Pointer::enter(button);
          } },
        { QStringLiteral("leave"),
          [&] {
              Pointer::leave(button);
          } },
        { QStringLiteral("press"),
          [&] {
              Pointer::press(button);
          } },
        { QStringLiteral("release outside"),
          [&] {
              Pointer::release(button);
          } },
        { QStringLiteral("release inside"),
          [&] {
              button.setProperty("hovered", true);
              Pointer::release(button);
          } },
    };
    // the second call finds every value as it is already, and asks for the repaint all the same
    for (int round = 1; round <= 2; ++round) {
        calls.value(call)();
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

QTEST_MAIN(TestButton)
#include "tst_button.moc"

// SPDX-License-Identifier: MIT
#include "accessiblekinds.h"
#include "testprogram.h"

#include <OlvSwitch>

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

namespace {

/** An application that lives as long as a test function. */
class Application
{
    QByteArray m_name = QByteArrayLiteral("program");
    char *m_arguments[2] = { m_name.data(), nullptr };
    int m_count = 1;
    QApplication m_application{ m_count, m_arguments };
};

/** What an interface says, and does, once its widget is no more. */
void expectNothingOf(QAccessibleInterface *interface)
{
    QVERIFY(!interface->isValid());
    QVERIFY(interface->state().invalid);
    QCOMPARE(interface->text(QAccessible::Name), QString());
    QCOMPARE(interface->childCount(), 0);
    QCOMPARE(interface->actionInterface()->actionNames(), QStringList());
    callAll(interface);
}

} // namespace

/** Interfaces before, behind and beside the lives of others. */
class TestAccessibilityLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isThereInEachApplication_data();
    void isThereInEachApplication();
    void standsTheEndOfItsWidget();
    void outlivesItsWidget();

private:
    QTemporaryDir m_runtime;
    QAccessibleInterface *m_interface = nullptr;
    int m_ends = 0;
};

void TestAccessibilityLifetime::initTestCase()
{
    QVERIFY(m_runtime.isValid());
    // each application would warn anew that there is none
    qputenv("XDG_RUNTIME_DIR", m_runtime.path().toLocal8Bit());
}

void TestAccessibilityLifetime::isThereInEachApplication_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("first") << 1;
    QTest::newRow("second") << 2;
    QTest::newRow("third") << 3;
}

void TestAccessibilityLifetime::isThereInEachApplication()
{
    // Qt forgets its factories in between
    const Application application;
    OlvSwitch widget;
    widget.show();
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&widget);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::CheckBox);
}

void TestAccessibilityLifetime::standsTheEndOfItsWidget()
{
    const Application application;
    for (const AccessibleKind &kind : accessibleKinds()) {
        QWidget parent;
        QWidget *widget = kind.make(&parent);
        m_interface = QAccessible::queryAccessibleInterface(widget);
        // connected before Qt connects: its end has begun, and its interface is still there
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(m_interface));
        widget->disconnect();
        connect(widget, &QObject::destroyed, this, [this] {
            ++m_ends;
            expectNothingOf(m_interface);
        });
        m_interface = QAccessible::queryAccessibleInterface(widget);
        delete widget;
    }
    QVERIFY(waitForDeferred());
    QCOMPARE(m_ends, accessibleKinds().size());
}

void TestAccessibilityLifetime::outlivesItsWidget()
{
    const Application application;
    QWidget parent;
    QWidgetList widgets;
    QVector<QAccessibleInterface *> interfaces;
    for (const AccessibleKind &kind : accessibleKinds()) {
        widgets << kind.make(&parent);
        interfaces << QAccessible::queryAccessibleInterface(widgets.last());
        // so that Qt does not come to know of its end
        widgets.last()->disconnect();
    }
    qDeleteAll(widgets);
    for (QAccessibleInterface *interface : qAsConst(interfaces)) {
        QVERIFY(!interface->object());
        expectNothingOf(interface);
    }
    QVERIFY(waitForDeferred());
}

ADD_TEST(TestAccessibilityLifetime, NoApplication)
#include "tst_accessibilitylifetime.moc"

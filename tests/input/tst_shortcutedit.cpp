// SPDX-License-Identifier: MIT
#include "fakeshortcut.h"
#include "shortcutcapture.h"
#include "testprogram.h"

#include <QSignalSpy>
#include <QTest>

class TestShortcutEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void startsEmptyWithItsDefaults();
    void takesAShortcutOver();
    void replacesTheOneBefore();
    void deletesOneThatCannotBeHad();
    void constructorTakesAShortcut();
    void valueIsTextOutAndAddressIn();
    void ignoresWhatIsNoShortcut();
    void keepsTheOneItHoldsAlready();
    void keepsTheOneItHoldsWhereThatFailsNow();
    void clearingDeletesWithoutDestroying();
    void destructorDeletesWithoutDestroying();
};

void TestShortcutEdit::init()
{
    takeRecord();
}

void TestShortcutEdit::startsEmptyWithItsDefaults()
{
    QWidget parent;
    OlvShortcutEdit edit(&parent);
    QCOMPARE(edit.parentWidget(), &parent);
    QCOMPARE(edit.windowFlags(), Qt::FramelessWindowHint);
    QCOMPARE(edit.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(edit.toolTip(), QStringLiteral("请直接在键盘上输入新的快捷键"));
    QCOMPARE(edit.property("HasOlvShortcut"), QVariant(false));
    QCOMPARE(edit.property("HasOlvShortcut").userType(), int(QMetaType::Bool));
    QVERIFY(!edit.property("OlvShortcut").isValid());
    QCOMPARE(edit.property("Temp").userType(), int(QMetaType::ULongLong));
    QCOMPARE(textOf(captureOf(edit)), QStringLiteral(" 0 idle"));
    QCOMPARE(edit.shortcut(), nullptr);
    QCOMPARE(edit.getValue(), QVariant(QStringLiteral("nullptr")));
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    QVERIFY(QMetaType::fromName("OlvShortcut*").isValid());
#else
    QVERIFY(QMetaType::type("OlvShortcut*") != QMetaType::UnknownType);
#endif
}

void TestShortcutEdit::takesAShortcutOver()
{
    OlvShortcutEdit edit;
    QStringList order;
    auto *shortcut = new FakeShortcut(QStringLiteral("one"));
    connect(&edit, &OlvShortcutEdit::shortcutChanged, this, [&](OlvShortcut *taken) {
        QCOMPARE(taken, shortcut);
        QCOMPARE(edit.shortcut(), shortcut);
        order.append(QStringLiteral("shortcutChanged"));
    });
    connect(&edit, &OlvWidget::valueChanged, this, [&](const QVariant &value) {
        QCOMPARE(value, QVariant(QStringLiteral("one")));
        order.append(QStringLiteral("valueChanged"));
    });
    QVERIFY(edit.setShortcut(shortcut));
    QCOMPARE(order,
             QStringList({ QStringLiteral("shortcutChanged"), QStringLiteral("valueChanged") }));
    QCOMPARE(edit.property("HasOlvShortcut"), QVariant(true));
    QCOMPARE(edit.property("OlvShortcut").userType(), int(QMetaType::ULongLong));
    QCOMPARE(edit.property("OlvShortcut").toULongLong(), addressOf(shortcut));
    QCOMPARE(takeRecord(), QStringList({ QStringLiteral("one active") }));
}

void TestShortcutEdit::replacesTheOneBefore()
{
    OlvShortcutEdit edit(new FakeShortcut(QStringLiteral("one")));
    QVERIFY(edit.setShortcut(new FakeShortcut(QStringLiteral("two"))));
    QCOMPARE(takeRecord(),
             QStringList({ QStringLiteral("one active"), QStringLiteral("two active"),
                           QStringLiteral("one destroyed"), QStringLiteral("one deleted") }));
    QCOMPARE(edit.getValue(), QVariant(QStringLiteral("two")));
}

void TestShortcutEdit::deletesOneThatCannotBeHad()
{
    auto *held = new FakeShortcut(QStringLiteral("one"));
    OlvShortcutEdit edit(held);
    QSignalSpy shortcutChanged(&edit, &OlvShortcutEdit::shortcutChanged);
    QSignalSpy valueChanged(&edit, &OlvWidget::valueChanged);
    takeRecord();
    QVERIFY(!edit.setShortcut(new FakeShortcut(QStringLiteral("two"), false)));
    QCOMPARE(takeRecord(),
             QStringList({ QStringLiteral("two active"), QStringLiteral("two deleted") }));
    QCOMPARE(edit.shortcut(), held);
    QCOMPARE(edit.property("OlvShortcut").toULongLong(), addressOf(held));
    QCOMPARE(shortcutChanged.count() + valueChanged.count(), 0);

    OlvShortcutEdit empty;
    QVERIFY(!empty.setShortcut(new FakeShortcut(QStringLiteral("three"), false)));
    QCOMPARE(empty.property("HasOlvShortcut"), QVariant(false));
    QVERIFY(!empty.property("OlvShortcut").isValid());
}

void TestShortcutEdit::constructorTakesAShortcut()
{
    QWidget parent;
    auto *shortcut = new FakeShortcut(QStringLiteral("one"));
    OlvShortcutEdit edit(shortcut, &parent);
    QCOMPARE(edit.parentWidget(), &parent);
    QCOMPARE(edit.shortcut(), shortcut);
    const OlvShortcutEdit refused(new FakeShortcut(QStringLiteral("two"), false), &parent);
    QCOMPARE(refused.property("HasOlvShortcut"), QVariant(false));
}

void TestShortcutEdit::valueIsTextOutAndAddressIn()
{
    OlvShortcutEdit edit;
    auto *shortcut = new FakeShortcut(QStringLiteral("one"));
    edit.setValue(addressOf(shortcut));
    QCOMPARE(edit.shortcut(), shortcut);
    QCOMPARE(edit.getValue(), QVariant(QStringLiteral("one")));
    QCOMPARE(edit.getValue().userType(), int(QMetaType::QString));
}

void TestShortcutEdit::ignoresWhatIsNoShortcut()
{
    auto *held = new FakeShortcut(QStringLiteral("one"));
    OlvShortcutEdit edit(held);
    QSignalSpy changed(&edit, &OlvShortcutEdit::shortcutChanged);
    takeRecord();
    QVERIFY(!edit.setShortcut(nullptr));
    for (const QVariant &value :
         { QVariant(), QVariant(0), QVariant(0xdeadbeefULL), QVariant(QStringLiteral("Ctrl+A")),
           QVariant(addressOf(held) + 8) }) {
        edit.setValue(value);
    }
    QCOMPARE(edit.shortcut(), held);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(takeRecord(), QStringList());
}

void TestShortcutEdit::keepsTheOneItHoldsAlready()
{
    auto *held = new FakeShortcut(QStringLiteral("one"));
    OlvShortcutEdit edit(held);
    takeRecord();
    QVERIFY(edit.setShortcut(held));
    QCOMPARE(takeRecord(), QStringList({ QStringLiteral("one active") }));
    QCOMPARE(edit.shortcut(), held);
}

void TestShortcutEdit::keepsTheOneItHoldsWhereThatFailsNow()
{
    auto *held = new FakeShortcut(QStringLiteral("one"));
    OlvShortcutEdit edit(held);
    QSignalSpy shortcutChanged(&edit, &OlvShortcutEdit::shortcutChanged);
    QSignalSpy valueChanged(&edit, &OlvWidget::valueChanged);
    takeRecord();
    held->grantable = false;
    QVERIFY(!edit.setShortcut(held));
    QCOMPARE(takeRecord(), QStringList({ QStringLiteral("one active") }));
    QCOMPARE(edit.shortcut(), held);
    QCOMPARE(edit.property("HasOlvShortcut"), QVariant(true));
    QCOMPARE(edit.property("OlvShortcut").toULongLong(), addressOf(held));
    QCOMPARE(shortcutChanged.count() + valueChanged.count(), 0);
}

void TestShortcutEdit::clearingDeletesWithoutDestroying()
{
    OlvShortcutEdit edit(new FakeShortcut(QStringLiteral("one")));
    QSignalSpy shortcutChanged(&edit, &OlvShortcutEdit::shortcutChanged);
    QSignalSpy valueChanged(&edit, &OlvWidget::valueChanged);
    takeRecord();
    edit.clear();
    QCOMPARE(takeRecord(), QStringList({ QStringLiteral("one deleted") }));
    QCOMPARE(edit.property("HasOlvShortcut"), QVariant(false));
    QCOMPARE(edit.shortcut(), nullptr);
    QCOMPARE(edit.getValue(), QVariant(QStringLiteral("nullptr")));
    edit.clear();
    QCOMPARE(shortcutChanged.count() + valueChanged.count(), 0);
    QCOMPARE(takeRecord(), QStringList());
}

void TestShortcutEdit::destructorDeletesWithoutDestroying()
{
    {
        const OlvShortcutEdit edit(new FakeShortcut(QStringLiteral("one")));
        takeRecord();
    }
    QCOMPARE(takeRecord(), QStringList({ QStringLiteral("one deleted") }));
}

ADD_TEST(TestShortcutEdit, QApplication)
#include "tst_shortcutedit.moc"

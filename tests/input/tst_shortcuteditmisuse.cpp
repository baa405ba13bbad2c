// SPDX-License-Identifier: MIT
#include "fakeshortcut.h"
#include "keyplay.h"
#include "testprogram.h"

#include <OlvShortcutEdit>

#include <QPointer>
#include <QTest>

#include <utility>

namespace {

using Deed = void (*)(OlvShortcutEdit *edit);

} // namespace

Q_DECLARE_METATYPE(Deed)

class TestShortcutEditMisuse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void survivesSlotsThatDoAnything_data();
    void survivesSlotsThatDoAnything();
    void survivesShortcutsThatDeleteIt();
    void survivesAClearThatDeletesIt();
    void hostilePropertiesNameNoShortcut_data();
    void hostilePropertiesNameNoShortcut();
};

void TestShortcutEditMisuse::init()
{
    takeRecord();
}

void TestShortcutEditMisuse::survivesSlotsThatDoAnything_data()
{
    QTest::addColumn<bool>("fromValueChanged");
    QTest::addColumn<Deed>("deed");
    QTest::addColumn<QString>("value");
    const QString none = QStringLiteral("nullptr");
    const auto add = [](const char *name, const QString &value, Deed deed) {
        QTest::addRow("%s, shortcutChanged", name) << false << deed << value;
        QTest::addRow("%s, valueChanged", name) << true << deed << value;
    };
    add("delete", QString(), [](OlvShortcutEdit *edit) { delete edit; });
    add("clear", none, [](OlvShortcutEdit *edit) { edit->clear(); });
    add("delete the shortcut", none, [](OlvShortcutEdit *edit) { delete edit->shortcut(); });
    add("replace", QStringLiteral("two"),
        [](OlvShortcutEdit *edit) { edit->setShortcut(new FakeShortcut(QStringLiteral("two"))); });
}

void TestShortcutEditMisuse::survivesSlotsThatDoAnything()
{
    QFETCH(bool, fromValueChanged);
    QFETCH(Deed, deed);
    QFETCH(QString, value);
    const QPointer<OlvShortcutEdit> edit(new OlvShortcutEdit);
    bool done = false;
    const auto act = [&] {
        if (!std::exchange(done, true)) {
            deed(edit);
        }
    };
    if (fromValueChanged) {
        connect(edit, &OlvWidget::valueChanged, this, act);
    } else {
        connect(edit, &OlvShortcutEdit::shortcutChanged, this, act);
    }
    QVERIFY(edit->setShortcut(new FakeShortcut(QStringLiteral("one"))));
    QVERIFY(done);
    QCOMPARE(edit ? edit->getValue().toString() : QString(), value);
    delete edit;
    // whatever happened, each shortcut was deleted once
    const QStringList record = takeRecord();
    QCOMPARE(record.count(QStringLiteral("one deleted")), 1);
    QCOMPARE(record.count(QStringLiteral("two deleted")), value == QLatin1String("two") ? 1 : 0);
}

void TestShortcutEditMisuse::survivesShortcutsThatDeleteIt()
{
    QPointer<OlvShortcutEdit> edit(new OlvShortcutEdit);
    auto *shortcut = new FakeShortcut(QStringLiteral("one"));
    shortcut->onActive = [=] {
        delete edit;
    };
    QVERIFY(!edit->setShortcut(shortcut));
    QVERIFY(edit.isNull());
    QCOMPARE(takeRecord(),
             QStringList({ QStringLiteral("one active"), QStringLiteral("one deleted") }));

    edit = new OlvShortcutEdit;
    shortcut = new FakeShortcut(QStringLiteral("one"));
    shortcut->onDestroy = [=] {
        delete edit;
    };
    edit->setShortcut(shortcut);
    takeRecord();
    QVERIFY(!edit->setShortcut(new FakeShortcut(QStringLiteral("two"))));
    QVERIFY(edit.isNull());
    QStringList record = takeRecord();
    record.sort();
    QCOMPARE(record,
             QStringList({ QStringLiteral("one deleted"), QStringLiteral("one destroyed"),
                           QStringLiteral("two active"), QStringLiteral("two deleted") }));
}

void TestShortcutEditMisuse::survivesAClearThatDeletesIt()
{
    const QPointer<OlvShortcutEdit> edit(
        new OlvShortcutEdit(new FakeShortcut(QStringLiteral("one"))));
    connect(edit->shortcut(), &QObject::destroyed, this, [=] { delete edit; });
    edit->clear();
    QVERIFY(edit.isNull());
    QCOMPARE(takeRecord().count(QStringLiteral("one deleted")), 1);
}

void TestShortcutEditMisuse::hostilePropertiesNameNoShortcut_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("value");
    for (const char *name : { "HasOlvShortcut", "OlvShortcut", "Temp" }) {
        QTest::addRow("%s invalid", name) << QByteArray(name) << QVariant();
        QTest::addRow("%s wild", name) << QByteArray(name) << QVariant(0xdeadbeefULL);
        QTest::addRow("%s text", name) << QByteArray(name) << QVariant(QStringLiteral("x"));
    }
}

void TestShortcutEditMisuse::hostilePropertiesNameNoShortcut()
{
    QFETCH(QByteArray, name);
    QFETCH(QVariant, value);
    for (const bool holding : { false, true }) {
        auto *edit = new OlvShortcutEdit;
        if (holding) {
            edit->setShortcut(new FakeShortcut(QStringLiteral("one")));
        }
        edit->setProperty(name.constData(), value);
        QVERIFY(!edit->grab().isNull());
        edit->getValue();
        play(*edit, QStringLiteral("+ctrl +a -a -ctrl"));
        edit->setShortcut(new FakeShortcut(QStringLiteral("two")));
        QCOMPARE(edit->getValue(), QVariant(QStringLiteral("two")));
        edit->setProperty(name.constData(), value);
        edit->clear();
        delete edit;
        const QStringList record = takeRecord();
        QCOMPARE(record.count(QStringLiteral("one deleted")), holding ? 1 : 0);
        QCOMPARE(record.count(QStringLiteral("two deleted")), 1);
    }
}

ADD_TEST(TestShortcutEditMisuse, QApplication)
#include "tst_shortcuteditmisuse.moc"

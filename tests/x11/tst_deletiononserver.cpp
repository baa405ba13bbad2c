// SPDX-License-Identifier: MIT
#include "keyplay.h"
#include "shortcutkeys.h"

#include <OlvShortcutEdit>

#include <QPointer>
#include <QTest>

#include <functional>

/** What slots may delete when a shortcut fires, and when one has been typed. */
class TestDeletionOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void survivesDeletionByAShortcut_data();
    void survivesDeletionByAShortcut();
    void survivesDeletionByATypedShortcut_data();
    void survivesDeletionByATypedShortcut();
};

void TestDeletionOnServer::survivesDeletionByAShortcut_data()
{
    QTest::addColumn<QString>("victim");
    for (const char *victim : { "shortcut", "parent", "field", "another shortcut" }) {
        QTest::newRow(victim) << QString::fromLatin1(victim);
    }
}

void TestDeletionOnServer::survivesDeletionByAShortcut()
{
    QFETCH(QString, victim);
    RealInput input;
    QVERIFY(input.isValid());
    const QPointer<QWidget> parent(new QWidget);
    const QPointer<OlvShortcutEdit> field(new OlvShortcutEdit(ctrl(Qt::Key_F5), parent));
    const QPointer<OlvShortcut> shortcut(field->shortcut());
    QVERIFY(shortcut);
    const QPointer<OlvShortcut> another(
        new OlvShortcut(Qt::Key_F6, true, false, false, false, parent));
    QVERIFY(another->active());
    const QHash<QString, QPointer<QObject>> victims{
        { QStringLiteral("shortcut"), shortcut.data() },
        { QStringLiteral("parent"), parent.data() },
        { QStringLiteral("field"), field.data() },
        { QStringLiteral("another shortcut"), another.data() },
    };
    const QPointer<QObject> target = victims.value(victim);
    connect(shortcut, &OlvShortcut::activated, this, [=] { delete target; });
    pressWithControl(input, symbolF5);
    QTRY_VERIFY(target.isNull());
    // the combination is free again exactly where its shortcut is gone
    OlvShortcut later(Qt::Key_F5, true, false, false, false);
    QCOMPARE(later.active(), shortcut.isNull());
    OlvShortcut laterAnother(Qt::Key_F6, true, false, false, false);
    QCOMPARE(laterAnother.active(), another.isNull());
    pressWithControl(input, symbolF5);
    QTest::qWait(50);
    delete parent;
}

void TestDeletionOnServer::survivesDeletionByATypedShortcut_data()
{
    QTest::addColumn<QString>("victim");
    QTest::addColumn<bool>("fromValueChanged");
    for (const char *victim : { "field", "parent", "shortcut" }) {
        for (const bool fromValueChanged : { false, true }) {
            QTest::addRow("%s, %s", victim, fromValueChanged ? "valueChanged" : "shortcutChanged")
                << QString::fromLatin1(victim) << fromValueChanged;
        }
    }
}

void TestDeletionOnServer::survivesDeletionByATypedShortcut()
{
    QFETCH(QString, victim);
    QFETCH(bool, fromValueChanged);
    const QPointer<QWidget> parent(new QWidget);
    const QPointer<OlvShortcutEdit> field(new OlvShortcutEdit(parent));
    QPointer<QObject> target;
    bool emitted = false;
    const auto destroy = [&] {
        emitted = true;
        if (victim == QLatin1String("field")) {
            target = field;
        } else if (victim == QLatin1String("parent")) {
            target = parent;
        } else {
            target = field->shortcut();
        }
        delete target;
    };
    if (fromValueChanged) {
        connect(field, &OlvWidget::valueChanged, this, destroy);
    } else {
        connect(field, &OlvShortcutEdit::shortcutChanged, this, destroy);
    }
    play(*field, QStringLiteral("+ctrl +f5"));
    play(*field, QStringLiteral("-f5"));
    QVERIFY(emitted);
    QVERIFY(target.isNull());
    QCOMPARE(field.isNull(), victim != QLatin1String("shortcut"));
    OlvShortcut later(Qt::Key_F5, true, false, false, false);
    QVERIFY(later.active());
    if (field) {
        QCOMPARE(field->getValue().toString(), QStringLiteral("nullptr"));
    }
    delete parent;
}

QTEST_MAIN(TestDeletionOnServer)
#include "tst_deletiononserver.moc"

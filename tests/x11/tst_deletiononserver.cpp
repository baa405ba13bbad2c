// SPDX-License-Identifier: MIT
#include "keyplay.h"
#include "shortcutkeys.h"
#include "testprogram.h"

#include <OlvShortcutEdit>

#include <QPointer>
#include <QTest>

namespace {

/** Finds what is deleted: the field, what belongs to it, or another shortcut. */
using Victim = QObject *(*)(OlvShortcutEdit *field, OlvShortcut *another);

} // namespace

Q_DECLARE_METATYPE(Victim)

/** What slots may delete when a shortcut fires, and when one has been typed. */
class TestDeletionOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void survivesDeletionByAShortcut_data();
    void survivesDeletionByAShortcut();
    void survivesDeletionByATypedShortcut_data();
    void survivesDeletionByATypedShortcut();

private:
    static void addVictims();
};

void TestDeletionOnServer::addVictims()
{
    QTest::addColumn<Victim>("victim");
    const auto row = [](const char *name, Victim victim) {
        QTest::newRow(name) << victim;
    };
    row("shortcut",
        [](OlvShortcutEdit *field, OlvShortcut *) -> QObject * { return field->shortcut(); });
    row("parent", [](OlvShortcutEdit *field, OlvShortcut *) { return field->parent(); });
    row("field", [](OlvShortcutEdit *field, OlvShortcut *) -> QObject * { return field; });
}

void TestDeletionOnServer::survivesDeletionByAShortcut_data()
{
    addVictims();
    QTest::newRow("another shortcut")
        << Victim([](OlvShortcutEdit *, OlvShortcut *another) -> QObject * { return another; });
}

void TestDeletionOnServer::survivesDeletionByAShortcut()
{
    QFETCH(Victim, victim);
    RealInput input;
    QVERIFY(input.isValid());
    const QPointer<QWidget> parent(new QWidget);
    const QPointer<OlvShortcutEdit> field(new OlvShortcutEdit(ctrl(Qt::Key_F5), parent));
    const QPointer<OlvShortcut> shortcut(field->shortcut());
    QVERIFY(shortcut);
    const QPointer<OlvShortcut> another(
        new OlvShortcut(Qt::Key_F6, true, false, false, false, parent));
    QVERIFY(another->active());
    const QPointer<QObject> target(victim(field, another));
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
    addVictims();
}

void TestDeletionOnServer::survivesDeletionByATypedShortcut()
{
    QFETCH(Victim, victim);
    const QPointer<QWidget> parent(new QWidget);
    const QPointer<OlvShortcutEdit> field(new OlvShortcutEdit(parent));
    QPointer<QObject> target;
    bool emitted = false;
    connect(field, &OlvShortcutEdit::shortcutChanged, this, [&] {
        emitted = true;
        target = victim(field, nullptr);
        delete target;
    });
    play(*field, QStringLiteral("+ctrl +f5"));
    play(*field, QStringLiteral("-f5"));
    QVERIFY(emitted);
    QVERIFY(target.isNull());
    OlvShortcut later(Qt::Key_F5, true, false, false, false);
    QVERIFY(later.active());
    if (field) {
        QCOMPARE(field->getValue().toString(), QStringLiteral("nullptr"));
    }
    delete parent;
}

ADD_TEST(TestDeletionOnServer, QApplication)
#include "tst_deletiononserver.moc"

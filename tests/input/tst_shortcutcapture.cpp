// SPDX-License-Identifier: MIT
#include "keyplay.h"
#include "paintwatch.h"
#include "shortcutcapture.h"
#include "testprogram.h"

#include <QSignalSpy>
#include <QTest>

#include <cstddef>
#include <limits>

static_assert(offsetof(ShortcutCapture, ctrl) == 0 && offsetof(ShortcutCapture, shift) == 1
                  && offsetof(ShortcutCapture, alt) == 2 && offsetof(ShortcutCapture, meta) == 3
                  && offsetof(ShortcutCapture, key) == 4
                  && offsetof(ShortcutCapture, recording) == 8,
              "programs may read the fields at the address that the property holds");

class TestShortcutCapture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void notesKeys_data();
    void notesKeys();
    void standsANumberThatIsNoKey_data();
    void standsANumberThatIsNoKey();
    void takesKeyEventsForItself();
    void repaintsForEveryCombinationThatIsTried_data();
    void repaintsForEveryCombinationThatIsTried();
};

void TestShortcutCapture::notesKeys_data()
{
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("capture");
    const auto row = [](const char *events, const QString &capture) {
        QTest::newRow(events) << QString::fromLatin1(events) << capture;
    };
    const auto with = [](const char *modifiers, int key) {
        return QStringLiteral("%1 %2 recording").arg(QLatin1String(modifiers)).arg(key);
    };
    row("+ctrl", with("c", -1));
    row("+ctrl +shift +alt +meta", with("csam", -1));
    row("+a", with("", 'A'));
    row("+ctrl +a", with("c", 'A'));
    row("+ctrl +a +b", with("c", 'B'));
    row("+esc", with("", Qt::Key_Escape));
    row("+back", with("", Qt::Key_Backspace));
    row("+super", with("", Qt::Key_Super_L));
    // modifiers alone end the recording
    row("+ctrl -ctrl", QStringLiteral(" -1 idle"));
    row("+ctrl +shift -ctrl", with("s", -1));
    row("+ctrl +shift -ctrl -shift", QStringLiteral(" -1 idle"));
    // a key that was noted stays noted, and keeps the recording going
    row("+ctrl +a -a", with("c", 'A'));
    row("+ctrl +a -a -ctrl", with("", 'A'));
    row("+ctrl +a -a -ctrl +b", with("", 'B'));
    row("+ctrl +a -ctrl -a", with("", 'A'));
    row("+a -a +ctrl", with("c", 'A'));
    row("+a -a +ctrl -ctrl", with("", 'A'));
    // a release whose press went elsewhere
    row("-ctrl", QStringLiteral(" 0 idle"));
    row("-a", QStringLiteral(" 0 idle"));
    row("+ctrl -ctrl -a", QStringLiteral(" -1 idle"));
}

void TestShortcutCapture::notesKeys()
{
    QFETCH(QString, events);
    QFETCH(QString, capture);
    OlvShortcutEdit edit;
    QSignalSpy changed(&edit, &OlvShortcutEdit::shortcutChanged);
    play(edit, events);
    QCOMPARE(textOf(captureOf(edit)), capture);
    // without an X server no combination can be registered
    QCOMPARE(changed.count(), 0);
    QCOMPARE(edit.shortcut(), nullptr);
}

void TestShortcutCapture::standsANumberThatIsNoKey_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("negative") << -1;
    QTest::newRow("far below") << std::numeric_limits<int>::min();
    QTest::newRow("far below, odd") << int(0xdbffff67);
    QTest::newRow("the first behind the last key") << int(Qt::Key_unknown) + 1;
    QTest::newRow("far behind") << std::numeric_limits<int>::max();
}

void TestShortcutCapture::standsANumberThatIsNoKey()
{
    QFETCH(int, number);
    OlvShortcutEdit edit;
    QSignalSpy changed(&edit, &OlvShortcutEdit::shortcutChanged);
    play(edit, QStringLiteral("+ctrl"));
    for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
        QKeyEvent event(type, number, Qt::ControlModifier);
        QCoreApplication::sendEvent(&edit, &event);
        QVERIFY(event.isAccepted());
        QCOMPARE(textOf(captureOf(edit)), QStringLiteral("c %1 recording").arg(number));
    }
    QCOMPARE(changed.count(), 0);
    QCOMPARE(edit.shortcut(), nullptr);
    QCOMPARE(edit.getValue(), QVariant(QStringLiteral("nullptr")));
    play(edit, QStringLiteral("+a"));
    QCOMPARE(textOf(captureOf(edit)), QStringLiteral("c %1 recording").arg(int('A')));
}

void TestShortcutCapture::takesKeyEventsForItself()
{
    OlvShortcutEdit edit;
    for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
        QKeyEvent event(type, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(&edit, &event);
        QVERIFY(event.isAccepted());
    }
}

void TestShortcutCapture::repaintsForEveryCombinationThatIsTried_data()
{
    QTest::addColumn<QString>("events");
    QTest::addColumn<QVector<int>>("repaints");
    const auto row = [](const char *events, const QVector<int> &repaints) {
        QTest::newRow(events) << QString::fromLatin1(events) << repaints;
    };
    row("+ctrl +a -a -ctrl +b -b", { 0, 0, 1, 0, 0, 1 });
    row("+a +b -a -b", { 0, 0, 1, 1 });
    row("+ctrl -ctrl", { 0, 0 });
    row("+ctrl -ctrl -a", { 0, 0, 0 });
    row("+meta +alt +shift -shift -alt -meta", { 0, 0, 0, 0, 0, 0 });
    row("-a", { 1 });
}

void TestShortcutCapture::repaintsForEveryCombinationThatIsTried()
{
    QFETCH(QString, events);
    QFETCH(QVector<int>, repaints);
    OlvShortcutEdit edit;
    PaintWatch watch(edit);
    QVERIFY(watch.showWindow());
    QVector<int> seen;
    const QStringList names = events.split(QLatin1Char(' '));
    for (const QString &name : names) {
        play(edit, name);
        seen.append(watch.takeWhole());
    }
    QCOMPARE(seen, repaints);
}

ADD_TEST(TestShortcutCapture, QApplication)
#include "tst_shortcutcapture.moc"

// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <QProcess>
#include <QTest>

/** Shortcuts that are used before there is an application object, and after it has gone. */
class TestShortcutAtExit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsWithoutACrash_data();
    void endsWithoutACrash();
    void endsWithTheServerWithoutACrash();
};

void TestShortcutAtExit::endsWithoutACrash_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("platform");
    for (const char *platform : { "offscreen", "xcb" }) {
        for (const char *name :
             { "leaveToAStaticPointer", "leaveToAStaticParent", "leaveToAStaticApplication",
               "exitWithAStaticEditor", "exitOutOfTheEventLoop", "useItBeforeThereIsAnApplication",
               "useItInOneApplicationAfterTheOther", "useItWhileTheApplicationGoes" }) {
            QTest::addRow("%s, %s", name, platform)
                << QString::fromLatin1(name) << QString::fromLatin1(platform);
        }
    }
}

void TestShortcutAtExit::endsWithoutACrash()
{
    QFETCH(QString, name);
    QFETCH(QString, platform);
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(QStringLiteral(OLV_SHORTCUT_AT_EXIT), { name });
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
}

void TestShortcutAtExit::endsWithTheServerWithoutACrash()
{
    QProcess server;
    server.start(QStringLiteral("Xvfb"),
                 { QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-nolisten"),
                   QStringLiteral("tcp"), QStringLiteral("-noreset") });
    QVERIFY(server.waitForReadyRead());
    const QByteArray display = server.readLine().trimmed();
    QVERIFY(!display.isEmpty());

    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), QLatin1Char(':') + QString::fromLatin1(display));
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(OLV_SHORTCUT_AT_EXIT),
                  { QStringLiteral("waitForTheEndOfTheServer") });
    QVERIFY(program.waitForReadyRead());
    QCOMPARE(program.readLine().trimmed(), QByteArray("registered"));
    server.kill();
    QVERIFY(server.waitForFinished());
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    // Qt ends a program that has lost its server with this
    QCOMPARE(program.exitCode(), 1);
}

ADD_TEST(TestShortcutAtExit, QApplication)
#include "tst_shortcutatexit.moc"

// SPDX-License-Identifier: MIT
#include <QProcess>
#include <QTest>

/** Shortcuts that are used before there is an application object, and after it has gone. */
class TestShortcutAtExit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsWithoutACrash_data();
    void endsWithoutACrash();
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

QTEST_MAIN(TestShortcutAtExit)
#include "tst_shortcutatexit.moc"

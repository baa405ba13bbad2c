// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <QProcess>
#include <QTest>

/** Widgets that outlive the application object or the statics of the library, or are made then. */
class TestWidgetsAtExit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsWithoutACrash_data();
    void endsWithoutACrash();
};

void TestWidgetsAtExit::endsWithoutACrash_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         { "leaveToStaticPointers", "leaveToAStaticParent", "leaveToAStaticApplication",
           "leaveASupportedForm", "leaveThemUndestroyed", "exitInASlot", "exitInASlotOfTheirs",
           "makeThemLater", "lookLater", "callTheRestLater", "repaintLater",
           "lookLaterAtThoseThatAreThere", "useThemInOneApplicationAfterTheOther" }) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void TestWidgetsAtExit::endsWithoutACrash()
{
    QFETCH(QString, name);
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // what was put off to the event loop is still there when a program ends early
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    // the C library overwrites what is freed with it, so that reading that crashes
    environment.insert(QStringLiteral("MALLOC_PERTURB_"), QStringLiteral("165"));
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(QStringLiteral(OLV_WIDGETS_AT_EXIT), { name });
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
}

ADD_TEST(TestWidgetsAtExit, QApplication)
#include "tst_widgetsatexit.moc"
